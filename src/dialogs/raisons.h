#pragma once

#include <glibmm/ustring.h>

#include <string>

/// Why the system refused a file, in French; errno's number in, an empty text out where it says
/// nothing to a user.
Glib::ustring Raison(int erreur);

/// A file's own name as it is quoted in a sentence.
Glib::ustring EntreGuillemets(const std::string& fichier);
