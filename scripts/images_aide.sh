#!/usr/bin/env bash
# scripts/images_aide.sh [NAME...]: makes the pictures of the help page, data/aide/*.png, or those named
# alone. The program is played on a virtual display with real mouse and key events. Run it again after
# the program's look or its tools have changed, and look at what it made.
#
# Each picture begins with a small drawing that is written here: in grey what is given to the tools, and
# on a layer of its own the words, and in green the clicks with their rank. The tools are used while that
# layer is hidden, so that no click falls on a mark; what they make is blue.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/paquets.sh
. scripts/gestes.sh

gris='#808080' noir='#202020' blanc='#ffffff' vert='#0a8a3a' bleu='#1f5fc0'
acier='#8fa3b8' laiton='#d9b23c' bronze='#b8763a' rouge='#c03028'
donne=0 dit=1  # The layers of what is given and of what is said.

# element TYPE EPAISSEUR LIGNE COULEUR CALQUE X Y SUITE: adds a record to the drawing, with what follows
# the common fields. The words and the marks come behind what is given: they lie over it.
element() {
    local enregistrement="$1 $2 $3
$4
#ffffff
 0 1 0 0.785398 10 0  $5
$6 $7 0
$8
"
    nombre=$((nombre + 1))
    if [ "$5" = $donne ]; then
        donnes+=$enregistrement
    else
        dits+=$enregistrement
    fi
}

# What is given: segment X Y X Y, trait_axe X Y X Y, cercle X Y RAYON, arc X Y RAYON DEBUT OUVERTURE in
# radians.
segment() { element 1 2 0 "$gris" $donne 0 0 "$1 $2 0 $3 $4 0"; }
trait_axe() { element 1 1 2 "$gris" $donne 0 0 "$1 $2 0 $3 $4 0"; }
arc() { element 4 2 0 "$gris" $donne "$1" "$2" "$3 $4 $5"; }
cercle() { arc "$1" "$2" "$3" 0 6.28319; }

# profil X Y X Y...: a profile, by its centre and its corners.
profil() {
    local x=$1 y=$2 sommets=
    shift 2
    local rang=$(($# / 2))
    while [ $# -gt 0 ]; do
        sommets+="$(($1 - x)) $(($2 - y)) 0 "
        shift 2
    done
    element 5 2 0 "$gris" $donne "$x" "$y" "1
$rang
$sommets"
}

# disque X Y RAYON COULEUR: a spot among the marks.
disque() { element 13 1 0 "$4" $dit "$1" "$2" "$3 0 6.28319"; }

# ecrit COULEUR X Y TEXTE TAILLE CENTRE
ecrit() {
    element 6 1 0 "$1" $dit "$2" "$3" "$4
0 $5 $6
Arial"
}

# mots X Y TEXTE [TAILLE]: words about a point, whose dot is hidden.
mots() {
    ecrit "$noir" "$1" "$2" "$3" "${4:-5.5}" 1
    disque "$1" "$2" 1 "$blanc"
}

# marque COTE X Y RANG: a click, with its rank on the right, d, on the left, g, or below, bd and bg.
marque() {
    case $1 in
        d) ecrit "$vert" "$2" "$3" $'\u00a0\u00a0'"$4" 5.5 0 ;;
        g) ecrit "$vert" "$2" "$3" "$4"$'\u00a0\u00a0\u00a0\u00a0\u00a0\u00a0' 5.5 1 ;;
        bd) marque_sous $(($2 + 6)) $(($3 - 9)) "$4" ;;
        bg) marque_sous $(($2 - 5)) $(($3 - 9)) "$4" ;;
    esac
    disque "$2" "$3" 2 "$vert"
}

marque_sous() {
    ecrit "$vert" "$1" "$2" "$3" 5.5 1
    disque "$1" "$2" 1 "$blanc"
}

