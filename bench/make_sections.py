#!/usr/bin/env python3
"""Writes a LAS 3.0 file with many sections, for timing the work that grows with their number.

    bench/make_sections.py OUT.las --sections 90000 [--kind sets|indexed|other]

Kinds (each adds about --sections titles after ~Version and ~Well):
  sets     Zone<k>_Parameter, Zone<k>_Definition, Zone<k>_Data | Zone<k>_Definition: complete sets
           of distinct names, one line each (the titles count runs in threes);
  indexed  Tops_Parameter[k]: one name, indexes 1..n, one parameter line each;
  other    Extra<k>: names no rule knows, one line each (every one is a finding).

Ends with ~Log_Parameter, ~Log_Definition and ~Log_Data holding ten depths, so the file has its
standard sections. CR LF line ends; the output depends only on the arguments.
"""

import argparse

CRLF = "\r\n"

HEAD = [
    "~Version",
    "VERS.   3.0   : CWLS LOG ASCII STANDARD - VERSION 3.0",
    "WRAP.   NO    : ONE LINE PER DEPTH STEP",
    "DLM .   COMMA : DELIMITING CHARACTER BETWEEN DATA COLUMNS",
    "~Well",
    "STRT.M   1000.0              : START DEPTH {F}",
    "STOP.M   1001.125            : STOP DEPTH {F}",
    "STEP.M   0.125               : STEP {F}",
    "NULL.    -999.25             : NULL VALUE {F}",
    "COMP.    BENCH OIL COMPANY   : COMPANY {S}",
    "WELL.    BENCH 1             : WELL {S}",
    "FLD .    WILDCAT             : FIELD {S}",
    "LOC .    1-2-034-05W6M       : LOCATION {S}",
    "CTRY.    CA                  : COUNTRY {S}",
    "PROV.    ALBERTA             : PROVINCE {S}",
    "SRVC.    BENCH LOGGING       : SERVICE COMPANY {S}",
    "DATE.    01/02/2003          : LOG DATE {DD/MM/YYYY}",
    "UWI .    100010203405W600    : UNIQUE WELL ID {S}",
    "LIC .    0001234             : LICENCE NUMBER {S}",
    "LATI.DEG 53.5                : LATITUDE {F}",
    "LONG.DEG -113.5              : LONGITUDE {F}",
    "GDAT.    NAD83               : GEODETIC DATUM {S}",
]

TAIL = [
    "~Log_Parameter",
    "BS  .MM  215.9               : BIT SIZE {F}",
    "~Log_Definition",
    "DEPT.M                       : DEPTH {F}",
    "GR  .GAPI                    : GAMMA RAY {F}",
    "~Log_Data | Log_Definition",
] + ["%.3f,%.2f" % (1000 + 0.125 * i, 50 + i) for i in range(10)]


def middle(kind, count):
    if kind == "sets":
        for k in range(1, count // 3 + 1):
            yield "~Zone%d_Parameter" % k
            yield "TOP .M   %d.0              : ZONE TOP {F}" % (1000 + k)
            yield "~Zone%d_Definition" % k
            yield "ZDEP.M                       : ZONE DEPTH {F}"
            yield "ZTHK.M                       : ZONE THICKNESS {F}"
            yield "~Zone%d_Data | Zone%d_Definition" % (k, k)
            yield "%d.0,2.5" % (1000 + k)
    elif kind == "indexed":
        for k in range(1, count + 1):
            yield "~Tops_Parameter[%d]" % k
            yield "TOP .M   %d.0              : TOP {F}" % (1000 + k)
    else:
        for k in range(1, count + 1):
            yield "~Extra%d" % k
            yield "NOTE.    %d                 : A NOTE {S}" % k


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("out")
    parser.add_argument("--sections", type=int, default=90000)
    parser.add_argument("--kind", choices=["sets", "indexed", "other"], default="sets")
    args = parser.parse_args()
    with open(args.out, "w", newline="", encoding="ascii") as f:
        for line in HEAD:
            f.write(line + CRLF)
        for line in middle(args.kind, args.sections):
            f.write(line + CRLF)
        for line in TAIL:
            f.write(line + CRLF)


if __name__ == "__main__":
    main()
