~Version Information
 VERS.                  2.0 : CWLS log ASCII Standard - VERSION 2.0
 WRAP.                  YES : Multiple lines per depth step
~Well Information
#MNEM.UNIT      DATA                        DESCRIPTION
#----.----      -------------------------   ---------------------
 STRT.FT        4100.0000                   : START DEPTH
 STOP.FT        4102.0000                   : STOP DEPTH
 STEP.FT        0.5000                      : STEP
 NULL.          -999.2500                   : NULL VALUE
 COMP.          Mesa Verde Operating Co.    : COMPANY
 WELL.          Juniper Federal 23-7        : WELL
 FLD .          Wildcat                     : FIELD
 LOC .          SE NW Sec 7 T31N R104W      : LOCATION
 CNTY.          Sublette                    : COUNTY
 STAT.          Wyoming                     : STATE
 CTRY.          USA                         : COUNTRY
 SRVC.          High Plains Logging         : SERVICE COMPANY
 DATE.          2004-06-02                  : LOG DATE
 API .          49-035-24417                : API NUMBER
~Curve Information
 DEPT.FT                     : Measured depth
 GR  .GAPI                  : Gamma ray
 CALI.IN                    : Caliper
 SP  .MV                    : Spontaneous potential
 RHOB.G/C3                  : Bulk density
 DRHO.G/C3                  : Density correction
 NPHI.V/V                   : Neutron porosity
 PEF .B/E                   : Photoelectric factor
 DT  .US/F                  : Sonic transit time
 ILD .OHMM                  : Deep induction
 ILM .OHMM                  : Medium induction
 SFL .OHMM                  : Shallow focused
 TENS.LBF                   : Cable tension
~Parameter Information
 BHT .DEGF      168.0                       : Bottom hole temperature
 BS  .IN        8.750                       : Bit size
 RMF .OHMM      0.412                       : Mud filtrate resistivity
~ASCII
4100.0000
    49.2511    23.4765    97.9892    11.7930    80.8464
    55.4876     9.6418    76.6079     6.5869    65.6132
    11.4085    14.5162
4100.5000
    64.2534   124.2010    19.4465    34.2626    94.4876
   142.2086    86.9883    60.1054   146.4620     7.9408
   128.9118    44.1518
4101.0000
    22.4940    18.5510    46.9638   122.6028    27.9282
    87.6584    96.1981    56.4872    82.6139    10.3556
     9.8806    31.6878
4101.5000
   102.3796    64.7113    47.8079    88.2487    68.5245
    45.6653   119.3625   105.1502    37.3704    86.5891
    79.2543   131.3955
4102.0000
   109.6873    43.9027   147.0461    18.5918    63.3003
   113.8140    23.6457    73.8555     6.8419   100.5642
   114.9211    86.3809
