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
openbox > /dev/null 2>&1 &

# attend TITRE: waits for a window whose title holds the text, and answers its number.
attend() {
    local numero essai
    for essai in $(seq 200); do
        numero=$(xdotool search --onlyvisible --name "$1" 2> /dev/null | tail -n 1) || true
        [ -n "$numero" ] && break
        sleep 0.1
    done
    [ -n "$numero" ] || { echo "No window: $1" >&2; return 1; }
    echo "$numero"
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

# appuie TOUCHE FOIS
appuie() {
    [ "$2" -eq 0 ] || xdotool key --repeat "$2" --repeat-delay 40 "$1"
    sleep 0.1
}

# creation RANG: takes the entry of that rank, from 0, in the menu Creation.
creation() {
    xdotool mousemove 1240 860  # Where no menu opens under it.
    xdotool key F10
    sleep 0.2
    appuie Right 2
    appuie Down $(($1 + 1))
    xdotool key Return
    sleep 0.3
}

# valide TITRE TEXTE: types the text into the dialog of that title.
valide() {
    attend "$1" > /dev/null
    sleep 0.4
    xdotool key ctrl+a
    xdotool type --delay 15 "$2"
    xdotool key Return
    sleep 0.5
}

demarre
photo 1-fenetre-vide

# A plate with rounded corners above and a boss: the middle of the drawing is at 640, 470.
creation 18   # Rectangle
clic 440 370
clic 840 590
creation 1    # Cercle
clic 640 480
clic 640 420
creation 17   # Cercle Rayon
valide "Rayon" 18
clic 480 410
clic 800 410
clic 480 550
clic 800 550
creation 0    # Segment
clic 560 660
clic 560 760
clic 560 760
clic 700 760
creation 16   # Arc Rayon Tgt 2 Elements
valide "Rayon" 40
clic 560 700
clic 650 760
xdotool mousemove 610 715 sleep 0.1 mousemove 612 713
photo 2-bande
clic 612 713
creation 9    # Segment tgt 2 Arcs
clic 462 410
clic 818 410
clic 640 380
photo 3-piece

xdotool key Escape ctrl+s
valide "enregistrer" "$demo/piece.vek"
photo 4-enregistree
xdotool key ctrl+q
wait "$programme" || true

demarre "$demo/piece.vek"
photo 5-rouverte
xdotool key ctrl+q
wait "$programme" || true

[ -s "$demo/piece.vek" ] || { echo "The drawing was not saved." >&2; exit 1; }
echo "The drawing and the pictures of the window:"
ls "$demo"/*.vek "$demo"/*.png
