#!/usr/bin/env bash
# Draws a small part on a virtual display with real mouse and key events, saves it, opens it again.
# Leaves the drawing and pictures of the window under build/demo/ and names them.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/paquets.sh
. scripts/gestes.sh

demo=$PWD/build/demo
ouvre_bureau "$demo"

demarre
photo 1-fenetre-vide

# A plate with rounded corners above and a boss: the middle of the drawing is at 640, 470.
commande Rectangle
clic 440 370
clic 840 590
commande Cercle
clic 640 480
clic 640 420
commande CercleRayon
valide "Rayon" 18
clic 480 410
clic 800 410
clic 480 550
clic 800 550
commande Segment
clic 560 660
clic 560 760
clic 560 760
clic 700 760
commande ArcRayon
valide "Rayon" 40
clic 560 700
clic 650 760
xdotool mousemove 610 715 sleep 0.1 mousemove 612 713
photo 2-bande
clic 612 713
commande SegmentAA
clic 462 410
clic 818 410
clic 640 380
photo 3-piece

xdotool key Escape ctrl+s
valide "enregistrer" "$demo/piece.vek"
photo 4-enregistree
quitte

demarre "$demo/piece.vek"
photo 5-rouverte
quitte

[ "$(sed -n 2p "$demo/piece.vek")" = 11 ] || { echo "Not all was drawn and saved." >&2; exit 1; }
echo "The drawing and the pictures of the window:"
ls "$demo"/*.vek "$demo"/*.png
