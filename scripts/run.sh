#!/usr/bin/env bash
# Installs what is missing, builds the Release program and starts it.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
cmake --preset run
cmake --build --preset run
exec ./build/run/quillstone "$@"
