#include <gtest/gtest.h>
#include <gtkmm/main.h>

#include <clocale>
#include <cstdlib>
#include <string>

/// Every test program runs on the toolkit, in a home of its own that is gone at the end.
int main(int nombre, char** mots) {
    char dossier[] = "/tmp/krvek-essais-XXXXXX";
    if (!mkdtemp(dossier)) return 1;
    for (const char* nom : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"})
        setenv(nom, dossier, 1);
    // No test finds what another one left behind.
    setenv("APPDATA", "/nonexistent", 1);
    testing::InitGoogleTest(&nombre, mots);
    Gtk::Main toolkit(nombre, mots, true);
    std::setlocale(LC_NUMERIC, "C");
    const int resultat = RUN_ALL_TESTS();
    const std::string menage = std::string("rm -rf ") + dossier;
    return std::system(menage.c_str()) == 0 ? resultat : 1;
}
