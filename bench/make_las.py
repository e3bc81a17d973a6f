#!/usr/bin/env python3
"""Writes a large, valid LAS file for the certification benchmark.

    bench/make_las.py OUT.las --mb 50 --kind plain|wrap|v3 [--curves 20]

Kinds:
  plain  LAS 2.0, WRAP NO: one depth per line, the index "%10.4f" then each value " %10.4f"
         (20 curves make 230-character lines, under the WRAP NO limit);
  wrap   LAS 2.0, WRAP YES: the index alone on the first line of each record, then the values
         " %10.4f" seven to a line (77 characters);
  v3     LAS 3.0, comma delimited: ~Log_Parameter, ~Log_Definition, ~Log_Data, values "%.4f".

The header holds everything a passing file needs (the Canadian well set for 2.0; CTRY, the
Canadian mnemonics, a location set and a format on every line for 3.0), so every check runs to
the end and the file PASSES. Depths start at 1000 and step by 0.125, an exact binary fraction, so
STOP is exactly the last index written. CR LF line ends, pure ASCII. The file reaches at least
the size asked for (MB = 10**6 bytes) and passes it by less than one record. The output depends
only on the arguments.
"""

import argparse

STEP_Q = 1250  # the step in ten-thousandths of a metre
START_Q = 10000000  # 1000.0000
POOL = 499  # distinct value rows, cycled; prime, so rows and depths do not line up

CHANNELS = ["GR", "RHOB", "NPHI", "DT", "ILD", "ILM", "SP", "CALI", "PEF", "DRHO"]


def channel_names(count):
    names = []
    for i in range(count):
        base = CHANNELS[i % len(CHANNELS)]
        names.append(base if i < len(CHANNELS) else "%s%d" % (base, i // len(CHANNELS) + 1))
    return names


def value_rows(count):
    """POOL rows of `count` values each, as lists of floats, varied but bounded."""
    rows = []
    state = 12345
    for _ in range(POOL):
        row = []
        for c in range(count):
            state = (state * 1103515245 + 12345) % 2147483648
            row.append((c + 1) * 10.0 + (state % 100000) / 1000.0)
        rows.append(row)
    return rows


def depth_text(q):
    return "%d.%04d" % (q // 10000, q % 10000)


def header(kind, names, stop):
    crlf = "\r\n"
    if kind == "v3":
        lines = [
            "~Version",
            "VERS.   3.0   : CWLS LOG ASCII STANDARD - VERSION 3.0",
            "WRAP.   NO    : ONE LINE PER DEPTH STEP",
            "DLM .   COMMA : DELIMITING CHARACTER BETWEEN DATA COLUMNS",
            "~Well",
            "STRT.M   1000.0000            : START DEPTH {F}",
            "STOP.M   %-20s : STOP DEPTH {F}" % stop,
            "STEP.M   0.1250               : STEP {F}",
            "NULL.    -999.25              : NULL VALUE {F}",
            "COMP.    BENCH OIL COMPANY    : COMPANY {S}",
            "WELL.    BENCH 1              : WELL {S}",
            "FLD .    WILDCAT              : FIELD {S}",
            "LOC .    1-2-034-05W6M        : LOCATION {S}",
            "CTRY.    CA                   : COUNTRY {S}",
            "PROV.    ALBERTA              : PROVINCE {S}",
            "SRVC.    BENCH LOGGING        : SERVICE COMPANY {S}",
            "DATE.    01/02/2003           : LOG DATE {DD/MM/YYYY}",
            "UWI .    100010203405W600     : UNIQUE WELL ID {S}",
            "LIC .    0001234              : LICENCE NUMBER {S}",
            "LATI.DEG 53.5                 : LATITUDE {F}",
            "LONG.DEG -113.5               : LONGITUDE {F}",
            "GDAT.    NAD83                : GEODETIC DATUM {S}",
            "~Log_Parameter",
            "BS  .MM  215.9                : BIT SIZE {F}",
            "~Log_Definition",
            "DEPT.M                        : DEPTH {F}",
        ]
        lines += ["%-4s.U                        : CHANNEL %d {F}" % (n, i + 1)
                  for i, n in enumerate(names)]
        lines.append("~Log_Data | Log_Definition")
    else:
        lines = [
            "~Version Information",
            " VERS.                  2.0 : CWLS LOG ASCII STANDARD - VERSION 2.0",
            " WRAP.                  %3s : %s" % (
                "YES" if kind == "wrap" else "NO",
                "MULTIPLE LINES PER DEPTH STEP" if kind == "wrap" else "ONE LINE PER DEPTH STEP"),
            "~Well Information",
            " STRT.M         1000.0000                   : START DEPTH",
            " STOP.M         %-27s : STOP DEPTH" % stop,
            " STEP.M         0.1250                      : STEP",
            " NULL.          -999.25                     : NULL VALUE",
            " COMP.          Bench Oil Company           : COMPANY",
            " WELL.          Bench 1                     : WELL",
            " FLD .          Wildcat                     : FIELD",
            " LOC .          1-2-034-05W6                : LOCATION",
            " SRVC.          Bench Logging               : SERVICE COMPANY",
            " DATE.          2003-02-01                  : LOG DATE",
            " PROV.          Alberta                     : PROVINCE",
            " UWI .          100010203405W600            : UNIQUE WELL ID",
            "~Curve Information",
            " DEPT.M                      : DEPTH",
        ]
        lines += [" %-4s.U                      : CHANNEL %d" % (n, i + 1)
                  for i, n in enumerate(names)]
        lines += ["~Parameter Information",
                  " BS  .MM        215.9                       : BIT SIZE",
                  "~ASCII"]
    return crlf.join(lines) + crlf


def record_tails(kind, rows):
    """What follows the index text in each record, one text per pooled row."""
    tails = []
    for row in rows:
        if kind == "v3":
            tails.append("".join(",%.4f" % v for v in row) + "\r\n")
        elif kind == "wrap":
            chunks = [row[i:i + 7] for i in range(0, len(row), 7)]
            tails.append("\r\n" + "".join(
                "".join(" %10.4f" % v for v in chunk) + "\r\n" for chunk in chunks))
        else:
            tails.append("".join(" %10.4f" % v for v in row) + "\r\n")
    return tails


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("out")
    parser.add_argument("--mb", type=float, required=True)
    parser.add_argument("--kind", choices=["plain", "wrap", "v3"], default="plain")
    parser.add_argument("--curves", type=int, default=20)
    args = parser.parse_args()

    target = int(args.mb * 10 ** 6)
    tails = record_tails(args.kind, value_rows(args.curves))
    index_format = "%s" if args.kind == "v3" else "%10s"
    # The record count follows from the sizes, so STOP can be written in the header first.
    head_guess = len(header(args.kind, channel_names(args.curves), "0"))
    records, size = 0, head_guess
    while size < target:
        size += len(index_format % depth_text(START_Q + records * STEP_Q)) + \
            len(tails[records % POOL])
        records += 1
    records = max(records, 2)
    stop = depth_text(START_Q + (records - 1) * STEP_Q)
    with open(args.out, "wb", buffering=1 << 20) as out:
        out.write(header(args.kind, channel_names(args.curves), stop).encode("ascii"))
        batch = []
        for i in range(records):
            batch.append(index_format % depth_text(START_Q + i * STEP_Q) + tails[i % POOL])
            if len(batch) == 4096:
                out.write("".join(batch).encode("ascii"))
                batch = []
        out.write("".join(batch).encode("ascii"))


if __name__ == "__main__":
    main()
