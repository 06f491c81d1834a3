#include "model/recuperation.h"

#include <fcntl.h>
#include <glib.h>
#include <glibmm/miscutils.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <utility>

#include "elements/ecrivain.h"
#include "model/bddgeo.h"
#include "model/fichier.h"

namespace fs = std::filesystem;

namespace {

const std::string DebutEnCours = "encours-", DebutGardee = "copie-", Suffixe = ".vek",
                  SuffixeVerrou = ".verrou";

/// Opens what is said of a drawing, behind its text.
const std::string Marque = "\n#copie de secours\n";

/// More than what is said of a drawing can take, in bytes.
constexpr std::size_t LongueurFiche = 32768;

/// How many times what the last copy took must have gone by before the next one: the net costs one
/// part in so many.
constexpr double PartDuTemps = 50.0;

double Instant() {
    return static_cast<double>(g_get_monotonic_time()) * 1e-6;
}

bool Entoure(const std::string& nom, const std::string& debut, const std::string& fin) {
    return nom.size() > debut.size() + fin.size() && nom.compare(0, debut.size(), debut) == 0 &&
           nom.compare(nom.size() - fin.size(), fin.size(), fin) == 0;
}

/// Whether what stands between the two is what this program puts there: two numbers.
bool EstNotre(const std::string& nom, const std::string& debut, const std::string& fin) {
    if (!Entoure(nom, debut, fin)) return false;
    constexpr std::size_t chiffresMax = 18;  // More would not fit into a number.
    const std::string mot = nom.substr(debut.size(), nom.size() - debut.size() - fin.size());
    const std::size_t tiret = mot.find('-');
    return tiret != 0 && tiret <= chiffresMax && tiret + 1 < mot.size() &&
           mot.find_first_not_of("0123456789", tiret + 1) == std::string::npos &&
           mot.find_first_not_of("0123456789") == tiret;
}

/// The plain files of the folder, of this program's making, whose names begin and end so.
std::vector<fs::path> Fichiers(const std::string& dossier, const std::string& debut,
                               const std::string& fin) {
    std::vector<fs::path> trouves;
    std::error_code erreur;
    for (fs::directory_iterator entree(dossier, erreur), bout; !erreur && entree != bout;
         entree.increment(erreur)) {
        std::error_code genre;
        if (EstNotre(entree->path().filename().string(), debut, fin) &&
            entree->symlink_status(genre).type() == fs::file_type::regular)
            trouves.push_back(entree->path());
    }
    return trouves;
}

/// The number that the name of a kept copy bears; 0 for none.
unsigned long Numero(const fs::path& copie) {
    return std::strtoul(copie.filename().c_str() + DebutGardee.size(), nullptr, 10);
}

/// Any bytes as one word of plain letters, and back.
std::string EnMot(const std::string& octets) {
    static const char chiffres[] = "0123456789abcdef";
    std::string mot = "x";
    for (const unsigned char c : octets) {
        mot += chiffres[c >> 4];
        mot += chiffres[c & 15];
    }
    return mot;
}

std::string DeMot(const char* mot) {
    std::string octets;
    if (*mot == 'x') ++mot;
    for (; g_ascii_isxdigit(mot[0]) && g_ascii_isxdigit(mot[1]); mot += 2)
        octets +=
            static_cast<char>(g_ascii_xdigit_value(mot[0]) << 4 | g_ascii_xdigit_value(mot[1]));
    return octets;
}

std::string Fiche(const CopieSecours& copie) {
    return Marque + "date " + std::to_string(copie.Date) + "\nelements " +
           std::to_string(copie.Elements) + "\nraison " + EnMot(copie.Raison) + "\nnom " +
           EnMot(copie.Nom) + "\n";
}

/// The last bytes of a file; empty when it cannot be read.
std::string Queue(const fs::path& chemin) {
    std::string queue;
    FILE* const fichier = std::fopen(chemin.c_str(), "rbe");
    if (!fichier) return queue;
    if (std::fseek(fichier, -static_cast<long>(LongueurFiche), SEEK_END) != 0) std::rewind(fichier);
    queue.resize(LongueurFiche);
    queue.resize(std::fread(queue.data(), 1, queue.size(), fichier));
    std::fclose(fichier);
    return queue;
}

/// What the file says of itself; what it lacks stays unsaid.
CopieSecours Decrit(const fs::path& chemin) {
    CopieSecours copie;
    copie.Fichier = chemin.string();
    struct stat etat = {};
    if (stat(chemin.c_str(), &etat) == 0) {
        copie.Date = etat.st_mtime;
        copie.Taille = static_cast<std::uintmax_t>(etat.st_size);
    }
    const std::string queue = Queue(chemin);
    const std::size_t marque = queue.rfind(Marque);
    if (marque == std::string::npos) return copie;
    const auto valeur = [&](const char* cle) -> const char* {
        const std::size_t place = queue.find(std::string("\n") + cle + ' ', marque);
        return place == std::string::npos ? "" : queue.c_str() + place + std::strlen(cle) + 2;
    };
    if (const long long date = std::atoll(valeur("date"))) copie.Date = date;
    if (*valeur("elements")) copie.Elements = std::atoi(valeur("elements"));
    copie.Raison = DeMot(valeur("raison"));
    copie.Nom = DeMot(valeur("nom"));
    return copie;
}

}  // namespace

