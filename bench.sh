#!/usr/bin/env bash
# bench.sh [--peer] [OPTION...]: builds and runs the measures on a virtual display; options go to
# Google Benchmark. With --peer the same drawing is also given to librecad, where it is installed.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/paquets.sh
pair=
if [ "${1:-}" = --peer ]; then
    pair=oui
    shift
fi

# shellcheck disable=SC2086
installe $PAQUETS_CONSTRUCTION $PAQUETS_MARCHE $PAQUETS_MESURES xdotool
construit build-bench -DKRVEK_TESTS=OFF -DKRVEK_BENCH=ON -DCMAKE_BUILD_TYPE=Release
ouvre_ecran 1280x1024
export NO_AT_BRIDGE=1

build-bench/bench/mesures "$@"
scripts/depart.sh build-bench/krvek
[ -z "$pair" ] || scripts/pair.sh
