// GL on an X window. The names of X collide with those of the toolkit's C++ classes: only its C
// interface appears beside them.

#include <GL/glx.h>
#include <gdk/gdkx.h>
#include <gtkmm/widget.h>

#include "view3d/plateforme_gl.h"

struct PlateformeGL::Natif {
    ::Display* Ecran = nullptr;
    GLXFBConfig Format = nullptr;
    VisualID Visuel = 0;
    GLXWindow Fenetre = 0;
    GLXContext Contexte = nullptr;
};

namespace {

constexpr int FormatVoulu[] = {GLX_DRAWABLE_TYPE,
                               GLX_WINDOW_BIT,
                               GLX_RENDER_TYPE,
                               GLX_RGBA_BIT,
                               GLX_X_RENDERABLE,
                               True,
                               GLX_DOUBLEBUFFER,
                               True,
                               GLX_RED_SIZE,
                               8,
                               GLX_GREEN_SIZE,
                               8,
                               GLX_BLUE_SIZE,
                               8,
                               GLX_ALPHA_SIZE,
                               8,
                               GLX_DEPTH_SIZE,
                               24,
                               GLX_STENCIL_SIZE,
                               8,
                               None};

/// Takes the first format with a visual as deep as the screen's own: a deeper one has an alpha that
/// the desktop would blend with what is behind the window.
bool PrendFormat(::Display* ecran, const GLXFBConfig* formats, int nombre, GLXFBConfig& format,
                 VisualID& visuel) {
    const int profondeur = DefaultDepth(ecran, gdk_screen_get_number(gdk_screen_get_default()));
    for (int i = 0; i < nombre; ++i) {
        XVisualInfo* information = glXGetVisualFromFBConfig(ecran, formats[i]);
        if (!information) continue;
        const bool convient = information->depth == profondeur;
        format = formats[i];
        visuel = information->visualid;
        XFree(information);
        if (convient) return true;
    }
    return false;
}

}  // namespace

PlateformeGL::PlateformeGL() : Partie(std::make_unique<Natif>()) {}

PlateformeGL::~PlateformeGL() {
    SupprimeContexte();
    LibereFenetre();
}

bool PlateformeGL::ChoisitFormat() {
    ::Display* ecran = gdk_x11_display_get_xdisplay(gdk_display_get_default());
    int erreur = 0, evenement = 0, majeur = 0, mineur = 0;
    if (!glXQueryExtension(ecran, &erreur, &evenement)) return false;
    if (!glXQueryVersion(ecran, &majeur, &mineur) || (majeur == 1 && mineur < 3)) return false;
    const int numero = gdk_screen_get_number(gdk_screen_get_default());
    int nombre = 0;
    GLXFBConfig* formats = glXChooseFBConfig(ecran, numero, FormatVoulu, &nombre);
    if (!formats) return false;
    const bool trouve = PrendFormat(ecran, formats, nombre, Partie->Format, Partie->Visuel);
    XFree(formats);
    if (trouve) Partie->Ecran = ecran;
    return trouve;
}

bool PlateformeGL::PoseFormat(Gtk::Widget& widget) {
    GdkVisual* visuel = gdk_x11_screen_lookup_visual(gdk_screen_get_default(), Partie->Visuel);
    if (!visuel) return false;
    GdkColormap* couleurs = gdk_colormap_new(visuel, FALSE);
    gtk_widget_set_colormap(widget.gobj(), couleurs);
    g_object_unref(couleurs);
    return true;
}

bool PlateformeGL::LieFenetre(const Glib::RefPtr<Gdk::Window>& fenetre) {
    if (!gdk_window_ensure_native(fenetre->gobj())) return false;
    const XID natif = gdk_x11_drawable_get_xid(GDK_DRAWABLE(fenetre->gobj()));
    // A refusal comes as an error of X, which would end the program.
    gdk_error_trap_push();
    Partie->Fenetre = glXCreateWindow(Partie->Ecran, Partie->Format, natif, nullptr);
    XSync(Partie->Ecran, False);
    if (gdk_error_trap_pop() != 0) Partie->Fenetre = 0;
    return Partie->Fenetre != 0;
}

bool PlateformeGL::CreeContexte() {
    gdk_error_trap_push();
    Partie->Contexte =
        glXCreateNewContext(Partie->Ecran, Partie->Format, GLX_RGBA_TYPE, nullptr, True);
    XSync(Partie->Ecran, False);
    return gdk_error_trap_pop() == 0 && Partie->Contexte;
}

bool PlateformeGL::RendCourant() {
    gdk_error_trap_push();
    const bool courant =
        glXMakeContextCurrent(Partie->Ecran, Partie->Fenetre, Partie->Fenetre, Partie->Contexte);
    XSync(Partie->Ecran, False);
    return gdk_error_trap_pop() == 0 && courant;
}

void PlateformeGL::Echange() {
    glXSwapBuffers(Partie->Ecran, Partie->Fenetre);
}

void PlateformeGL::SupprimeContexte() {
    if (!Partie->Contexte) return;
    if (glXGetCurrentContext() == Partie->Contexte)
        glXMakeContextCurrent(Partie->Ecran, None, None, nullptr);
    glXDestroyContext(Partie->Ecran, Partie->Contexte);
    Partie->Contexte = nullptr;
}

void PlateformeGL::LibereFenetre() {
    if (Partie->Fenetre) glXDestroyWindow(Partie->Ecran, Partie->Fenetre);
    Partie->Fenetre = 0;
}
