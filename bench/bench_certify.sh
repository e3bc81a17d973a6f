#!/usr/bin/env bash
# Times batch certification of large LAS files next to `wc -l` on the same file (warm cache,
# median of runs interleaved one zorvik, one wc) and reports the ratio and zorvik's peak memory,
# for each size and kind: plain 2.0 (WRAP NO), wrapped 2.0 (WRAP YES), comma-delimited 3.0.
#
#   bench/bench_certify.sh [--sizes "50 500"] [--runs 5] [--dir SCRATCH] [--kinds "plain wrap v3"]
#
# Runs from a clean clone: installs what is missing (build tools, python3, bc, GNU time), builds
# the program without the window in Release mode into build/bench/, and writes the files with
# bench/make_las.py (20 curves) into SCRATCH, a temporary folder removed at the end unless --dir
# names one to keep them in. Sizes are in MB (10**6 bytes).
set -euo pipefail

ROOT="$(cd "$(dirname "$0")/.." && pwd)"
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

ZORVIK_GUI=OFF ZORVIK_BENCH_TOOLS=ON "$ROOT/tools/ensure_deps.sh"
BUILD="$ROOT/build/bench"
echo "Building zorvik (Release, without the window) in $BUILD"
cmake -S "$ROOT" -B "$BUILD" -G Ninja -DCMAKE_BUILD_TYPE=Release -DZORVIK_GUI=OFF \
  -DZORVIK_TESTS=OFF >/dev/null
cmake --build "$BUILD" -j2 --target zorvik >/dev/null
EXE="$BUILD/src/zorvik"

if [[ -z "$DIR" ]]; then
  DIR="$(mktemp -d "${TMPDIR:-/tmp}/zorvik-bench-XXXXXX")"
  trap 'rm -rf "$DIR"' EXIT
fi
mkdir -p "$DIR/config/Zorvik"
echo "Files in $DIR; $(nproc) cores, load average $(cut -d' ' -f1-3 /proc/loadavg), $(date -u +%F)"
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
    [[ -f "$LAS" ]] || python3 "$ROOT/bench/make_las.py" "$LAS" --mb "$MB" --kind "$KIND" --curves 20
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
