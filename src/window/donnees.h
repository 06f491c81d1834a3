#pragma once

#include <string>

/// The folder of the files that come with the program, icons and help: an absolute path. It is
/// sought beside the build tree that the program runs from, then where the program was built from,
/// then where it was installed.
const std::string& DossierDonnees();
