// The properties of what is kept by two points.

#include <vector>

#include "dialogs/eltgeodialog.h"
#include "dialogs/nombres.h"
#include "elements/angles.h"
#include "elements/eltdroite.h"
#include "elements/eltrectangle.h"
#include "elements/vue.h"

namespace {

/// One field of the dialog.
struct Mesure {
    const char* Libelle;
    bool DUnBout;  ///< Of a point, which may be anywhere; the others need two points apart.
    double (*Lit)(const EltSegment& segment);
    void (*Ecrit)(EltSegment& segment, double valeur);
};

/// A coordinate of one of the two points.
template <PointVek EltSegment::*Bout, double PointVek::*Axe>
constexpr Mesure Cote(const char* libelle) {
    return {libelle, true, [](const EltSegment& segment) { return segment.*Bout.*Axe; },
            [](EltSegment& segment, double valeur) {
                PointVek points[] = {segment.Origine, segment.Extremite};
                points[Bout == &EltSegment::Origine ? 0 : 1].*Axe = valeur;
                segment.SetPoints(points[0], points[1]);
            }};
}

constexpr Mesure Bouts[] = {
    Cote<&EltSegment::Origine, &PointVek::x>("Origine X"),
    Cote<&EltSegment::Origine, &PointVek::y>("Y"),
    Cote<&EltSegment::Origine, &PointVek::z>("Z"),
    Cote<&EltSegment::Extremite, &PointVek::x>("Extrémité X"),
    Cote<&EltSegment::Extremite, &PointVek::y>("Y"),
    Cote<&EltSegment::Extremite, &PointVek::z>("Z"),
};

constexpr Mesure MesureLongueur = {
    "Longueur", false, [](const EltSegment& segment) { return segment.Longueur(); },
    [](EltSegment& segment, double longueur) { segment.SetLongueur(longueur); }};

constexpr Mesure MesureAngle = {
    "Angle", false,
    [](const EltSegment& segment) {
        return EnDegres(AngleReduit(segment.Angle(), vue::Epsilon()));
    },
    [](EltSegment& segment, double degres) { segment.SetAngle(EnRadians(degres)); }};

class EltSegmentDialog : public EltGeoDialog {
  public:
    explicit EltSegmentDialog(EltSegment& segment,
                              const Glib::ustring& titre = "Propriété du Segment",
                              bool avecLongueur = true)
        : EltGeoDialog(titre, segment, false), Segment(static_cast<EltSegment&>(Copie())) {
        for (const Mesure& bout : Bouts)
            AjouteLigneMesure(bout);
        if (avecLongueur) AjouteLigneMesure(MesureLongueur);
        AjouteLigneMesure(MesureAngle);
    }

  private:
    struct LigneMesure {
        const Mesure* Quoi;
        ChampSaisie* Champ;  ///< The table's.
    };

    void AjouteLigneMesure(const Mesure& mesure) {
        auto* champ = Gtk::manage(new ChampSaisie(TexteNombre(mesure.Lit(Segment))));
        const LigneMesure ligne = {&mesure, champ};
        Lignes.push_back(ligne);
        // The others have been filled in from what the last one says.
        const Examen examen = &mesure == &MesureLongueur ? NonNul("La longueur") : UnNombre();
        AjouteChamp(mesure.Libelle, *champ, [this, &mesure, examen](const Glib::ustring& texte) {
            return EnCours == &mesure ? examen(texte) : Glib::ustring();
        });
        champ->signal_changed().connect([this, ligne] { Suit(ligne); });
    }

    /// Brings the segment to what a field says while it is typed, and the other fields to the
    /// segment. All keystrokes in one field act on the segment that stood before the first, so that
    /// what a half typed number does to it is gone with the next digit.
    void Suit(const LigneMesure& ligne) {
        if (EnRemplissage) return;
        if (EnCours != ligne.Quoi) {
            EnCours = ligne.Quoi;
            if (ligne.Quoi->DUnBout || Segment.EstValide()) Depart->Copie(Segment);
        }
        Segment.Copie(*Depart);
        if (const auto valeur = ligne.Champ->Nombre()) ligne.Quoi->Ecrit(Segment, *valeur);
        if (!Segment.EstFini()) Segment.Copie(*Depart);
        EnRemplissage = true;
        for (const LigneMesure& autre : Lignes)
            if (autre.Quoi != ligne.Quoi)
                autre.Champ->set_text(TexteNombre(autre.Quoi->Lit(Segment)));
        EnRemplissage = false;
    }

    EltSegment& Segment;
    const std::unique_ptr<EltGeo> Depart = Segment.Clone();
    const Mesure* EnCours = nullptr;  ///< The field that was typed in last.
    bool EnRemplissage = false;
    std::vector<LigneMesure> Lignes;
};

/// An endless line has no length.
class EltDroiteDialog : public EltSegmentDialog {
  public:
    explicit EltDroiteDialog(EltDroite& droite) : EltSegmentDialog(droite, "Droite", false) {}
};

/// Whatever was typed, the corners are in their order afterwards.
class EltRectangleDialog : public EltSegmentDialog {
  public:
    explicit EltRectangleDialog(EltRectangle& rectangle) : EltSegmentDialog(rectangle) {}

  private:
    void PrendChamps() override { static_cast<EltRectangle&>(Copie()).Ordonne(); }
};

}  // namespace

bool EltSegment::Proprietes() {
    return EltSegmentDialog(*this).run() == Gtk::RESPONSE_OK;
}

bool EltDroite::Proprietes() {
    return EltDroiteDialog(*this).run() == Gtk::RESPONSE_OK;
}

bool EltRectangle::Proprietes() {
    return EltRectangleDialog(*this).run() == Gtk::RESPONSE_OK;
}
