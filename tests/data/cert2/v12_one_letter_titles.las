~V
 VERS.                          1.2:   CWLS LOG ASCII STANDARD -VERSION 1.2
 WRAP.                          NO:   ONE LINE PER DEPTH STEP
~W
#MNEM.UNIT       DATA TYPE    INFORMATION
#---------    -------------   ------------------------------
 STRT.M                 635.0000:
 STOP.M                 637.0000:
 STEP.M                   0.5000:
 NULL.                  -999.25:
 COMP.                   COMPANY:   NORTHERN LIGHTS RESOURCES LTD.
 WELL.                      WELL:   NLR GRANITE CREEK 6-14-38-22
 FLD .                     FIELD:   GRANITE CREEK
 LOC .                  LOCATION:   6-14-38-22W4M
 PROV.                  PROVINCE:   ALBERTA
 SRVC.           SERVICE COMPANY:   BOREAL WIRELINE SERVICES
 DATE.                  LOG DATE:   21-APR-1994
 UWI .            UNIQUE WELL ID:   100061403822W400
~C
#MNEM.UNIT      API CODE     CURVE DESCRIPTION
#---------    -------------   ------------------------------
 DEPT.M                          :   1  DEPTH
 DT  .US/M          60 520 32 00 :   2  SONIC TRANSIT TIME
 RHOB.K/M3          45 350 01 00 :   3  BULK DENSITY
 NPHI.V/V           42 890 00 00 :   4  NEUTRON POROSITY
 SFLU.OHMM          07 220 04 00 :   5  SHALLOW RESISTIVITY
 ILD .OHMM          07 120 46 00 :   6  DEEP RESISTIVITY
~P
#MNEM.UNIT        VALUE        DESCRIPTION
#---------    -------------   ------------------------------
 BHT .DEGC          41.0000:   BOTTOM HOLE TEMPERATURE
 BS  .MM           200.0000:   BIT SIZE
 FD  .K/M3        1000.0000:   FLUID DENSITY
 MDEN.K/M3        2710.0000:   LOGGING MATRIX DENSITY
 RMF .OHMM           0.2160:   MUD FILTRATE RESISTIVITY
~A  DEPTH     DT       RHOB     NPHI     SFLU     ILD
635.0000  123.450  2550.000    0.450  123.450  110.200
635.5000  123.450  2550.000    0.450  123.450  110.200
636.0000  121.800  2541.000    0.438  118.200  105.900
636.5000  119.300  2536.000    0.421  111.400  101.700
637.0000  117.900  2529.000    0.409  104.600   98.300
