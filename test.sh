#!/usr/bin/env bash
# Installs what is missing, checks the formatting and the include direction between the folders of
# src, builds, and runs every test twice: in a normal build (with the window, whose tests run on
# Qt's offscreen platform) and in an AddressSanitizer + UndefinedBehaviorSanitizer build of the
# core. Safe to run again: both builds are incremental.
set -euo pipefail
cd "$(dirname "$0")"
gui=${ZORVIK_GUI:-ON}
ZORVIK_GUI=$gui ./tools/ensure_deps.sh

if command -v clang-format >/dev/null; then
  echo "== format"
  find src tests \( -name '*.cpp' -o -name '*.h' \) -print0 | xargs -0 clang-format --dry-run --Werror
fi

echo "== layers"
python3 tools/check_layers.py

jobs=$(nproc)
# A compiler cache, when the machine has one, makes rebuilding the two configurations cheap.
launcher=()
command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
cmake -S . -B build/release -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DZORVIK_GUI="$gui" "${launcher[@]}" >/dev/null
cmake --build build/release -j "$jobs"
cmake -S . -B build/sanitize -G Ninja -DCMAKE_BUILD_TYPE=Debug -DZORVIK_GUI=OFF -DZORVIK_SANITIZE=ON "${launcher[@]}" >/dev/null
cmake --build build/sanitize -j "$jobs"

# The tests get a temporary folder of their own; whatever they leave in it fails the run.
scratch="$PWD/build/test-tmp"
rm -rf "$scratch"
mkdir -p "$scratch"
echo "== sanitizer build"
TMPDIR="$scratch" ctest --test-dir build/sanitize --output-on-failure -j "$jobs"
echo "== normal build"
TMPDIR="$scratch" ctest --test-dir build/release --output-on-failure -j "$jobs"
# Qt makes its runtime folder there when the session has none; that one is not the tests' doing.
left=$(find "$scratch" -mindepth 1 -maxdepth 1 ! -name 'runtime-*')
if [ -n "$left" ]; then
  echo "The tests left files behind in $scratch:" >&2
  echo "$left" >&2
  exit 1
fi
rm -rf "$scratch"
