#!/usr/bin/env bash
# Builds Zorvik (the first time from scratch, then incrementally) and certifies LAS files with
# `zorvik check`, from the folder you call it in.
#
#   ./run.sh                      certify the bundled example (examples/example_20.las)
#   ./run.sh FILE|FOLDER...       certify files, and the .las files under folders
#   ./run.sh -j 4 --json data/    options go through to `zorvik check` (see ./run.sh --help)
#   ./run.sh --gui [FILE]         open the window, certifying FILE when given
#
# Exits with the status of `zorvik check`: 0 all passed, 1 a file failed, 2 usage error or a file
# that could not be read.
set -euo pipefail
root=$(cd "$(dirname "$0")" && pwd)

# Builds the program into build/$1 with the window on or off ($2); the first build shows its
# progress, later ones only what went wrong.
build() {
  local dir="$root/build/$1" gui=$2
  ZORVIK_GUI=$gui "$root/tools/ensure_deps.sh" >&2
  local launcher=()
  command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
  if [ ! -x "$dir/src/zorvik" ]; then
    echo "run.sh: building zorvik for the first time (a few minutes)..." >&2
    cmake -S "$root" -B "$dir" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DZORVIK_GUI="$gui" \
      -DZORVIK_TESTS=OFF "${launcher[@]}" >&2
    cmake --build "$dir" -j "$(nproc)" --target zorvik >&2
  else
    cmake -S "$root" -B "$dir" >/dev/null
    cmake --build "$dir" -j "$(nproc)" --target zorvik >/dev/null
  fi
}

case "${1:-}" in
  --gui)
    shift
    build gui ON
    exec "$root/build/gui/src/zorvik" gui "$@"
    ;;
  --help | -h)
    sed -n '2,11p' "$0" | sed 's/^# \{0,1\}//'
    echo
    build run OFF
    exec "$root/build/run/src/zorvik" help check
    ;;
esac

build run OFF
if [ $# -eq 0 ]; then
  set -- "$root/examples/example_20.las"
fi
exec "$root/build/run/src/zorvik" check "$@"
