#pragma once

#include <string>
#include <vector>

// The least that reading and writing a text can cost.

/// Every number of a text, in order, each converted once.
std::vector<double> Nombres(const std::string& texte);

/// Writes each number once into a buffer of 16 bytes a number.
void EcritNombres(const std::vector<double>& nombres, std::vector<char>& tampon);
