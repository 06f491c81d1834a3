// The state sets that the stencil passes switch between, and the steps that clear, copy and merge
// the depth. Each set is a fixed list of calls in a fixed order: the picture rests on it.

#include <GL/gl.h>

#include <algorithm>
#include <cmath>

#include "view3d/corpscompiles.h"
#include "view3d/dc3d.h"

namespace {

void MasqueCouleur(GLboolean ouvert) {
    glColorMask(ouvert, ouvert, ouvert, ouvert);
}

/// Makes the corners of the picture (-1, -1) and (1, 1) whatever the camera.
class RepereImage {
  public:
    RepereImage() {
        glMatrixMode(GL_PROJECTION);
        glPushMatrix();
        glLoadIdentity();
        glMatrixMode(GL_MODELVIEW);
        glPushMatrix();
        glLoadIdentity();
    }

    ~RepereImage() {
        glMatrixMode(GL_MODELVIEW);
        glPopMatrix();
        glMatrixMode(GL_PROJECTION);
        glPopMatrix();
    }

    RepereImage(const RepereImage&) = delete;
    RepereImage& operator=(const RepereImage&) = delete;
};

/// The stencil value of far caps that go to the far plane; those that may bear one less.
constexpr int MarqueAOuvrir = 2;

void QuadPlein() {
    const RepereImage repere;
    glTranslatef(0.0f, 0.0f, 1.0f);
    glBegin(GL_TRIANGLE_STRIP);
    glVertex2f(-1.0f, -1.0f);
    glVertex2f(1.0f, -1.0f);
    glVertex2f(-1.0f, 1.0f);
    glVertex2f(1.0f, 1.0f);
    glEnd();
}

}  // namespace

ZonePixels ZonePixels::Reunie(const ZonePixels& autre) const {
    if (EstVide()) return autre;
    if (autre.EstVide()) return *this;
    const int gauche = std::min(X, autre.X), bas = std::min(Y, autre.Y);
    return {gauche, bas, std::max(X + Largeur, autre.X + autre.Largeur) - gauche,
            std::max(Y + Hauteur, autre.Y + autre.Hauteur) - bas};
}

ZonePixels DC3D::ZoneDe(const Etendue& boite) const {
    const ZonePixels tout{0, 0, Largeur, Hauteur};
    if (!boite.Bornee) return tout;
    if (boite.EstVide()) return {};
    constexpr int marge = 2;  // For rounding, here and in GL.
    const PointVek recul = Oeil.Recul();
    double gauche = HUGE_VAL, bas = HUGE_VAL, droite = -HUGE_VAL, haut = -HUGE_VAL;
    for (int coin = 0; coin < 8; ++coin) {
        const PointVek p = Oeil.VersVue({coin & 1 ? boite.Haut.x : boite.Bas.x,
                                         coin & 2 ? boite.Haut.y : boite.Bas.y,
                                         coin & 4 ? boite.Haut.z : boite.Bas.z}) +
                           recul;
        if (!(-p.z > Oeil.ZProche)) return tout;
        const double echelle = 1.0 / (-p.z * Oeil.TaillePixel(Hauteur));
        const double x = Largeur / 2.0 + p.x * echelle, y = Hauteur / 2.0 + p.y * echelle;
        gauche = std::min(gauche, x);
        droite = std::max(droite, x);
        bas = std::min(bas, y);
        haut = std::max(haut, y);
    }
    const auto borne = [](double valeur, int limite) {
        return static_cast<int>(std::clamp(std::floor(valeur), 0.0, static_cast<double>(limite)));
    };
    const int x = borne(gauche - marge, Largeur), y = borne(bas - marge, Hauteur);
    return {x, y, borne(droite + marge + 1.0, Largeur) - x, borne(haut + marge + 1.0, Hauteur) - y};
}

void DC3D::Limite(const ZonePixels& zone) {
    Zone = zone;
    glScissor(zone.X, zone.Y, zone.Largeur, zone.Hauteur);
    glEnable(GL_SCISSOR_TEST);
}

