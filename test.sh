#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test: a normal build and a sanitizer build.
set -euo pipefail
cd "$(dirname "$0")"
ZORVIK_GUI=${ZORVIK_GUI:-OFF} ./tools/ensure_deps.sh

jobs=$(nproc)
cmake -S . -B build/release -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DZORVIK_GUI=${ZORVIK_GUI:-OFF} >/dev/null
cmake --build build/release -j "$jobs"
cmake -S . -B build/sanitize -G Ninja -DCMAKE_BUILD_TYPE=Debug -DZORVIK_GUI=OFF -DZORVIK_SANITIZE=ON >/dev/null
cmake --build build/sanitize -j "$jobs"

echo "== sanitizer build"
ctest --test-dir build/sanitize --output-on-failure -j "$jobs"
echo "== normal build"
ctest --test-dir build/release --output-on-failure -j "$jobs"
