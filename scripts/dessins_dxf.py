#!/usr/bin/python3
"""dessins_dxf.py [FOLDER]: makes the DXF drawings that the tests of the reader use, with ezdxf
(Debian's python3-ezdxf), a library that knows nothing of this program. What the program has to
find in them stands in tests/exchange/dxfezdxf.cpp, worked out by hand. Every run of one
release of the library writes the same bytes."""

import pathlib
import sys

import ezdxf

DESSINS = {}


def dessin(version="R12"):
    """Registers a function that fills a new drawing of that version."""

    def note(remplit):
        DESSINS[remplit.__name__] = (version, remplit)
        return remplit

    return note


@dessin()
def lignes(doc, msp):
    msp.add_line((0, 0), (10, 20))
    msp.add_line((-1.5, 2.25, 3), (4, -5, 6), dxfattribs={"layer": "MURS"})
    msp.add_line((1e6, 1e-3), (7, 7))


@dessin()
def points(doc, msp):
    msp.add_point((1, 2))
    msp.add_point((-3.5, 4.5, 5.5))


@dessin()
def cercles(doc, msp):
    msp.add_circle((1, 2), 3)
    msp.add_circle((-4, 5, 6), 0.125)
    msp.add_circle((0, 0), 9, dxfattribs={"extrusion": (0, 0, -1)})


@dessin()
def arcs(doc, msp):
    msp.add_arc((0, 0), 2, 0, 90)
    msp.add_arc((1, 1), 3, 350, 20)
    msp.add_arc((5, 5), 1, 180, 180)


@dessin()
def polylignes(doc, msp):
    msp.add_polyline2d([(0, 0), (4, 0), (4, 3)])
    msp.add_polyline2d([(1, 1), (5, 1), (5, 4)], format="xy", close=True)
    msp.add_polyline2d([(0, 0, 1), (2, 0, 0)], format="xyb")
    msp.add_polyline3d([(1, 1, 1), (2, 3, 5), (0, 0, 0)])


@dessin("R2000")
def lwpolylignes(doc, msp):
    msp.add_lwpolyline([(0, 0), (4, 0), (4, 3)])
    msp.add_lwpolyline([(1, 1), (5, 1), (5, 4)], close=True)
    msp.add_lwpolyline([(2, 2, 0.1, 0.2, 0.5), (6, 2, 0, 0, 0)], dxfattribs={"elevation": 8})


@dessin()
def faces(doc, msp):
    msp.add_solid([(0, 0), (4, 0), (0, 3), (4, 3)])
    msp.add_trace([(1, 1), (2, 1), (1, 2), (2, 2)])
    msp.add_3dface([(0, 0, 1), (4, 0, 2), (4, 3, 3)])


@dessin()
def textes(doc, msp):
    doc.styles.new("TITRE", dxfattribs={"font": "times.ttf"})
    msp.add_text("Bride", dxfattribs={"height": 5, "rotation": 90, "style": "TITRE"}).set_pos((1, 2))
    msp.add_text("Ø 80 à 45°", dxfattribs={"height": 2.5}).set_pos((3, 4))
    msp.add_text("30 ≤ α", dxfattribs={"height": 2}).set_pos((0, 0))


@dessin("R2007")
def textes_utf8(doc, msp):
    msp.add_text("Pièce n° 1 ≤ α", dxfattribs={"height": 5, "rotation": -30}).set_pos((1, 2))


@dessin()
def blocs(doc, msp):
    bloc = doc.blocks.new("VIS", base_point=(5, 5))
    bloc.add_circle((0, 0), 4)
    bloc.add_line((0, 0), (4, 0), dxfattribs={"color": 1})
    msp.add_blockref("VIS", (10, 20))
    msp.add_blockref("VIS", (30, 40), dxfattribs={"xscale": 2, "yscale": 3, "rotation": 90})
    msp.add_blockref("VIS", (50, 60), dxfattribs={"xscale": -1.5})


@dessin("R2000")
def blocs_emboites(doc, msp):
    fond = doc.blocks.new("vis a bois")
    fond.add_point((1, 0))
    dessus = doc.blocks.new("paire")
    dessus.add_blockref("vis a bois", (0, 0))
    dessus.add_blockref("vis a bois", (0, 8), dxfattribs={"rotation": 180})
    dessus.add_attdef("REPERE", (0, 0), "A1")
    image = msp.add_blockref("paire", (100, 0))
    image.add_attrib("REPERE", "B2", (101, 0))
    msp.add_point((3, 3))