/// A file that this program alone has locked; the lock goes with the program, however it ends.
struct Recuperation::Verrou {
    Verrou(std::string chemin, std::string copie)
        : Chemin(std::move(chemin)),
          Copie(std::move(copie)),
          Numero(open(Chemin.c_str(), O_RDONLY | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600)) {
        if (Numero >= 0 && flock(Numero, LOCK_EX | LOCK_NB) != 0) {
            close(Numero);
            Numero = -1;
        }
    }
    Verrou(const Verrou&) = delete;
    Verrou& operator=(const Verrou&) = delete;
    ~Verrou() {
        if (Numero >= 0) close(Numero);
    }

    bool Pris() const { return Numero >= 0; }

    /// Whether the file that is locked still stands there: the folder may have been emptied.
    bool Tient() const {
        struct stat mien = {}, la = {};
        return fstat(Numero, &mien) == 0 && stat(Chemin.c_str(), &la) == 0 &&
               mien.st_ino == la.st_ino && mien.st_dev == la.st_dev;
    }

    /// The copy is gone: so is its lock.
    void Leve() const { unlink(Chemin.c_str()); }

    const std::string Chemin;
    const std::string Copie;
    int Numero;
};

Recuperation::Recuperation(const BDDGeo& bdd, std::string dossier)
    : Bdd(bdd), Dossier(std::move(dossier)) {}

Recuperation::~Recuperation() {
    if (Mien && !DejaEcrit) Mien->Leve();
}

bool Recuperation::PrepareDossier() {
    return g_mkdir_with_parents(Dossier.c_str(), 0700) == 0;
}

bool Recuperation::PrendVerrou() {
    if (Mien && Mien->Tient()) return true;
    DejaEcrit = false;
    const std::string base = (fs::path(Dossier) / DebutEnCours).string() +
                             std::to_string(getpid()) + "-" + std::to_string(g_random_int());
    auto verrou = std::make_unique<Verrou>(base + SuffixeVerrou, base + Suffixe);
    if (!verrou->Pris()) return false;
    EnCours = verrou->Copie;
    Mien = std::move(verrou);
    return true;
}

bool Recuperation::EcritVers(const std::string& chemin, const char* raison) {
    CopieSecours copie;
    copie.Nom = Bdd.NomFichier;
    if (!copie.Nom.empty() && !g_path_is_absolute(copie.Nom.c_str()))
        copie.Nom = Glib::build_filename(Glib::get_current_dir(), copie.Nom);
    copie.Raison = raison;
    copie.Date = std::time(nullptr);
    copie.Elements = Bdd.Elements.Nombre();
    Ecrivain sortie;
    Bdd.Ecrit(sortie);
    // The folder is closed to others; so is what is written into it.
    const mode_t masque = umask(0077);
    const bool ecrit = EcritFichier(chemin, sortie.Texte() + Fiche(copie));
    umask(masque);
    return ecrit;
}

bool Recuperation::AJour() const {
    return !Bdd.AEnregistrer() || (DejaEcrit && DerniersChangements == Bdd.Changements());
}

bool Recuperation::Passe() {
    if (AJour()) return true;
    const double attente = std::max(Intervalle, PartDuTemps * DerniereDuree);
    if (DerniereFin > 0.0 && Instant() - DerniereFin < attente) return true;
    return Ecrit("Travail non enregistré");
}

bool Recuperation::Ecrit(const char* raison) {
    if (AJour()) return true;
    const double debut = Instant();
    const bool ecrit = PrepareDossier() && PrendVerrou() && EcritVers(EnCours, raison);
    DerniereFin = Instant();
    DerniereDuree = DerniereFin - debut;
    DejaEcrit = DejaEcrit || ecrit;
    if (ecrit) DerniersChangements = Bdd.Changements();
    return ecrit;
}

bool Recuperation::Garde(const char* raison) {
    if (!Bdd.AEnregistrer() || Bdd.Elements.Nombre() == 0) return true;
    if (ChangementsGardes == Bdd.Changements()) return true;
    if (!PrepareDossier() || !EcritVers(NomNeuf(), raison)) {
        // The running copy is not as new, and better than none.
        if (DejaEcrit && std::rename(EnCours.c_str(), NomNeuf().c_str()) == 0) DejaEcrit = false;
        return false;
    }
    ChangementsGardes = Bdd.Changements();
    Elague();
    return true;
}

void Recuperation::Oublie() {
    if (DejaEcrit) unlink(EnCours.c_str());
    DejaEcrit = false;
    Source.clear();
}

