#!/usr/bin/env bash
# examples/bride_cotee.sh [DRAWING]: draws the sheet of a flange on a virtual display with real mouse
# and key events, and saves it; under build/bride_cotee/ when no name is given. Pictures of the window
# are left there too. The program has to be built: ./run.sh does it.
set -euo pipefail
dessin=$(realpath -m "${1:-$(dirname "$0")/../build/bride_cotee/bride_cotee.vek}")
cd "$(dirname "$0")/.."
. scripts/paquets.sh
. scripts/gestes.sh

# trait EPAISSEUR LIGNE SURFACE: the style of the next elements. LIGNE is continu or axe, SURFACE vide
# or hachuree. The dialog opens on the style before, which is kept here to know how many times the keys
# are to be pressed.
ligne_courante=continu
surface_courante=vide
trait() {
    commande Trait
    attend "Style du trait courant"
    xdotool key ctrl+a
    tape "$1"
    xdotool key Tab key ctrl+a
    tape 45
    xdotool key Tab key ctrl+a
    tape 10
    xdotool key Tab
    # From Continu to Axe there are two buttons, and two more lead back round.
    [ "$2" = "$ligne_courante" ] || appuie Right 2
    ligne_courante=$2
    if [ "$3" != "$surface_courante" ]; then
        xdotool key --delay 40 Tab space Tab space Tab space  # Remplissage, Contour, Hachure.
        surface_courante=$3
    fi
    xdotool key Return
    revient
}

# texte X Y TAILLE MOTS
texte() {
    commande Texte
    remplit "Texte :" "$4" - "$3"
    pts "$1" "$2"
}

# entoure X Y AVANT [APRES]: puts words before and behind the value of the dimension whose text is
# there.
entoure() {
    sur "$1" "$2" Prop
    attend "Propriété de la cote"
    xdotool key --delay 30 Tab Tab Tab Home
    tape "$3"
    if [ -n "${4:-}" ]; then
        xdotool key End
        tape "$4"
    fi
    xdotool key Return
    revient
}

feuille() { vue 0 0; }
face() { vue -125 40; }    # The flange as its hub shows it, about its axis.
coupe() { vue 105 40; }    # The section, about the axis in the plane of its left end.
noir='#000000' rouge='#b03030' bleu='#1f4e9e' gris='#8c8c8c'

[ -x "$KRVEK" ] || { echo "The program is not built: ./run.sh does it." >&2; exit 1; }
# shellcheck disable=SC2086
installe $PAQUETS_DEMO
ouvre_bureau "$PWD/build/bride_cotee"
mkdir -p "$(dirname "$dessin")"
rm -f "$dessin"
demarre
cherche_origine
xdotool key o  # Two pixels to the unit.
pas_de_grille 5
commande PrefCote
remplit "Préférences Texte" - 5
commande PrefTxt
remplit "Préférences Texte" - - 5

# The frame, and the ends of the cutting plane.
trait 3 continu vide
commande Rectangle
feuille
pts -300 185 300 -185
commande Segment
pas_de_grille 1
face
pts 0 118 0 130 0 -118 0 -130

# The axis lines.
couleur "$rouge"
trait 1 axe vide
commande Cercle
pts 0 0 75 0
commande Segment
pts 40 -40 76 -76  # The hole's own.
pts -55 0 55 0 0 -55 0 55
coupe
pts -10 0 75 0 -8 75 33 75

# What is seen.
couleur "$noir"
trait 2 continu vide
commande Cercle
face
pts 0 0 100 0 0 0 45 0 0 0 35 0 0 0 25 0
commande CercleRayon  # The tapped hole, where its axes cross
valide "Rayon" 10
commande PointParticulier
pts 54 -53
commande PointParticulier
commande Rectangle
feuille
pts 120 -130 300 -185
pts -300 -100 -130 -185
coupe
pts 0 100 25 85
commande Segment
pts 0 85 0 65 25 85 25 65            # The hole's ends
pts 0 25 0 65 0 65 25 65 25 65 25 55 # The plate
pts 35 45 60 45 65 40 65 35            # The hub
pts 65 35 55 25 55 25 0 25             # The chamfer and the bore
pts 0 25 0 -25 55 25 55 -25 65 35 65 -35
face
pts -22 124 0 124 -7 128 0 124 -7 120 0 124
pts -22 -124 0 -124 -7 -128 0 -124 -7 -120 0 -124
commande ArcRayon
coupe
valide "Rayon" 10
pts 25 60 48 45 33 53
commande ArcRayon
valide "Rayon" 5
pts 48 45 65 37 58 38