@dessin("R2000")
def cotes_lineaires(doc, msp):
    msp.add_linear_dim(base=(0, 50), p1=(0, 0), p2=(30, 40))
    msp.add_linear_dim(base=(-10, 0), p1=(0, 0), p2=(30, 40), angle=90, text="40 h7")
    msp.add_linear_dim(base=(0, 50), p1=(0, 0), p2=(30, 40), angle=53.13)
    msp.add_aligned_dim(p1=(0, 0), p2=(30, 40), distance=5)
    alignee = msp.add_aligned_dim(p1=(0, 0), p2=(30, 40), distance=5).dimension
    alignee.dxf.dimtype = 33


@dessin("R2000")
def cotes_angulaires(doc, msp):
    msp.add_angular_dim_2l(base=(3, 4), line1=((1, 0), (9, 0)), line2=((0, 1), (0, 9)))
    msp.add_angular_dim_3p(base=(3, 4), center=(0, 0), p1=(4, 0), p2=(0, 3))


@dessin("R2000")
def cotes_rondes(doc, msp):
    msp.add_radius_dim(center=(1, 2), radius=5, angle=0)
    msp.add_diameter_dim(center=(1, 2), radius=5, angle=90, text="Ø 10")
    msp.add_ordinate_x_dim((3, 4), (0, 2))


@dessin("R2004")
def couleurs(doc, msp):
    doc.linetypes.add("DASHDOT", [1.0, 0.5, -0.25, 0.0, -0.25])
    doc.linetypes.add("DASHED", [0.6, 0.5, -0.1])
    doc.linetypes.add("DOT", [0.2, 0.0, -0.2])
    msp.add_point((1, 0), dxfattribs={"color": 1, "linetype": "DASHDOT"})
    msp.add_point((2, 0), dxfattribs={"color": 5, "linetype": "DASHED"})
    msp.add_point((3, 0), dxfattribs={"color": 30, "linetype": "DOT"})
    msp.add_point((4, 0), dxfattribs={"true_color": 0x10FF80})


@dessin("R2000")
def sautees(doc, msp):
    msp.add_ellipse((0, 0), (5, 0), 0.5)
    msp.add_spline([(0, 0), (1, 2), (3, 3), (5, 0)])
    msp.add_mtext("Un paragraphe").set_location((1, 1))
    msp.add_hatch().paths.add_polyline_path([(0, 0), (1, 0), (1, 1)])
    msp.add_ray((0, 0), (1, 0))
    msp.add_xline((0, 0), (1, 1))
    msp.add_leader([(0, 0), (3, 3), (6, 3)])
    msp.add_shape("ARC", (0, 0))
    msp.add_mesh()
    msp.add_line((1, 2), (3, 4))


@dessin()
def maillages(doc, msp):
    maille = msp.add_polymesh((2, 2))
    for i in range(2):
        for j in range(2):
            maille.set_mesh_vertex((i, j), (i, j, 0))
    msp.add_point((9, 9))


@dessin("R2000")
def papier(doc, msp):
    msp.add_circle((0, 0), 1)
    feuille = doc.layout("Layout1")
    feuille.add_line((0, 0), (210, 297))
    feuille.add_viewport((100, 100), (50, 50), (0, 0), 10)


@dessin()
def nombres(doc, msp):
    msp.add_line((123456789.123, -0.000012345), (1 / 3, -2 / 3))
    msp.add_circle((1e15, -1e15), 1e-9)


@dessin("R2000")
def donnees_etrangeres(doc, msp):
    doc.appids.new("ATELIER")
    point = msp.add_point((1, 2))
    point.set_xdata("ATELIER", [(1000, "LINE"), (1010, (7, 8, 9)), (1040, 5.0), (1070, 3)])
    point.set_app_data("ATELIER", [(1, "0"), (90, 5)])
    msp.add_line((0, 0), (1, 1))


def main():
    dossier = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ".")
    # Neither the hour nor fresh GUIDs, so that a file changes with its drawing alone.
    ezdxf.options.write_fixed_meta_data_for_testing = True
    for nom, (version, remplit) in DESSINS.items():
        doc = ezdxf.new(version)
        remplit(doc, doc.modelspace())
        # Saving declares what is left in the order of a set, another one on each run.
        for classe in sorted(doc.entitydb.dxf_types_in_use()):
            doc.classes.add_class(classe)
        doc.saveas(dossier / f"{nom}.dxf")


main()
