#include "scenario.h"

#include <gdk/gdkkeysyms.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <sstream>

#include "model/eltbdd.h"
#include "solids/ecrit.h"
#include "solids/elt3d.h"
#include "solids/eltpave.h"

namespace {

Forme LitForme(std::istream& mots) {
    static const char* const genres[] = {"pave", "eleve", "retour", "cylindre", "boule"};
    std::string genre;
    mots >> genre;
    const auto rang = std::find(genres, genres + 5, genre) - genres;
    if (rang == 5) ADD_FAILURE() << "no body " << genre;
    Forme forme{static_cast<Forme::Genre>(rang), {}, 0.0, 0.0, 0.0, 0};
    mots >> forme.Position >> forme.A;
    if (forme.Quoi < Forme::Cylindre) mots >> forme.B;
    if (forme.Quoi != Forme::Boule) mots >> forme.H;
    mots >> forme.Couleur >> forme.Alpha >> forme.Beta >> forme.Gamma;
    return forme;
}

/// How many pixels differ by more than rounding.
int Differents(const Capture& une, const Capture& autre) {
    int nombre = 0;
    for (int y = 0; y < une.Image->get_height(); ++y)
        for (int x = 0; x < une.Image->get_width(); ++x) {
            const auto a = static_cast<int>(une.Pixel(x, y));
            const auto b = static_cast<int>(autre.Pixel(x, y));
            const auto ecart = [a, b](int rang) {
                return std::abs((a >> rang & 255) - (b >> rang & 255)) > 2;
            };
            nombre += ecart(0) || ecart(8) || ecart(16);
        }
    return nombre;
}

}  // namespace

std::vector<CasEcrit> CasDe(const std::string& nom) {
    std::ifstream fichier(std::string(KRVEK_ESSAIS "/") + nom);
    std::vector<CasEcrit> cas;
    for (std::string ligne; std::getline(fichier, ligne);) {
        std::istringstream mots(ligne);
        std::string mot;
        if (!(mots >> mot) || mot[0] == '#') continue;
        if (mot == "cas")
            mots >> cas.emplace_back().Nom >> cas.back().Cote;
        else
            cas.back().Lignes.push_back(ligne);
    }
    return cas;
}

Scenario::Scenario(const CasEcrit& cas) : Cas(cas), Banc(cas.Cote) {
    ApprendLaScene();
    ApprendLesGestes();
    ApprendLesQuestions();
}

void Scenario::Joue() {
    for (std::string ligne : Cas.Lignes) {
        Attendu = Attente(ligne);
        EXPECT_EQ(Fait(ligne), Attendu) << Cas.Nom << ": " << ligne;
    }
}

std::string Scenario::Fait(const std::string& ligne) {
    std::istringstream mots(ligne);
    std::string mot;
    mots >> mot;
    const auto fait = Table.find(mot);
    return fait == Table.end() ? "no word " + mot : fait->second(mots);
}

void Scenario::Apprend(const char* mot, const std::function<void(Mots&)>& fait) {
    Table[mot] = [fait](Mots& mots) { return fait(mots), std::string(); };
}

void Scenario::ApprendLaScene() {
    Apprend("corps", [this](Mots& mots) { Corps(mots); });
    Apprend("trou", [this](Mots& mots) { Enfant(mots, Role::Trou); });
    Apprend("poche", [this](Mots& mots) { Enfant(mots, Role::Poche); });
    Apprend("enveloppe", [this](Mots& mots) { Enfant(mots, Role::Enveloppe); });
    Apprend("forme", [this](Mots& mots) { Scene.push_back({LitForme(mots)}); });
    Apprend("perce", [this](Mots& mots) {
        Scene.back().Enleves.push_back({LitForme(mots), true});
    });
    Apprend("suite", [this](Mots& mots) { Scene.back().Suite.push_back(LitForme(mots)); });
    Apprend("parpasses", [this](Mots&) { Scene.back().ParPasses = true; });
    Apprend("elt", [this](Mots& mots) { Elt = PoseRecord(LitRecord(mots)); });
    Apprend("fils", [this](Mots& mots) { PoseRecord(LitRecord(mots), Elt); });
    Apprend("groupe", [this](Mots& mots) { Groupe(mots); });
    Apprend("image", [](Mots& mots) {
        std::string nom;
        int largeur = 0;
        std::vector<int> teintes;
        mots >> nom >> largeur;
        for (int teinte; mots >> teinte;)
            teintes.push_back(teinte);
        ImageDeTeintes(nom, largeur, teintes);
    });
}

