~Version
VERS.   3.0   : CWLS LOG ASCII STANDARD - VERSION 3.0
WRAP.   NO    : ONE LINE PER DEPTH STEP
DLM .   COMMA : DELIMITING CHARACTER BETWEEN DATA COLUMNS
~Well
STRT.M   1000.0               : START DEPTH {F}
STOP.M   1001.0               : STOP DEPTH {F}
STEP.M   0.5                  : STEP {F}
NULL.    -999.25              : NULL VALUE {F}
COMP.    ANY OIL COMPANY INC. : COMPANY {S}
WELL.    ZORVIK 1             : WELL {S}
FLD .    WILDCAT              : FIELD {S}
LOC .    12-34-056-07W5M      : LOCATION {S}
CTRY.    CA                   : COUNTRY {S}
PROV.    ALBERTA              : PROVINCE {S}
SRVC.    ANY LOGGING CO.      : SERVICE COMPANY {S}
DATE.    13/12/1986           : LOG DATE {DD/MM/YYYY}
UWI .    100123405607W500     : UNIQUE WELL ID {S}
LIC .    0123456              : LICENCE NUMBER {S}
LATI.DEG 52.345678            : LATITUDE {F}
LONG.DEG -114.567890          : LONGITUDE {F}
GDAT.    NAD83                : GEODETIC DATUM {S}
~Log_Parameter
BS  .MM   215.9               : BIT SIZE {F}
MUD .     WATER               : MUD TYPE {S}
~Log_Definition
DEPT.M                        : DEPTH {F}
GR  .GAPI                     : GAMMA RAY {F} | BS
NPHI.V/V                      : NEUTRON POROSITY {F}
NMR[1].ms                     : T2 BIN 1 {AF;0.5}
NMR[2].ms                     : T2 BIN 2 {AF;0.5}
NMR[2].ms                     : T2 BIN 2 AGAIN {AF;0.5}
NMR[3].ms                     : T2 BIN 3 {AF;0.5}
~Log_Data | Log_Definition
1000.0,45.2,0.25,1.1,1.2,1.3,4.4
1000.5,50.1,0.27,2.1,2.2,2.3,4.4
1001.0,48.7,0.31,3.1,3.2,3.3,4.4
