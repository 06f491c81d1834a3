#!/usr/bin/env bash
# scripts/bride_clavier.sh: draws the nine circles of a flange by keys alone, counts the keys, and
# compares what is saved with the exact numbers. Leaves the drawing and a picture under
# build/bride_clavier/. The program has to be built: ./run.sh does it.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/paquets.sh
. scripts/gestes.sh

touches=0

# frappe TEXTE: types it, key by key.
frappe() {
    touches=$((touches + ${#1}))
    xdotool type --delay 25 -- "$1"
}

# touche NOM
touche() {
    touches=$((touches + 1))
    xdotool key "$1"
    sleep 0.15
}

# ligne TEXTE: a line and Return.
ligne() {
    frappe "$1"
    touche Return
}

# appelle MOT: a command by its word.
appelle() {
    touche F2
    ligne "$1"
}

[ -x "$KRVEK" ] || { echo "The program is not built: ./run.sh does it." >&2; exit 1; }
# shellcheck disable=SC2086
installe $PAQUETS_DEMO
dossier=$PWD/build/bride_clavier
ouvre_bureau "$dossier"
demarre
va 900 300

# The reference point is the origin at first: at a length of 0 from it is the centre.
appelle ce
ligne 0
ligne 60
ligne '0;0'
ligne 25
ligne '0;0'
ligne 47.5
appelle cercler
attend "Rayon"
ligne 5.5
revient
for angle in 0 60 120 180 240 300; do ligne "47.5<$angle"; done

photo bride
xdotool key Escape ctrl+s
valide "enregistrer" "$dossier/bride.vek"
quitte

# Centres and radii of the circles as they stand in the file, the newest first.
seen=$(awk '/^4 /{ c = NR } c && NR == c + 4 { p = $1 " " $2 } c && NR == c + 5 { print p, $1 }' "$dossier/bride.vek")
expected="23.75 -41.1362 5.5
-23.75 -41.1362 5.5
-47.5 0 5.5
-23.75 41.1362 5.5
23.75 41.1362 5.5
47.5 0 5.5
0 0 47.5
0 0 25
0 0 60"
[ "$seen" = "$expected" ] || { printf 'Not the flange:\n%s\n' "$seen" >&2; exit 1; }
echo "Nine circles, all exact, in $touches keys."
[ "$touches" -le 90 ]