void Scenario::ApprendLesGestes() {
    Apprend("regarde", [this](Mots& mots) {
        const PointVek angles = LitPoint(mots);
        Oeil = Banc.Regarde(static_cast<int>(angles.x), static_cast<int>(angles.y),
                            static_cast<int>(angles.z));
    });
    Apprend("vue", [this](Mots& mots) {
        mots >> Oeil.Alpha >> Oeil.Beta >> Oeil.Gamma;
        Oeil.Translation = {};
        Oeil.Avance({0.0, 0.0, -300.0});
    });
    Apprend("avance", [this](Mots& mots) { Oeil.Avance(LitPoint(mots)); });
    Apprend("vues", [this](Mots& mots) { Vues(mots); });
    Apprend("accord", [this](Mots&) { Accorde(""); });
    Apprend("frappe", [this](Mots& mots) { Frappe(mots); });
    Apprend("roule", [this](Mots& mots) {
        std::string sens;
        int fois = 1;
        unsigned etat = 0;
        mots >> sens >> fois >> etat;
        for (; fois > 0; --fois)
            Banc.Roule(sens == "haut" ? GDK_SCROLL_UP : GDK_SCROLL_DOWN, etat << 8);
    });
    Apprend("pixel", [this](Mots& mots) {
        const PointVek p = LitPoint(mots);
        Banc.Bouge(p.x, p.y, static_cast<unsigned>(p.z) << 8);
    });
    Apprend("presse", [this](Mots& mots) {
        const PointVek p = LitPoint(mots);
        Banc.Clique(p.x, p.y);
    });
    Apprend("vise", [this](Mots& mots) {
        const PointVek p = Pixel(LitPoint(mots));
        Banc.Bouge(p.x, p.y);
    });
    Apprend("clique", [this](Mots& mots) {
        const PointVek p = Pixel(LitPoint(mots));
        Banc.Clique(p.x, p.y);
    });
    Apprend("choisit", [this](Mots& mots) {
        std::string action;
        mots >> action;
        Banc.Choisit(action);
    });
    Apprend("repond", [](Mots& mots) {
        std::string reponse;
        mots >> reponse;
        RepondDialogue(reponse == "oui" ? Gtk::RESPONSE_OK : Gtk::RESPONSE_CANCEL);
    });
    Apprend("montre", [this](Mots&) { Banc.Fenetre.show(); });
    Apprend("garde", [this](Mots&) { Gardee = std::make_unique<Capture>(Banc.Image()); });
    Apprend("annule", [](Mots&) { BddCourante.Annule(); });
    Apprend("vide", [](Mots&) { BddCourante.Vide(); });
}

void Scenario::ApprendLesQuestions() {
    Table["menu"] = [this](Mots&) -> std::string {
        return Banc.MenuOuvert("Prop") ? "element" : Banc.MenuOuvert("VueFace") ? "vue" : "aucun";
    };
    Table["elements"] = [](Mots&) { return std::to_string(BddCourante.Elements.Nombre()); };
    Table["editions"] = [this](Mots&) { return std::to_string(Banc.Editions); };
    Table["lieu"] = [this](Mots&) { return Dit(Elt->Position); };
    Table["axe"] = [this](Mots&) { return Dit(Elt->GetElt3d()->PointAxe()); };
    Table["angles"] = [this](Mots&) {
        const Elt3d& solide = *Elt->GetElt3d();
        return Dit({solide.alpha, solide.beta, solide.gamma});
    };
    Table["coins"] = [this](Mots&) {
        const auto& pave = static_cast<const EltPave&>(*Elt);
        return Dit(pave.Origine) + ", " + Dit(pave.Extremite);
    };
    Table["teintes"] = [this](Mots& mots) {
        const Capture image = Banc.Image();
        return PourChaque(mots, [&](const PointVek& p) {
            return std::to_string(
                Teinte(image.Pixel(static_cast<int>(p.x), static_cast<int>(p.y))));
        });
    };
    Table["fil"] = [this](Mots& mots) {
        const Capture image = Banc.Image();
        return PourChaque(
            mots, [&](const PointVek& p) { return std::string(EstBlanc(image, p) ? "1" : "0"); });
    };
    // But for rounding, and some pixels at edges.
    Table["pareil"] = [this](Mots&) -> std::string {
        return Differents(*Gardee, Banc.Image()) < 40 ? "oui" : "non";
    };
    Table["visible"] = [this](Mots&) { return std::to_string(Banc.Fenetre.get_visible()); };
    Table["couleur"] = [this](Mots& mots) { return Couleur(mots); };
}

