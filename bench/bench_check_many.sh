#!/usr/bin/env bash
# Files per second of `zorvik check -j N` over many small files and over the examples, next to
# certifying the same files one process at a time (`zorvik check FILE` per file).
#
#   bench/bench_check_many.sh [--exe build/release/src/zorvik] [--files 1000] [--runs 3]
#
# The small files are written by the project's generator bench/make_las.py: 10 files of about
# 20 kB (plain and wrapped 2.0, comma-delimited 3.0), copied to FILES names.
# Everything lives in a scratch folder removed at the end. Wall times, median of RUNS.
set -euo pipefail
ROOT=$(cd "$(dirname "$0")/.." && pwd)
EXE="$ROOT/build/release/src/zorvik"
FILES=1000
RUNS=3
while [ $# -gt 0 ]; do
  case "$1" in
    --exe) EXE=$(realpath "$2"); shift 2 ;;
    --files) FILES=$2; shift 2 ;;
    --runs) RUNS=$2; shift 2 ;;
    *) echo "unknown option $1" >&2; exit 2 ;;
  esac
done

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir "$scratch/small"
for i in $(seq 0 9); do
  kinds=(plain wrap v3)
  python3 "$ROOT/bench/make_las.py" "$scratch/seed$i.las" --mb "0.02$i" --curves 8 \
    --kind "${kinds[$((i % 3))]}" >/dev/null
done
for n in $(seq 1 "$FILES"); do
  cp "$scratch/seed$((n % 10)).las" "$scratch/small/w$(printf %04d "$n").las"
done
mkdir "$scratch/examples"
cp "$ROOT"/examples/*.las "$scratch/examples/"

# Median wall time in seconds of RUNS runs of the command.
median() {
  local times=()
  for _ in $(seq 1 "$RUNS"); do
    local start end
    start=$(date +%s.%N)
    "$@" >/dev/null 2>&1 || true
    end=$(date +%s.%N)
    times+=("$(echo "$end - $start" | bc)")
  done
  printf '%s\n' "${times[@]}" | sort -g | sed -n "$(((RUNS + 1) / 2))p"
}

one_by_one() {
  for f in "$1"/*.las; do "$EXE" check -q "$f"; done
}

cores=$(nproc)
printf '| Files | Count | Command | Wall time | Files/s | Ratio to one process per file |\n'
printf '|---|---|---|---|---|---|\n'
for set in small examples; do
  count=$(ls "$scratch/$set" | wc -l)
  base=$(median one_by_one "$scratch/$set")
  printf '| %s | %d | one process per file | %.3f s | %.0f | 1.00 |\n' "$set" "$count" "$base" \
    "$(echo "$count / $base" | bc -l)"
  for jobs in 1 "$cores"; do
    t=$(median "$EXE" check -q -j "$jobs" "$scratch/$set")
    printf '| %s | %d | `check -j %d` | %.3f s | %.0f | %.2f |\n' "$set" "$count" "$jobs" "$t" \
      "$(echo "$count / $t" | bc -l)" "$(echo "$base / $t" | bc -l)"
  done
done