# The thread, and the lines of the title block.
trait 1 continu vide
commande Segment
pts 0 63 25 63 0 87 25 87
feuille
pts 120 -150 300 -150 120 -168 300 -168 215 -150 215 -185
commande CercleRayon
face
valide "Rayon" 12
commande PointParticulier
pts 54 -53
commande PointParticulier
sur 65 -53 Prop
remplit "Propriété du cercle" - - - - 45 270

# The hole becomes a group, about the axis of the flange, and is shown four times, turned.
commande ZoneSelection
pts 0 0 100 -100
commande CouperVek
commande AnnuleSelection
commande CollerVekCommeBDD
feuille
pts -292 -106
valide "Identificateur" TROU
couleur "$rouge"
commande Image
valide "Identificateur de la BDD" TROU
face
for angle in 45 135 225 315; do
    pts 0 0
    sur 0 0 Prop
    remplit "Image de bdd" - - - - "$angle"
done
photo 1-vue-de-face

# The hatch of the upper half, which a mirrored copy makes the lower one.
couleur "$gris"
trait 1 continu hachuree
commande Rectangle
coupe
pts 0 100 25 85
commande ProfilElt
pts 12 50 0 25
pts 0 45 12 65 25 60 28 48 48 45 64 44 65 37 60 30 32 25
xdotool key End
commande ZoneSelection
pts -15 105 80 5
commande CopierVek
commande AnnuleSelection
xdotool key x  # Symétrie X
sleep 0.3
pts -15 -105
xdotool key x key Escape
photo 2-coupe

# The dimensions.
couleur "$bleu"
trait 1 continu vide
commande CoteVert
pts 0 63 0 87 -18 75
pts 60 -45 60 45 100 0
pts 25 -100 25 100 120 0
commande CoteHori
pts 0 -100 25 -100 12 -114
pts 0 -100 65 -40 32 -130
commande CoteRayon
pts 60 45 60 40 66 64  # The dimension is drawn from its second point
commande CoteRayonArc
pts 28 -48 24 -11
commande CoteAng
pts 55 25 55 25 79 25 72 42
commande Cote
face
pts -75 0 0 75 -80 80
commande CoteDia
pts -15 -20 15 20 -29 50
commande CoteDiaArc
pts -60 45 41 71 -21 28 -53 31
entoure -29 50 Ø
entoure 41 71 Ø
entoure -53 31 Ø
entoure -80 80 '(' ')'
coupe
entoure 100 0 Ø
entoure 120 0 Ø
entoure -18 75 M
entoure 66 64 R
entoure 24 -11 R
# Over the hatch.
sur 66 64 Avant
sur 24 -11 Avant
photo 3-cotes

# The words.
couleur "$noir"
face
texte -37 118 8 A
texte -37 -130 8 A
coupe
texte 0 112 7 'COUPE A-A'
feuille
texte 128 -147 9 'BRIDE À 4 TROUS'
texte 126 -164 5 'Matière : S235'
texte 221 -164 5 'Échelle 1:1'
texte 126 -181 5 'Cotes en mm'
texte 221 -181 5 'Folio 1 / 1'
texte -206 -124 5 '4 trous M24 : le'
texte -206 -136 5 'groupe TROU, à'
texte -206 -148 5 '45°, 135°, 225°'
texte -206 -160 5 'et 315°'
texte -112 -152 5 'Tolérances générales ISO 2768-mK'
texte -112 -164 5 'Rugosité générale Ra 3,2'
texte -112 -176 5 'Casser les angles vifs'

xdotool key Escape key g  # The grid hidden.
xdotool key ctrl+s
valide "enregistrer" "$dessin"
photo 4-feuille
quitte

[ -s "$dessin" ] || { echo "The drawing was not saved." >&2; exit 1; }
demarre "$dessin"
xdotool mousemove 760 470
photo 5-rouverte
quitte
echo "The drawing and the pictures of the window:"
ls "$dessin" "$bureau"/*.png
