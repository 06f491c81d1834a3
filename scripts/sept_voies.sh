#!/usr/bin/env bash
# scripts/sept_voies.sh: with real mouse and key events, walks the seven ways in which a drawing could
# be lost, and finds the work in the file or in the net each time. Leaves pictures and files under
# build/sept_voies/. The program has to be built: ./run.sh does it.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/paquets.sh
. scripts/gestes.sh

# elements FICHIER: how many elements the drawing announces, which counts one more.
elements() {
    echo $(($(sed -n 2p "$1") - 1))
}

# garde: how many elements the fullest copy of the net holds.
garde() {
    local copie
    for copie in "$bureau"/home/krvek/recuperation/*.vek; do
        [ ! -e "$copie" ] || elements "$copie"
    done | sort -n | tail -n 1
}

# exige VU ATTENDU QUOI
exige() {
    [ "$1" = "$2" ] || { echo "LOST: $3: $1 instead of $2" >&2; exit 1; }
    echo "kept: $3"
}

# segments N: draws as many, each at a place of its own.
segments() {
    commande Segment
    local rang
    for rang in $(seq "$1"); do
        trace=$((trace + 17))
        clic 300 $((240 + trace % 400))
        clic 700 $((250 + trace % 400))
    done
}

# enregistre FICHIER: Ctrl+S of a drawing without a name.
enregistre() {
    xdotool key ctrl+s
    valide "enregistrer" "$1"
}

# autre_active: another window than the drawing's has the keys.
autre_active() {
    local numero
    numero=$(xdotool getactivewindow 2> /dev/null) && [ "$numero" != "$fenetre" ]
}

# question: waits until one is asked.
question() {
    essaie autre_active
    sleep 0.3
}

# lache: gives up whatever asks, one window after the other.
lache() {
    question
    while autre_active; do
        xdotool key Escape
        sleep 0.4
    done
}

# tue: ends the program as a power cut would.
tue() {
    kill -9 "$programme"
    wait "$programme" 2> /dev/null || true
}

# neuf DOSSIER [DESSIN]: the program, with an empty net and a folder for the files.
neuf() {
    rm -rf "$bureau/home/krvek"
    mkdir -p "$bureau/$1"
    trace=0
    demarre "${@:2}"
}

annulation_apres_enregistrement() {
    local fichier=$bureau/annulation/a.vek
    neuf annulation
    segments 3
    enregistre "$fichier"
    xdotool key Escape ctrl+z
    sleep 0.3
    xdotool key ctrl+s
    sleep 0.5
    exige "$(elements "$fichier")" 2 "an undo after a save is saved"
    xdotool key ctrl+z
    sleep 0.3
    xdotool key ctrl+q
    question
    photo annulation
    xdotool key Return
    wait "$programme"
    exige "$(elements "$fichier")" 1 "closing asks for it"
}

enregistrement_manque() {
    neuf manque
    segments 1
    enregistre "$bureau/manque/a.vek"
    rm -r "$bureau/manque"
    segments 2
    xdotool key ctrl+s
    photo manque
    exige "$(garde)" 3 "a save that fails leaves a copy"
    xdotool key ctrl+q
    lache
    commande SaveAs
    valide "enregistrer" "$bureau/ailleurs.vek"
    quitte
    exige "$(elements "$bureau/ailleurs.vek")" 3 "the drawing is saved elsewhere"
}

fichier_etranger() {
    local image=$bureau/etranger/photo.png
    mkdir -p "$bureau/etranger"
    cp "$bureau/manque.png" "$image"
    "$KRVEK" "$image" &
    programme=$!
    # The message of the version comes first.
    essaie xdotool search --onlyvisible --class krvek > /dev/null
    sleep 1
    xdotool key Return
    fenetre=$(essaie trouve "KR VEK 1")
    revient
    segments 1
    photo etranger
    xdotool key ctrl+s
    sleep 0.5
    quitte
    exige "$(cmp "$image~" "$bureau/manque.png" && echo same)" same "a foreign file keeps a copy"
    exige "$(elements "$image")" 1 "and takes the drawing"
}

commande_abandonnee() {
    neuf abandon
    segments 2
    local nom
    for nom in New Open Dxf; do
        commande $nom
        lache
    done
    commande Open
    question
    xdotool key Return
    sleep 0.7
    photo abandon
    lache
    enregistre "$bureau/abandon/a.vek"
    quitte
    exige "$(elements "$bureau/abandon/a.vek")" 2 "a command that is given up changes nothing"
}

remplace_sans_question() {
    neuf remplace
    segments 4
    # The newest recent file.
    commande RecentFiles
    xdotool key Return
    sleep 0.7
    photo remplace
    exige "$(garde)" 4 "a drawing that is replaced is in the net"
    tue
}

mort() {
    neuf mort
    segments 5
    # What is younger than ten seconds may be missing.
    sleep 11
    va 500 500
    sleep 0.5
    tue
    "$KRVEK" &
    programme=$!
    attend "cup.*ration"
    photo mort
    xdotool key Return
    fenetre=$(essaie trouve "KR VEK 1")
    revient
    enregistre "$bureau/mort/a.vek"
    quitte
    exige "$(elements "$bureau/mort/a.vek")" 5 "what was drawn before the death is back"
}

lecture_partielle() {
    local fichier=$bureau/partie/a.vek
    mkdir -p "$bureau/partie"
    head -n 12 "$bureau/mort/a.vek" > "$fichier"
    cp "$fichier" "$bureau/partie/original"
    neuf partie "$fichier"
    photo partie
    segments 1
    xdotool key ctrl+s
    sleep 0.5
    quitte
    exige "$(cmp "$fichier~" "$bureau/partie/original" && echo same)" same "what was read in part is kept whole"
}

[ -x "$KRVEK" ] || { echo "The program is not built: ./run.sh does it." >&2; exit 1; }
# shellcheck disable=SC2086
installe $PAQUETS_DEMO
ouvre_bureau "$PWD/build/sept_voies"
annulation_apres_enregistrement
enregistrement_manque
fichier_etranger
commande_abandonnee
remplace_sans_question
mort
lecture_partielle
