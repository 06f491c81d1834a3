#pragma once

/// Type codes of the elements, as drawing files hold them.
enum TypeElt {
    TypeGeo = 0,
    TypeSegment = 1,
    TypeGrille = 2,
    TypePoint = 3,
    TypeArc = 4,
    TypeProfil = 5,
    TypeTxt = 6,
    TypeCote = 7,
    TypeCoteAng = 8,
    TypeCoteVert = 9,
    TypeCoteHori = 10,
    TypeCoteDia = 11,
    TypeCoteRayon = 12,
    TypeDisque = 13,
    TypeRectangle = 14,
    TypeBDD = 15,
    TypeImage = 16,
    TypeEchelle = 17,
    TypeDroite = 18,
    TypePave = 19,
    TypeProfilElevation = 20,
    TypeCylindre = 21,
    TypeSphere = 22,
    TypeProfilTourne = 23,
    TypeProfilSurface = 24,
    TypeProfilRuban = 25,
    TypeProfilEvantail = 26,
    TypePercage = 27,
    TypeEnvBoule = 28,
    TypeRainure = 29,
    TypeRainureP = 30,
    TypeImage3d = 31,
    TypeProfilTubeRond = 32,
    TypeProfilBoaRond = 33,
    NombreTypes = 34
};

/// Name of a type as the user sees it in titles; that of `TypeGeo` for a code outside the table.
const char* NomDuType(int type);
