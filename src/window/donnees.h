#pragma once

#include <string>

/// The folder of the files that come with the program, icons and help: an absolute path. It is
/// sought beside the build tree that the program runs from, then where the program was built from,
/// then where it was installed.
const std::string& DossierDonnees();

/// The folder of the copies of what is not saved: an absolute path, which need not exist.
std::string DossierSecours();
