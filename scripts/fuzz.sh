#!/usr/bin/env bash
# Builds a fuzz target with clang (libFuzzer, address and undefined-behaviour sanitizers) and runs
# it for a while: scripts/fuzz.sh [seconds, default 120] [peversion|codeparser, default peversion].
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-120}
target=${2:-peversion}
case "$target" in
peversion) seeds=tests/fuzz/corpus; work=build/fuzz/corpus; extra=() ;;
codeparser)
    seeds=tests/fuzz/corpus_codeparser
    work=build/fuzz/corpus_codeparser
    extra=(-dict=tests/fuzz/codeparser.dict)
    ;;
*) echo "usage: scripts/fuzz.sh [seconds] [peversion|codeparser]" >&2; exit 2 ;;
esac
QS_WITH_FUZZ=1 bash scripts/install-deps.sh
cmake -S . -B build/fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DCMAKE_CXX_COMPILER=clang++ -DQS_WARNINGS_AS_ERRORS=OFF
cmake --build build/fuzz --target "fuzz_$target"
mkdir -p "$work"
build/fuzz/tests/fuzz/"fuzz_$target" -max_total_time="$seconds" -print_final_stats=1 \
    ${extra[@]+"${extra[@]}"} "$work" "$seeds"
