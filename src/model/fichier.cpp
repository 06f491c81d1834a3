#include "model/fichier.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <new>
#include <utility>
#include <vector>

namespace {

/// Larger than any drawing, in bytes: a file without end must not take all the memory.
constexpr off_t TailleMax = off_t{1} << 30;

/// An open file descriptor, closed with its owner.
class Descripteur {
  public:
    explicit Descripteur(int numero) : Numero(numero) {}
    ~Descripteur() { Ferme(); }
    Descripteur(const Descripteur&) = delete;
    Descripteur& operator=(const Descripteur&) = delete;

    bool Ouvert() const { return Numero >= 0; }
    int operator*() const { return Numero; }

    bool Ferme() {
        const int numero = std::exchange(Numero, -1);
        return numero < 0 || close(numero) == 0;
    }

  private:
    int Numero;
};

bool EcritTout(int numero, std::string_view contenu) {
    while (!contenu.empty()) {
        const ssize_t ecrit = write(numero, contenu.data(), contenu.size());
        if (ecrit < 0 && errno == EINTR) continue;
        if (ecrit <= 0) return false;
        contenu.remove_prefix(static_cast<std::size_t>(ecrit));
    }
    return true;
}

bool EcritEtFerme(Descripteur& fichier, std::string_view contenu) {
    if (!EcritTout(*fichier, contenu)) return false;
    // Some file systems know no flush.
    const bool vide =
        fsync(*fichier) == 0 || errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP;
    return vide && fichier.Ferme();
}

/// Makes the file hold the content and nothing else.
bool Remplit(int numero, std::string_view contenu) {
    return lseek(numero, 0, SEEK_SET) == 0 && EcritTout(numero, contenu) &&
           ftruncate(numero, static_cast<off_t>(contenu.size())) == 0;
}

/// Asks for the room that the content needs, before any of the former one is touched.
bool Reserve(int numero, std::size_t taille) {
    const int erreur = taille ? posix_fallocate(numero, 0, static_cast<off_t>(taille)) : 0;
    if (erreur == 0 || erreur == EINVAL || erreur == EOPNOTSUPP) return true;
    errno = erreur;
    return false;
}

/// A regular file that cannot take the content keeps its former one.
bool EcritSurPlace(const std::string& chemin, std::string_view contenu) {
    // Without blocking, or a pipe that nobody reads would never open.
    Descripteur fichier(open(chemin.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | O_NONBLOCK, 0666));
    struct stat etat = {};
    if (!fichier.Ouvert() || fstat(*fichier, &etat) != 0) return false;
    if (!S_ISREG(etat.st_mode)) {
        // A device or a pipe would swallow the work.
        errno = EINVAL;
        return false;
    }
    std::string ancien;
    const bool connu = LitFichier(chemin, ancien);
    if (Reserve(*fichier, contenu.size()) && Remplit(*fichier, contenu) && fichier.Ferme())
        return true;
    const int erreur = errno;
    [[maybe_unused]] const bool rendu = fichier.Ouvert() && connu && Remplit(*fichier, ancien);
    errno = erreur;
    return false;
}

/// What renaming over the file would lose: it is no plain file, or other names lead to it, or it
/// may not be written.
bool RenommageInterdit(const std::string& chemin, const struct stat& ancien) {
    return !S_ISREG(ancien.st_mode) || ancien.st_nlink > 1 || access(chemin.c_str(), W_OK) != 0;
}

/// Whether a new file was refused by the folder itself, and not for want of room.
bool DossierFerme(int erreur) {
    return erreur == EACCES || erreur == EPERM || erreur == EROFS || erreur == ENAMETOOLONG;
}

/// Takes away what could not be finished; errno stays that of the failure.
void Abandonne(const char* provisoire) {
    const int erreur = errno;
    unlink(provisoire);
    errno = erreur;
}

/// The file that a name leads to, through links and links of links.
std::string SansLien(std::string chemin) {
    namespace fs = std::filesystem;
    constexpr int sautsMax = 40;  // A loop of links is left to the opening, which refuses it.
    std::error_code erreur;
    for (int saut = 0; saut < sautsMax && fs::is_symlink(chemin, erreur); ++saut) {
        const fs::path cible = fs::read_symlink(chemin, erreur);
        if (erreur) break;
        chemin = (fs::path(chemin).parent_path() / cible).string();
    }
    return chemin;
}

/// Why a file could not be opened.
BilanLecture::Etat Raison(int erreur) {
    switch (erreur) {
        case ENOENT:
        case ENOTDIR:
            return BilanLecture::Absent;
        case EACCES:
        case EPERM:
            return BilanLecture::SansDroit;
        default:
            return BilanLecture::Illisible;
    }
}

enum class Issue { Ecrit, Echec, Impossible };

Issue EcritACote(const std::string& chemin, std::string_view contenu) {
    struct stat ancien = {};
    const bool existe = lstat(chemin.c_str(), &ancien) == 0;
    if (existe && RenommageInterdit(chemin, ancien)) return Issue::Impossible;

    const std::string modele = chemin + ".XXXXXX";
    std::vector<char> provisoire(modele.c_str(), modele.c_str() + modele.size() + 1);
    Descripteur fichier(mkstemp(provisoire.data()));
    if (!fichier.Ouvert()) return DossierFerme(errno) ? Issue::Impossible : Issue::Echec;
    const mode_t masque = umask(0);
    umask(masque);
    const mode_t droits = existe ? ancien.st_mode & 07777 : 0666 & ~masque;
    const bool memeProprietaire = !existe ||
                                  (ancien.st_uid == geteuid() && ancien.st_gid == getegid()) ||
                                  fchown(*fichier, ancien.st_uid, ancien.st_gid) == 0;
    if (!memeProprietaire) {
        Abandonne(provisoire.data());
        return Issue::Impossible;
    }
    // A file system without rights of its own refuses them; the content matters more.
    [[maybe_unused]] const int accordes = fchmod(*fichier, droits);
    if (!EcritEtFerme(fichier, contenu)) {
        Abandonne(provisoire.data());
        return Issue::Echec;
    }
    if (std::rename(provisoire.data(), chemin.c_str()) == 0) return Issue::Ecrit;
    Abandonne(provisoire.data());
    return Issue::Impossible;
}

}  // namespace

