#pragma once

#include <string>

class EltGeo;

/// What a file keeps of an element.
std::string Record(const EltGeo& elt);

/// Its last line.
std::string DerniereLigne(const EltGeo& elt);

/// The bytes of a file.
std::string Contenu(const std::string& chemin);
