#!/usr/bin/env bash
# Builds Zorvik (the first time from scratch, then incrementally) and certifies one LAS file in
# batch mode, printing the report and the command-log entries of that run.
#
#   ./run.sh                 certify examples/example_20.las
#   ./run.sh FILE.las        certify FILE.las
#   ./run.sh --gui           open the window (when this checkout builds one)
set -euo pipefail
cd "$(dirname "$0")"
root=$(pwd)

if [ "${1:-}" = "--gui" ]; then
  if [ ! -f src/ui/CMakeLists.txt ]; then
    echo "run.sh: this checkout has no window to build; certify a file instead" >&2
    exit 1
  fi
  ZORVIK_GUI=ON ./tools/ensure_deps.sh
  cmake -S . -B build/gui -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DZORVIK_GUI=ON \
    -DZORVIK_TESTS=OFF >/dev/null
  cmake --build build/gui -j "$(nproc)" --target zorvik
  exec build/gui/src/zorvik
fi

las_arg=${1:-examples/example_20.las}
if [ ! -e "$las_arg" ]; then
  echo "run.sh: $las_arg does not exist" >&2
  exit 1
fi
las=$(realpath "$las_arg")

ZORVIK_GUI=OFF ./tools/ensure_deps.sh
cmake -S . -B build/run -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DZORVIK_GUI=OFF \
  -DZORVIK_TESTS=OFF >/dev/null
cmake --build build/run -j "$(nproc)" --target zorvik >/dev/null
exe="$root/build/run/src/zorvik"

# Batch runs go through only once a ".las" name has been remembered, as opening a file in the
# window does; remember this one (other settings are kept).
store="${XDG_CONFIG_HOME:-$HOME/.config}/Zorvik/Zorvik.conf"
mkdir -p "$(dirname "$store")"
touch "$store"
LASFILE="$las" awk '
  function entry() { print "lasFile=" ENVIRON["LASFILE"]; done = 1 }
  /^[ \t]*\[/ {
    if (inside && !done) entry()
    inside = (tolower($0) ~ /^[ \t]*\[[ \t]*startup[ \t]*\][ \t]*$/)
    print; next
  }
  inside && tolower($0) ~ /^[ \t]*lasfile[ \t]*=/ { if (!done) entry(); next }
  { print }
  END { if (!done) { if (!inside) print "[Startup]"; entry() } }
' "$store" >"$store.new" && mv "$store.new" "$store"

log="$root/build/run/report.log"
commands="$root/build/run/src/command.log"
before=$(stat -c %s "$commands" 2>/dev/null || echo 0)
rm -f "$log"

"$exe" "$las" "$log"

echo "== Report ($log)"
if [ -f "$log" ]; then tr -d '\r' <"$log"; else echo "(no report was written)"; fi
echo "== Command log entries of this run ($commands)"
tail -c +"$((before + 1))" "$commands" 2>/dev/null | tr -d '\r'
