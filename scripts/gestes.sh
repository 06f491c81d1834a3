# Sourced by the scripts that draw: a virtual desk, the program on it, and what a hand does there with
# the mouse and the keys.

KRVEK=${KRVEK:-build/krvek}

# ouvre_bureau DOSSIER: a virtual display with a window manager, and an empty home in the folder, so
# that the program starts without preferences. Pictures go to the folder.
ouvre_bureau() {
    bureau=$1
    rm -rf "$bureau"
    mkdir -p "$bureau/home"
    export HOME=$bureau/home XDG_CONFIG_HOME=$bureau/home XDG_DATA_HOME=$bureau/home NO_AT_BRIDGE=1
    export LC_ALL=C.UTF-8  # For the accents that are typed.
    unset APPDATA
    lit_places
    ouvre_ecran 1280x900
    openbox > /dev/null 2>&1 &
    sleep 0.3
    essaie a_gestionnaire
}

# A window shown while the window manager starts may stay out of sight.
a_gestionnaire() {
    xprop -root _NET_SUPPORTING_WM_CHECK 2> /dev/null | grep -q 'window id'
}

# essaie COMMANDE...: repeats the command until it succeeds, for 20 seconds at most.
essaie() {
    local essai
    for essai in $(seq 200); do
        "$@" && return
        sleep 0.1
    done
    echo "Waited in vain: $*" >&2
    return 1
}

# trouve TITRE: answers the number of the window whose title holds the text.
trouve() {
    xdotool search --onlyvisible --name "$1" 2> /dev/null | tail -n 1 | grep .
}

est_active() {
    [ "$(xdotool getactivewindow 2> /dev/null)" = "$1" ]
}

# attend TITRE: waits until the window of that title has the keys.
attend() {
    local numero
    numero=$(essaie trouve "$1") || { echo "No window: $1" >&2; return 1; }
    essaie est_active "$numero"
    sleep 0.15
}

# revient: waits until the drawing has the keys again, behind a dialog.
revient() {
    essaie est_active "$fenetre"
    sleep 0.1
}

# demarre [DESSIN]: starts the program and waits until its window stands.
demarre() {
    "$KRVEK" "$@" &
    programme=$!
    fenetre=$(essaie trouve "KR VEK 1") || { echo "The program did not start." >&2; return 1; }
    essaie xdotool windowactivate "$fenetre" 2> /dev/null
    revient
    sleep 1
}

# quitte: ends the program as a user does.
quitte() {
    xdotool key ctrl+q
    wait "$programme" || true
}

# photo NOM: takes a picture of the display.
photo() {
    sleep 0.5
    import -window root -strip "$bureau/$1.png"
}

# va X Y: moves to a point of the display by two steps, as a hand would.
va() {
    xdotool mousemove "$(($1 - 7))" "$(($2 + 5))" sleep 0.03 mousemove "$1" "$2" sleep 0.03
}

# clic X Y: clicks at a point of the display.
clic() {
    va "$1" "$2"
    xdotool click 1
    sleep 0.08
}

# appuie TOUCHE FOIS
appuie() {
    [ "$2" -eq 0 ] || xdotool key --repeat "$2" --repeat-delay 20 "$1"
    sleep 0.05
}

# The place of each command in its menu, as the program's tables tell it: barre, zone, element, vue.
declare -A places
lit_places() {
    local menu nom rangs
    while read -r menu nom rangs; do places[$menu/$nom]=$rangs; done < <("$(dirname "$KRVEK")/commandes" places)
}

# entre_rangs RANG...: goes down an open menu; a submenu opens with its first entry chosen.
entre_rangs() {
    appuie Down $(($1 + 1))
    xdotool key Return
    sleep 0.3
    shift
    local rang
    for rang in "$@"; do
        appuie Down "$rang"
        xdotool key Return
        sleep 0.3
    done
}

# entre MENU NOM: takes the command of that name in the open menu.
entre() {
    # shellcheck disable=SC2086
    entre_rangs ${places[$1/$2]:?"no command $2"}
}

