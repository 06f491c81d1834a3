// Set-up of the context, lights, and the frame of an image. The state sets of the passes stand in
// passes.cpp.

#include "view3d/dc3d.h"

#include <GL/gl.h>
#include <gdkmm/window.h>

#include "view3d/corpscompiles.h"
#include "view3d/plateforme_gl.h"
#include "view3d/textures.h"

DC3D::DC3D() : Plateforme(std::make_unique<PlateformeGL>()) {}

DC3D::~DC3D() {
    Ferme();
}

void DC3D::ActiveTexture(const Glib::ustring& nom) {
    if (TexturesActives) Textures->Active(nom);
}

void DC3D::PrepareFormat(Gtk::Widget& widget) {
    FormatPret = Plateforme->ChoisitFormat() && Plateforme->PoseFormat(widget);
}

void DC3D::Init(const Glib::RefPtr<Gdk::Window>& fenetre) {
    if (!FormatPret || !Plateforme->LieFenetre(fenetre) || !Plateforme->CreeContexte() ||
        !Plateforme->RendCourant())
        throw DC3DException();
    Fenetre = fenetre;
    AllumeLumiere(0, Allumees[0]);
    AllumeLumiere(1, Allumees[1]);
    Materiau(1.0f, 0.0f, 0.0f, 0.0f);
    PositionLumiere(0, {0.0, 100.0, 100.0});
    PositionLumiere(1, {0.0, 100.0, 0.0});
    Textures = std::make_unique<GestionTextures>();
    Compiles = std::make_unique<CorpsCompiles>(Finesse);
    glEnable(GL_NORMALIZE);
    glDisable(GL_AUTO_NORMAL);
}

void DC3D::Ferme() {
    Compiles.reset();
    Textures.reset();
    Plateforme->SupprimeContexte();
    Plateforme->LibereFenetre();
    Fenetre.reset();
}

void DC3D::BasculeTextures() {
    TexturesActives = !TexturesActives;
    if (Compiles) Compiles->Oublie();
}

void DC3D::Materiau(float entourage, float ambiante, float diffuse, float speculaire) {
    const GLfloat couleurs[4][4] = {{ambiante, ambiante, ambiante, 1.0f},
                                    {diffuse, diffuse, diffuse, 1.0f},
                                    {speculaire, speculaire, speculaire, 1.0f},
                                    {entourage, entourage, entourage, 1.0f}};
    glEnable(GL_LIGHTING);
    glEnable(GL_COLOR_MATERIAL);
    glColorMaterial(GL_FRONT, GL_AMBIENT_AND_DIFFUSE);
    glMaterialfv(GL_FRONT_AND_BACK, GL_AMBIENT, couleurs[0]);
    glMaterialfv(GL_FRONT_AND_BACK, GL_DIFFUSE, couleurs[1]);
    glMaterialfv(GL_FRONT_AND_BACK, GL_SPECULAR, couleurs[2]);
    glLightModeli(GL_LIGHT_MODEL_LOCAL_VIEWER, 1);
    glLightModelfv(GL_LIGHT_MODEL_AMBIENT, couleurs[3]);
}

void DC3D::Lumiere(int indice, float ambiante, float diffuse) {
    const GLenum lumiere = GL_LIGHT0 + static_cast<GLenum>(indice);
    const GLfloat autour[] = {ambiante, ambiante, ambiante, 1.0f};
    const GLfloat droit[] = {diffuse, diffuse, diffuse, 1.0f};
    glLightfv(lumiere, GL_AMBIENT, autour);
    glLightfv(lumiere, GL_DIFFUSE, droit);
}

void DC3D::PositionLumiere(int indice, const PointVek& p) {
    const GLfloat position[] = {static_cast<GLfloat>(p.x), static_cast<GLfloat>(p.y),
                                static_cast<GLfloat>(p.z), indice == 1 ? 1.0f : 0.0f};
    glLightfv(GL_LIGHT0 + static_cast<GLenum>(indice), GL_POSITION, position);
}

void DC3D::AllumeLumiere(int indice, bool allumee) {
    Allumees[indice] = allumee;
    const GLenum lumiere = GL_LIGHT0 + static_cast<GLenum>(indice);
    if (allumee)
        glEnable(lumiere);
    else
        glDisable(lumiere);
}

void DC3D::DebutImage() {
    Fenetre->get_size(Largeur, Hauteur);
    Oeil.Projette(Largeur, Hauteur);
    glMatrixMode(GL_MODELVIEW);
    Zone = {0, 0, Largeur, Hauteur};
    Compiles->DebutImage();
    glClearDepth(1.0);
    glDepthMask(GL_TRUE);
    glStencilMask(0xff);
    glClearStencil(0);
    glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    glClearColor(0.0f, 0.1f, 0.1f, 0.0f);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT | GL_STENCIL_BUFFER_BIT);
    glCullFace(GL_FRONT);
    glDepthRange(0.0, 1.0);
    glEnable(GL_LIGHTING);
    glEnable(GL_ALPHA_TEST);
    glEnable(GL_CULL_FACE);
    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_LESS);
    glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
}

void DC3D::Fin() {
    Compiles->FinImage();
    Plateforme->Echange();
}
