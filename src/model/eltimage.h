#pragma once

#include "elements/eltgeo.h"

/// Shows the content of a named group at its own place, turned and enlarged, without holding it:
/// the group is looked up at every painting.
class EltImage : public EltGeo {
  public:
    EltImage();
    EltImage(const EltImage&) = default;

    std::unique_ptr<EltGeo> Clone() const override;
    void Copie(const EltGeo& source) override;
    void Dessine(Trace& trace) const override;
    void Sauve(Ecrivain& sortie) const override;
    void Charge(Lecteur& entree) override;
    bool EstFini() const override;
    bool Proprietes() override;

    /// Blanks become underscores, since a name is one word in a file.
    void SetIdentificateur(const Glib::ustring& identificateur);

    Glib::ustring Identificateur;
    double Angle = 0.0;  ///< Radians.
    double Agrandissement = 1.0;

  private:
    void DessineGroupe(Trace& trace) const;
};
