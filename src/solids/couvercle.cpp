#include "solids/couvercle.h"

#include <GL/gl.h>
#include <GL/glu.h>

#include <array>
#include <deque>

#include "solids/chaine.h"

namespace {

void Emet(const CoinCouvercle& coin) {
    glNormal3d(coin.Normale.x, coin.Normale.y, coin.Normale.z);
    glTexCoord2d(coin.S, coin.T);
    glVertex3d(coin.Point.x, coin.Point.y, coin.Point.z);
}

/// GLU's tessellation of one polygon, and the corners that it makes where links cross.
class Pavage {
  public:
    explicit Pavage(bool gauche) : Outil(gluNewTess()) {
        gluTessNormal(Outil, 0.0, 0.0, gauche ? 1.0 : -1.0);
        Branche(GLU_TESS_BEGIN, reinterpret_cast<_GLUfuncptr>(glBegin));
        Branche(GLU_TESS_END, reinterpret_cast<_GLUfuncptr>(glEnd));
        Branche(GLU_TESS_VERTEX, reinterpret_cast<_GLUfuncptr>(Sommet));
        Branche(GLU_TESS_COMBINE_DATA, reinterpret_cast<_GLUfuncptr>(Combine));
    }
    ~Pavage() { gluDeleteTess(Outil); }
    Pavage(const Pavage&) = delete;
    Pavage& operator=(const Pavage&) = delete;

    void Dessine(const std::vector<CoinCouvercle>& coins) {
        gluTessBeginPolygon(Outil, this);
        gluTessBeginContour(Outil);
        for (const CoinCouvercle& coin : coins) {
            Coins.push_back(coin);
            Ajoute(Coins.back());
        }
        gluTessEndContour(Outil);
        gluTessEndPolygon(Outil);
    }

  private:
    void Branche(GLenum rappel, _GLUfuncptr fonction) { gluTessCallback(Outil, rappel, fonction); }

    void Ajoute(CoinCouvercle& coin) {
        GLdouble ou[3] = {coin.Point.x, coin.Point.y, coin.Point.z};
        gluTessVertex(Outil, ou, &coin);
    }

    static void Sommet(const CoinCouvercle* coin) { Emet(*coin); }

    /// What lies between corners takes its share of each.
    static void Combine(const GLdouble ou[3], CoinCouvercle* const voisins[4],
                        const GLfloat parts[4], CoinCouvercle** coin, Pavage* pavage) {
        CoinCouvercle nouveau{{ou[0], ou[1], ou[2]}, {}, 0.0, 0.0};
        for (int i = 0; i < 4 && voisins[i]; ++i) {
            nouveau.Normale += voisins[i]->Normale * parts[i];
            nouveau.S += voisins[i]->S * parts[i];
            nouveau.T += voisins[i]->T * parts[i];
        }
        *coin = &pavage->Coins.emplace_back(nouveau);
    }

    GLUtesselator* Outil;
    std::deque<CoinCouvercle> Coins;  ///< A deque: GLU keeps their addresses.
};

}  // namespace

void DessineCouvercle(const std::vector<CoinCouvercle>& coins, bool gauche) {
    std::vector<PointVek> contour;
    for (const CoinCouvercle& coin : coins)
        contour.push_back(coin.Point);
    if (!EstConvexe(contour, gauche) && !EstEmmele(contour)) return Pavage(gauche).Dessine(coins);
    glBegin(GL_POLYGON);
    for (const CoinCouvercle& coin : coins)
        Emet(coin);
    glEnd();
}
