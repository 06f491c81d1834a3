#pragma once

#include "model/bddgeobase.h"

/// A named group: its content is relative to its `Position`, so that moving the group moves that
/// alone. Images find it by its name, which is one word.
class EltBDD : public EltGeo {
  public:
    EltBDD();

    /// The content comes out in reverse order, as that of the clipboard does: a group made from the
    /// clipboard so stands in the order of the drawing. A second copy restores it.
    EltBDD(const EltBDD& source);

    std::unique_ptr<EltGeo> Clone() const override;
    void Copie(const EltGeo& source) override;
    void Dessine(Trace& trace) const override;
    void Sauve(Ecrivain& sortie) const override;
    void Charge(Lecteur& entree) override;
    bool Proprietes() override;

    /// Paints the content alone, at the origin of the view.
    void DessineContenu(Trace& trace) const;

    /// How many elements that takes, those of groups within the group included.
    int NombrePeints() const;

    /// Draws the bodies of the content in the 3D view, about the origin of the present axes.
    void Dessine3DContenu(DC3D& dc, bool couleur) const;

    /// Replaces the content by clones of the source's elements, in reverse order.
    void CopieListe(const BDDGeoBase& source);

    /// Replaces the content by that of a drawing file; by nothing when it cannot be read.
    void Ouvre(const std::string& nom);

    /// Blanks become underscores, since a name is one word in a file.
    void SetIdentificateur(const Glib::ustring& identificateur);
    bool EstIdentifie(const Glib::ustring& identificateur) const;

    Glib::ustring Identificateur;
    BDDGeoBase Contenu;
};

/// A name as groups and images keep it: one word.
Glib::ustring EnUnMot(const Glib::ustring& nom);
