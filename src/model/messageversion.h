#pragma once

#include <string>

/// Tells the user, in a dialog, that a file's version word is not one that can be read.
void MessageVersion(const std::string& mot);
