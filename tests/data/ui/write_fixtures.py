#!/usr/bin/env python3
"""Writes the window tests' LAS files (CR LF line ends unless a file says otherwise)."""
from pathlib import Path

HERE = Path(__file__).parent

VERSION = [
    "~VERSION INFORMATION",
    " VERS.                 2.0 :   CWLS LOG ASCII STANDARD -VERSION 2.0",
    " WRAP.                  NO :   ONE LINE PER DEPTH STEP",
]
REST = [
    "~WELL INFORMATION",
    "#MNEM.UNIT       DATA                    DESCRIPTION",
    " STRT.M        1670.0000 :   START DEPTH",
    " STOP.M        1669.7500 :   STOP DEPTH",
    " STEP.M          -0.1250 :   STEP",
    " NULL.         -999.2500 :   NULL VALUE",
    " COMP.         NORTHERN TEST WELLS LTD. :   COMPANY",
    " WELL.         TEST 7-21 :   WELL",
    " FLD.          PRAIRIE :   FIELD",
    " LOC.          7-21-45-12W4 :   LOCATION",
    " PROV.         ALBERTA :   PROVINCE",
    " SRVC.         TEST LOGGING SERVICES :   SERVICE COMPANY",
    " DATE.         21-NOV-2026 :   LOG DATE",
    " UWI.          100072104512W400 :   UNIQUE WELL ID",
    "~CURVE INFORMATION",
    " DEPT.M                      :   1  DEPTH",
    " DT  .US/M                   :   2  SONIC TRANSIT TIME",
    " RHOB.K/M3                   :   3  BULK DENSITY",
    "~PARAMETER INFORMATION",
    " BHT .DEGC          35.5000 :   BOTTOM HOLE TEMPERATURE",
    "~A  DEPTH     DT       RHOB",
    "1670.0000   123.4500 2550.0000",
    "1669.8750   123.4500 2550.0000",
    "1669.7500   123.4500 2550.0000",
]


def write(name, lines, eol="\r\n"):
    (HERE / name).write_bytes((eol.join(lines) + eol).encode("ascii"))


write("pass_20.las", VERSION + REST)
write("lf_only_20.las", VERSION + REST, eol="\n")
write("no_wrap_20.las", VERSION[:2] + REST)
