~Version Information
VERS.                3.0 : CWLS LOG ASCII STANDARD - VERSION 3.0
WRAP.                 NO : One line per depth step
DLM .              COMMA : Data items separated by commas
~Well Information
STRT.M          1000.000 : First index value
STOP.M          1005.000 : Last index value
STEP.M             0.500 : Index step
NULL.            -999.25 : Null value
COMP.    Zorvik Test Oil : Company
WELL. Zorvik Example 2-30 : Well name
FLD.        Sample Basin : Field
LOC.       Section 12 T4 : Location
CTRY.                 US : Country
STAT.              Texas : State
CNTY.              Midland : County
API.        42329123450000 : API number
DATE.         2024-02-20 : Date logged
SRVC.     Zorvik Logging : Service company
X.M            612345.50 : Easting
Y.M           3541234.25 : Northing
GDAT.              NAD27 : Geodetic datum
HZCS.           UTM13N : Horizontal coordinate system
~Log_Parameter[1]
BS.MM              222.3 : Bit size {F}
MUD.           Water based : Mud type {S}
~Log_Definition[1]
DEPT.M                   : Measured depth {F8.3}
GR.GAPI                  : Gamma ray {F} | BS
AMP[1].MV                : Waveform amplitude 1 {AF5.2;10}
AMP[2].MV                : Waveform amplitude 2 {AF5.2;10}
~Log_Data[1] | Log_Definition[1]
1000.000,55.00,20.00,30.00
1000.500,55.75,20.50,30.25
1001.000,56.50,21.00,30.50
1001.500,57.25,21.50,30.75
1002.000,58.00,22.00,31.00
1002.500,58.75,22.50,31.25
1003.000,59.50,23.00,31.50
1003.500,60.25,23.50,31.75
1004.000,61.00,24.00,32.00
1004.500,61.75,24.50,32.25
1005.000,62.50,25.00,32.50
~Log_Definition[2]
DEPT.M                   : Measured depth {F8.3}
RES.OHMM                 : Deep resistivity {F} | MUD
FLAG.                    : Quality flag {I}
~Log_Data[2] | Log_Definition[2]
1000.000,2.500,0
1000.500,2.625,1
1001.000,2.750,0
1001.500,2.875,1
1002.000,3.000,0
1002.500,3.125,1
1003.000,3.250,0
1003.500,3.375,1
1004.000,3.500,0
1004.500,3.625,1
1005.000,3.750,0