# clics [COTE] X Y...: marks the clicks of a tool, in their order.
clics() {
    local rang=0 cote
    while [ $# -gt 0 ]; do
        cote=d
        case $1 in [dgb]*) cote=$1; shift ;; esac
        rang=$((rang + 1))
        marque "$cote" "$1" "$2" $rang
        shift 2
    done
}

# commence NOM: a new picture.
commence() {
    nom=$1 nombre=0 donnes='' dits=''
}

# ouvre: opens the drawing, the words and the clicks hidden.
ouvre() {
    printf 'VERSION3.3\n%d\n%s' "$nombre" "$donnes$dits" > "$bureau/$nom.vek"
    demarre "$bureau/$nom.vek"
    affiche $donne
}

# affiche CALQUE: shows that layer alone; -1 all of them.
affiche() {
    commande CalquesAfficher
    valide "calque" "$1"
}

# vise X Y: brings the mouse there without a click, for the line that follows it.
vise() {
    va "$(en_x "$1")" "$(en_y "$2")"
    sleep 0.2
}

# sol: takes the picture of the drawing about its origin.
sol() {
    photo "$nom"
    convert "$bureau/$nom.png" -crop "640x420+$((ox - 320))+$((oy - 210))" +repage "$bureau/$nom.png"
}

# garde: puts the picture in its place without its empty edges, light enough for a page.
garde() {
    convert "$bureau/$nom.png" -bordercolor white -border 1 -trim +repage -border 12 \
        -dither None -colors 128 -strip "PNG8:data/aide/$nom.png"
}

# ferme: leaves the program, and under the build folder the drawing as it became.
ferme() {
    xdotool key Escape ctrl+s
    quitte
}

# hachures: the hatch of the next elements, put or taken away.
hachures() {
    commande Trait
    attend "Style du trait courant"
    appuie Tab 6
    xdotool key space Return
    revient
}

image_formes() {
    mots -115 12 Segment
    clics g -140 30 -92 60
    mots -38 12 Cercle
    clics -38 48 -14 48
    mots 38 12 Disque
    clics 38 48 62 48
    mots 115 12 Point
    clics 115 46
    mots -105 -42 'Texte'
    marque g -138 -26 1
    mots 5 -42 'Texte, angle 20'
    marque g -22 -30 1
    mots 105 -42 'Texte, taille 14'
    marque g 68 -28 1
    mots 0 -78 'Droite'
    clics -90 -68 80 -54
    ouvre
    commande Segment; pts -140 30 -92 60
    commande Cercle; pts -38 48 -14 48
    commande Disque; pts 38 48 62 48
    commande Point; pts 115 46
    commande Droite; pts -90 -68 80 -54
    commande Texte; remplit "Texte :" 'Acier à 45° Ø12' 0 7; pts -138 -26
    commande Texte; remplit "Texte :" 'Pièce n° 2' 20 7; pts -22 -30
    commande Texte; remplit "Texte :" 'Échelle' 0 14; pts 68 -28
    affiche -1
    sol
    ferme
}

image_segments() {
    mots -100 8 'Segment C E'
    clics bd -100 42 -72 60
    mots 0 8 'Segment A E'
    cercle -20 42 18
    clics g -33 55 38 65
    mots 100 8 'Segment A E Anti'
    cercle 80 42 18
    clics g 67 55 138 65
    mots -100 -84 'Segment tgt 2 Arcs'
    cercle -125 -46 20
    cercle -75 -44 13
    clics g -141 -34 -68 -33 -98 -24
    mots 0 -84 'Segment //'
    segment -35 -65 25 -35
    clics -14 -52
    mots 100 -84 'Segment Ortho'
    segment 65 -68 135 -68
    clics 85 -68 105 -38
    ouvre
    commande SegmentCE; pts -100 42 -72 60
    commande SegmentAE; pts -33 55 38 65
    commande SegmentAEAnti; pts 67 55 138 65
    commande SegmentParaDist; pts -14 -52; valide "istance" 15
    commande SegmentOrtho; pts 85 -68 105 -38
    commande SegmentAA; pts -141 -34 -68 -33  # Seen before the third click
    affiche -1
    vise -98 -24
    sol
    ferme
}

