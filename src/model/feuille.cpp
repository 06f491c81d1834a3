#include "model/feuille.h"

#include "elements/eltrectangle.h"
#include "elements/tracepage.h"
#include "model/bddgeo.h"
#include "model/echelle.h"
#include "model/vuedecalee.h"

Feuille FeuilleCourante;

void Feuille::ChargeCartouche(const std::string& nom) {
    NomCartouche_ = nom;
    Cartouche.Ouvre(nom);
}

void Feuille::SetEchelle(double echelle) {
    if (echelle > 1e-6 && echelle < 1e9) EchellePapier_ = echelle;
}

void Feuille::DessineCartouche(Trace& trace) const {
    const VueDecalee decalee(OrigineFeuille, 0.0, 1.0 / EchellePapier_);
    Cartouche.DessineContenu(trace);
}

void Feuille::DessineApercu(Trace& trace) const {
    if (!ApercuPage) return;
    const PointVek taille(Papier.x, -Papier.y);
    EltRectangle(OrigineFeuille, OrigineFeuille + taille / EchellePapier_, 0).Dessine(trace);
    DessineCartouche(trace);
}

void Feuille::Imprime(const Cairo::RefPtr<Cairo::Context>& contexte, double largeur, double hauteur,
                      double parMm) const {
    const VuePage page(OrigineFeuille, EchellePapier_ * parMm);
    TracePage trace(contexte, largeur, hauteur, parMm, ImpressionNoir);
    DessineCartouche(trace);
    BddCourante.Dessine(trace);
}
