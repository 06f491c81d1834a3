#include "view3d/textures.h"

#include <gdk-pixbuf/gdk-pixbuf.h>
#include <gdkmm/pixbuf.h>
#include <glibmm/exception.h>
#include <glibmm/fileutils.h>
#include <glibmm/miscutils.h>

#include <vector>

#include "model/bddgeo.h"

namespace {

constexpr int CoteBlanche = 64;

/// Makes a texture and binds it.
GLuint NouvelleTexture() {
    GLuint texture = 0;
    glGenTextures(1, &texture);
    glBindTexture(GL_TEXTURE_2D, texture);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_REPEAT);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_REPEAT);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    return texture;
}

GLuint TextureBlanche() {
    const std::vector<guint8> image(CoteBlanche * CoteBlanche * 4, 0xff);
    const GLuint texture = NouvelleTexture();
    glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, CoteBlanche, CoteBlanche, 0, GL_RGBA, GL_UNSIGNED_BYTE,
                 image.data());
    return texture;
}

/// Null for what is no regular file, no image, or more than GL takes.
Glib::RefPtr<Gdk::Pixbuf> LitImage(const std::string& nom) {
    if (!Glib::file_test(nom, Glib::FILE_TEST_IS_REGULAR)) return {};
    GLint cote = 0;
    glGetIntegerv(GL_MAX_TEXTURE_SIZE, &cote);
    int largeur = 0, hauteur = 0;
    // The head of the file tells the size before any memory is taken for it.
    if (!gdk_pixbuf_get_file_info(nom.c_str(), &largeur, &hauteur)) return {};
    if (largeur > cote || hauteur > cote) return {};
    try {
        const auto image = Gdk::Pixbuf::create_from_file(nom);
        return image->get_width() <= cote && image->get_height() <= cote
                   ? image
                   : Glib::RefPtr<Gdk::Pixbuf>();
    } catch (const Glib::Exception&) {
        return {};
    }
}

/// A name without its path may be that of a file beside the drawing.
std::string Chemin(const std::string& nom) {
    if (Glib::path_is_absolute(nom) || Glib::file_test(nom, Glib::FILE_TEST_IS_REGULAR)) return nom;
    return Glib::build_filename(Glib::path_get_dirname(BddCourante.NomFichier), nom);
}

}  // namespace

GestionTextures::GestionTextures() {
    glEnable(GL_TEXTURE_2D);
    Blanche = TextureBlanche();
}

GestionTextures::~GestionTextures() {
    for (const auto& [nom, texture] : ParNom)
        if (texture != Blanche) glDeleteTextures(1, &texture);
    glDeleteTextures(1, &Blanche);
}

void GestionTextures::Active(const Glib::ustring& nom) {
    if (nom.empty()) {
        glBindTexture(GL_TEXTURE_2D, Blanche);
        return;
    }
    const std::string chemin = Chemin(nom.raw());
    auto trouvee = ParNom.find(chemin);
    if (trouvee == ParNom.end()) trouvee = ParNom.emplace(chemin, Charge(chemin)).first;
    glBindTexture(GL_TEXTURE_2D, trouvee->second);
}

GLuint GestionTextures::Charge(const std::string& nom) const {
    const auto image = LitImage(nom);
    if (!image) return Blanche;
    const GLuint texture = NouvelleTexture();
    // Rows of a pixbuf end at a multiple of four bytes.
    glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
    glPixelStorei(GL_UNPACK_ROW_LENGTH, image->get_rowstride() / image->get_n_channels());
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, image->get_width(), image->get_height(), 0,
                 image->get_has_alpha() ? GL_RGBA : GL_RGB, GL_UNSIGNED_BYTE, image->get_pixels());
    glPixelStorei(GL_UNPACK_ROW_LENGTH, 0);
    return texture;
}
