#!/usr/bin/env python3
"""Writes the 3.0 fixtures g4_*, g7_*, g8_*, g9_* (line structure, column data, associations,
array channels) next to this script, each with CR LF line ends.

Every fixture is one well-formed, passing 3.0 file with one fault put in, so that its report
fails exactly the check the name gives. Run it again after changing a fixture below.
"""

import os

HERE = os.path.dirname(os.path.abspath(__file__))

VERSION = [
    "~Version",
    "VERS.   3.0   : CWLS LOG ASCII STANDARD - VERSION 3.0",
    "WRAP.   NO    : ONE LINE PER DEPTH STEP",
    "DLM .   {dlm} : DELIMITING CHARACTER BETWEEN DATA COLUMNS",
]

WELL = [
    "~Well",
    "STRT.M   1000.0               : START DEPTH {{F}}",
    "STOP.M   1001.0               : STOP DEPTH {{F}}",
    "STEP.M   0.5                  : STEP {{F}}",
    "NULL.    -999.25              : NULL VALUE {{F}}",
    "COMP.    ANY OIL COMPANY INC. : COMPANY {{S}}",
    "WELL.    ZORVIK 1             : WELL {{S}}",
    "FLD .    WILDCAT              : FIELD {{S}}",
    "LOC .    12-34-056-07W5M      : LOCATION {{S}}",
    "CTRY.    CA                   : COUNTRY {{S}}",
    "PROV.    ALBERTA              : PROVINCE {{S}}",
    "SRVC.    ANY LOGGING CO.      : SERVICE COMPANY {{S}}",
    "DATE.    13/12/1986           : LOG DATE {{DD/MM/YYYY}}",
    "UWI .    100123405607W500     : UNIQUE WELL ID {{S}}",
    "LIC .    0123456              : LICENCE NUMBER {{S}}",
    "LATI.DEG 52.345678            : LATITUDE {{F}}",
    "LONG.DEG -114.567890          : LONGITUDE {{F}}",
    "GDAT.    NAD83                : GEODETIC DATUM {{S}}",
]

PARAMETERS = [
    "~Log_Parameter",
    "BS  .MM   215.9               : BIT SIZE {{F}}",
    "MUD .     WATER               : MUD TYPE {{S}}",
]

DEFINITIONS = [
    "~Log_Definition",
    "DEPT.M                        : DEPTH {{F}}",
    "GR  .GAPI                     : GAMMA RAY {{F}} | BS",
    "NPHI.V/V                      : NEUTRON POROSITY {{F}}",
]

DATA = [
    "~Log_Data | Log_Definition",
    "1000.0{d}45.2{d}0.25",
    "1000.5{d}50.1{d}0.27",
    "1001.0{d}48.7{d}0.31",
]

DELIMITERS = {"COMMA": ",", "SPACE": " ", "TAB": "\t"}


def base(dlm="COMMA"):
    """The passing file as a list of lines, DLM and data delimiter filled in."""
    d = DELIMITERS[dlm]
    lines = VERSION + WELL + PARAMETERS + DEFINITIONS + DATA
    out = []
    for line in lines:
        out.append(line.format(dlm=dlm, d=d).replace("{{", "{").replace("}}", "}"))
    return out


def replace(lines, old, new):
    """The lines with the one line starting with `old` replaced by `new` (a list of lines)."""
    hits = [i for i, line in enumerate(lines) if line.startswith(old)]
    assert len(hits) == 1, (old, hits)
    i = hits[0]
    return lines[:i] + new + lines[i + 1:]


