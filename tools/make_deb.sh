#!/usr/bin/env bash
# Builds a Debian package of Zorvik (program with its window, help, manual page, desktop entry)
# into build/deb/ and prints its name. Install it with `sudo apt install ./build/deb/zorvik_*.deb`.
set -euo pipefail
cd "$(dirname "$0")/.."
ZORVIK_GUI=ON ./tools/ensure_deps.sh
command -v dpkg-shlibdeps >/dev/null || {
  echo "make_deb.sh: dpkg-shlibdeps is missing; install the dpkg-dev package" >&2
  exit 1
}
launcher=()
command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
cmake -S . -B build/deb -G Ninja -DCMAKE_BUILD_TYPE=Release -DZORVIK_GUI=ON -DZORVIK_TESTS=OFF \
  -DCMAKE_INSTALL_PREFIX=/usr "${launcher[@]}" >/dev/null
cmake --build build/deb -j "$(nproc)"
(cd build/deb && cpack -G DEB >/dev/null)
ls build/deb/zorvik_*.deb
