#include "view3d/corpscompiles.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

#include "elements/ecrivain.h"
#include "elements/eltgeo.h"
#include "model/bddgeo.h"
#include "solids/elt3d.h"

namespace {

/// Digits that tell any two numbers apart.
constexpr int ChiffresExacts = 17;

/// Half the side of the cube in which bodies are measured, in drawing units.
constexpr double DemiCube = 20000.0;

/// By how much boxes that touch may be apart, as what GL gives back is rounded.
constexpr double Jeu = 0.01;

/// Numbers that GL may give back for one part, and for all that are compiled: what is larger is
/// drawn without a list.
constexpr int TailleMin = 1 << 16;
constexpr int TailleMax = 1 << 22;
constexpr int TailleTotaleMax = 1 << 24;

/// Puts the cube of `DemiCube` into the whole viewport and depth range, and draws both sides.
class RepereMesure {
  public:
    RepereMesure() {
        glPushAttrib(GL_ALL_ATTRIB_BITS);
        glMatrixMode(GL_PROJECTION);
        glPushMatrix();
        glLoadIdentity();
        glOrtho(-DemiCube, DemiCube, -DemiCube, DemiCube, -DemiCube, DemiCube);
        glMatrixMode(GL_MODELVIEW);
        glPushMatrix();
        glLoadIdentity();
        glViewport(0, 0, Cote, Cote);
        glDepthRange(0.0, 1.0);
        glDisable(GL_CULL_FACE);
        glDisable(GL_POLYGON_OFFSET_FILL);
        // The material would keep the colour that is measured in.
        glDisable(GL_COLOR_MATERIAL);
    }

    ~RepereMesure() {
        glMatrixMode(GL_MODELVIEW);
        glPopMatrix();
        glMatrixMode(GL_PROJECTION);
        glPopMatrix();
        glMatrixMode(GL_MODELVIEW);
        glPopAttrib();
    }

    RepereMesure(const RepereMesure&) = delete;
    RepereMesure& operator=(const RepereMesure&) = delete;

    /// The point of the world behind three numbers that GL has given back.
    static PointVek Monde(const GLfloat* p) {
        const auto sur = [](double part) { return (2.0 * part - 1.0) * DemiCube; };
        return {sur(p[0] / Cote), sur(p[1] / Cote), -sur(p[2])};
    }

  private:
    static constexpr int Cote = 1024;
};

/// Draws and answers how many numbers GL has given back in tampon; less than 0 when they did not
/// fit.
int Recueille(std::vector<GLfloat>& tampon, const CorpsCompiles::Trace& trace) {
    const RepereMesure repere;
    glFeedbackBuffer(static_cast<GLsizei>(tampon.size()), GL_3D, tampon.data());
    glRenderMode(GL_FEEDBACK);
    trace(false);
    return glRenderMode(GL_RENDER);
}

/// How many vertices follow the token at i, which is stepped over.
int Sommets(const std::vector<GLfloat>& tampon, std::size_t& i) {
    switch (static_cast<int>(tampon[i++])) {
        case GL_POLYGON_TOKEN:
            return static_cast<int>(tampon[i++]);
        case GL_LINE_TOKEN:
        case GL_LINE_RESET_TOKEN:
            return 2;
        default:
            return 1;
    }
}

/// The box around the vertices of points, lines and polygons.
Etendue Place(const std::vector<GLfloat>& tampon, int nombre) {
    // What lies outside the cube was cut off at its faces, or is missing altogether.
    constexpr double limite = DemiCube * 0.999;
    constexpr double infini = HUGE_VAL;
    Etendue place{{infini, infini, infini}, {-infini, -infini, -infini}, true};
    const auto fin = static_cast<std::size_t>(nombre);
    for (std::size_t i = 0; i < fin;) {
        for (int reste = Sommets(tampon, i); reste > 0; --reste, i += 3) {
            const PointVek p = RepereMesure::Monde(&tampon[i]);
            if (!(std::max({std::abs(p.x), std::abs(p.y), std::abs(p.z)}) < limite)) return {};
            place.Bas = {std::min(place.Bas.x, p.x), std::min(place.Bas.y, p.y),
                         std::min(place.Bas.z, p.z)};
            place.Haut = {std::max(place.Haut.x, p.x), std::max(place.Haut.y, p.y),
                          std::max(place.Haut.z, p.z)};
        }
    }
    return place;
}

}  // namespace

bool Etendue::Touche(const Etendue& autre) const {
    if (EstVide() || autre.EstVide()) return false;
    if (!Bornee || !autre.Bornee) return true;
    const auto dehors = [](double haut, double bas) { return haut + Jeu < bas; };
    return !(dehors(Haut.x, autre.Bas.x) || dehors(autre.Haut.x, Bas.x) ||
             dehors(Haut.y, autre.Bas.y) || dehors(autre.Haut.y, Bas.y) ||
             dehors(Haut.z, autre.Bas.z) || dehors(autre.Haut.z, Bas.z));
}

