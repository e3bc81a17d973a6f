#!/usr/bin/env bash
# Times batch certification of large LAS files next to `wc -l` on the same file (warm cache,
# median of runs interleaved one zorvik, one wc) and reports the ratio and zorvik's peak memory,
# for each size and kind: plain 2.0 (WRAP NO), wrapped 2.0 (WRAP YES), comma-delimited 3.0.
#
#   bench/bench_certify.sh [--sizes "50 500"] [--runs 5] [--dir SCRATCH] [--kinds "plain wrap v3"]
#
# The files are written by gen_las.py (GEN_LAS, default ../shared/tools/gen_las.py beside the
# repository, or two levels up from a worktree) with 20 curves and kept in SCRATCH when one is given. A Release build goes to
# build-release/.
set -euo pipefail

ROOT="$(cd "$(dirname "$0")/.." && pwd)"
GEN_LAS="${GEN_LAS:-$ROOT/../shared/tools/gen_las.py}"
[[ -f "$GEN_LAS" ]] || GEN_LAS="$ROOT/../../shared/tools/gen_las.py"  # from a worktree
SIZES="50 500"
RUNS=5
DIR=""
KINDS="plain wrap v3"
while [[ $# -gt 0 ]]; do
  case "$1" in
    --sizes) SIZES="$2"; shift 2 ;;
    --runs) RUNS="$2"; shift 2 ;;
    --dir) DIR="$2"; shift 2 ;;
    --kinds) KINDS="$2"; shift 2 ;;
    *) echo "usage: $0 [--sizes \"50 500\"] [--runs N] [--dir SCRATCH] [--kinds \"plain wrap v3\"]" >&2; exit 2 ;;
  esac
done

cmake -S "$ROOT" -B "$ROOT/build-release" -G Ninja -DCMAKE_BUILD_TYPE=Release \
  -DZORVIK_TESTS=OFF >/dev/null
ninja -C "$ROOT/build-release" -j2 zorvik >/dev/null
EXE="$ROOT/build-release/src/zorvik"

if [[ -z "$DIR" ]]; then
  DIR="$(mktemp -d "${TMPDIR:-/tmp}/zorvik-bench-XXXXXX")"
  trap 'rm -rf "$DIR"' EXIT
fi
mkdir -p "$DIR/config/Zorvik"
export XDG_CONFIG_HOME="$DIR/config"

seconds() {  # wall-clock seconds of one command, output discarded
  local start end
  start=$(date +%s.%N)
  "$@" >/dev/null 2>&1
  end=$(date +%s.%N)
  echo "$end - $start" | bc -l
}
median() { sort -g | awk '{v[NR]=$1} END {print (NR % 2) ? v[(NR+1)/2] : (v[NR/2]+v[NR/2+1])/2}'; }

cpu_seconds() {  # CPU seconds of one command: perf's task clock, else /usr/bin/time (10 ms steps)
  if command -v perf >/dev/null 2>&1; then
    { perf stat -x, -e task-clock "$@" >/dev/null; } 2>&1 |
      awk -F, '/task-clock/ {printf "%.4f", $1 / 1000}'
  else
    { /usr/bin/time -v "$@" >/dev/null; } 2>&1 |
      awk -F: '/User time|System time/ {s += $2} END {printf "%.3f", s}'
  fi
}
ratio() { if [[ "$(echo "$2 > 0" | bc -l)" == 1 ]]; then echo "$1 / $2" | bc -l; else echo 0; fi; }

# Wall times are what a user waits; CPU times are what the machine's load cannot inflate.
printf '%-22s %8s %8s %7s %8s %8s %7s %8s  %s\n' file "wc wall" "zv wall" ratio "wc cpu" \
  "zv cpu" ratio "peak MiB" verdict
for MB in $SIZES; do
  for KIND in $KINDS; do
    LAS="$DIR/big_${MB}mb_${KIND}.las"
    FLAGS=()
    [[ "$KIND" == wrap ]] && FLAGS=(--wrap)
    [[ "$KIND" == v3 ]] && FLAGS=(--v3)
    [[ -f "$LAS" ]] || python3 "$GEN_LAS" "$LAS" --mb "$MB" --curves 20 "${FLAGS[@]}" >/dev/null 2>&1
    # Batch mode runs only for a file name the settings store remembers.
    printf '[Startup]\nlasFile=%s\nwriteLog=0\ndoWrap=0\n' "$LAS" \
      >"$DIR/config/Zorvik/Zorvik.conf"

    wc -l "$LAS" >/dev/null  # warm the page cache
    "$EXE" "$LAS" "$DIR/out.log" >/dev/null 2>&1
    WC=(); ZV=()
    for ((i = 0; i < RUNS; i++)); do
      WC+=("$(seconds wc -l "$LAS")")
      ZV+=("$(seconds "$EXE" "$LAS" "$DIR/out.log")")
    done
    WC_MED=$(printf '%s\n' "${WC[@]}" | median)
    ZV_MED=$(printf '%s\n' "${ZV[@]}" | median)
    PEAK_KB=$( { /usr/bin/time -v "$EXE" "$LAS" "$DIR/out.log" >/dev/null; } 2>&1 |
      awk -F: '/Maximum resident set size/ {gsub(/ /, "", $2); print $2}')
    WC_CPU=(); ZV_CPU=()
    for ((i = 0; i < RUNS; i++)); do
      WC_CPU+=("$(cpu_seconds wc -l "$LAS")")
      ZV_CPU+=("$(cpu_seconds "$EXE" "$LAS" "$DIR/out.log")")
    done
    WC_CPU_MED=$(printf '%s\n' "${WC_CPU[@]}" | median)
    ZV_CPU_MED=$(printf '%s\n' "${ZV_CPU[@]}" | median)
    printf '%-22s %8.3f %8.3f %6.1fx %8.3f %8.3f %6.1fx %8.1f  %s\n' "$(basename "$LAS")" \
      "$WC_MED" "$ZV_MED" "$(ratio "$ZV_MED" "$WC_MED")" "$WC_CPU_MED" "$ZV_CPU_MED" \
      "$(ratio "$ZV_CPU_MED" "$WC_CPU_MED")" "$(echo "$PEAK_KB / 1024" | bc -l)" \
      "$(grep -a '^Result:' "$DIR/out.log" | tr -d '\r' | sed 's/^Result: //')"
  done
done
