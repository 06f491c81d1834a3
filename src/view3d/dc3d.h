#pragma once

#include <glibmm/ustring.h>

/// The context that solids draw with in the 3D view: their textures, and nothing of the window. The
/// one header of this floor that lower ones may include.
class DC3D {
  public:
    /// Selects the texture of that file for what is drawn next; white for an empty name.
    void ActiveTexture(const Glib::ustring& nom);
    void FinTexture();
};
