#!/usr/bin/env bash
# Takes the README's gallery: pictures of the program at work on the sample library, saved in
# docs/screenshots/.  Builds the sample library into a temporary home, then runs tools/gallery
# (preset "run") in a virtual display; gallery drives the windows through their controls.
#
#   bash scripts/gallery.sh
#
# Installs what is missing (xvfb, xauth and the build's own packages).
set -euo pipefail
cd "$(dirname "$0")/.."
ROOT=$(pwd)

need=()
command -v xvfb-run >/dev/null || need+=(xvfb)
command -v xauth >/dev/null || need+=(xauth)
if ((${#need[@]})); then
    sudo_cmd=()
    [ "$(id -u)" -eq 0 ] || sudo_cmd=(sudo)
    export DEBIAN_FRONTEND=noninteractive
    "${sudo_cmd[@]}" apt-get update -qq
    "${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${need[@]}"
fi
bash scripts/install-deps.sh

cmake --preset run >/dev/null
cmake --build --preset run --target make_sample_library gallery

HOME_DIR=$(mktemp -d)
trap 'rm -rf "$HOME_DIR"' EXIT
export HOME="$HOME_DIR" XDG_CONFIG_HOME="$HOME_DIR/config" XDG_DATA_HOME="$HOME_DIR/data"
export XDG_RUNTIME_DIR="$HOME_DIR/run"
mkdir -p "$XDG_CONFIG_HOME" "$XDG_DATA_HOME" "$XDG_RUNTIME_DIR"
chmod 700 "$XDG_RUNTIME_DIR"

LIBRARY="$HOME_DIR/Library/Quillstone Sample.mdb"
./build/run/tools/make_sample_library "$LIBRARY"

mkdir -p docs/screenshots
QT_QPA_PLATFORM=xcb xvfb-run -a -s "-screen 0 1280x800x24" \
    ./build/run/tools/gallery "$LIBRARY" "$ROOT/data/Datafiles/Win32api.txt" "$ROOT/docs/screenshots"
echo "gallery taken; pictures in docs/screenshots/"
