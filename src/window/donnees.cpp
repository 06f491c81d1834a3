#include "window/donnees.h"

#include <glibmm/miscutils.h>

#include <filesystem>
#include <vector>

namespace fs = std::filesystem;

namespace {

fs::path Cherche() {
    std::vector<fs::path> dossiers;
    std::error_code erreur;
    const fs::path programme = fs::read_symlink("/proc/self/exe", erreur);
    if (!erreur) {
        const fs::path place = programme.parent_path();
        dossiers = {place / "../data", place / "../../data"};
    }
    dossiers.insert(dossiers.end(), {KRVEK_DONNEES_SOURCES, KRVEK_DONNEES_INSTALLEES});
    // A folder of that name may be anybody's: the help page tells ours.
    for (const fs::path& dossier : dossiers)
        if (fs::exists(dossier / "aide.htm", erreur)) return dossier.lexically_normal();
    return KRVEK_DONNEES_INSTALLEES;
}

}  // namespace

const std::string& DossierDonnees() {
    static const std::string dossier = Cherche().string();
    return dossier;
}

std::string DossierSecours() {
    return Glib::build_filename(Glib::get_user_data_dir(), "krvek", "recuperation");
}