image_arcs() {
    mots -100 8 'Arc C D F'
    clics -100 42 -74 36 g -118 62
    mots 0 8 'Arc D F C'
    clics 28 38 g -28 38 0 22
    mots 100 8 'Arc Tgt Element C'
    segment 67 24 132 44
    clics 119 40 95 54
    mots -100 -84 'Arc Tgt 2 Elements'
    segment -140 -66 -60 -66
    cercle -122 -38 14
    clics -68 -66 -127 -25 -92 -48
    mots 0 -84 'Arc Rayon Tgt 2 Elements'
    segment -25 -68 35 -68
    segment -25 -68 -25 -20
    clics 22 -68 -25 -32 -12 -56
    mots 100 -84 'Cercle Rayon'
    marque d 80 -48 1
    marque d 112 -48 1
    ouvre
    commande ArcCDF; pts -100 42 -74 36 -118 62
    commande ArcDFC; pts 28 38 -28 38 0 22
    commande ArcTE; pts 119 40 95 54
    commande ArcRayon; valide "Rayon" 20; pts 22 -68 -25 -32 -12 -56
    commande CercleRayon; valide "Rayon" 14; pts 80 -48 112 -48
    commande ArcTT; pts -68 -66 -127 -25
    affiche -1
    vise -92 -48
    sol
    ferme
}

image_profils() {
    mots -115 -10 'Rectangle'
    clics g -142 60 -92 15
    mots -39 -10 'Profil hachuré'
    clics -39 36 g -63 12 -15 12 -15 45 -39 68
    mots 39 -10 'Profil en cours'
    clics 39 36 g 15 12 63 12 63 45
    mots 117 -10 'Profil sur éléments'
    segment 93 15 141 15
    segment 141 15 141 50
    arc 117 50 24 0 3.14159
    segment 93 50 93 15
    clics 117 38 g 93 15 bd 117 15 141 32 117 74
    ouvre
    commande Rectangle; pts -142 60 -92 15
    hachures
    commande Profil; pts -39 36 -63 12 -15 12 -15 45 -39 68
    xdotool key End
    commande ProfilElt; pts 117 38 93 15 117 15 141 32 117 74
    xdotool key End
    hachures
    commande Profil; pts 39 36 15 12 63 12 63 45
    affiche -1
    vise 39 68
    sol
    ferme
}

image_cotes() {
    local x
    for x in -118 -40 38; do
        segment $((x - 25)) 15 $((x + 25)) 45
    done
    mots -118 -10 'Cote'
    clics bd -143 15 -93 45 bd -130 50
    mots -40 -10 'Horizontale'
    clics g -65 15 -15 45 bd -40 62
    mots 38 -10 'Verticale'
    clics g 13 15 63 45 76 30
    mots 122 -10 'Angle'
    segment 98 15 154 15
    segment 98 15 134 63
    marque bg 98 15 '1, 2'
    marque bd 148 15 3
    marque g 128 55 4
    ouvre
    commande Cote; pts -143 15 -93 45 -130 50
    commande CoteHori; pts -65 15 -15 45 -40 62
    commande CoteVert; pts 13 15 63 45 76 30
    commande CoteAng; pts 98 15 98 15 148 15 128 55
    affiche -1
    sol
    ferme
}

image_cotes_rondes() {
    local x
    for x in -115 -38 38 115; do
        cercle $x 38 25
    done
    mots -115 -10 'Diamètre'
    clics bg -135 23 -95 53 bg -120 72
    mots -38 -10 'Diamètre Arc'
    clics -18 53 bg -58 68
    mots 38 -10 'Rayon'
    clics g 18 53 bd 38 38 bd 68 72
    mots 115 -10 'Rayon Arc'
    clics 135 23 bg 90 71
    ouvre
    commande CoteDia; pts -135 23 -95 53 -120 72
    commande CoteDiaArc; pts -18 53 -58 68
    commande CoteRayon; pts 18 53 38 38 68 72
    commande CoteRayonArc; pts 135 23 90 71
    affiche -1
    sol
    ferme
}

