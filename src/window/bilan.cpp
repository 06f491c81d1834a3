// What is said of a file that has been read.

#include <glibmm/convert.h>

#include <algorithm>
#include <utility>
#include <vector>

#include "dialogs/raisons.h"
#include "model/bddgeo.h"
#include "model/fichier.h"
#include "window/dessinwindow.h"

namespace {

/// The kinds that were left out, as "SPLINE 10, MTEXT 2": the most numerous ones first.
Glib::ustring ParGenre(const std::map<std::string, int>& laisses) {
    std::vector<std::pair<std::string, int>> genres(laisses.begin(), laisses.end());
    std::stable_sort(genres.begin(), genres.end(),
                     [](const auto& a, const auto& b) { return a.second > b.second; });
    constexpr std::size_t genresMax = 8;
    Glib::ustring texte;
    for (std::size_t rang = 0; rang < genres.size() && rang < genresMax; ++rang)
        texte += Glib::ustring::compose("%1%2 %3", rang ? ", " : "", genres[rang].first,
                                        genres[rang].second);
    return genres.size() > genresMax ? texte + "…" : texte;
}

Glib::ustring ElementsLus(const BilanLecture& bilan) {
    Glib::ustring texte =
        Glib::ustring::compose(bilan.Lus > 1 ? "%1 éléments" : "%1 élément", bilan.Lus);
    if (bilan.Annonces > bilan.Lus)
        texte += Glib::ustring::compose(" sur %1 annoncés", bilan.Annonces);
    return texte;
}

/// What the reading was as a whole; empty where there is nothing to say.
Glib::ustring Constat(const BilanLecture& bilan, const Glib::ustring& nom) {
    switch (bilan.Fichier) {
        case BilanLecture::Absent:
            return nom + " n'existe pas.";
        case BilanLecture::Dossier:
            return nom + " est un dossier.";
        case BilanLecture::SansDroit:
            return nom + " : pas le droit de le lire.";
        case BilanLecture::PasUnDessin:
            return nom + " n'est pas un dessin.";
        case BilanLecture::Illisible:
            return nom + " ne peut pas être lu.";
        case BilanLecture::Lu:
            break;
    }
    Glib::ustring texte;
    if (!bilan.Entier) texte = nom + " n'a pu être lu qu'en partie : " + ElementsLus(bilan) + ".";
    int laisses = 0;
    for (const auto& [genre, nombre] : bilan.Laisses)
        laisses += nombre;
    if (laisses == 0) return texte;
    return texte + (texte.empty() ? nom + " : " : Glib::ustring(" ")) +
           Glib::ustring::compose(laisses > 1 ? "%1 entités n'ont pas été reprises (%2)."
                                              : "%1 entité n'a pas été reprise (%2).",
                                  laisses, ParGenre(bilan.Laisses));
}

}  // namespace

void DessinWindow::DitLecture(bool garde) {
    const std::string& fichier = BddCourante.NomFichier;
    Glib::ustring texte =
        Constat(BddCourante.Lecture, fichier.empty() ? "Ce dessin" : EntreGuillemets(fichier));
    if (!texte.empty() && BddCourante.GarderaOriginal())
        texte += " Le premier enregistrement gardera l'original sous " +
                 Glib::filename_display_basename(NomACote(fichier)) + ".";
    std::vector<Bandeau::Issue> issues;
    if (garde) {
        texte = "Le dessin d'avant n'était pas enregistré : une copie est gardée. " + texte;
        issues = {{"Récupérer un dessin…", sigc::mem_fun(*this, &DessinWindow::RecupereDessin)}};
    }
    // What was said of the drawing before is over.
    if (texte.empty())
        Messages.Cache();
    else
        Messages.Dit(texte, issues);
}