bool LitFichier(const std::string& chemin, std::string& contenu) {
    return LitFichierOuDit(chemin, contenu) == BilanLecture::Lu;
}

BilanLecture::Etat LitFichierOuDit(const std::string& chemin, std::string& contenu) {
    // Without blocking, or a pipe that nobody feeds would never open.
    Descripteur fichier(open(chemin.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!fichier.Ouvert()) return Raison(errno);
    struct stat etat = {};
    if (fstat(*fichier, &etat) != 0) return BilanLecture::Illisible;
    if (S_ISDIR(etat.st_mode)) return BilanLecture::Dossier;
    if (!S_ISREG(etat.st_mode) || etat.st_size > TailleMax) return BilanLecture::Illisible;
    try {
        contenu.resize(static_cast<std::size_t>(etat.st_size));
    } catch (const std::bad_alloc&) {
        return BilanLecture::Illisible;
    }
    std::size_t lu = 0;
    while (lu < contenu.size()) {
        const ssize_t n = read(*fichier, contenu.data() + lu, contenu.size() - lu);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) break;
        lu += static_cast<std::size_t>(n);
    }
    contenu.resize(lu);
    return BilanLecture::Lu;
}

bool EcritFichier(const std::string& chemin, std::string_view contenu) {
    const std::string fichier = SansLien(chemin);
    const Issue issue = EcritACote(fichier, contenu);
    if (issue == Issue::Impossible) return EcritSurPlace(fichier, contenu);
    return issue == Issue::Ecrit;
}

std::string EtatDuFichier(const std::string& chemin) {
    struct stat etat = {};
    if (stat(chemin.c_str(), &etat) != 0 || !S_ISREG(etat.st_mode)) return {};
    return std::to_string(etat.st_ino) + ' ' + std::to_string(etat.st_size) + ' ' +
           std::to_string(etat.st_mtim.tv_sec) + ' ' + std::to_string(etat.st_mtim.tv_nsec);
}

namespace {

constexpr int NomsMax = 10000;

/// The names that a file may be kept under, one after the other.
std::string NomGarde(const std::string& fichier, int essai) {
    return fichier + (essai ? "~" + std::to_string(essai) + "~" : "~");
}

}  // namespace

std::string NomACote(const std::string& chemin) {
    const std::string fichier = SansLien(chemin);
    struct stat etat = {};
    int essai = 0;
    while (essai < NomsMax && lstat(NomGarde(fichier, essai).c_str(), &etat) == 0)
        ++essai;
    return NomGarde(fichier, essai);
}

std::string GardeACote(const std::string& chemin) {
    const std::string fichier = SansLien(chemin);
    std::string contenu;
    struct stat etat = {};
    if (stat(fichier.c_str(), &etat) != 0 || !LitFichier(fichier, contenu)) return {};
    for (int essai = 0; essai < NomsMax; ++essai) {
        const std::string nom = NomGarde(fichier, essai);
        Descripteur copie(open(nom.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
        if (!copie.Ouvert() && errno == EEXIST) continue;
        if (!copie.Ouvert()) return {};
        // A file system without rights of its own refuses them; the content matters more.
        [[maybe_unused]] const int accordes = fchmod(*copie, etat.st_mode & 07777);
        if (EcritEtFerme(copie, contenu)) return nom;
        Abandonne(nom.c_str());
        return {};
    }
    errno = EEXIST;
    return {};
}