# drapeau X Y: a figure that shows which way it is turned.
drapeau() {
    local x=$1 y=$2
    segment "$x" "$y" "$x" $((y + 30))
    segment "$x" $((y + 30)) $((x + 26)) $((y + 22))
    segment $((x + 26)) $((y + 22)) "$x" $((y + 14))
    cercle $((x + 8)) $((y + 22)) 3
}

image_edition() {
    mots -117 10 'Sélection'
    drapeau -130 32
    clics g -138 68 -98 26
    mots -39 10 'Coller Vek'
    clics g -58 68
    mots 39 10 'Symétrie X'
    clics g 20 30
    mots 117 10 'Angle de rotation 30'
    clics g 92 58
    mots -117 -68 'Change Trait'
    mots -39 -68 'Coller Comme BDD'
    clics g -62 -12
    mots 39 -68 'Image de BDD'
    clics g 12 -12
    marque g 52 -34 1
    mots 117 -68 'Modifier'
    segment 92 -50 128 -50
    clics bg 100 -50 bd 128 -50 140 -18
    ouvre
    commande ZoneSelection; pts -138 68 -98 26
    commande CopierVek
    commande CollerVek; pts -58 68
    xdotool key x; sleep 0.3; pts 20 30
    xdotool key x; sleep 0.3
    commande CollerRotation; valide "angle" 30; pts 92 58
    commande CollerRotation; valide "angle" 0
    commande CollerVek; pts -138 -12
    commande CollerVekCommeBDD; pts -62 -12; valide "Identificateur" FANION
    commande Image; valide "Identificateur de la BDD" FANION; pts 12 -12 52 -34
    sur 52 -34 Prop; remplit "Image de bdd" - - - - 30 0.6
    commande ZoneSelection; pts -138 -12 -98 -54
    commande ZoneTrait
    commande AnnuleSelection
    commande ZoneSelection; pts -138 68 -98 26
    commande Select; pts 100 -50 128 -50
    affiche -1
    vise 140 -18
    sol
    ferme
}

# part RANG X: a part of a picture, about that abscissa.
part() {
    photo "$nom-$1"
    convert "$bureau/$nom-$1.png" -crop "150x170+$(($(en_x "$2") - 75))+$(($(en_y 20) - 85))" +repage \
        "$bureau/$nom-$1.png"
}

# Four parts, of which each is seen with the mouse at its own point.
image_accroche() {
    mots -112 -22 'Grille'
    clics g -131 3 -96 42
    mots -37 -22 'des éléments'
    segment -60 0 -25 0
    cercle -37 34 16
    marque bg -60 0 1
    mots 37 -22 'Intersection'
    segment 10 2 64 40
    cercle 37 34 16
    marque d 12 46 1
    mots 112 -22 'Possible'
    segment 85 0 97 18
    segment 128 48 145 48
    marque d 136 4 1
    ouvre
    xdotool key g
    commande Segment; pts -131 3 -96 42
    xdotool key Escape
    affiche -1
    part 1 -112
    affiche 0
    xdotool key g
    commande PointParticulier
    commande Segment; pts -60 0
    affiche -1; vise -36 33; part 2 -37
    xdotool key Escape
    affiche 0; commande Segment; pts 12 46
    affiche -1; vise 56 36; part 3 37
    xdotool key Escape
    affiche 0; commande Segment; pts 136 4
    affiche -1; vise 116 46; part 4 112
    commande PointParticulier
    ferme
    convert "$bureau/$nom"-[1-4].png +append "$bureau/$nom.png"
}