void DC3D::FinLimite() {
    Zone = {0, 0, Largeur, Hauteur};
    glDisable(GL_SCISSOR_TEST);
}

void DC3D::EtatNormal() {
    glDepthRange(0.0, 1.0);
    glEnable(GL_LIGHTING);
    glEnable(GL_ALPHA_TEST);
    glEnable(GL_CULL_FACE);
    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_LESS);
    glDepthMask(GL_TRUE);
    glCullFace(GL_FRONT);
    MasqueCouleur(GL_TRUE);
}

void DC3D::EtatFil() {
    glDisable(GL_LIGHTING);
    glDisable(GL_TEXTURE_2D);
    glDisable(GL_CULL_FACE);
}

void DC3D::FinEtatFil() {
    glEnable(GL_CULL_FACE);
    glEnable(GL_TEXTURE_2D);
    glEnable(GL_LIGHTING);
}

void DC3D::DebutEnveloppe() {
    LitProfondeur();
    CompteStencil = 0;
    glDisable(GL_LIGHTING);
    glStencilMask(0xff);
    glClearStencil(0);
    glClearDepth(0.0);
    glClear(GL_DEPTH_BUFFER_BIT | GL_STENCIL_BUFFER_BIT);
    MasqueCouleur(GL_FALSE);
    glDisable(GL_STENCIL_TEST);
    glEnable(GL_DEPTH_TEST);
    glDepthMask(GL_TRUE);
    glDepthFunc(GL_GREATER);
    glEnable(GL_CULL_FACE);
    glCullFace(GL_FRONT);
}

void DC3D::EtatCompte() {
    glEnable(GL_STENCIL_TEST);
    glStencilFunc(GL_ALWAYS, 0, 0xff);
    glStencilOp(GL_KEEP, GL_KEEP, GL_INCR);
    glDepthFunc(GL_ALWAYS);
    glDepthMask(GL_FALSE);
    glCullFace(GL_BACK);
}

void DC3D::EcritLointain(unsigned comparaison, int valeur) {
    glStencilFunc(comparaison, valeur, 0xff);
    glStencilOp(GL_ZERO, GL_ZERO, GL_ZERO);
    glDepthFunc(GL_ALWAYS);
    glDepthRange(1.0, 1.0);
    glDepthMask(GL_TRUE);
    glDisable(GL_CULL_FACE);
    QuadPlein();
}

void DC3D::EffaceHorsCompte() {
    EcritLointain(GL_NOTEQUAL, CompteStencil);
}

void DC3D::EtatMarqueCreux() {
    glDisable(GL_LIGHTING);
    glStencilMask(0xff);
    glClearStencil(0);
    glClear(GL_STENCIL_BUFFER_BIT);
    MasqueCouleur(GL_FALSE);
    glDepthRange(0.0, 1.0);
    glDisable(GL_DEPTH_TEST);
    glDepthMask(GL_FALSE);
    glEnable(GL_CULL_FACE);
    glEnable(GL_STENCIL_TEST);
    glStencilFunc(GL_ALWAYS, 1, 0xff);
    glStencilOp(GL_KEEP, GL_KEEP, GL_REPLACE);
    glCullFace(GL_BACK);
    // A mouth behind the body marks nothing; one that lies in its surface does.
    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_LEQUAL);
    glEnable(GL_POLYGON_OFFSET_FILL);
    glPolygonOffset(-1.0f, -4.0f);
}

void DC3D::EtatCreux() {
    glDisable(GL_POLYGON_OFFSET_FILL);
    glEnable(GL_STENCIL_TEST);
    glEnable(GL_DEPTH_TEST);
    MasqueCouleur(GL_FALSE);
    glDepthFunc(GL_ALWAYS);
    glDepthMask(GL_TRUE);
    glStencilFunc(GL_EQUAL, 1, 0xff);
    glStencilOp(GL_ZERO, GL_ZERO, GL_ZERO);
    glCullFace(GL_FRONT);
}

void DC3D::EtatEntreeFonds() {
    EtatMarqueCreux();
    glStencilFunc(GL_ALWAYS, 0, 0xff);
    glStencilOp(GL_KEEP, GL_KEEP, GL_INCR);
}

