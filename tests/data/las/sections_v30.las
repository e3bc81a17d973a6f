~Version
VERS. 3.0 : CWLS LOG ASCII STANDARD - VERSION 3.0
WRAP. NO : ONE LINE PER DEPTH STEP
DLM . COMMA : DELIMITER
~Well
STRT.M 1670.0 : START DEPTH
~Tops_Parameter
TOPS.  0 : x
~Tops_Definition
TOP.M : top depth
~Tops_Data | Tops_Definition
1000.0,Sand
~Log_Parameter
BS.MM 200 : BIT SIZE
~Log_Definition
DEPT.M : DEPTH {F}
~Log_Data[1] | Log_Definition
1670.0
~Log_Data[2] | Log_Definition
1669.0
~Well
STRT.M 9999.0 : SECOND WELL SECTION
