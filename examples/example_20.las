~VERSION INFORMATION
 VERS.                  2.0 :   CWLS LOG ASCII STANDARD -VERSION 2.0
 WRAP.                   NO :   ONE LINE PER DEPTH STEP
~WELL INFORMATION
#MNEM.UNIT      DATA                       DESCRIPTION
#----- -----    ----------------------     ------------------
 STRT.M             1670.0000             :START DEPTH
 STOP.M             1669.7500             :STOP DEPTH
 STEP.M               -0.1250             :STEP
 NULL.                -999.25             :NULL VALUE
 COMP.      NORTHERN LIGHTS EXPLORATION   :COMPANY
 WELL.      NLE KESTREL 7-14               :WELL
 FLD .      KESTREL                        :FIELD
 LOC .      7-14-52-21W4M                  :LOCATION
 PROV.      ALBERTA                        :PROVINCE
 CTRY.      CA                             :COUNTRY
 SRVC.      GEOSONDE LOGGING               :SERVICE COMPANY
 DATE.      12-MAR-2004                    :LOG DATE
 UWI .      100071405221W400               :UNIQUE WELL ID
 LIC .      0412345                        :LICENCE NUMBER
~CURVE INFORMATION
#MNEM.UNIT      API CODE      CURVE DESCRIPTION
 DEPT.M                        :  1  DEPTH
 GR  .GAPI      45 310 01 00   :  2  GAMMA RAY
 NPHI.V/V       42 890 00 00   :  3  NEUTRON POROSITY
 RHOB.K/M3      45 350 02 00   :  4  BULK DENSITY
~PARAMETER INFORMATION
 BHT .DEGC           35.5000  :  BOTTOM HOLE TEMPERATURE
 RMF .OHMM            0.2160  :  MUD FILTRATE RESISTIVITY
~OTHER
     Synthetic example written for Zorvik.
~A  DEPTH     GR       NPHI     RHOB
1670.000   62.5000   0.2810   2512.0000
1669.875   64.1250   0.2745   2498.5000
1669.750   60.0000   0.2900   2530.2500
