#!/usr/bin/env bash
# Builds the sample library a newcomer can open: four categories (one is "Visual Basic"),
# nested folders, snippets, tips, class and general modules with their revision histories, an
# article and a component stored as files, a first user (administrator) and an author.  Prints
# the user id and password to log in with.
#   bash scripts/sample-library.sh [--replace] [path]
# The default path is "data/Sample/Quillstone Sample.mdb" in the source folder; an existing file
# is left alone unless --replace is given.  The article and the component are written to
# "Sample Files" beside the library.
set -euo pipefail
args=()
for arg in "$@"; do
    case "$arg" in
    --*) args+=("$arg") ;;
    *) args+=("$(realpath -m -- "$arg")") ;; # a path is taken from where the script was called
    esac
done
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
cmake --preset run >/dev/null
cmake --build --preset run --target make_sample_library
./build/run/tools/make_sample_library "${args[@]}"
