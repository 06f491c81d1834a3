#pragma once

#include <GL/gl.h>
#include <glibmm/ustring.h>

#include <string>
#include <unordered_map>

/// The textures of one GL context, one for each file name, kept as long as the context. Made, used
/// and destroyed while that context is current, and never asked for a new name while a display list
/// is compiled.
class GestionTextures {
  public:
    /// Turns texturing on.
    GestionTextures();
    ~GestionTextures();
    GestionTextures(const GestionTextures&) = delete;
    GestionTextures& operator=(const GestionTextures&) = delete;

    /// Binds the image of that file; white for an empty name, and for a file that is no readable
    /// image: it is tried once.
    void Active(const Glib::ustring& nom);

  private:
    /// Reads the file into a new texture; the white one when it cannot be read.
    GLuint Charge(const std::string& nom) const;

    GLuint Blanche;
    std::unordered_map<std::string, GLuint> ParNom;
};