std::vector<bool> SeTouchent(const std::vector<const Etendue*>& boites) {
    const auto debut = [&](std::size_t i) {
        return boites[i]->Bornee ? boites[i]->Bas.x : -HUGE_VAL;
    };
    const auto fin = [&](std::size_t i) {
        return boites[i]->Bornee ? boites[i]->Haut.x : HUGE_VAL;
    };
    std::vector<std::size_t> ordre(boites.size());
    std::iota(ordre.begin(), ordre.end(), 0);
    std::sort(ordre.begin(), ordre.end(),
              [&](std::size_t a, std::size_t b) { return debut(a) < debut(b); });
    std::vector<bool> touches(boites.size(), false);
    for (std::size_t i = 0; i < ordre.size(); ++i)
        for (std::size_t j = i + 1; j < ordre.size() && debut(ordre[j]) <= fin(ordre[i]) + Jeu; ++j)
            if (boites[ordre[i]]->Touche(*boites[ordre[j]]))
                touches[ordre[i]] = touches[ordre[j]] = true;
    return touches;
}

CorpsCompiles::CorpsCompiles(const Grain& grain) : Finesse(grain) {}

CorpsCompiles::~CorpsCompiles() {
    Oublie();
}

void CorpsCompiles::DebutImage() {
    ++Image;
}

void CorpsCompiles::FinImage() {
    for (auto ligne = Elements.begin(); ligne != Elements.end();) {
        if (ligne->second.Image == Image) {
            ++ligne;
            continue;
        }
        Detruit(ligne->second);
        ligne = Elements.erase(ligne);
    }
}

void CorpsCompiles::Oublie() {
    for (auto& [elt, element] : Elements)
        Detruit(element);
    Elements.clear();
}

void CorpsCompiles::Detruit(Element& element) {
    for (Piece& piece : element.Pieces) {
        for (const GLuint liste : piece.Listes) {
            if (liste == 0) continue;
            glDeleteLists(liste, 1);
            TailleTotale -= piece.Taille;
        }
        piece = Piece();
    }
}

void CorpsCompiles::Dessine(const EltGeo& elt, Partie partie, bool couleur, const Trace& trace) {
    Piece& piece = PieceDe(elt, partie, trace);
    const GLuint& liste = piece.Listes[couleur];
    if (liste == 0 && piece.Taille > 0) Compile(piece, couleur, trace);
    if (liste != 0)
        glCallList(liste);
    else
        trace(couleur);
}

const Etendue& CorpsCompiles::EtendueDe(const EltGeo& elt, Partie partie, const Trace& trace) {
    return PieceDe(elt, partie, trace).Place;
}

CorpsCompiles::Piece& CorpsCompiles::PieceDe(const EltGeo& elt, Partie partie, const Trace& trace) {
    Element& element = Elements[&elt];
    if (element.Image != Image) {
        std::string record = RecordDe(elt);
        if (record != element.Record) Detruit(element);
        element.Record = std::move(record);
        element.Image = Image;
    }
    if (!(element.Finesse == Finesse)) Detruit(element);
    element.Finesse = Finesse;
    Piece& piece = element.Pieces[static_cast<int>(partie)];
    if (!piece.Mesuree) Mesure(piece, trace);
    return piece;
}

std::string CorpsCompiles::RecordDe(const EltGeo& elt) const {
    Ecrivain record(ChiffresExacts);
    elt.Sauve(record);
    // A tube is drawn along profiles that it holds as children.
    if (elt.Type == TypeProfilTubeRond || elt.Type == TypeProfilBoaRond)
        for (const EltGeo* fils : elt.Fils)
            fils->Sauve(record);
    // A texture may be a file beside the drawing.
    const auto* solide = dynamic_cast<const Elt3d*>(&elt);
    if (solide && !solide->texture.empty()) record << BddCourante.NomFichier;
    return record.Prend();
}

void CorpsCompiles::Mesure(Piece& piece, const Trace& trace) const {
    piece.Mesuree = true;
    for (int taille : {TailleMin, TailleMax}) {
        std::vector<GLfloat> tampon(static_cast<std::size_t>(taille));
        piece.Taille = Recueille(tampon, trace);
        if (piece.Taille < 0) continue;
        piece.Place = Place(tampon, piece.Taille);
        return;
    }
    piece.Taille = 0;
}

void CorpsCompiles::Compile(Piece& piece, bool couleur, const Trace& trace) {
    if (TailleTotale + piece.Taille > TailleTotaleMax) return;
    const GLuint liste = glGenLists(1);
    if (liste == 0) return;
    glNewList(liste, GL_COMPILE);
    trace(couleur);
    glEndList();
    piece.Listes[couleur] = liste;
    TailleTotale += piece.Taille;
}
