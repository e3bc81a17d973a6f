~Version Information
VERS.                3.0 : CWLS LOG ASCII STANDARD - VERSION 3.0
WRAP.                 NO : One line per depth step
DLM .              COMMA : Data items separated by commas
~Well Information
#MNEM.UNIT         VALUE : DESCRIPTION
STRT.M          1000.000 : First index value
STOP.M          1005.000 : Last index value
STEP.M             0.500 : Index step
NULL.            -999.25 : Null value
COMP.    Zorvik Test Oil : Company
WELL. Zorvik Example 1-30 : Well name
FLD.       Example Field : Field
LOC.      12-34-056-07W5 : Location
CTRY.                 CA : Country
PROV.            Alberta : Province
UWI.    100123405607W500 : Unique well identifier
LIC.             0123456 : Licence number
DATE.         2024-01-15 : Date logged
SRVC.     Zorvik Logging : Service company
LATI.DEG        52.12345 : Latitude
LONG.DEG      -114.54321 : Longitude
GDAT.              NAD83 : Geodetic datum
~Parameter Information
BS.MM              200.0 : Bit size {F}
RUN.                   1 : Run number {I}
~Curve Information
DEPT.M                   : Measured depth {F8.3}
GR.GAPI                  : Gamma ray {F} | BS
LITH.                    : Lithology {S}
SPEC[1].MV               : Spectrum bin 1 {AF5.2;0.5}
SPEC[2].MV               : Spectrum bin 2 {AF5.2;0.5}
SPEC[3].MV               : Spectrum bin 3 {AF5.2;0.5}
~ASCII | Curve
1000.000,40.00,SAND,10.00,11.00,12.00
1000.500,41.25,SHALE,10.50,11.25,12.75
1001.000,42.50,LIME,11.00,11.50,13.50
1001.500,43.75,SAND,11.50,11.75,14.25
1002.000,45.00,SHALE,12.00,12.00,15.00
1002.500,46.25,LIME,12.50,12.25,15.75
1003.000,47.50,SAND,13.00,12.50,16.50
1003.500,48.75,SHALE,13.50,12.75,17.25
1004.000,50.00,LIME,14.00,13.00,18.00
1004.500,51.25,SAND,14.50,13.25,18.75
1005.000,52.50,SHALE,15.00,13.50,19.50
