#!/usr/bin/python3
"""verifie_dxf.py DRAWING.vek EXPORT.dxf ...: has an independent library (ezdxf, Debian's
python3-ezdxf) read what the program exported, and checks that it finds every entity in its place.

Three things of the files that other programs stumble over are mended first: the handle (group 5)
goes before the markers (100), true colours (420) become decimal, and the angles (50, 51) of ARC and
INSERT become degrees. Everything else is read as it stands."""

import io
import math
import re
import sys

import ezdxf

SOMMET = re.compile(r"(\S+) (\S+) ([^\sR]+)(?:R\S+ )? ?")


# The drawing, from the program's own file.


def nombres(ligne):
    return [float(mot) for mot in ligne.split()]


def proche(a, b):
    return math.isclose(a, b, rel_tol=2e-5, abs_tol=2e-5)


def arc(lignes, centre):
    rayon, debut, ouverture = nombres(next(lignes))
    if ouverture >= math.tau - 1e-6:
        return ("CIRCLE", *centre, rayon)
    return ("ARC", *centre, rayon, math.degrees(debut), math.degrees(debut + ouverture))


def profil(lignes, centre):
    ferme, _ = next(lignes), next(lignes)
    sommets = [[float(c) for c in s] for s in SOMMET.findall(next(lignes))]
    return ("LWPOLYLINE", int(ferme), *[c + d for s in sommets for c, d in zip(s[:2], centre)])


def texte(lignes, centre):
    mots, mesures, police = next(lignes), nombres(next(lignes)), next(lignes)
    return ("TEXT", *centre, mots, mesures[1], math.degrees(mesures[0]), police)


def cote(lignes, centre):
    _, *place, mots, _, angle, _ = texte(lignes, centre)
    points = nombres(next(lignes))
    return ("DIMENSION", *place, *points[:2], *points[3:5], mots, angle)


def image(lignes, centre):
    nom, angle, echelle = next(lignes), float(next(lignes)), float(next(lignes))
    return ("INSERT", *centre, nom, echelle, math.degrees(angle))


def saute(nombre):
    def lit(lignes, _):
        for _ in range(nombre):
            next(lignes)

    return lit


RECORDS = {
    0: saute(0),
    1: lambda lignes, _: ("LINE", *nombres(next(lignes))),
    3: lambda _, centre: ("POINT", *centre),
    4: arc,
    5: profil,
    6: texte,
    7: cote,
    8: saute(5),
    9: cote,
    10: cote,
    11: saute(4),
    12: saute(4),
    13: saute(1),
    14: saute(1),
    16: image,
    18: saute(1),
}


def elements(lignes, blocs):
    """The entities that a drawing gives; its groups go to blocs, by their names."""
    next(lignes), next(lignes)
    trouves = []
    while (tete := next(lignes)) != "10000":
        genre = int(tete.split()[0])
        for _ in range(3):
            next(lignes)
        centre = nombres(next(lignes))
        if genre == 15:
            nom = next(lignes)
            # A group in a group is not exported.
            contenu = elements(lignes, {})
            assert next(lignes) == "FinEltBDD"
            blocs[nom] = contenu
        elif element := RECORDS[genre](lignes, centre):
            trouves.append(element)
    while next(lignes) != "-1":
        pass
    return trouves


# The export, mended and read by the library.


def entites_texte(chemin):
    lignes = open(chemin, encoding="utf-8").read().split("\n")[:-1]
    entites = []
    for code, valeur in zip(map(int, lignes[::2]), lignes[1::2]):
        if code == 0:
            entites.append([])
        entites[-1].append((code, valeur))
    return entites


def repare(entite):
    nom = entite[0][1]
    codes = [code for code, _ in entite]
    if 5 in codes and 100 in codes and codes.index(5) > codes.index(100):
        entite.insert(codes.index(100), entite.pop(codes.index(5)))
    for i, (code, valeur) in enumerate(entite):
        if code == 420:
            entite[i] = (code, str(int(valeur, 16)))
        if code in (50, 51) and nom in ("ARC", "INSERT"):
            entite[i] = (code, repr(math.degrees(float(valeur))))
    return entite


def document(chemin):
    groupes = [g for entite in entites_texte(chemin) for g in repare(entite)]
    return ezdxf.read(io.StringIO("".join(f"{code}\n{valeur}\n" for code, valeur in groupes)))


LECTURES = {
    "LINE": lambda e: (*e.start, *e.end),
    "POINT": lambda e: (*e.location,),
    "CIRCLE": lambda e: (*e.center, e.radius),
    "ARC": lambda e: (*e.center, e.radius, e.start_angle, e.end_angle),
    "TEXT": lambda e: (*e.insert, e.text, e.height, e.rotation, e.style),
    "DIMENSION": lambda e: (*e.defpoint, *e.defpoint2.vec2, *e.defpoint3.vec2, e.text, e.angle),
    "INSERT": lambda e: (*e.insert, e.name, e.xscale, e.rotation),
}


def lue(entite):
    nom = entite.dxftype()
    if nom == "LWPOLYLINE":
        sommets = [c for point in entite.get_points("xy") for c in point]
        return (nom, int(entite.closed), *sommets)
    return (nom, *LECTURES[nom](entite.dxf))


def ecarts(attendus, entites, ou):
    lues = [lue(entite) for entite in entites]
    fautes = [] if len(lues) == len(attendus) else [f"{len(lues)} entities, not {len(attendus)}"]
    for voulue, vue in zip(attendus, lues):
        memes = len(voulue) == len(vue) and all(
            proche(a, b) if isinstance(a, float) else a == b for a, b in zip(voulue, vue)
        )
        if not memes:
            fautes.append(f"{vue}, not {voulue}")
    return [f"{ou}: {faute}" for faute in fautes]


def verifie(vek, dxf):
    blocs = {}
    voulus = elements(iter(open(vek, encoding="utf-8").read().split("\n")), blocs)
    doc = document(dxf)
    fautes = ecarts(voulus, doc.modelspace(), "drawing")
    for nom, contenu in blocs.items():
        bloc = doc.blocks.get(nom)
        fautes += ecarts(contenu, bloc, nom) if bloc else [f"no block {nom}"]
    print(f"{dxf}: {len(voulus)} entities, {len(blocs)} blocks, {len(fautes)} faults")
    for faute in fautes:
        print(" ", faute)
    return not fautes


def main():
    fichiers = sys.argv[1:]
    if not fichiers or len(fichiers) % 2:
        sys.exit(__doc__)
    bons = [verifie(vek, dxf) for vek, dxf in zip(fichiers[::2], fichiers[1::2])]
    sys.exit(not all(bons))


main()