def fixtures():
    b = base()
    yield "g4_mnemonic_illegal", replace(b, "BS  .MM", ["B;S .MM   215.9               : BIT SIZE {F}"])
    yield "g4_mnemonic_missing", replace(
        b, "NPHI.V/V", ["    .V/V                      : NEUTRON POROSITY {F}"])
    yield "g4_unit_illegal", replace(b, "BS  .MM", ["BS  .M;M  215.9               : BIT SIZE {F}"])
    yield "g4_value_illegal", replace(b, "MUD .", ["MUD .     WATER;OIL           : MUD TYPE {S}"])
    yield "g4_bar_before_colon", replace(b, "MUD .", ["MUD .     WATER | BS          : MUD TYPE"])
    yield "g4_brace_missing", replace(b, "BS  .MM", ["BS  .MM   215.9               : BIT SIZE {F"])
    yield "g4_format_empty", replace(b, "BS  .MM", ["BS  .MM   215.9               : BIT SIZE {}"])
    yield "g4_association_illegal", replace(
        b, "GR  .GAPI", ["GR  .GAPI                     : GAMMA RAY {F} | BS;MUD"])
    yield "g4_line_type_header", replace(b, "MUD .", ["MUD .     WATER               : MUD TYPE {S}",
                                                       "JUNK WITHOUT DELIMITERS"])
    yield "g4_data_without_delimiter", replace(b, "1000.5", ["1000.5"])
    yield "g4_last_line_without_delimiter", replace(b, "1001.0", ["1001.0"])
    yield "g4_blank_in_data", replace(b, "1000.5", ["1000.5,50.1,0.27", "",
                                                    "# a comment among the data"])
    yield "g4_no_data_lines", b[:-3] + ["# no data was logged"]

    yield "g7_channel_count", replace(b, "NPHI.V/V", [
        "NPHI.V/V                      : NEUTRON POROSITY {F}",
        "RHOB.G/C3                     : BULK DENSITY {F}"])
    yield "g7_item_count", replace(b, "1000.5", ["1000.5,50.1,0.27,9.9"])
    yield "g7_item_format", replace(replace(b, "NPHI.V/V", [
        "NPHI.V/V                      : NEUTRON POROSITY {F4.2}"]), "1000.5", ["1000.5,50.1,0.3"])
    yield "g7_short_line", replace(b, "1000.5", ["1000.5,50.1"])
    # Space delimited, with a quoted text channel holding spaces: passes.
    s = base("SPACE")
    s = replace(s, "NPHI.V/V", ["NPHI.V/V                      : NEUTRON POROSITY {F}",
                                "LITH.                         : LITHOLOGY {S}"])
    s = s[:-3] + ['1000.0 45.2 0.25 "fine sand"', '1000.5 50.1 0.27 shale',
                  '1001.0  48.7  0.31  "coarse  sand"']
    yield "g7_quoted_space_passes", s

    # An empty quoted item between two others is an item of its own: passes.
    q = base("SPACE")
    q = replace(q, "GR  .GAPI", ["GR  .GAPI                     : GAMMA RAY {F} | BS",
                                 "LITH.                         : LITHOLOGY {S}"])
    q = q[:-3] + ['1000.0 45.2 "sand" 0.25', '1000.5 50.1 "" 0.27', '1001.0 48.7 shale 0.31']
    yield "g7_quoted_empty_passes", q

    yield "g8_reference_missing", replace(
        b, "NPHI.V/V", ["NPHI.V/V                      : NEUTRON POROSITY {F} | BS,CASING"])
    yield "g8_self_reference", replace(b, "BS  .MM", ["BS  .MM   215.9               : BIT SIZE {F} | BS"])
    yield "g8_circular", replace(replace(b, "BS  .MM", [
        "BS  .MM   215.9               : BIT SIZE {F} | MUD"]), "MUD .", [
        "MUD .     WATER               : MUD TYPE {S} | BS"])

    def with_array(defs, rows):
        lines = replace(b, "NPHI.V/V", ["NPHI.V/V                      : NEUTRON POROSITY {F}"] + defs)
        return lines[:-3] + rows

    three = ["1000.0,45.2,0.25,1.1,1.2,1.3", "1000.5,50.1,0.27,2.1,2.2,2.3",
             "1001.0,48.7,0.31,3.1,3.2,3.3"]
    yield "g9_array_passes", with_array([
        "NMR[1].ms                     : T2 BIN 1 {AF;0.5}",
        "NMR[2].ms                     : T2 BIN 2 {AF;0.5}",
        "NMR[3].ms                     : T2 BIN 3 {AF;0.5}"], three)
    yield "g9_unnumbered", with_array([
        "NMR[1].ms                     : T2 BIN 1 {AF;0.5}",
        "NMR.ms                        : T2 BIN 2 {AF;0.5}",
        "NMR[3].ms                     : T2 BIN 3 {AF;0.5}"], three)
    yield "g9_sequence", with_array([
        "NMR[1].ms                     : T2 BIN 1 {AF;0.5}",
        "NMR[2].ms                     : T2 BIN 2 {AF;0.5}",
        "NMR[4].ms                     : T2 BIN 4 {AF;0.5}",
        "T1[2].ms                      : T1 BIN 2 {AF;0.5}",
        "T1[3].ms                      : T1 BIN 3 {AF;0.5}"],
        [r + ",4.1,4.2" for r in three])
    yield "g9_not_grouped", with_array([
        "NMR[1].ms                     : T2 BIN 1 {AF;0.5}",
        "NMR[2].ms                     : T2 BIN 2 {AF;0.5}",
        "CALI.IN                       : CALIPER {F}",
        "NMR[3].ms                     : T2 BIN 3 {AF;0.5}"],
        ["1000.0,45.2,0.25,1.1,1.2,8.5,1.3", "1000.5,50.1,0.27,2.1,2.2,8.5,2.3",
         "1001.0,48.7,0.31,3.1,3.2,8.5,3.3"])
    yield "g9_spacing", with_array([
        "NMR[1].ms                     : T2 BIN 1 {AF;0.5}",
        "NMR[2].ms                     : T2 BIN 2 {AF;0.5}",
        "NMR[3].ms                     : T2 BIN 3 {AF;1.0}"], three)
    yield "g9_units", with_array([
        "NMR[1].ms                     : T2 BIN 1 {AF;0.5}",
        "NMR[2].us                     : T2 BIN 2 {AF;0.5}",
        "NMR[3].ms                     : T2 BIN 3 {AF;0.5}"], three)
    yield "g9_units_case", with_array([
        "NMR[1].ms                     : T2 BIN 1 {AF;0.5}",
        "NMR[2].MS                     : T2 BIN 2 {AF;0.5}",
        "NMR[3].ms                     : T2 BIN 3 {AF;0.5}"], three)
    yield "g9_repeated_index", with_array([
        "NMR[1].ms                     : T2 BIN 1 {AF;0.5}",
        "NMR[2].ms                     : T2 BIN 2 {AF;0.5}",
        "NMR[2].ms                     : T2 BIN 2 AGAIN {AF;0.5}",
        "NMR[3].ms                     : T2 BIN 3 {AF;0.5}"],
        [r + ",4.4" for r in three])


def main():
    for name, lines in fixtures():
        with open(os.path.join(HERE, name + ".las"), "wb") as out:
            out.write(("\r\n".join(lines) + "\r\n").encode("ascii"))


if __name__ == "__main__":
    main()
