#!/usr/bin/env bash
# Builds the fuzz targets with clang (libFuzzer, address and undefined-behaviour sanitizers) and
# runs each for a while: scripts/fuzz.sh [seconds, default 120] [targets, default
# "peversion codeparser rtf2html"] (the version-resource parser, the module parser and the rich
# text to HTML converter).
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-120}
targets=${2:-"peversion codeparser rtf2html"}
QS_WITH_FUZZ=1 bash scripts/install-deps.sh
cmake -S . -B build/fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DCMAKE_CXX_COMPILER=clang++ -DQS_WARNINGS_AS_ERRORS=OFF
for target in $targets; do
    extra=()
    case "$target" in
    peversion) seeds=tests/fuzz/corpus ;;
    codeparser) seeds=tests/fuzz/corpus_codeparser; extra=(-dict=tests/fuzz/codeparser.dict) ;;
    rtf2html) seeds=tests/fuzz/corpus_rtf ;;
    *) echo "fuzz.sh: unknown target $target" >&2; exit 2 ;;
    esac
    cmake --build build/fuzz --target "fuzz_$target"
    mkdir -p "build/fuzz/corpus_$target"
    "build/fuzz/tests/fuzz/fuzz_$target" -max_total_time="$seconds" -print_final_stats=1 \
        ${extra[@]+"${extra[@]}"} "build/fuzz/corpus_$target" "$seeds"
done
