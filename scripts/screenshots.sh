#!/usr/bin/env bash
# Drives the first run of the program in a virtual display and saves a screenshot of each step
# under docs/screenshots/: database missing, new database, first user, login, main window.  The
# pictures of the program at work on the sample library are taken by scripts/gallery.sh.
#
#   bash scripts/screenshots.sh            builds (preset "run") and drives the program
#   QS_BINARY=path bash scripts/screenshots.sh   drives an executable built elsewhere
#
# Needs xvfb-run, xdotool, xwd and ImageMagick's convert; missing Debian packages are installed.
set -euo pipefail
cd "$(dirname "$0")/.."
ROOT=$(pwd)
OUT="$ROOT/docs/screenshots"

if [[ "${1:-}" != "--inner" ]]; then
    need=()
    command -v xvfb-run >/dev/null || need+=(xvfb xauth)
    command -v xdotool >/dev/null || need+=(xdotool)
    command -v xwd >/dev/null || need+=(x11-apps)
    # A stand-in "convert" may exist; only ImageMagick reads xwd.
    if ! convert -list format 2>/dev/null | grep -qi '^ *XWD'; then need+=(imagemagick); fi
    if ((${#need[@]})); then
        apt-get update -qq && DEBIAN_FRONTEND=noninteractive apt-get install -y -qq "${need[@]}"
    fi
    if [[ -z "${QS_BINARY:-}" ]]; then
        bash scripts/install-deps.sh
        cmake --preset run
        cmake --build --preset run
        export QS_BINARY="$ROOT/build/run/quillstone"
    fi
    exec xvfb-run -a -s "-screen 0 1280x800x24" bash "$0" --inner
fi

# ---- inside the virtual display ----
mkdir -p "$OUT"
HOME_DIR=$(mktemp -d)
trap 'kill "$APP_PID" 2>/dev/null || true; rm -rf "$HOME_DIR"' EXIT
export HOME="$HOME_DIR" XDG_CONFIG_HOME="$HOME_DIR/config" XDG_DATA_HOME="$HOME_DIR/data"
export XDG_RUNTIME_DIR="$HOME_DIR/run"
mkdir -p "$XDG_CONFIG_HOME" "$XDG_DATA_HOME" "$XDG_RUNTIME_DIR"
chmod 700 "$XDG_RUNTIME_DIR"
export QT_QPA_PLATFORM=xcb

shot() {
    sleep 0.8
    xwd -root -silent | convert xwd:- "$OUT/$1.png"
    echo "saved docs/screenshots/$1.png"
}

# Waits for a visible window whose title matches, and gives it the focus.
window() {
    local id=""
    for _ in $(seq 1 60); do
        id=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | tail -1 || true)
        [[ -n "$id" ]] && break
        sleep 0.5
    done
    if [[ -z "$id" ]]; then
        echo "no window named '$1' appeared" >&2
        shot "failed-waiting"
        exit 1
    fi
    xdotool windowactivate --sync "$id" 2>/dev/null || xdotool windowfocus --sync "$id"
    sleep 0.3
    echo "$id"
}

type_text() { xdotool type --delay 40 "$1"; }
key() { xdotool key --delay 80 "$@"; }

"$QS_BINARY" >"$HOME_DIR/program.log" 2>&1 &
APP_PID=$!

# 1. The settings name a database that is not there: the service's message.
window "^Quillstone$" >/dev/null
shot 01-database-missing
key Return

# 2. The database dialog; "Create New Database" is chosen, OK asks for a file name.
window "^Database$" >/dev/null
shot 02-database-dialog
key Tab space
window "Please select path" >/dev/null
type_text "$HOME_DIR/Library/Quillstone"
shot 03-new-database-name
key Return

# 3. The new database asks for its first user.
window "^Quillstone$" >/dev/null
shot 04-add-first-user
key Return

# 4. The first user: id, names, password, question, answer, "Admin", then Update.
window "^User Maintenance$" >/dev/null
type_text "ada"
key Tab
type_text "Ada"
key Tab
type_text "Lovelace"
key Tab
type_text "engine"
key Tab
type_text "First computer"
key Tab
type_text "Analytical"
key Tab
key Home
shot 05-first-user
key Tab
key space

# 5. The login, prefilled with the first user.
window "Login To Database You Selected" >/dev/null
shot 06-login
key Tab
key Return

# 6. The main window of the administrator.
window "^Ovrin Quillstone$" >/dev/null
shot 07-main-window

kill "$APP_PID" 2>/dev/null || true
wait "$APP_PID" 2>/dev/null || true
echo "first run driven; screenshots in docs/screenshots/"
