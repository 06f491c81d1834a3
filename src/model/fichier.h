#pragma once

#include <string>
#include <string_view>

/// The whole content of a regular file; false when it cannot be read.
bool LitFichier(const std::string& chemin, std::string& contenu);

/// Writes the file so that the former one stays whole when the writing cannot finish: beside it,
/// flushed, then renamed. A link, or a file in a folder that takes no new one, is written in place.
/// False when it cannot be written.
bool EcritFichier(const std::string& chemin, std::string_view contenu);
