#pragma once

#include <glibmm/ustring.h>

#include <optional>
#include <string>

/// What a typed expression is worth, or why it is worth nothing.
struct Evaluation {
    std::optional<double> Valeur;
    Glib::ustring Faute;  ///< A sentence to the user; empty with a value.
};

/// Numbers with comma or point, + - * / ^, parentheses, pi, and the functions of a pocket
/// calculator; angles are in degrees.
Evaluation Evalue(const std::string& texte);