void Scenario::Corps(Mots& mots) {
    Scene.push_back({LitForme(mots)});
    Elt = Pose(Scene.back().Corps);
}

void Scenario::Enfant(Mots& mots, Role role) {
    const Forme forme = LitForme(mots);
    Solide& solide = Scene.back();
    Pose(forme, role, Elt);
    if (role != Role::Enveloppe) {
        if (solide.Enleves.empty()) solide.Avant = solide.Enveloppes.size();
        solide.Enleves.push_back({forme, role == Role::Trou});
    } else {
        solide.Enveloppes.push_back(forme);
    }
}

/// All that was drawn before becomes a group of that name.
void Scenario::Groupe(Mots& mots) {
    std::string nom;
    mots >> nom;
    auto groupe = std::make_unique<EltBDD>();
    groupe->CopieListe(BddCourante);
    groupe->SetIdentificateur(nom);
    BddCourante.Vide();
    BddCourante.AjouteFin(std::move(groupe));
}

void Scenario::Accorde(const std::string& suite) {
    // The pointer is none of the bodies, nor the points at their positions.
    Banc.Bouge(-50.0, -50.0);
    ExigeRayons(Scene, Oeil, Banc.Image(), Cas.Nom + suite);
}

/// Looks from above and below, from each side, straight and oblique.
void Scenario::Vues(Mots& mots) {
    static const int obliques[][3] = {{0, 0, 0},     {0, 0, 180},   {0, 25, 35},
                                      {20, -40, 50}, {45, 150, 20}, {-30, -120, 60}};
    int nombre = 6;
    mots >> nombre;
    for (const auto& v : obliques) {
        Oeil = Banc.Regarde(v[0], v[1], v[2]);
        Accorde('_' + std::to_string(v[1]) + '_' + std::to_string(v[2]));
        if (--nombre == 0) break;
    }
}

void Scenario::Frappe(Mots& mots) {
    std::string touche, mot;
    unsigned etat = 0;
    int fois = 1;
    mots >> touche;
    while (mots >> mot)
        if (mot == "maj")
            etat |= GDK_SHIFT_MASK;
        else if (mot == "ctrl")
            etat |= GDK_CONTROL_MASK;
        else
            fois = std::stoi(mot);
    for (; fois > 0; --fois)
        Banc.Frappe(gdk_keyval_from_name(touche.c_str()), etat);
}

std::string Scenario::PourChaque(Mots& mots,
                                 const std::function<std::string(const PointVek&)>& dit) {
    std::string reponse;
    for (PointVek p; mots >> p; mots.ignore(1, ','))
        reponse += (reponse.empty() ? "" : " ") + dit(Pixel(p));
    return reponse;
}

std::string Scenario::Couleur(Mots& mots) {
    const PointVek p = Pixel(LitPoint(mots));
    const unsigned vue = Banc.Image().Pixel(static_cast<int>(p.x), static_cast<int>(p.y));
    std::istringstream attendus(Attendu);
    bool juste = true;
    for (int decalage = 16; decalage >= 0; decalage -= 8) {
        int attendu = 0;
        attendus >> attendu;
        juste = juste && std::abs(static_cast<int>(vue >> decalage & 255) - attendu) <= 2;
    }
    return juste ? Attendu : Dit({1.0 * (vue >> 16), 1.0 * (vue >> 8 & 255), 1.0 * (vue & 255)});
}

bool Scenario::EstBlanc(const Capture& image, const PointVek& pixel) {
    for (int i = 0; i < 9; ++i)
        if (image.Pixel(static_cast<int>(pixel.x) - 1 + i % 3,
                        static_cast<int>(pixel.y) - 1 + i / 3) == 0xffffff)
            return true;
    return false;
}
