# Sourced by the other scripts: what the program needs of the system.

PAQUETS_CONSTRUCTION="g++ make cmake pkg-config libgtkmm-2.4-dev libgl-dev libglu1-mesa-dev libmuparser-dev"
PAQUETS_MARCHE="librsvg2-common fonts-dejavu-core shared-mime-info xdg-utils"
PAQUETS_ECRAN_VIRTUEL="xvfb"
PAQUETS_ESSAIS="libgtest-dev libgl1-mesa-dri $PAQUETS_ECRAN_VIRTUEL"
PAQUETS_DEMO="openbox xdotool imagemagick x11-utils $PAQUETS_ECRAN_VIRTUEL"
PAQUETS_MESURES="libbenchmark-dev $PAQUETS_ECRAN_VIRTUEL"
PAQUETS_FORME="clang-format"

# installe PAQUET...: installs the packages that are missing, and says which. On a system without
# apt-get it says what is needed and stops.
installe() {
    if ! command -v apt-get > /dev/null || ! command -v dpkg-query > /dev/null; then
        echo "This system is neither Debian nor Ubuntu. Please install what these packages hold:" >&2
        printf '  %s\n' "$@" >&2
        exit 1
    fi
    local manquants=()
    local paquet
    for paquet in "$@"; do
        dpkg-query -W -f '${Status}\n' "$paquet" 2> /dev/null | grep -q '^install ok installed' ||
            manquants+=("$paquet")
    done
    [ ${#manquants[@]} -eq 0 ] && return
    echo "Installing: ${manquants[*]}"
    local racine=()
    [ "$(id -u)" -eq 0 ] || racine=(sudo)
    "${racine[@]}" apt-get update -qq
    "${racine[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${manquants[@]}" > /dev/null
}

# construit DOSSIER OPTION...: configures and builds into the folder, quietly where all goes well.
construit() {
    local dossier=$1
    shift
    cmake -S . -B "$dossier" "$@" > /dev/null
    cmake --build "$dossier" --parallel "$(nproc)"
}

# ouvre_ecran TAILLE: starts a virtual display on a free number and exports DISPLAY; it ends with the
# script.
ouvre_ecran() {
    local numero
    numero=$(mktemp)
    Xvfb -displayfd 3 -screen 0 "${1}x24" +extension GLX -nolisten tcp 3> "$numero" \
        2> /dev/null &
    ECRAN_VIRTUEL=$!
    trap 'kill "$ECRAN_VIRTUEL" 2> /dev/null || true' EXIT
    local essai
    for essai in $(seq 100); do
        [ -s "$numero" ] && break
        sleep 0.1
    done
    [ -s "$numero" ] || { echo "The virtual display did not start." >&2; exit 1; }
    DISPLAY=:$(cat "$numero")
    export DISPLAY
    rm -f "$numero"
}
