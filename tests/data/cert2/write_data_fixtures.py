#!/usr/bin/env python3
"""Writes the 1.2/2.0 fixtures g4_*, g6_*, g7_* (line syntax, STRT/STOP/STEP/NULL, ~ASCII)
next to this script, each with CR LF line ends.

Every fixture is a passing 2.0 file (six curves, the Canadian well set) with one fault put in, so
that its report ends in the group the name gives. Run it again after changing a fixture below.
"""

import os

HERE = os.path.dirname(os.path.abspath(__file__))

VERSION = [
    "~Version Information",
    " VERS.                  2.0 : CWLS log ASCII Standard - VERSION 2.0",
    " WRAP.                   NO : One line per depth step",
]

WELL = [
    "~Well Information",
    "#MNEM.UNIT      DATA                        DESCRIPTION",
    " STRT.M         1200.0000                   : START DEPTH",
    " STOP.M         1201.2500                   : STOP DEPTH",
    " STEP.M         0.2500                      : STEP",
    " NULL.          -999.25                     : NULL VALUE",
    " COMP.          Zorvik Test Exploration     : COMPANY",
    " WELL.          Zorvik 7-14-48-12           : WELL",
    " FLD .          Sample Ridge                : FIELD",
    " LOC .          7-14-048-12W5               : LOCATION",
    " SRVC.          Prairie Logging Ltd.        : SERVICE COMPANY",
    " DATE.          2003-11-15                  : LOG DATE",
    " PROV.          Alberta                     : PROVINCE",
    " UWI .          100071404812W500            : UNIQUE WELL ID",
]

CURVE = [
    "~Curve Information",
    " DEPT.M                      : Measured depth",
    " GR  .GAPI                   : Gamma ray",
    " RHOB.G/C3                   : Bulk density",
    " NPHI.V/V                    : Neutron porosity",
    " DT  .US/M                   : Sonic transit time",
    " CALI.MM                     : Caliper",
]

PARAMETER = [
    "~Parameter Information",
    " BHT .DEGC      62.5                        : Bottom hole temperature",
]

VALUES = [
    "  45.10   2.450   0.210   262.5   216.0",
    "  47.30   2.430   0.225   265.1   216.2",
    "  52.80   2.410   0.240   270.8   216.9",
    "  60.20   2.390   0.255   276.4   217.3",
    "  58.90   2.400   0.250   274.0   217.0",
    "  55.40   2.420   0.238   269.7   216.5",
]

DEPTHS = ["1200.0000", "1200.2500", "1200.5000", "1200.7500", "1201.0000", "1201.2500"]


def data(depths=DEPTHS, wrapped=False):
    lines = []
    for depth, values in zip(depths, VALUES):
        lines += [depth, values] if wrapped else [depth + values]
    return lines


def las(version=VERSION, well=WELL, curve=CURVE, parameter=PARAMETER, ascii=None, after=()):
    ascii = data() if ascii is None else ascii
    return version + well + curve + parameter + ["~ASCII"] + ascii + list(after)


def replaced(lines, old, new):
    """`lines` with the line starting `old` (after blanks) replaced by `new` (or removed)."""
    out = []
    for line in lines:
        if line.strip().startswith(old):
            if new is not None:
                out.append(new)
        else:
            out.append(line)
    return out


def inserted(lines, before, extra):
    """`lines` with `extra` inserted before the line starting `before`."""
    at = next(i for i, line in enumerate(lines) if line.strip().startswith(before))
    return lines[:at] + extra + lines[at:]


WRAP_YES = replaced(VERSION, "WRAP.", " WRAP.                  YES : Multiple lines per depth step")
LONG_BLANKS = " " * 270

