~Version Information
 VERS.                  2.0 : CWLS log ASCII Standard - VERSION 2.0
 WRAP.                   NO : One line per depth step
~Well Information
#MNEM.UNIT      DATA                        DESCRIPTION
#----.----      -------------------------   ---------------
 STRT.M         1200.0000                   : START DEPTH
 STOP.M         1201.0000                   : STOP DEPTH
 STEP.M         0.2500                      : STEP
 NULL.          -999.25                     : NULL VALUE
 COMP.          Zorvik Test Exploration     : COMPANY
 WELL.          Zorvik 4-22-51-9            : WELL
 FLD .          Sample Ridge                : FIELD
 LOC .          4-22-051-09W5               : LOCATION
 SRVC.          Prairie Logging Ltd.        : SERVICE COMPANY
 DATE.          2003-11-15                  : LOG DATE
 PROV.          Alberta                     : PROVINCE
 UWI .          100042205109W500            : UNIQUE WELL ID
~Curve Information
 DEPT.M                      : Measured depth
 GR  .GAPI                   : Gamma ray
 RHOB.G/C3                   : Bulk density
 NPHI.V/V                    : Neutron porosity
~Parameter Information
 BHT .DEGC      62.5                        : Bottom hole temperature
 MDEN.G/C3      2.71                        : Matrix density
~ASCII
1200.0000   45.10   2.450   0.210
1200.2500   47.30   2.430   0.225
1200.5000   52.80   2.410   0.240
1200.7500   60.20   2.390   0.255
1201.0000   58.90   2.400   0.250
