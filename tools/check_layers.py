#!/usr/bin/env python3
"""Fails when a folder of src/ includes a header from a folder above it.

The folders are layered from the file up to the window; a folder may include its own headers and
those of the folders below it. cert2 and cert3 share a layer and never include each other.
Usage: tools/check_layers.py [SRC_DIR]   (default: the src folder beside this script's folder)
"""
import pathlib
import re
import sys

# Lowest first; folders on one row share a layer and may not include each other.
LAYERS = [["base"], ["las"], ["checks"], ["cert2", "cert3"], ["transform"], ["run"], ["ui"]]
RANK = {folder: rank for rank, row in enumerate(LAYERS) for folder in row}
INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"/]+)/[^"]+"', re.MULTILINE)


def violations(src):
    for path in sorted(src.rglob("*")):
        if path.suffix not in (".h", ".cpp") or not path.is_file():
            continue
        folder = path.relative_to(src).parts[0]
        if folder not in RANK:
            yield f"{path}: folder '{folder}' has no place in the layer order"
            continue
        text = path.read_text(encoding="utf-8", errors="replace")
        for match in INCLUDE.finditer(text):
            target = match.group(1)
            if target == folder or target not in RANK:
                continue
            if RANK[target] >= RANK[folder]:
                line = text.count("\n", 0, match.start()) + 1
                yield f"{path}:{line}: {folder} includes {target}/ ({match.group(0).strip()})"


def main():
    src = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else pathlib.Path(__file__).resolve().parent.parent / "src"
    found = list(violations(src))
    for v in found:
        print(v)
    if found:
        print(f"{len(found)} include(s) against the layer order: " +
              " < ".join("/".join(row) for row in LAYERS), file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
