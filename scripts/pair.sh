#!/usr/bin/env bash
# Gives the drawing of the measures to librecad, where it is installed, as a DXF file of the same
# elements, and prints how long it takes to start and to open it.
set -euo pipefail
cd "$(dirname "$0")/.."
command -v librecad > /dev/null || { echo "librecad is not installed here."; exit 0; }
temporaire=$(mktemp -d)
trap 'rm -rf "$temporaire"' EXIT
export HOME=$temporaire QT_QPA_PLATFORM=xcb
mkdir -p "$temporaire/.config/LibreCAD"
printf '[Startup]\nFirstLoad=false\n' > "$temporaire/.config/LibreCAD/LibreCAD.conf"

awk 'BEGIN {
    srand(20121010)
    print "0\nSECTION\n2\nENTITIES"
    for (i = 0; i < 100000; ++i) {
        x = rand() * 10000 - 5000; y = rand() * 10000 - 5000
        dx = rand() * 120 - 60; dy = rand() * 120 - 60; r = sqrt(dx * dx + dy * dy)
        if (i % 3 == 0)
            printf "0\nLINE\n8\n0\n10\n%g\n20\n%g\n11\n%g\n21\n%g\n", x, y, x + dx, y + dy
        else if (i % 3 == 1)
            printf "0\nCIRCLE\n8\n0\n10\n%g\n20\n%g\n40\n%g\n", x, y, r
        else
            printf "0\nARC\n8\n0\n10\n%g\n20\n%g\n40\n%g\n50\n%g\n51\n%g\n", x, y, r,
                rand() * 360, rand() * 360
    }
    print "0\nENDSEC\n0\nEOF"
}' > "$temporaire/mesure.dxf"

# occupation PROCESSUS: processor time used so far, in hundredths of a second.
occupation() {
    awk '{ print $14 + $15 }' "/proc/$1/stat" 2> /dev/null || echo 0
}

# The file is open when the program has come to rest.
mesure() {
    local debut avant apres programme
    debut=$(date +%s%N)
    librecad "$@" > /dev/null 2>&1 &
    programme=$!
    until xdotool search --onlyvisible --pid "$programme" > /dev/null 2>&1; do sleep 0.01; done
    avant=-1
    apres=$(occupation "$programme")
    while [ $((apres - avant)) -gt 1 ]; do
        sleep 0.2
        avant=$apres
        apres=$(occupation "$programme")
    done
    echo $((($(date +%s%N) - debut) / 1000000 - 200))
    kill "$programme"
    wait "$programme" 2> /dev/null || true
}

vide=$(mesure)
plein=$(mesure "$temporaire/mesure.dxf")
echo "librecad: at rest after $vide ms empty, after $plein ms with 100,000 entities"
