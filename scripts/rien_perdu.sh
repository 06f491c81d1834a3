#!/usr/bin/env bash
# scripts/rien_perdu.sh [TIMES [DESKS]]: kills the program that many times (200) at random moments while
# points are drawn and saved with real mouse and key events, on as many virtual desks at once (6), and
# finds each time the file whole, and in file and net together all that was drawn more than ten seconds
# before, or all but two in a hundred. The program has to be built: ./run.sh does it.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/paquets.sh
. scripts/gestes.sh

fois=${1:-200} bureaux=${2:-6}

# contenu FICHIER: how many points the drawing holds; fails where it is not whole.
contenu() {
    awk 'NR == 1 && $0 != "VERSION3.3" { exit }
        NR == 2 { n = $1 - 1 }
        NR == 3 + 5 * n && $0 != "10000" { exit }
        NR == 4 + 5 * n { entier = $0 == "-1" }
        END { print entier ? n : "cut"; exit !entier }' "$1"
}

# dessine: draws and saves until the program is gone; notes in $journal when how many points stood.
dessine() {
    local nombre=0 suite rang
    while kill -0 "$programme" 2> /dev/null; do
        suite=()
        for rang in 1 2 3 4 5; do
            suite+=(mousemove $((60 + (nombre + rang) * 7 % 1100)) $((120 + (nombre + rang) * 13 % 700)) click 1)
        done
        xdotool "${suite[@]}" 2> /dev/null || return 0
        nombre=$((nombre + 5))
        echo "$(date +%s%N) $nombre" >> "$journal"
        [ $((RANDOM % 40)) -ne 0 ] || xdotool key ctrl+s 2> /dev/null || return 0
        sleep 0.05
    done
}

# verifie MORT: what is left, after a death at that instant in nanoseconds.
verifie() {
    local sur=0 reste=0 copie dits faits
    if [ -e "$dessin" ]; then
        sur=$(contenu "$dessin") || { echo "The file is not whole."; return 1; }
    fi
    for copie in "$bureau"/home/krvek/recuperation/encours-*.vek; do
        [ -e "$copie" ] || continue
        reste=$(contenu "$copie") || { echo "The copy is not whole."; return 1; }
    done
    [ "$reste" -gt "$sur" ] || reste=$sur
    # The program may be half a second behind the hand.
    faits=$(awk -v mort="$1" '$1 < mort - 10.5e9 { n = $2 } END { print n + 0 }' "$journal")
    dits=$(awk '{ n = $2 } END { print n + 0 }' "$journal")
    echo "$dits drawn, $sur in the file, $reste kept"
    [ "$reste" -ge "$faits" ] || [ $((100 * reste)) -ge $((98 * dits)) ]
}

# tue_au_hasard FOIS: on a desk of its own.
tue_au_hasard() {
    local essai mort attente
    dessin=$bureau/dessin.vek journal=$bureau/journal
    for essai in $(seq "$1"); do
        rm -rf "$dessin" "$journal" "$bureau/home/krvek"
        touch "$journal"
        demarre "$dessin"
        commande Point
        attente=$((RANDOM % 22)).$((RANDOM % 10))
        { sleep "$attente"; kill -9 "$programme"; date +%s%N > "$bureau/mort"; } &
        dessine
        wait "$!" "$programme" 2> /dev/null || true
        mort=$(cat "$bureau/mort")
        verifie "$mort" || { echo "LOST on $bureau, try $essai, after $attente s"; return 1; }
    done
}

[ -x "$KRVEK" ] || { echo "The program is not built: ./run.sh does it." >&2; exit 1; }
# shellcheck disable=SC2086
installe $PAQUETS_DEMO
resultats=$PWD/build/rien_perdu
rm -rf "$resultats"
mkdir -p "$resultats"
for rang in $(seq "$bureaux"); do
    (
        ouvre_bureau "$resultats/$rang"
        tue_au_hasard $(((fois + rang - 1) / bureaux))
    ) > "$resultats/$rang.txt" 2>&1 &
done
wait
cat "$resultats"/*.txt | grep ' drawn, ' > "$resultats/tout.txt" || true
essais=$(wc -l < "$resultats/tout.txt")
echo "$essais deaths of $fois; the longest drawings:"
sort -n "$resultats/tout.txt" | tail -n 5
if grep -h LOST "$resultats"/*.txt || [ "$essais" -lt "$fois" ]; then
    exit 1
fi
echo "Nothing was lost."