FIXTURES = {
    # Group 4 (the ~Well lines are judged in the ~Curve section's turn).
    "g4_mnemonic_faults": las(well=inserted(WELL, "COMP.", [
        ".M             1.0                         : NO MNEMONIC",
        " ST RT.M       1200.0                      : SPACED MNEMONIC",
        " ST:X.         7                           : COLON IN MNEMONIC",
    ])),
    "g4_unit_illegal": las(well=inserted(WELL, "COMP.", [
        " TIME.HH:MM     10:30                       : LOG TIME",
    ])),
    "g4_header_tab": las(well=replaced(WELL, "COMP.",
                                       " COMP.\tZorvik Test Exploration     : COMPANY")),
    "g4_line_type_unknown": las(well=inserted(WELL, "COMP.", ["Logged by the night crew"])),
    "g4_data_comment_blank": las(ascii=data()[:3] + ["# depth shift applied", ""] + data()[3:]),
    "g4_data_tab": las(ascii=data()[:4] + ["1201.0000  \t58.90   2.400   0.250   274.0   217.0",
                                           data()[5]]),
    "g4_no_data_lines": las(ascii=[]),
    "g4_wrap_no_structure_yes": las(ascii=data(wrapped=True)),
    "g4_wrap_yes_structure_no": las(version=WRAP_YES),
    "g4_wrap_undetermined": las(ascii=data()[:1] + ["1200.2500  47.30   2.430   0.225   265.1"] +
                                data()[2:]),
    # Group 6.
    "g6_null_value_empty": las(well=replaced(WELL, "NULL.", " NULL.                                      : NULL VALUE")),
    "g6_strt_mismatch": las(well=replaced(WELL, "STRT.", " STRT.M         1199.5000                   : START DEPTH")),
    "g6_stop_mismatch": las(well=replaced(WELL, "STOP.", " STOP.M         1202.0000                   : STOP DEPTH")),
    "g6_step_mismatch": las(well=replaced(WELL, "STEP.", " STEP.M         0.5000                      : STEP")),
    "g6_step_not_constant": las(
        well=replaced(WELL, "STOP.", " STOP.M         1201.5000                   : STOP DEPTH"),
        ascii=data(["1200.0000", "1200.2500", "1200.5000", "1201.0000", "1201.2500", "1201.5000"])),
    "g6_step_zero": las(well=replaced(WELL, "STEP.", " STEP.M         0                           : STEP")),
    "g6_precision": las(
        well=replaced(replaced(WELL, "STEP.", " STEP.M         0.1524                      : STEP"),
                      "STOP.", " STOP.M         1200.75                     : STOP DEPTH"),
        ascii=data(["1200.00", "1200.15", "1200.30", "1200.45", "1200.60", "1200.75"])),
    "g6_rounding": las(ascii=data(["1200.00000", "1200.25000", "1200.49999", "1200.75000",
                                   "1201.00000", "1201.25000"])),
    # STEP 1.0 has the tolerance 1: an increment of 2 is exactly at it, a rounding question.
    "g6_step_at_tolerance": las(
        well=replaced(replaced(WELL, "STEP.", " STEP.M         1.0                         : STEP"),
                      "STOP.", " STOP.M         1206.0000                   : STOP DEPTH"),
        ascii=data(["1200.0000", "1201.0000", "1202.0000", "1203.0000", "1204.0000",
                    "1206.0000"])),
    # STOP is compared to five decimals: the fifth counts, the sixth does not.
    "g6_stop_fifth_decimal": las(well=replaced(WELL, "STOP.", " STOP.M         1201.25001                  : STOP DEPTH")),
    "g6_stop_sixth_decimal_passes": las(well=replaced(WELL, "STOP.", " STOP.M         1201.250004                 : STOP DEPTH")),
    "g6_units": las(well=replaced(WELL, "STEP.", " STEP.F         0.2500                      : STEP")),
    "g6_single_record": las(
        well=replaced(replaced(WELL, "STRT.", " STRT.M         1670.0000                   : START DEPTH"),
                      "STOP.", " STOP.M         1670.0000                   : STOP DEPTH"),
        ascii=["27.5000" + VALUES[0]]),
    "g6_null_stop_repaired": las(well=replaced(WELL, "STOP.", " STOP.M         -999.25                     : STOP DEPTH")),
    # Group 7.
    "g7_channel_count": las(ascii=[line + "   1.0" for line in data()]),
    "g7_value_missing": las(ascii=data()[:4] + ["1201.0000   58.90   2.400   0.250   274.0"] +
                            data()[5:]),
    "g7_not_last": las(after=["~Other Information", "# Logged by the night crew"]),
    "g7_line_too_long_wrap": las(version=WRAP_YES, ascii=data(wrapped=True)[:5] +
                                 ["  52.80   2.410   0.240   270.8" + " " * 45 + "216.9"] +
                                 data(wrapped=True)[6:]),
    "g7_line_too_long": las(ascii=data()[:4] + ["1201.0000" + LONG_BLANKS + VALUES[4]] +
                            data()[5:]),
}


def main():
    for name, lines in FIXTURES.items():
        with open(os.path.join(HERE, name + ".las"), "wb") as out:
            out.write("".join(line + "\r\n" for line in lines).encode("ascii"))


if __name__ == "__main__":
    main()
