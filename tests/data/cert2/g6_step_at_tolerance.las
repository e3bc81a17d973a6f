~Version Information
 VERS.                  2.0 : CWLS log ASCII Standard - VERSION 2.0
 WRAP.                   NO : One line per depth step
~Well Information
#MNEM.UNIT      DATA                        DESCRIPTION
 STRT.M         1200.0000                   : START DEPTH
 STOP.M         1206.0000                   : STOP DEPTH
 STEP.M         1.0                         : STEP
 NULL.          -999.25                     : NULL VALUE
 COMP.          Zorvik Test Exploration     : COMPANY
 WELL.          Zorvik 7-14-48-12           : WELL
 FLD .          Sample Ridge                : FIELD
 LOC .          7-14-048-12W5               : LOCATION
 SRVC.          Prairie Logging Ltd.        : SERVICE COMPANY
 DATE.          2003-11-15                  : LOG DATE
 PROV.          Alberta                     : PROVINCE
 UWI .          100071404812W500            : UNIQUE WELL ID
~Curve Information
 DEPT.M                      : Measured depth
 GR  .GAPI                   : Gamma ray
 RHOB.G/C3                   : Bulk density
 NPHI.V/V                    : Neutron porosity
 DT  .US/M                   : Sonic transit time
 CALI.MM                     : Caliper
~Parameter Information
 BHT .DEGC      62.5                        : Bottom hole temperature
~ASCII
1200.0000  45.10   2.450   0.210   262.5   216.0
1201.0000  47.30   2.430   0.225   265.1   216.2
1202.0000  52.80   2.410   0.240   270.8   216.9
1203.0000  60.20   2.390   0.255   276.4   217.3
1204.0000  58.90   2.400   0.250   274.0   217.0
1206.0000  55.40   2.420   0.238   269.7   216.5
