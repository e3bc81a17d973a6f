#!/usr/bin/env bash
# Pictures the window after certifying an example file: docs/window.png (needs a GUI build in
# build/release, as ./test.sh makes, and xvfb-run). Usage: tools/screenshot.sh [FILE.las]
set -euo pipefail
cd "$(dirname "$0")/.."
las=$(realpath "${1:-examples/example_30.las}")
ZORVIK_SCREENSHOT="$PWD/docs/window.png" ZORVIK_SCREENSHOT_LAS="$las" QT_QPA_PLATFORM=xcb \
  xvfb-run -a -s "-screen 0 1280x900x24" \
  build/release/tests/test_ui --gtest_also_run_disabled_tests --gtest_filter='*DISABLED_Screenshot'
echo "wrote docs/window.png"
