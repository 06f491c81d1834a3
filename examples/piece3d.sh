#!/usr/bin/env bash
# examples/piece3d.sh [DRAWING]: draws a part in space on a virtual display with real mouse and key
# events, saves it, and shows it in the 3D window; under build/piece3d/ when no name is given. Pictures
# are left there too. The program has to be built: ./run.sh does it.
#
# The part is a control lever on its plate: z = 0 is the underside of the plate, which lies on planks.
# What is drawn as a profile stands beside the plan, and its properties bring it to its place.
set -euo pipefail
dessin=$(realpath -m "${1:-$(dirname "$0")/../build/piece3d/piece3d.vek}")
cd "$(dirname "$0")/.."
. scripts/paquets.sh
. scripts/gestes.sh

est_large() { xdotool getactivewindow getwindowgeometry | grep -q ' 1280x'; }

plan() { vue 0 0; }            # The part from above.
nervure() { vue -250 100; }    # A rib, from the axis of the hub.
levier() { vue 160 110; }      # The foot of the lever.
bouton() { vue 180 -110; }     # The meridian of the knob.
bois='#d8b070' acier='#8fa3b8' laiton='#d9b23c' bronze='#b8763a' rouge='#c03028' gris='#606870'
fond='#6a7f95' noir='#000000'

[ -x "$KRVEK" ] || { echo "The program is not built: ./run.sh does it." >&2; exit 1; }
# shellcheck disable=SC2086
installe $PAQUETS_DEMO
ouvre_bureau "$PWD/build/piece3d"
mkdir -p "$(dirname "$dessin")"
copie=$bureau/copie.vek
rm -f "$dessin"
for dossier in "$bureau" "$(dirname "$dessin")"; do  # An image is looked for beside its drawing.
    [ examples/planche.png -ef "$dossier/planche.png" ] || cp examples/planche.png "$dossier"
done
demarre
cherche_origine
xdotool key o  # Two pixels to the unit.
pas_de_grille 1

# The outlines that profiles follow.
couleur "$noir"
commande Segment
nervure
pts 16 0 44 0  44 0 44 4  20 28 16 28
levier
pts 0 0 0 20  14 34 36 34  50 48 50 54
bouton
pts 0 0 8 0  8 0 8 3  8 3 5 6
plan
pts 28 40 64 40  64 26 28 26
commande ArcCDF
nervure
pts 44 28 20 28 44 4
levier
pts 14 20 14 34 0 20  36 48 36 34 50 48
bouton
pts 0 18 5 6 0 31
plan
pts 64 33 64 26 64 40  28 33 28 40 28 26
commande ProfilElt  # The axis of the lever.
levier
pts 0 0 0 0  0 10 4 30 25 34 46 38 50 51
xdotool key End
photo 1-profils

# The planks: their image in greys, on the top alone, takes the colour of the solid.
plan
couleur "$bois"
commande Pave
pts -120 75 120 -75
fiche 0 75 "$pave" Z=-14 h=14 texture=planche.png dessus= pourtour= repetition=

# The plate, with its holes and its slot through, a blind hole and a pocket.
couleur "$acier"
commande Pave
pts -100 55 100 -55
commande Percage
pts 0 55
pts -88 43 -82 43  88 43 94 43  -88 -43 -82 -43  88 -43 94 -43  # The corners
pts -45 0 -29 0
commande RainurePElt
pts 0 55  46 33 28 40  46 40 71 33 46 26 21 33
xdotool key End
couleur "$fond"
commande Percage
pts 0 55  84 0 92 0
fiche 92 0 "$rond" Z=4 h=6 debouchant=
commande Rainure
pts 0 55  20 -26 72 -40
fiche 46 -26 "$pave" Z=5 h=5 debouchant=

# The flange and its six holes, and the hub.
couleur "$laiton"
commande Cylindre
pts -45 0 1 0
fiche 1 0 "$rond" Z=10 h=12 brillance=40
commande Percage
pts 1 0  -45 0 -31 0
fiche -31 0 "$rond" Z=10 h=12
couronne="-11,0 -28,29 -62,29 -79,0 -62,-29 -28,-29"  # Thirty-four from the axis
for trou in $couronne; do
    x=${trou%,*} y=${trou#*,}
    commande Percage
    pts 1 0  "$x" "$y" $((x + 4)) "$y"
    fiche $((x + 4)) "$y" "$rond" Z=10 Rinf=4.5 Rsup=4.5 h=12
done
commande Cylindre
pts -45 0 -25 0
fiche -25 0 "$rond" Z=22 h=40 brillance=40
commande Percage
pts -25 0  -45 0 -33 0
fiche -33 0 "$rond" Z=22 h=40

# A rib, copied twice, between the holes.
couleur "$bronze"
nervure
commande ProfilEltElevation
pts 0 0 16 0  30 0 44 2 27 11 18 28
xdotool key End
for y in -60 -120; do
    commande Select
    pts 0 0 0 0
    xdotool keydown Control_L
    pts 0 "$y"
    xdotool keyup Control_L
done
fiche 0 0 "$profil" X=-46.5 Y=2.598 Z=22 h=6 alpha=30 gamma=90
fiche 0 -60 "$profil" X=-46.5 Y=-2.598 Z=22 h=6 alpha=150 gamma=90
fiche 0 -120 "$profil" X=-42 Y=0 Z=22 h=6 alpha=270 gamma=90
photo 2-bride

# The lever on its cone, and the knob at its end.
plan
couleur "$gris"
commande Cylindre
pts 25 0 39 0
fiche 39 0 "$rond" Z=10 Rsup=9 h=14 brillance=40
couleur "$acier"
commande Jonc
valide "Rayon" 5
pts 25 0
levier
pts 0 0
plan
fiche 25 0 "$jonc" Z=22 gamma=90 brillance=40
couleur "$rouge"
bouton
commande ProfilEltTourne
pts 0 -6 0 0  4 0 8 2 7 4 13 18
xdotool key End
fiche 0 -6 "$profil" X=75 Y=0 Z=70 gamma=90 facettes=80 brillance=40
photo 3-feuille

xdotool key Escape key g  # The grid hidden.
xdotool key ctrl+s
valide "enregistrer" "$dessin"
quitte

# What is read is what was written: saved again, under another name, it is the same file.
demarre "$dessin"
commande SaveAs
valide "enregistrer" "$copie"
essaie test -s "$copie"
cmp "$dessin" "$copie"

# The view in space, in the whole of the display.
commande Vue3D
attend "Vue 3D"
xdotool mousemove 300 10 click --repeat 2 --delay 60 1
essaie est_large
sleep 1
xdotool key f
vide() { clic 1240 100; entre vue "$1"; }  # Where nothing is
vide VisuCentre  # No white points.
photo 4-dessus
appuie ctrl+Page_Down 9
appuie shift+Page_Up 3
appuie Page_Up 3
appuie ctrl+Up 21
appuie ctrl+shift+Down 12
appuie ctrl+Right 2
# The second lamp, held up to the left of the eye, lights the sides that look this way.
vide Lum1
va 200 200
xdotool click --repeat 50 --delay 30 5
clic 200 300
xdotool key z  # The ball goes back to the sheet.
xdotool mousemove 1276 450 mousemove 1276 860
appuie K 4
appuie j 1
photo 5-piece
xdotool key End sleep 0.3 windowactivate "$fenetre"  # The key hides the view.
revient
quitte
echo "The drawing and the pictures of the window:"
ls "$dessin" "$bureau"/*.png
