#!/usr/bin/env bash
# Installs the Debian packages the build and the tests need; installs nothing when all are there.
set -euo pipefail

packages=(
    build-essential cmake ninja-build pkg-config
    libgtest-dev
    qt6-base-dev libqt6sql6-sqlite libsqlite3-dev libgl-dev
    poppler-utils libxml2-utils
)
[ "${QS_WITH_XVFB:-0}" = 1 ] && packages+=(xvfb x11-apps imagemagick)
[ "${QS_WITH_FUZZ:-0}" = 1 ] && packages+=(clang libclang-rt-14-dev)

missing=()
for p in "${packages[@]}"; do
    status=$(dpkg-query -W -f='${Status}' "$p" 2>/dev/null || true)
    [ "$status" = "install ok installed" ] || missing+=("$p")
done

if [ ${#missing[@]} -eq 0 ]; then
    echo "install-deps: all packages present"
    exit 0
fi

echo "install-deps: installing ${missing[*]}"
sudo_cmd=()
[ "$(id -u)" -eq 0 ] || sudo_cmd=(sudo)
export DEBIAN_FRONTEND=noninteractive
"${sudo_cmd[@]}" apt-get update -qq
"${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
