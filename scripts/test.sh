#!/usr/bin/env bash
# Installs what is missing, builds the test configuration (warnings are errors) and runs every
# test offscreen.  With --sanitize the build uses the address and undefined-behaviour sanitizers.
set -euo pipefail
cd "$(dirname "$0")/.."
preset=test
[ "${1:-}" = "--sanitize" ] && preset=asan
bash scripts/install-deps.sh
export QT_QPA_PLATFORM=offscreen
cmake --preset "$preset"
cmake --build --preset "$preset"
ctest --preset "$preset"
