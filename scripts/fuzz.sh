#!/usr/bin/env bash
# Builds the version-resource parser's fuzz target with clang (libFuzzer, address and
# undefined-behaviour sanitizers) and runs it for a while: scripts/fuzz.sh [seconds, default 120].
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-120}
QS_WITH_FUZZ=1 bash scripts/install-deps.sh
cmake -S . -B build/fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DCMAKE_CXX_COMPILER=clang++ -DQS_WARNINGS_AS_ERRORS=OFF
cmake --build build/fuzz --target fuzz_peversion
mkdir -p build/fuzz/corpus
build/fuzz/tests/fuzz/fuzz_peversion -max_total_time="$seconds" -print_final_stats=1 \
    build/fuzz/corpus tests/fuzz/corpus
