~Version Information
VERS.   3.0   : CWLS LOG ASCII STANDARD - VERSION 3.0
WRAP.   NO    : ONE LINE PER DEPTH STEP
DLM .   COMMA : DELIMITING CHARACTER BETWEEN DATA COLUMNS
~Well Information
STRT.M   1000.000             : START DEPTH
STOP.M   1002.000             : STOP DEPTH
STEP.M   0.500                : STEP
NULL.    -999.25              : NULL VALUE
COMP.    ANY OIL COMPANY INC. : COMPANY
WELL.    ZORVIK 3             : WELL
FLD .    WILDCAT              : FIELD
LOC .    12-34-056-07W5M      : LOCATION
CTRY.    CA                   : COUNTRY
PROV.    ALBERTA              : PROVINCE
UWI .    100123405607W500     : UNIQUE WELL ID
LIC .    0123456              : LICENCE NUMBER
DATE.    2024-01-15           : LOG DATE
SRVC.    ANY LOGGING CO.      : SERVICE COMPANY
LATI.DEG 52.345678            : LATITUDE
LONG.DEG -114.567890          : LONGITUDE
GDAT.    NAD83                : GEODETIC DATUM
~Log_Parameter
BS1 .MM   215.9               : BIT SIZE {F}
~Log_Definition
DEPT.M                        : DEPTH {F8.3}
GR1 .GAPI                     : GAMMA RAY {F} | BS1
~Log_Data | Log_Definition
1000.000,45.2
~Core_Definition
CDEP.M : CORE DEPTH {F8.3}
CPOR.% : CORE POROSITY {F}
~Core_Data | Core_Definition
1001.500,12.5
1002.000,13.1