// No more is allowed for than rounding: with a whole pixel of slope a thread of the wall that is
// left would stay.
void DC3D::EtatEntreeParoi() {
    glPolygonOffset(-0.02f, -2.0f);
}

void DC3D::EtatSortieParoi() {
    glStencilOp(GL_KEEP, GL_KEEP, GL_DECR);
    glDepthFunc(GL_LEQUAL);
    glPolygonOffset(-0.02f, -2.0f);
    glCullFace(GL_FRONT);
}

void DC3D::EtatSortieOuverte() {
    glDepthFunc(GL_LESS);
    glPolygonOffset(0.1f, 4.0f);
}

void DC3D::EtatApprofondit() {
    EtatCreux();
    glDepthFunc(GL_GREATER);
    // A far side in front of what stands there leaves the mark to the next.
    glStencilOp(GL_ZERO, GL_KEEP, GL_ZERO);
}

void DC3D::EtatFondRestant(bool aOuvrir) {
    EtatMarqueCreux();
    glDisable(GL_POLYGON_OFFSET_FILL);
    glStencilFunc(GL_ALWAYS, aOuvrir ? MarqueAOuvrir : MarqueAOuvrir - 1, 0xff);
    glDepthFunc(GL_EQUAL);
    glCullFace(GL_FRONT);
}

void DC3D::EtatDosDuSolide() {
    glStencilFunc(GL_EQUAL, MarqueAOuvrir - 1, 0xff);
    glStencilOp(GL_KEEP, GL_KEEP, GL_INCR);
    glDepthFunc(GL_LEQUAL);
    glEnable(GL_POLYGON_OFFSET_FILL);
    glPolygonOffset(-1.0f, -4.0f);
    glCullFace(GL_BACK);
}

void DC3D::OuvreMarques() {
    glDisable(GL_POLYGON_OFFSET_FILL);
    EcritLointain(GL_EQUAL, MarqueAOuvrir);
}

void DC3D::EtatFondVisible() {
    glDepthRange(0.0, 1.0);
}

void DC3D::EtatFondOuvert() {
    glDepthRange(1.0, 1.0);
}

void DC3D::LitProfondeur() {
    Profondeurs.resize(static_cast<std::size_t>(Zone.Largeur) *
                       static_cast<std::size_t>(Zone.Hauteur));
    glReadBuffer(GL_BACK);
    glReadPixels(Zone.X, Zone.Y, Zone.Largeur, Zone.Hauteur, GL_DEPTH_COMPONENT, GL_FLOAT,
                 Profondeurs.data());
}

void DC3D::EcritProfondeur() {
    const RepereImage repere;
    glDrawBuffer(GL_BACK);
    MasqueCouleur(GL_FALSE);
    glRasterPos3d(2.0 * Zone.X / Largeur - 1.0, 2.0 * Zone.Y / Hauteur - 1.0, 0.0);
    glDrawPixels(Zone.Largeur, Zone.Hauteur, GL_DEPTH_COMPONENT, GL_FLOAT, Profondeurs.data());
}

void DC3D::FusionneProfondeur() {
    glDisable(GL_STENCIL_TEST);
    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_LESS);
    glDepthRange(0.0, 1.0);
    glDepthMask(GL_TRUE);
    EcritProfondeur();
}

void DC3D::EtatCouleurEgale() {
    glDepthRange(0.0, 1.0);
    glEnable(GL_LIGHTING);
    glEnable(GL_ALPHA_TEST);
    glEnable(GL_CULL_FACE);
    glEnable(GL_DEPTH_TEST);
    glDisable(GL_STENCIL_TEST);
    glDepthFunc(GL_EQUAL);
    glDepthMask(GL_FALSE);
    glCullFace(GL_FRONT);
    MasqueCouleur(GL_TRUE);
}

void DC3D::EtatFinPercage() {
    glDisable(GL_ALPHA_TEST);
    glDisable(GL_CULL_FACE);
    glDepthFunc(GL_LEQUAL);
}
