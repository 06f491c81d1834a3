#include <glibmm/exceptionhandler.h>
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

}  // namespace

int main(int argc, char** argv) {
    // The toolkit's own words are French too, where it has them.
    setenv("LANGUAGE", "fr", 1);
    Gtk::Main boucle(argc, argv, true);
    Glib::add_exception_handler(&DitException);
    DessinWindow fenetre;
    if (argc > 1) fenetre.OuvreFichier(argv[1]);
    Gtk::Main::run(fenetre);
    return 0;
}
