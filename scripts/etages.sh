#!/usr/bin/env bash
# A file includes nothing of a higher floor: lists each include that does, and fails if there is one.
set -euo pipefail
cd "$(dirname "$0")/.."
etages=(elements model solids dialogs exchange view3d zone window)
faute=0
for ((bas = 0; bas < ${#etages[@]}; ++bas)); do
    [ -d "src/${etages[bas]}" ] || continue
    for ((haut = bas + 1; haut < ${#etages[@]}; ++haut)); do
        # The context that solids draw with is a door of its own.
        if grep -rnE "#include \"${etages[haut]}/" "src/${etages[bas]}" |
            grep -v '"view3d/dc3d.h"'; then
            faute=1
        fi
    done
done
exit $faute
