#!/usr/bin/env bash
# Times the certification of 3.0 files with many sections, to show that the cost grows with the
# number of titles and not with its square.
#
#   bench/bench_sections.sh [--counts "30000 90000"] [--kinds "sets indexed"] [--runs 3]
#                           [--exe PROGRAM]
#
# Builds the program without the window in Release mode into build/bench/ (unless --exe names
# one), writes each file with bench/make_sections.py into a temporary folder removed at the end,
# and prints for each the median of RUNS of `zorvik check -q -j 1`: wall time and CPU time (user +
# system, from /usr/bin/time), with the verdict.
set -euo pipefail

ROOT="$(cd "$(dirname "$0")/.." && pwd)"
COUNTS="30000 90000"
KINDS="sets indexed"
RUNS=3
EXE=""
while [[ $# -gt 0 ]]; do
  case "$1" in
    --counts) COUNTS="$2"; shift 2 ;;
    --kinds) KINDS="$2"; shift 2 ;;
    --runs) RUNS="$2"; shift 2 ;;
    --exe) EXE="$(realpath "$2")"; shift 2 ;;
    *) echo "usage: $0 [--counts \"30000 90000\"] [--kinds \"sets indexed\"] [--runs N] [--exe PROGRAM]" >&2; exit 2 ;;
  esac
done

if [[ -z "$EXE" ]]; then
  BUILD="$ROOT/build/bench"
  cmake -S "$ROOT" -B "$BUILD" -G Ninja -DCMAKE_BUILD_TYPE=Release -DZORVIK_GUI=OFF \
    -DZORVIK_TESTS=OFF >/dev/null
  cmake --build "$BUILD" -j2 --target zorvik >/dev/null
  EXE="$BUILD/src/zorvik"
fi

DIR="$(mktemp -d "${TMPDIR:-/tmp}/zorvik-sections-XXXXXX")"
trap 'rm -rf "$DIR"' EXIT
export XDG_CONFIG_HOME="$DIR/config"
echo "$(nproc) cores, load average $(cut -d' ' -f1-3 /proc/loadavg), $(date -u +%F)"
median() { sort -g | awk '{v[NR]=$1} END {print (NR % 2) ? v[(NR+1)/2] : (v[NR/2]+v[NR/2+1])/2}'; }

printf '%-8s %8s %8s %9s %9s  %s\n' kind titles "MB" "wall s" "CPU s" verdict
for KIND in $KINDS; do
  for N in $COUNTS; do
    LAS="$DIR/${KIND}_${N}.las"
    python3 "$ROOT/bench/make_sections.py" "$LAS" --sections "$N" --kind "$KIND"
    TITLES=$(grep -c '^~' "$LAS")
    WALL=(); CPU=()
    for ((i = 0; i < RUNS; i++)); do
      /usr/bin/time -o "$DIR/time" -f '%e %U %S' "$EXE" check -q -j 1 "$LAS" >/dev/null 2>&1 || true
      read -r wall cpu < <(awk 'END {print $1, $2 + $3}' "$DIR/time")
      WALL+=("$wall"); CPU+=("$cpu")
    done
    VERDICT=$("$EXE" check -j 1 "$LAS" 2>/dev/null | head -1 | awk '{print $1}' || true)
    printf '%-8s %8d %8.1f %9.2f %9.2f  %s\n' "$KIND" "$TITLES" \
      "$(echo "$(stat -c %s "$LAS") / 1000000" | bc -l)" \
      "$(printf '%s\n' "${WALL[@]}" | median)" "$(printf '%s\n' "${CPU[@]}" | median)" "$VERDICT"
  done
done
