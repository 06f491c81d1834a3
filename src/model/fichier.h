#pragma once

#include <string>
#include <string_view>

#include "model/bilanlecture.h"

/// The whole content of a regular file; false when it cannot be read.
bool LitFichier(const std::string& chemin, std::string& contenu);

/// The same, which says why not; `Lu` when it could.
BilanLecture::Etat LitFichierOuDit(const std::string& chemin, std::string& contenu);

/// Writes the file, or the one that a link leads to, so that the former one stays whole when the
/// writing cannot finish: beside it, flushed, then renamed. One with several names, of another
/// owner, or in a folder that takes no new one, is written in place, once there is room for all.
/// False when it cannot be written; errno says why.
bool EcritFichier(const std::string& chemin, std::string_view contenu);

/// Tells one state of a file from another, whoever wrote it; empty for what is no file.
std::string EtatDuFichier(const std::string& chemin);

/// The name that `GardeACote` would take now.
std::string NomACote(const std::string& chemin);

/// Copies the file, or the one that a link leads to, to its name with a tilde behind, never over an
/// existing one, with the same rights. The name of the copy; empty when it cannot be made; errno
/// says why.
std::string GardeACote(const std::string& chemin);
