#pragma once

#include <map>
#include <string>
#include <string_view>

/// What the last reading made of its file.
struct BilanLecture {
    /// Of the file as a whole.
    enum Etat {
        Lu,
        Absent,
        Dossier,
        SansDroit,
        PasUnDessin,  ///< Of another kind, or of a version that is refused.
        Illisible,
    };

    /// Of a file of which nothing could be read.
    static BilanLecture Refus(Etat etat);

    /// Counts things that were left out. A name from a file that is no name of a kind, and one
    /// more after many, counts as that of unknown elements.
    void Laisse(std::string_view genre, int nombre = 1);

    /// Whether the reading was whole and left nothing out.
    bool RienPerdu() const { return Fichier == Lu && Entier && Laisses.empty(); }

    Etat Fichier = Lu;
    int Annonces = -1;   ///< Elements that the file announces; -1: it does not say.
    int Lus = 0;         ///< Elements that came whole into the drawing; a group is one.
    bool Entier = true;  ///< Read to its end without a fault; nothing announced is missing.
    std::map<std::string, int> Laisses;  ///< What was left out, by kind.
};
