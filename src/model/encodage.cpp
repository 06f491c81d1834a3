#include "model/encodage.h"

#include <glib.h>

#include <memory>

Glib::ustring EnUtf8(std::string_view texte) {
    if (g_utf8_validate(texte.data(), static_cast<gssize>(texte.size()), nullptr))
        return Glib::ustring(std::string(texte));
    const std::unique_ptr<char, decltype(&g_free)> converti(
        g_convert_with_fallback(texte.data(), static_cast<gssize>(texte.size()), "UTF-8",
                                "WINDOWS-1252", "?", nullptr, nullptr, nullptr),
        g_free);
    // Five bytes have no character in that table.
    return converti ? Glib::ustring(converti.get()) : Glib::ustring("?");
}
