~Version Information
VERS.   3.0   : CWLS LOG ASCII STANDARD - VERSION 3.0
WRAP.   NO    : ONE LINE PER DEPTH STEP
PROD.   ZORVIK : PRODUCER
DLM .   COMMA : DELIMITER IN FOURTH PLACE
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