# commande NOM: takes a command of the menu bar.
commande() {
    local rangs=${places[barre/$1]:?"no command $1"}
    xdotool mousemove 1240 860  # Where no menu opens under it.
    xdotool key F10
    sleep 0.15
    appuie Right "${rangs%% *}"
    # shellcheck disable=SC2086
    entre_rangs ${rangs#* }
}

# popup X Y NOM: takes a command of the menu that the right button opens at a point of the display.
popup() {
    va "$1" "$2"
    xdotool click 3
    sleep 0.2
    entre zone "$3"
}

# tape TEXTE: types it. What no key of the keyboard bears is given by its number, after Ctrl+Shift+U.
tape() {
    local texte=$1 debut lettre
    while [ -n "$texte" ]; do
        debut=${texte%%[! -~]*}
        [ -z "$debut" ] || xdotool type --delay 15 -- "$debut"
        texte=${texte#"$debut"}
        [ -n "$texte" ] || break
        lettre=${texte:0:1}
        xdotool key --delay 20 ctrl+shift+u type --delay 20 "$(printf '%x' "'$lettre")"
        xdotool key --delay 20 space
        texte=${texte:1}
    done
}

# remplit TITRE CHAMP...: fills the fields of the dialog of that title, from the first, and validates.
# - leaves a field as it is.
remplit() {
    attend "$1"
    shift
    local champ premier=oui
    for champ in "$@"; do
        [ -n "$premier" ] || xdotool key Tab
        premier=
        [ "$champ" = - ] && continue
        xdotool key ctrl+a
        tape "$champ"
    done
    xdotool key Return
    revient
}

# valide TITRE TEXTE: types the text into the only field of the dialog.
valide() {
    remplit "$1" "$2"
}

# cherche_origine: finds where on the display the origin of the drawing is, by the mark that a grid of
# long step leaves there alone.
cherche_origine() {
    xdotool mousemove 1240 860
    xdotool key g
    appuie p 7
    sleep 0.5
    local marque
    marque=$(import -window root -depth 8 -crop 400x400+440+280 txt:- | grep -i '#000000' | head -n 1) ||
        { echo "The origin of the drawing is not to be seen." >&2; return 1; }
    # A mark of four pixels, whose second row and column the origin is.
    ox=$((440 + ${marque%%,*} + 1))
    marque=${marque#*,}
    oy=$((280 + ${marque%%:*} + 1))
}

# vue X Y: the coordinates that follow are those of the view whose centre is there, in drawing units.
vue() {
    vx=$1 vy=$2
}

# en_x X, en_y Y: where on the display a point of the view is, at two pixels to the unit: after `o`.
en_x() { echo $((ox + 2 * (vx + $1))); }
en_y() { echo $((oy - 2 * (vy + $1))); }

# pts X Y...: clicks at points of the view.
pts() {
    while [ $# -gt 0 ]; do
        clic "$(en_x "$1")" "$(en_y "$2")"
        shift 2
    done
}

# sur X Y NOM: takes a command of the menu of the element at that point.
sur() {
    popup "$(en_x "$1")" "$(en_y "$2")" "$3"
}

# fiche X Y PROPRES CHAMP=VALEUR...: changes the properties of the solid at that point, given in the
# order of the dialog. PROPRES are the fields between Z and h. A mark, as in debouchant=, turns over.
fiche() {
    sur "$1" "$2" Prop
    attend "Propri"
    local champ champs="X Y Z $3 h alpha beta gamma texture facettes
        dessus dessous pourtour repetition echelle brillance gouraud debouchant"
    shift 3
    for champ in $champs; do
        [ $# -gt 0 ] || break
        if [ "${1%%=*}" = "$champ" ]; then
            if [ -n "${1#*=}" ]; then
                xdotool key ctrl+a
                tape "${1#*=}"
            else
                xdotool key space
            fi
            shift
        fi
        xdotool key Tab
    done
    [ $# -eq 0 ] || { echo "No such field: $1" >&2; return 1; }
    xdotool key Return
    revient
}
pave="Longueur Largeur" rond="Rinf Rsup" jonc=Rinf profil=

# couleur CODE: the colour of the next elements.
couleur() {
    commande Couleur
    attend "Couleur"
    xdotool key --delay 40 alt+n ctrl+a
    tape "$1"
    xdotool key Return
    revient
}

# pas_de_grille PAS
pas_de_grille() {
    commande GrillePas
    valide "pas de la grille" "$1"
}
