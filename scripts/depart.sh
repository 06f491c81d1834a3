#!/usr/bin/env bash
# depart.sh PROGRAM [ARGUMENT...]: prints how long the program takes from its start until its window
# is on the present display, the best of five.
set -euo pipefail
meilleur=
for essai in 1 2 3 4 5; do
    debut=$(date +%s%N)
    "$@" > /dev/null 2>&1 &
    programme=$!
    until xdotool search --onlyvisible --pid "$programme" > /dev/null 2>&1; do
        sleep 0.002
    done
    duree=$((($(date +%s%N) - debut) / 1000000))
    kill "$programme" 2> /dev/null
    wait "$programme" 2> /dev/null || true
    if [ -z "$meilleur" ] || [ "$duree" -lt "$meilleur" ]; then meilleur=$duree; fi
done
echo "$(basename "$1"): window on screen after $meilleur ms"
