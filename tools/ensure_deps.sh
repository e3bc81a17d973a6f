#!/usr/bin/env bash
# Installs the Debian packages the build needs, once; safe to run again.
set -euo pipefail
packages=(cmake ninja-build g++ libgtest-dev libbenchmark-dev pkg-config python3)
if [ "${ZORVIK_GUI:-ON}" = "ON" ]; then
  packages+=(qt6-base-dev xvfb xauth poppler-utils)
fi
# The certification benchmark writes its files with Python and times with GNU time and bc.
if [ "${ZORVIK_BENCH_TOOLS:-OFF}" = "ON" ]; then
  packages+=(python3 bc time)
fi
# libFuzzer comes with clang's runtime libraries; only fuzzing needs them.
if [ "${ZORVIK_FUZZ:-OFF}" = "ON" ]; then
  packages+=(clang libclang-rt-14-dev)
fi
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  sudo_cmd=""
  [ "$(id -u)" -ne 0 ] && sudo_cmd="sudo"
  echo "Installing: ${missing[*]}"
  $sudo_cmd apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo_cmd apt-get install -y --no-install-recommends "${missing[@]}"
fi
