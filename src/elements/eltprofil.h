#pragma once

#include <vector>

#include "elements/coupe.h"
#include "elements/eltgeo.h"
#include "elements/sommetprofil.h"

class EltArc;

/// Index of the vertex that handle 4 holds, -1 for none. One for the program, like
/// `PoigneeCourante`.
extern int SommetCourant;

/// A chain of vertices joined by straight lines and arcs, about `Position`.
class EltProfil : public EltGeo {
  public:
    explicit EltProfil(int type = TypeProfil);
    EltProfil(const EltProfil&) = default;

    std::unique_ptr<EltGeo> Clone() const override;
    void Copie(const EltGeo& source) override;

    /// A closed profile with fill or hatch is painted as the surface that its links enclose.
    void Dessine(Trace& trace) const override;
    void DessinePoignees(Trace& trace) const override;
    void Transforme(const TransformeColle& t) override;
    void ChangeTrait(const Trait& trait) override;
    void DebutDeforme(const PointVek& p) override;

    /// Handle 1 moves the whole, 4 the vertex `SommetCourant`.
    void Deforme(const PointVek& v) override;
    void Sauve(Ecrivain& sortie) const override;
    void Charge(Lecteur& entree) override;

    /// To `PointProche`.
    double Distance(const PointVek& p) const override;
    Minorant MinorantDistance() const override;
    PointVek PointProche(const PointVek& p) const override;
    bool EstFini() const override;

    /// False too when all the vertices lie on one point.
    bool EstValide() const override;

    /// The nearest of `Position` and the vertices.
    PointVek PointProche3D(const PointVek& p) const override;

    /// Like `DebutDeforme`, as near as picks are in 3D.
    void DebutDeforme3D(const PointVek& p) override;
    void Deforme3D(const PointVek& v) override;

    // A profile is drawn vertex after vertex.

    /// Starts anew, without vertices, about p.
    void Debut(const PointVek& p);

    /// Joins p (absolute) by a straight line.
    void Ajoute(const PointVek& p);

    /// Follows a segment or an arc from the end nearest to the last vertex to the other one. An arc
    /// above half a turn takes two links.
    void AjouteElement(const EltGeo& elt);

    /// Where the link in progress goes to.
    void SetProvisoire(const PointVek& p) { Provisoire = p; }

    /// Paints what has been drawn so far, open and without surface, and the link in progress.
    void DessineEnCours(Trace& trace) const;

    bool Ferme = true;                  ///< A last link joins the last vertex to the first.
    std::vector<SommetProfil> Sommets;  ///< Relative to `Position`.

  protected:
    // A vector of the world in the axes that the vertices stand in, and back; a profile that lies
    // in the plane of the sheet has those of the world.

    virtual PointVek VersAxes(const PointVek& v) const { return v; }
    virtual PointVek DepuisAxes(const PointVek& v) const { return v; }

  private:
    using Mesure = double (*)(const PointVek&, const PointVek&);

    /// Index of the vertex nearest to p, which is relative like them; -1 when there is none.
    int SommetProche(const PointVek& p, Mesure distance) const;
    PointVek Absolu(const SommetProfil& sommet) const { return Position + sommet; }
    void AjouteArc(const EltArc& arc);
    LienEcran Lien(const SommetProfil& precedent, const SommetProfil& sommet) const;
    std::vector<LienEcran> Liens(bool ferme) const;
    void Peint(Trace& trace, const std::vector<LienEcran>& liens, bool surface) const;

    PointVek Dernier;     ///< Where the chain has got to, absolute.
    PointVek Provisoire;  ///< Absolute.
};

/// The same element; null for a type whose elements are no profiles.
const EltProfil* CommeProfil(const EltGeo& elt);
