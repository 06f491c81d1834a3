#include <glibmm/convert.h>
#include <glibmm/exceptionhandler.h>
#include <glibmm/main.h>
#include <gtkmm/main.h>

#include <cstdlib>
#include <exception>
#include <iostream>

#include "window/dessinwindow.h"

namespace {

/// What a signal handler let through: told, and the program goes on with the drawing.
void DitException() {
    try {
        throw;
    } catch (const Glib::Exception& erreur) {
        std::cerr << "KR VEK : " << erreur.what().c_str() << '\n';
    } catch (const std::exception& erreur) {
        std::cerr << "KR VEK : " << erreur.what() << '\n';
    }
}

/// The file that an argument means: a name, or an address of the local disk.
std::string NomDeFichier(const std::string& mot) {
    if (mot.compare(0, 7, "file://") != 0) return mot;
    try {
        Glib::ustring machine;
        const std::string nom = Glib::filename_from_uri(mot, machine);
        return machine.empty() || machine == "localhost" ? nom : mot;
    } catch (const Glib::ConvertError&) {
        return mot;
    }
}

}  // namespace

int main(int argc, char** argv) {
    // The toolkit's own words are French too, where it has them.
    setenv("LANGUAGE", "fr", 1);
    Gtk::Main boucle(argc, argv, true);
    Glib::add_exception_handler(&DitException);
    DessinWindow fenetre;
    if (argc > 1) fenetre.OuvreFichier(NomDeFichier(argv[1]));
    // Once the window is there.
    Glib::signal_idle().connect_once(sigc::mem_fun(fenetre, &DessinWindow::ProposeRecuperation));
    Gtk::Main::run(fenetre);
    return 0;
}
