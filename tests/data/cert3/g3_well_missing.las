~Version Information
VERS.   3.0   : CWLS LOG ASCII STANDARD - VERSION 3.0
WRAP.   NO    : ONE LINE PER DEPTH STEP
DLM .   COMMA : DELIMITING CHARACTER BETWEEN DATA COLUMNS
~Parameter Information
BS  .MM   215.9               : BIT SIZE {F}
~Curve Information
DEPT.M                        : DEPTH {F8.3}
GR  .GAPI                     : GAMMA RAY {F} | BS
~ASCII | Curve
1000.000,45.2
1000.500,50.1
1001.000,48.7
1001.500,47.3
1002.000,44.9