# plan: takes the picture of the sheet, left of what the 3D window will show.
plan() {
    xdotool key Escape
    affiche -1
    photo "$nom-plan"
    convert "$bureau/$nom-plan.png" -crop "300x380+$((ox - 150))+$((oy - 190))" +repage -bordercolor white \
        -border 1 -trim +repage "$bureau/$nom-plan.png"
}

# vide NOM: takes a command of the menu of the 3D window, where nothing is.
vide() {
    clic 30 50
    entre vue "$1"
}

# espace: shows the drawing in the 3D window, from the front.
espace() {
    commande Vue3D
    attend "Vue 3D"
    xdotool key f
}

# souleve X Y: raises the point of a surface that is there, in the front view.
souleve() {
    local x=$((301 + 12 * $1 / 5)) y=$((320 - 12 * $2 / 5))
    xdotool key z  # The ball on the sheet
    clic "$x" "$y"
    entre element Deforme
    clic "$x" "$y"
    xdotool click --repeat 4 --delay 40 5
    va "$x" "$y"
    xdotool click 1
    sleep 0.2
}

# incline: the view from above and before, without the white points, lit from the left too.
incline() {
    appuie ctrl+Page_Down 9
    appuie ctrl+Up 21
    appuie ctrl+shift+Down 15
    vide VisuCentre
    vide Lum1
    va 150 150
    xdotool click --repeat 40 --delay 10 5
    clic 150 151
    xdotool key z
    xdotool mousemove 595 560 mousemove 598 612  # With the ball.
}

# paire HAUT: the picture of the sheet beside that of the 3D window, of that height.
paire() {
    photo "$nom-espace"
    convert "$bureau/$nom-espace.png" -crop "330x$1+136+$((320 - $1 / 2))" +repage "$bureau/$nom-espace.png"
    convert "$bureau/$nom-plan.png" -bordercolor white -border 12x0 "$bureau/$nom-espace.png" \
        -gravity center -background white +append "$bureau/$nom.png"
    xdotool key End  # Hides the window.
    revient
}

image_corps() {
    mots -40 8 'Pavé'
    clics g -65 50 -20 20
    mots 40 8 'Sphère'
    clics 40 40 62 40
    mots -40 -72 'Cylindre'
    clics -40 -40 -18 -40
    mots 40 -72 'Cylindre, R Sup 0'
    clics 40 -40 62 -40
    ouvre
    couleur "$acier"
    commande Pave; pts -65 50 -20 20; fiche -42 50 "$pave" h=25
    couleur "$laiton"
    commande Sphere; pts 40 40 62 40
    couleur "$bronze"
    commande Cylindre; pts -40 -40 -18 -40; fiche -18 -40 "$rond" h=30
    couleur "$rouge"
    commande Cylindre; pts 40 -40 62 -40; fiche 62 -40 "$rond" Rsup=0 h=40
    plan
    espace
    incline
    paire 300
    ferme
}

image_profils_espace() {
    mots -40 2 'Profil Elevation'
    clics -57 36 g -65 15 -15 15 -15 28 -48 28 -48 58 g -65 58
    mots 40 2 'Profil Tourne'
    trait_axe 28 8 28 66
    clics g 28 35 g 28 15 52 15 36 28 36 40 46 58 g 28 58
    mots -40 -78 'Elevation sur éléments' 5
    segment -60 -60 -25 -60
    arc -25 -44 16 -1.5708 3.14159
    segment -60 -28 -25 -28
    clics -44 -44 g -60 -60 -40 -60 -9 -44 -40 -28
    mots 40 -78 'Tourne sur éléments' 5
    trait_axe 28 -70 28 -22
    segment 28 -59 42 -59
    arc 42 -47 12 -1.5708 3.14159
    segment 28 -35 42 -35
    clics g 28 -47 g 28 -59 bd 36 -59 54 -47 36 -35
    ouvre
    couleur "$acier"
    commande ProfilElevation; pts -57 36 -65 15 -15 15 -15 28 -48 28 -48 58 -65 58
    xdotool key End; fiche -15 15 "$profil" h=20
    couleur "$laiton"
    commande ProfilTourne; pts 28 35 28 15 52 15 36 28 36 40 46 58 28 58
    xdotool key End
    couleur "$bronze"
    commande ProfilEltElevation; pts -44 -44 -60 -60 -40 -60 -9 -44 -40 -28
    xdotool key End; fiche -44 -44 "$profil" h=20
    couleur "$rouge"
    commande ProfilEltTourne; pts 28 -47 28 -59 36 -59 54 -47 36 -35
    xdotool key End
    plan
    espace
    incline
    paire 300
    ferme
}

