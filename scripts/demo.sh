#!/usr/bin/env bash
# Draws a small part on a virtual display with real mouse and key events, saves it, opens it again.
# Leaves the drawing and pictures of the window under build/demo/ and names them.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/paquets.sh

demo=$PWD/build/demo
rm -rf "$demo"
mkdir -p "$demo/home"
export HOME=$demo/home XDG_CONFIG_HOME=$demo/home XDG_DATA_HOME=$demo/home NO_AT_BRIDGE=1
ouvre_ecran 1280x900
openbox 2> /dev/null &

# attend TITRE: waits for a window whose title holds the text, and answers its number.
attend() {
    timeout 20 xdotool search --sync --onlyvisible --name "$1" | tail -n 1
}

# demarre [DESSIN]: starts the program and waits until its window stands.
demarre() {
    build/krvek "$@" &
    programme=$!
    fenetre=$(attend "KR VEK 1")
    xdotool windowactivate --sync "$fenetre"
    sleep 1
}

photo() {
    sleep 0.5
    import -window root "$demo/$1.png"
}

# clic X Y: moves to a point of the display by two steps, as a hand would, and clicks.
clic() {
    xdotool mousemove "$(($1 - 7))" "$(($2 + 5))" sleep 0.05 mousemove "$1" "$2" sleep 0.05 click 1
    sleep 0.1
}

# outil MENU RANG...: chooses a command by walking the menus with the keyboard: the letter of the
# menu, then the letters of the entries.
outil() {
    xdotool key "alt+$1"
    shift
    local touche
    for touche in "$@"; do
        sleep 0.1
        xdotool key "$touche"
    done
    sleep 0.3
}

demarre
