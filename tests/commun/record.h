#pragma once

#include <string>

class EltGeo;
struct BilanLecture;

/// What a file keeps of an element.
std::string Record(const EltGeo& elt);

/// Its last line.
std::string DerniereLigne(const EltGeo& elt);

/// What was read of what is announced, whether to the end, and what was left out.
std::string Resume(const BilanLecture& bilan);

/// The text with what fits the regular expression replaced throughout.
std::string Remplace(const std::string& texte, const char* motif, const char* par);

/// The bytes of a file.
std::string Contenu(const std::string& chemin);

/// Fails where vu is not what the file of that name under the folder of the tests holds, and names
/// the first line that differs; what was seen then lies among the pictures of the build.
void ExigeFichier(const std::string& nom, const std::string& vu);
