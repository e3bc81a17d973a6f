#!/usr/bin/env python3
"""Writes the 3.0 fixtures g0_*, g2_*, g3_*, g5_*, g6_* (title lines, ~Version, section
structure, ~Well, STRT/STOP/STEP) next to this script, each with CR LF line ends.

Every fixture is a passing comma-delimited 3.0 file with one fault put in, so that its report
ends in the group the name gives. Run it again after changing a fixture below.
"""

import os

HERE = os.path.dirname(os.path.abspath(__file__))

VERSION = [
    "~Version Information",
    "VERS.   3.0   : CWLS LOG ASCII STANDARD - VERSION 3.0",
    "WRAP.   NO    : ONE LINE PER DEPTH STEP",
    "DLM .   COMMA : DELIMITING CHARACTER BETWEEN DATA COLUMNS",
]

WELL = [
    "~Well Information",
    "STRT.M   1000.000             : START DEPTH",
    "STOP.M   1002.000             : STOP DEPTH",
    "STEP.M   0.500                : STEP",
    "NULL.    -999.25              : NULL VALUE",
    "COMP.    ANY OIL COMPANY INC. : COMPANY",
    "WELL.    ZORVIK 3             : WELL",
    "FLD .    WILDCAT              : FIELD",
    "LOC .    12-34-056-07W5M      : LOCATION",
    "CTRY.    CA                   : COUNTRY",
    "PROV.    ALBERTA              : PROVINCE",
    "UWI .    100123405607W500     : UNIQUE WELL ID",
    "LIC .    0123456              : LICENCE NUMBER",
    "DATE.    2024-01-15           : LOG DATE",
    "SRVC.    ANY LOGGING CO.      : SERVICE COMPANY",
    "LATI.DEG 52.345678            : LATITUDE",
    "LONG.DEG -114.567890          : LONGITUDE",
    "GDAT.    NAD83                : GEODETIC DATUM",
]

PRIMARY = [
    "~Parameter Information",
    "BS  .MM   215.9               : BIT SIZE {F}",
    "~Curve Information",
    "DEPT.M                        : DEPTH {F8.3}",
    "GR  .GAPI                     : GAMMA RAY {F} | BS",
    "~ASCII | Curve",
    "1000.000,45.2",
    "1000.500,50.1",
    "1001.000,48.7",
    "1001.500,47.3",
    "1002.000,44.9",
]


def log_set(n, index=None, association=None):
    """A ~Log_Parameter/~Log_Definition/~Log_Data set; `index` appends [index] to each title."""
    suffix = "" if index is None else "[%d]" % index
    association = "Log_Definition" + suffix if association is None else association
    data_title = "~Log_Data" + suffix + (" | " + association if association else "")
    return [
        "~Log_Parameter" + suffix,
        "BS%d .MM   215.9               : BIT SIZE {F}" % n,
        "~Log_Definition" + suffix,
        "DEPT.M                        : DEPTH {F8.3}",
        "GR%d .GAPI                     : GAMMA RAY {F} | BS%d" % (n, n),
        data_title,
        "1000.000,45.2",
        "1000.500,50.1",
        "1001.000,48.7",
        "1001.500,47.3",
        "1002.000,44.9",
    ]


def base():
    return VERSION + WELL + PRIMARY


def log_sets(*sets):
    return VERSION + WELL + [line for s in sets for line in s]


def replace(lines, old, new):
    """The lines with the one line starting with `old` replaced by `new` (a list of lines)."""
    hits = [i for i, line in enumerate(lines) if line.startswith(old)]
    assert len(hits) == 1, (old, hits)
    i = hits[0]
    return lines[:i] + new + lines[i + 1:]


def drop(lines, old):
    return replace(lines, old, [])


def section(lines, title):
    """The lines of the section whose title line starts with `title`, title included."""
    start = [i for i, line in enumerate(lines) if line.startswith(title)][0]
    end = start + 1
    while end < len(lines) and not lines[end].startswith("~"):
        end += 1
    return lines[start:end]


def without_section(lines, title):
    part = section(lines, title)
    start = lines.index(part[0])
    return lines[:start] + lines[start + len(part):]


