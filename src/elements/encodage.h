#pragma once

#include <glibmm/ustring.h>

#include <string_view>

/// The text as valid UTF-8: as it is where it already is, else taken as Windows-1252.
Glib::ustring EnUtf8(std::string_view texte);

/// The text on one line: a blank for each control character.
Glib::ustring EnLigne(const Glib::ustring& texte);
