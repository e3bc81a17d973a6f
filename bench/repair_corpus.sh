#!/usr/bin/env bash
# Measures the repair over a folder tree of real LAS files: builds the core, repairs copies of
# every failing 1.2/2.0 file (the originals are only read) and prints per file whether it passes
# afterwards and which rows remain, then the totals.
#
#   bench/repair_corpus.sh [CORPUS_FOLDER]   (default: ../shared/corpus beside the repository)
set -euo pipefail
ROOT="$(cd "$(dirname "$0")/.." && pwd)"
CORPUS="${1:-$ROOT/../shared/corpus}"
[[ -d "$CORPUS" ]] || CORPUS="$ROOT/../../shared/corpus"
cmake -S "$ROOT" -B "$ROOT/build/corpus" -G Ninja -DCMAKE_BUILD_TYPE=Release -DZORVIK_GUI=OFF \
  -DZORVIK_TESTS=OFF >/dev/null
cmake --build "$ROOT/build/corpus" -j2 --target zorvik_core >/dev/null
SCRATCH="$(mktemp -d)"
trap 'rm -rf "$SCRATCH"' EXIT
c++ -std=c++20 -O2 -I"$ROOT/src" "$ROOT/bench/repair_corpus.cpp" \
  "$ROOT/build/corpus/src/libzorvik_core.a" -o "$SCRATCH/repair_corpus"
"$SCRATCH/repair_corpus" "$CORPUS" "$SCRATCH"
