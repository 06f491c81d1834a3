#pragma once

#include <string>

#include "commun/hasard.h"

/// The text of a file after one to four faults: bits, cuts, lines twice, odd numbers.
std::string Mute(std::string texte, Hasard& hasard);
