#!/usr/bin/env bash
# run.sh [DRAWING]: installs what is missing, builds, and starts the program on the drawing, or on an
# example. Without a display it plays a short demonstration on a virtual one.
set -euo pipefail
dessin=$(realpath -m "${1:-$(dirname "$0")/examples/bride.vek}")
cd "$(dirname "$0")"
. scripts/paquets.sh

# shellcheck disable=SC2086
installe $PAQUETS_CONSTRUCTION $PAQUETS_MARCHE
construit build -DKRVEK_TESTS=OFF -DCMAKE_BUILD_TYPE=Release

if [ -n "${DISPLAY:-}" ]; then
    exec build/krvek "$dessin"
fi
echo "There is no display here: playing the demonstration on a virtual one."
# shellcheck disable=SC2086
installe $PAQUETS_DEMO
exec scripts/demo.sh
