#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test: once as the program is built for use, once
# under the address and undefined behaviour sanitizers.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/paquets.sh

# shellcheck disable=SC2086
installe $PAQUETS_CONSTRUCTION $PAQUETS_MARCHE $PAQUETS_ESSAIS $PAQUETS_DEMO

construit build -DKRVEK_TESTS=ON -DCMAKE_BUILD_TYPE=Release
construit build-sanitize -DKRVEK_SANITIZE=ON -DCMAKE_BUILD_TYPE=RelWithDebInfo

ouvre_ecran 1280x1024
# Slices would hide errors from the sanitizer; leaks inside the toolkit and its fonts are not ours.
export G_SLICE=always-malloc
export ASAN_OPTIONS=detect_leaks=1:malloc_context_size=8
export LSAN_OPTIONS=suppressions=$PWD/tests/fuites.supp:print_suppressions=0
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
export NO_AT_BRIDGE=1

for dossier in build build-sanitize; do
    echo "== Tests of $dossier"
    ctest --test-dir "$dossier" --output-on-failure
done
