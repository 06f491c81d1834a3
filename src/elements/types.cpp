#include "elements/types.h"

namespace {

const char* const Noms[NombreTypes] = {
    "Géo",
    "Segment",
    "Grille",
    "POINT",
    "ARC",
    "PROFIL",
    "TXT",
    "COTE",
    "COTEANG",
    "COTEVERT",
    "COTEHORI",
    "COTEDIA",
    "COTERAYON",
    "DISQUE",
    "RECTANGLE",
    "BDD",
    "IMAGE",
    "ECHELLE",
    "DROITE",
    "PAVE",
    "ProfilElevation",
    "Cylindre",
    "Sphere",
    "ProfilTourne",
    "Surface",
    "Ruban",
    "Evantail",
    "Percage",
    "EnveloppeBoule",
    "Rainure",
    "RainureProfil",
    "Image3D",
    "ProfilTubeRond",
    "ProfilBoaRond",
};

}  // namespace

const char* NomDuType(int type) {
    return Noms[type >= 0 && type < NombreTypes ? type : TypeGeo];
}
