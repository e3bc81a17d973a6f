#!/usr/bin/env bash
# Fuzzes one target for a given number of minutes with libFuzzer, under AddressSanitizer and
# UndefinedBehaviorSanitizer, starting from the target's committed seed corpus.
#
#   tools/fuzz.sh TARGET MINUTES      TARGET: certify, header_line, v3_line or value_format
#
# Installs clang and its runtime when missing, builds the targets with clang in build/fuzz/, and
# keeps the inputs it finds interesting in build/fuzz/work/TARGET/corpus/ (not committed). An
# input that crashes, leaks or hangs is written to tests/fuzz/reproducers/TARGET/: fix the fault,
# then commit the reproducer, and the normal test run replays it from then on.
set -euo pipefail
cd "$(dirname "$0")/.."
if [ $# -ne 2 ] || [ ! -d "tests/fuzz/corpus/$1" ] || ! [[ "$2" =~ ^[0-9]+$ ]]; then
  echo "usage: $0 TARGET MINUTES   (TARGET: $(ls tests/fuzz/corpus | tr '\n' ' '))" >&2
  exit 2
fi
target=$1
minutes=$2

ZORVIK_GUI=OFF ZORVIK_FUZZ=ON ./tools/ensure_deps.sh
launcher=()
command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
cmake -S . -B build/fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ \
  -DZORVIK_FUZZ=ON -DZORVIK_TESTS=OFF -DZORVIK_GUI=OFF "${launcher[@]}" >/dev/null
cmake --build build/fuzz -j "$(nproc)" --target "fuzz_$target"

work="build/fuzz/work/$target"
reproducers="tests/fuzz/reproducers/$target"
mkdir -p "$work/corpus" "$reproducers"
# The whole-certification target writes and syncs a report for every input. On a disk those syncs
# can stall behind other work for longer than the time limit, so its files go to a memory-backed
# folder when the machine has one.
if [ -d /dev/shm ] && [ -w /dev/shm ]; then
  scratch=$(mktemp -d /dev/shm/zorvik-fuzz-XXXXXX)
else
  scratch=$(mktemp -d "$PWD/$work/tmp-XXXXXX")
fi
trap 'rm -rf "$scratch"' EXIT
echo "Fuzzing $target for $minutes minute(s); new inputs in $work/corpus"
status=0
TMPDIR="$scratch" "build/fuzz/tests/fuzz/fuzz_$target" -max_total_time=$((minutes * 60)) \
  -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 -artifact_prefix="$reproducers/" \
  "$work/corpus" "tests/fuzz/corpus/$target" || status=$?
if [ -n "$(ls -A "$reproducers")" ]; then
  echo "Reproducers written to $reproducers" >&2
else
  rmdir "$reproducers"
  rmdir tests/fuzz/reproducers 2>/dev/null || true
fi
exit $status
