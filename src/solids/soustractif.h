#pragma once

class DC3D;
class EltEnvBoule;
class EltGeo;

/// What the driver of the 3D picture asks of an element that takes something away from the solid
/// that holds it as a child.
class Soustractif {
  public:
    virtual ~Soustractif() = default;

    /// The two caps, in colour or in white.
    virtual void DessineFonds(DC3D& dc, bool couleur) const = 0;

    /// The side.
    virtual void DessineParoi(DC3D& dc, bool couleur) const = 0;

    bool debouchant = true;  ///< It goes through the solid; else its bottom is seen.
};

/// The same element; null for a type that takes nothing away.
const Soustractif* CommeSoustractif(const EltGeo& elt);

/// The same element; null for what is no sphere that a solid must lie inside.
const EltEnvBoule* CommeEnveloppe(const EltGeo& elt);