void Recuperation::Reprend(const CopieSecours& copie) {
    Source = copie.Fichier;
    ChangementsGardes = Bdd.Changements();
}

void Recuperation::Enregistre() {
    if (!Source.empty()) unlink(Source.c_str());
    Oublie();
}

std::string Recuperation::NomNeuf() const {
    unsigned long numero = 0;
    for (const fs::path& copie : Fichiers(Dossier, DebutGardee, Suffixe))
        numero = std::max(numero, Numero(copie));
    char mot[64];
    std::snprintf(mot, sizeof mot, "%09lu-%d", numero + 1, static_cast<int>(getpid()));
    return (fs::path(Dossier) / (DebutGardee + mot + Suffixe)).string();
}

void Recuperation::Elague() const {
    std::vector<fs::path> copies = Fichiers(Dossier, DebutGardee, Suffixe);
    // By their numbers: the clock may have been set back.
    std::sort(copies.begin(), copies.end(),
              [](const fs::path& a, const fs::path& b) { return Numero(a) > Numero(b); });
    std::uintmax_t taille = 0;
    std::error_code erreur;
    for (std::size_t rang = 0; rang < copies.size(); ++rang) {
        std::uintmax_t sienne = fs::file_size(copies[rang], erreur);
        if (erreur) sienne = 0;
        // The newest stays, however large; one that is too large does not drive out the others.
        if (rang > 0 && (rang >= NombreMax || taille + sienne > TailleMax))
            fs::remove(copies[rang], erreur);
        else if (sienne <= TailleMax)
            taille += sienne;
    }
}

void Recuperation::OteVieuxVerrous() const {
    constexpr auto vieux = std::chrono::minutes(1);  // A newer one is perhaps being made.
    for (const fs::path& verrou : Fichiers(Dossier, DebutEnCours, SuffixeVerrou)) {
        fs::path copie = verrou;
        std::error_code erreur;
        const auto date = fs::last_write_time(verrou, erreur);
        if (erreur || fs::exists(copie.replace_extension(Suffixe), erreur)) continue;
        if (fs::file_time_type::clock::now() - date < vieux) continue;
        const Verrou libre(verrou.string(), copie.string());
        if (libre.Pris()) libre.Leve();
    }
}

std::vector<CopieSecours> Recuperation::Orphelines() {
    OteVieuxVerrous();
    std::vector<CopieSecours> orphelines;
    for (const fs::path& copie : Fichiers(Dossier, DebutEnCours, Suffixe))
        if (copie != EnCours) orphelines.push_back(Decrit(copie));
    std::sort(orphelines.begin(), orphelines.end(),
              [](const CopieSecours& a, const CopieSecours& b) { return a.Date > b.Date; });
    constexpr std::size_t adopteesMax = 2 * NombreMax;  // Each holds a file open.
    std::vector<CopieSecours> prises;
    for (CopieSecours& orpheline : orphelines) {
        if (prises.size() == adopteesMax) break;
        fs::path cle = orpheline.Fichier;
        auto verrou = std::make_unique<Verrou>(cle.replace_extension(SuffixeVerrou).string(),
                                               orpheline.Fichier);
        if (!verrou->Pris()) continue;
        Adoptees.push_back(std::move(verrou));
        prises.push_back(std::move(orpheline));
    }
    return prises;
}

void Recuperation::RangeOrphelines() {
    // The newest comes first among them, and gets the highest number.
    for (auto verrou = Adoptees.rbegin(); verrou != Adoptees.rend(); ++verrou) {
        const std::string nom = NomNeuf();
        // It may have been thrown away.
        std::rename((*verrou)->Copie.c_str(), nom.c_str());
        if (Source == (*verrou)->Copie) Source = nom;
        (*verrou)->Leve();
    }
    Adoptees.clear();
    Elague();
}

std::vector<CopieSecours> Recuperation::Gardees() const {
    std::vector<fs::path> fichiers = Fichiers(Dossier, DebutGardee, Suffixe);
    std::sort(fichiers.begin(), fichiers.end(),
              [](const fs::path& a, const fs::path& b) { return Numero(a) > Numero(b); });
    std::vector<CopieSecours> copies;
    for (const fs::path& fichier : fichiers)
        copies.push_back(Decrit(fichier));
    return copies;
}

bool Recuperation::EnGardeDAutres() const {
    const std::vector<fs::path> copies = Fichiers(Dossier, DebutGardee, Suffixe);
    return std::any_of(copies.begin(), copies.end(),
                       [this](const fs::path& copie) { return copie != Source; });
}

std::string Recuperation::Texte(const CopieSecours& copie) {
    std::string texte;
    LitFichier(copie.Fichier, texte);
    const std::size_t marque = texte.rfind(Marque);
    if (marque != std::string::npos) texte.resize(marque);
    return texte;
}

void Recuperation::Jette(const CopieSecours& copie) {
    unlink(copie.Fichier.c_str());
}
