#pragma once

#include <string>

class BDDGeo;

// Both replace the drawing by that of an older file, silently: what cannot be read leaves an empty
// or partly read one. It bears the file's name, but the next save asks for another, so that the old
// file is never written over.

/// Reads a text of VERSION1.0 to VERSION2.3.
void ImporteVek(BDDGeo& bdd, std::string nom);

/// Reads a .ve9 file: bytes of another kind, then a text of VERSION2.3.
void ImporteVe9(BDDGeo& bdd, std::string nom);
