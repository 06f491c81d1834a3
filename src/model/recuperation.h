#pragma once

#include <cstdint>
#include <ctime>
#include <memory>
#include <string>
#include <vector>

class BDDGeo;

/// A copy of a drawing that was not saved, as a list shows it.
struct CopieSecours {
    std::string Fichier;  ///< Where the copy is.
    std::string Nom;      ///< The file that the drawing was to go to; empty for none.
    std::string Raison;   ///< Why it was kept, in French.
    std::time_t Date = 0;
    int Elements = -1;          ///< How many it holds; -1 when the copy does not say.
    std::uintmax_t Taille = 0;  ///< Of the copy, in bytes.
};

/// The net under the work: copies of what is not saved, in a folder of the user's that nobody else
/// reads. The drawing's running copy is written anew while it goes on, and taken away once the
/// drawing is saved; it stays behind when the program ends in disorder. Others are kept when a
/// drawing that is not saved is replaced or given up: the newest of them, up to `NombreMax` and
/// `TailleMax`.
///
/// A copy is the text of a drawing, with what a list shows behind it; it is written whole and then
/// renamed. Several programs may use one folder: each locks its running copy for as long as it
/// lives.
class Recuperation {
  public:
    static constexpr std::size_t NombreMax = 30;
    static constexpr std::uintmax_t TailleMax = 500'000'000;  ///< Bytes.

    /// bdd: the drawing to keep, to outlive this. The folder is made when it is first needed.
    Recuperation(const BDDGeo& bdd, std::string dossier);
    ~Recuperation();
    Recuperation(const Recuperation&) = delete;
    Recuperation& operator=(const Recuperation&) = delete;

    /// After an event: writes the running copy where there is something new, and its price is small
    /// beside the time since the last one. False when it could not be written.
    bool Passe();

    /// Writes it now where there is something new. False when it could not be written.
    bool Ecrit(const char* raison);

    /// Whether the running copy says all that is not saved.
    bool AJour() const;

    /// The drawing is about to be replaced or given up: what is not saved of it stays as a copy
    /// beside the running ones, once for each state of it. False when it should and could not; then
    /// the running copy stays as one of them.
    bool Garde(const char* raison);

    /// The drawing is on disk, or was given up knowingly: takes the running copy away.
    void Oublie();

    /// The drawing has been taken back from that copy, which says all of it until it changes.
    void Reprend(const CopieSecours& copie);

    /// The drawing has been saved: neither the running copy nor the one that it was taken back from
    /// is of use any more.
    void Enregistre();

    /// The running copies that earlier runs have left behind, the newest first, and of very many
    /// the newest alone. They are this
    /// program's then, and no other one's, until `RangeOrphelines`.
    std::vector<CopieSecours> Orphelines();

    /// Puts those that are still there among the kept ones.
    void RangeOrphelines();

    /// All kept copies, the newest first.
    std::vector<CopieSecours> Gardees() const;

    /// Whether there are others than the one that the drawing was taken back from.
    bool EnGardeDAutres() const;

    /// The text of the drawing in a copy; empty when it cannot be read.
    static std::string Texte(const CopieSecours& copie);

    /// Takes a copy away for good.
    static void Jette(const CopieSecours& copie);

    /// Least time from one running copy to the next, in seconds.
    double Intervalle = 10.0;

  private:
    struct Verrou;

    bool PrepareDossier();
    bool PrendVerrou();
    bool EcritVers(const std::string& chemin, const char* raison);
    std::string NomNeuf() const;

    /// Takes away the locks whose programs and copies are gone.
    void OteVieuxVerrous() const;

    /// Keeps the newest copies only.
    void Elague() const;

    const BDDGeo& Bdd;
    const std::string Dossier;
    std::string EnCours;           ///< The running copy; empty before it was first written.
    std::unique_ptr<Verrou> Mien;  ///< Its lock.
    std::vector<std::unique_ptr<Verrou>> Adoptees;  ///< Those of the copies left behind.
    unsigned long DerniersChangements = 0;          ///< The drawing's count at the last copy.
    bool DejaEcrit = false;
    unsigned long ChangementsGardes = 0;  ///< The drawing's count at the last kept copy; 0: none.
    std::string Source;                   ///< The copy that the drawing was taken back from.
    double DerniereFin = 0.0;             ///< Seconds on a clock that never goes back.
    double DerniereDuree = 0.0;           ///< What the last copy took, in seconds.
};