image_tubes() {
    mots -40 2 'Jonc'
    profil -40 35 -65 15 -65 55 -20 55 -20 15
    marque bd -42 35 1
    marque d -20 55 2
    mots 40 2 'Boa, le chemin'
    profil 44 34 14 20 28 46 56 46 66 20
    marque bd 46 34 1
    marque g 14 20 2
    mots -40 -78 'Profil Surface'
    clics g -68 -22 -12 -66
    mots 40 -78 "l'enveloppe"
    profil 40 -60 14 -56 30 -48 55 -40 66 -56
    marque g 14 -56 3
    ouvre
    couleur "$acier"
    commande Jonc; valide "Rayon" 5; pts -42 35 -20 55
    couleur "$laiton"
    commande Boa; pts 46 34 14 20 14 -56
    couleur "$bronze"
    commande ProfilSurface; pts -68 -22 -12 -66
    plan
    affiche $donne
    espace
    for point in '-54 -55' '-54 -44' '-40 -55' '-40 -44'; do
        # shellcheck disable=SC2086
        souleve $point
    done
    incline
    paire 300
    ferme
}

image_percages() {
    mots -40 2 'Percage'
    clics g -66 28 -40 38 -27 38
    mots 40 2 'Rainure'
    clics g 12 22 g 26 54 bd 56 30
    mots -40 -78 'Rainure Profil'
    clics g -66 -55 bg -40 -42 g -56 -54 -28 -54 -40 -30
    mots 40 -78 'EnvBoule'
    clics 24 -40 40 -40 40 -19
    ouvre
    couleur "$acier"
    commande Pave; pts -66 62 -12 15; fiche -66 28 "$pave" h=20
    commande Percage; pts -66 28 -40 38 -27 38; fiche -27 38 "$rond" h=20
    couleur "$laiton"
    commande Pave; pts 12 62 68 15; fiche 12 22 "$pave" h=20
    commande Rainure; pts 12 22 26 54 56 30; fiche 40 54 "$pave" Z=12 h=8 debouchant=
    couleur "$bronze"
    commande Pave; pts -66 -18 -12 -62; fiche -66 -55 "$pave" h=20
    commande RainureP; pts -66 -55 -40 -42 -56 -54 -28 -54 -40 -30
    xdotool key End; fiche -40 -30 "$profil" h=20
    couleur "$rouge"
    commande Pave; pts 24 -24 56 -56; fiche 24 -52 "$pave" h=32
    commande Percage; pts 24 -52 40 -40 46 -40; fiche 46 -40 "$rond" h=32
    commande EnvBoule; pts 24 -52 40 -40 40 -19; fiche 40 -19 Rayon Z=16
    plan
    espace
    incline
    paire 300
    ferme
}

# part_espace RANG: a part of a picture, out of the 3D window.
part_espace() {
    photo "$nom-$1"
    convert "$bureau/$nom-$1.png" -crop 205x334+196+186 +repage "$bureau/$nom-$1.png"
}