FIXTURES = {
    # Group 0: title line findings are kept apart and never stop the run.
    "g0_title_lines_pass": replace(
        replace(base(), "FLD .", ["FLD .    WILD~CAT             : FIELD"]),
        "COMP.", ["# ~ a comment that mentions a tilde",
                  "COMP.    ANY OIL COMPANY INC. : COMPANY"]),
    # Group 2: ~Version.
    "g2_version_missing": replace(base(), "~Version", ["~V"]),
    "g2_vers_missing": replace(
        drop(base(), "VERS."), "STRT.",
        ["VERS.   3.0   : VERSION KEPT IN THE WRONG SECTION",
         "STRT.M   1000.000             : START DEPTH"]),
    "g2_wrap_missing": drop(base(), "WRAP."),
    "g2_dlm_missing": drop(base(), "DLM ."),
    "g2_vers_value": replace(base(), "VERS.", ["VERS.   3.0E0 : EXPONENT IS NOT ALLOWED"]),
    "g2_vers_value_lowercase": replace(base(), "VERS.", ["VERS.   3.0e0 : EXPONENT IN LOWER CASE"]),
    "g2_wrap_value": replace(base(), "WRAP.", ["WRAP.   YES   : WRAPPED"]),
    "g2_dlm_value": replace(base(), "DLM .", ["DLM .   SEMICOLON : NOT A 3.0 DELIMITER"]),
    "g2_order": replace(
        drop(base(), "DLM ."), "WRAP.",
        ["WRAP.   NO    : ONE LINE PER DEPTH STEP",
         "PROD.   ZORVIK : PRODUCER",
         "CREA.   TODAY  : CREATED",
         "DLM .   COMMA : DELIMITER IN FIFTH PLACE"]),
    "g2_order_fourth": replace(
        drop(base(), "DLM ."), "WRAP.",
        ["WRAP.   NO    : ONE LINE PER DEPTH STEP",
         "PROD.   ZORVIK : PRODUCER",
         "DLM .   COMMA : DELIMITER IN FOURTH PLACE"]),
    "g2_duplicate": replace(
        base(), "WRAP.",
        ["WRAP.   NO    : ONE LINE PER DEPTH STEP", "WRAP.   NO    : ONCE MORE"]),
    # Group 3: section structure.
    "g3_well_missing": without_section(base(), "~Well"),
    "g3_unknown_section": base() + ["~Tops", "TOP1.M 1000.5 : A TOP"],
    "g3_well_first": section(base(), "~Well") + without_section(base(), "~Well"),
    "g3_duplicate_parameter": replace(
        base(), "~Curve", ["~Parameter", "RUN .    1                    : RUN {I}",
                           "~Curve Information"]),
    "g3_data_without_bar": log_sets(log_set(1, association="")),
    "g3_association_other_set": log_sets(
        log_set(1, association="Core_Definition"),
        ["~Core_Definition", "CDEP.M : CORE DEPTH {F8.3}",
         "~Core_Data | Core_Definition", "1000.250", "1001.750"]),
    "g3_association_not_definition": log_sets(log_set(1, association="Log_Def")),
    "g3_association_absent": log_sets(log_set(1, 1), log_set(2, 2, "Log_Definition[3]")),
    "g3_definition_without_data": log_sets(
        log_set(1), ["~Core_Definition", "CDEP.M : CORE DEPTH {F8.3}"]),
    "g3_bar_on_header_titles": replace(
        replace(base(), "~Well", ["~Well Information | Curve"]),
        "~Parameter", ["~Parameter Information |"]),
    "g3_set_order": log_sets(
        section(log_set(1), "~Log_Definition") + section(log_set(1), "~Log_Parameter")
        + section(log_set(1), "~Log_Data")),
    "g3_index_on_parameter": replace(base(), "~Parameter", ["~Parameter[1]"]),
    "g3_identical_titles": log_sets(log_set(1), log_set(2, 1)),
    "g3_index_zero": log_sets(log_set(1, 0)),
    "g3_index_gap": log_sets(log_set(1, 1), log_set(3, 3)),
    # Group 5: ~Well.
    "g5_required_missing": drop(drop(base(), "SRVC."), "FLD ."),
    "g5_ctry_missing": drop(base(), "CTRY."),
    "g5_ctry_length": replace(base(), "CTRY.", ["CTRY.    CAN                  : COUNTRY"]),
    "g5_ctry_one_letter": replace(base(), "CTRY.", ["CTRY.    C                    : COUNTRY"]),
    "g5_ctry_letters": replace(base(), "CTRY.", ["CTRY.    C1                   : COUNTRY"]),
    "g5_ctry_requirements": replace(
        drop(drop(drop(base(), "PROV."), "UWI ."), "LIC ."), "CTRY.",
        ["CTRY.    us                   : COUNTRY", "STAT.    TEXAS                : STATE"]),
    "g5_location_missing": replace(
        drop(drop(base(), "LATI."), "GDAT."), "LONG.", ["X   .M   612345.5             : EASTING"]),
    # Group 6: STRT/STOP/STEP against the data.
    "g6_value_missing": replace(base(), "STEP.", ["STEP.M                        : STEP"]),
    "g6_strt": replace(base(), "STRT.", ["STRT.M   999.500              : START DEPTH"]),
    "g6_stop": replace(base(), "STOP.", ["STOP.M   1001.500             : STOP DEPTH"]),
    "g6_step": replace(base(), "STEP.", ["STEP.M   0.250                : STEP"]),
    "g6_precision": replace(
        replace(base()[:-5], "STEP.", ["STEP.M   0.125                : STEP"]),
        "STOP.", ["STOP.M   1000.500             : STOP DEPTH"])
    + ["1000.00,45.2", "1000.13,50.1", "1000.25,48.7", "1000.38,47.3", "1000.50,44.9"],
    "g6_rounding": replace(base(), "1001.000,48.7", ["1000.99999,48.7"]),
    # Only the standard section names lead the STRT/STOP/STEP checks to the data: a file whose
    # one set is named otherwise passes group 6 unchecked, STRT off the data and all.
    "g6_skipped_without_standard_sections": replace(
        log_sets([line.replace("Log_", "Core_") for line in log_set(1)]), "STRT.",
        ["STRT.M   999.500              : START DEPTH"]),
    # One data record, then another set: the last index is read up to the next title only, so
    # STOP is compared with that one record and not with the other set's data.
    "g6_single_record_then_section": log_sets(
        log_set(1)[:-4],
        ["~Core_Definition", "CDEP.M : CORE DEPTH {F8.3}", "CPOR.% : CORE POROSITY {F}",
         "~Core_Data | Core_Definition", "1001.500,12.5", "1002.000,13.1"]),
    "g6_units": replace(base(), "STEP.", ["STEP.FT  0.500                : STEP"]),
}


def main():
    for name, lines in FIXTURES.items():
        with open(os.path.join(HERE, name + ".las"), "wb") as out:
            out.write(("\r\n".join(lines) + "\r\n").encode("ascii"))


if __name__ == "__main__":
    main()
