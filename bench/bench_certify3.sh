#!/usr/bin/env bash
# Times batch certification of a large comma-delimited LAS 3.0 file next to `wc -l` on the same
# file (warm cache, median of interleaved runs) and reports the ratio and zorvik's peak memory.
#
#   bench/bench_certify3.sh [--mb 500] [--runs 3] [--dir SCRATCH]
#
# The file is written by gen_las.py (GEN_LAS, by default ../shared/tools/gen_las.py beside the
# repository) with 20 curves. A Release build goes to build-release/.
set -euo pipefail

ROOT="$(cd "$(dirname "$0")/.." && pwd)"
if [[ -z "${GEN_LAS:-}" ]]; then  # beside the repository, or beside the folder of its worktrees
  for g in "$ROOT/../shared/tools/gen_las.py" "$ROOT/../../shared/tools/gen_las.py"; do
    [[ -f "$g" ]] && GEN_LAS="$g" && break
  done
fi
MB=500
RUNS=3
DIR=""
while [[ $# -gt 0 ]]; do
  case "$1" in
    --mb) MB="$2"; shift 2 ;;
    --runs) RUNS="$2"; shift 2 ;;
    --dir) DIR="$2"; shift 2 ;;
    *) echo "usage: $0 [--mb N] [--runs N] [--dir SCRATCH]" >&2; exit 2 ;;
  esac
done

cmake -S "$ROOT" -B "$ROOT/build-release" -G Ninja -DCMAKE_BUILD_TYPE=Release \
  -DZORVIK_TESTS=OFF -DZORVIK_WERROR=OFF >/dev/null
ninja -C "$ROOT/build-release" -j2 zorvik >/dev/null
EXE="$ROOT/build-release/src/zorvik"

if [[ -z "$DIR" ]]; then
  DIR="$(mktemp -d "${TMPDIR:-/tmp}/zorvik-bench3-XXXXXX")"
  trap 'rm -rf "$DIR"' EXIT
fi
mkdir -p "$DIR/config/Zorvik"
LAS="$DIR/big3_${MB}mb.las"
[[ -f "$LAS" ]] || python3 "$GEN_LAS" "$LAS" --mb "$MB" --curves 20 --v3
# Batch mode runs only for a file name the settings store remembers.
printf '[Startup]\nlasFile=%s\nwriteLog=0\ndoWrap=0\n' "$LAS" >"$DIR/config/Zorvik/Zorvik.conf"
export XDG_CONFIG_HOME="$DIR/config"

seconds() {  # wall-clock seconds of one command, output discarded
  local start end
  start=$(date +%s.%N)
  "$@" >/dev/null 2>&1
  end=$(date +%s.%N)
  echo "$end - $start" | bc -l
}
median() { sort -g | awk '{v[NR]=$1} END {print (NR % 2) ? v[(NR+1)/2] : (v[NR/2]+v[NR/2+1])/2}'; }

wc -l "$LAS" >/dev/null  # warm the page cache
WC=(); ZV=()
for ((i = 0; i < RUNS; i++)); do
  WC+=("$(seconds wc -l "$LAS")")
  ZV+=("$(seconds "$EXE" "$LAS" "$DIR/out.log")")
done
WC_MED=$(printf '%s\n' "${WC[@]}" | median)
ZV_MED=$(printf '%s\n' "${ZV[@]}" | median)

PEAK_KB=$( { /usr/bin/time -v "$EXE" "$LAS" "$DIR/out.log" >/dev/null; } 2>&1 |
  awk -F: '/Maximum resident set size/ {gsub(/ /, "", $2); print $2}')

echo "file:        $LAS ($(stat -c %s "$LAS") bytes, $(wc -l <"$LAS") lines)"
printf 'wc -l:       %.3f s (median of %d)\n' "$WC_MED" "$RUNS"
printf 'zorvik:      %.3f s (median of %d)\n' "$ZV_MED" "$RUNS"
printf 'ratio:       %.1fx wc -l\n' "$(echo "$ZV_MED / $WC_MED" | bc -l)"
printf 'peak memory: %.1f MiB\n' "$(echo "$PEAK_KB / 1024" | bc -l)"
echo "verdict:     $(grep -a '^Result:' "$DIR/out.log" | tr -d '\r')"