# The menu of an element, the cage that follows the ball, the menu of the view.
image_fenetre3d() {
    ouvre
    couleur "$acier"
    commande Pave; pts -40 40 30 -10; fiche -40 10 "$pave" h=25
    couleur "$bronze"
    commande Cylindre; pts 60 -40 80 -40; fiche 80 -40 "$rond" h=30
    espace
    incline
    # To a corner of the box: each time the key brings the ball nearer to the sheet under the mouse,
    # where it comes back with the next move.
    local essai
    # shellcheck disable=SC2034
    for essai in $(seq 12); do
        xdotool key z
        va 219 339
    done
    clic 219 339
    sleep 0.3
    part_espace 1
    entre element Deplace
    va 232 400
    part_espace 2
    xdotool key Escape
    clic 206 196  # Where nothing is
    part_espace 3
    xdotool key Escape
    sleep 0.3
    xdotool key End
    revient
    ferme
    convert "$bureau/$nom"-[1-3].png -background white -splice 8x0 +append "$bureau/$nom.png"
}

# A drawing that an earlier run left behind when it was killed.
image_recuperation() {
    local laisse=$bureau/home/krvek
    rm -rf "$laisse"
    mkdir -p /tmp/atelier  # It shows in the picture.
    cp examples/bride_cotee.vek /tmp/atelier/bride.vek
    demarre /tmp/atelier/bride.vek
    commande Cercle
    clic 640 480
    clic 640 420
    kill -9 "$programme"
    wait "$programme" 2> /dev/null || true
    "$KRVEK" &
    programme=$!
    attend "cup"
    sleep 1
    import -window "$(trouve "cup")" -strip "$bureau/$nom.png"
    xdotool key Escape
    fenetre=$(essaie trouve "KR VEK 1")
    revient
    quitte
    rm -rf "$laisse" /tmp/atelier
}

# A save into a folder that is gone.
image_bandeau() {
    mkdir -p "$bureau/parti"
    cp examples/bride_cotee.vek "$bureau/parti/bride.vek"
    demarre "$bureau/parti/bride.vek"
    commande Cercle
    clic 640 480
    clic 640 420
    rm -rf "$bureau/parti"
    xdotool key ctrl+s
    photo "$nom"
    convert "$bureau/$nom.png" -crop 1280x320+0+60 +repage -resize 760x "$bureau/$nom.png"
    kill -9 "$programme"
    wait "$programme" 2> /dev/null || true
    rm -rf "$bureau/home/krvek"
}

# A plate whose second hole is being typed, with the mark at the point that was given last.
image_saisie() {
    demarre
    commande Rectangle
    pts -50 30 50 -30
    commande CercleRayon
    valide "Rayon" 5.5
    va "$(en_x 90)" "$(en_y 20)"
    xdotool type --delay 30 -- "-40;20"
    xdotool key Return
    sleep 0.2
    xdotool type --delay 30 -- "@160/2;0"
    photo "$nom"
    convert "$bureau/$nom.png" -crop 1280x520+0+380 +repage -resize 760x "$bureau/$nom.png"
    xdotool key Escape
    kill -9 "$programme"
    wait "$programme" 2> /dev/null || true
    rm -rf "$bureau/home/krvek"
}

images="recuperation bandeau saisie formes segments arcs profils cotes cotes_rondes edition accroche
    corps profils_espace tubes percages fenetre3d"
for image in "$@"; do
    [[ " ${images//$'\n'/ } " == *" $image "* ]] || { echo "No such picture: $image" >&2; exit 1; }
done
[ -x "$KRVEK" ] || { echo "The program is not built: ./run.sh does it." >&2; exit 1; }
# shellcheck disable=SC2086
installe $PAQUETS_DEMO
ouvre_bureau "$PWD/build/images_aide"
mkdir -p data/aide
demarre
cherche_origine
vue 0 0
xdotool key g  # Hides the grid.
xdotool key o  # Two pixels to the unit.
commande Trait
remplit "Style du trait courant" 2 45 8
commande PrefCote
remplit "Préférences Texte" - 5.5
couleur "$bleu"
pas_de_grille 10
quitte

# shellcheck disable=SC2048
for image in ${*:-$images}; do
    commence "$image"
    "image_$image"
    garde
done
echo "The pictures of the help page:"
wc -c data/aide/*.png
