#include "elements/encodage.h"

#include <glib.h>

#include <string>

namespace {

/// The characters of the bytes 0x80 to 0x9f; the rest of the table is that of Unicode. Five bytes
/// have none and read "?".
constexpr gunichar Windows1252[32] = {
    0x20ac, '?',    0x201a, 0x0192, 0x201e, 0x2026, 0x2020, 0x2021, 0x02c6, 0x2030, 0x0160,
    0x2039, 0x0152, '?',    0x017d, '?',    '?',    0x2018, 0x2019, 0x201c, 0x201d, 0x2022,
    0x2013, 0x2014, 0x02dc, 0x2122, 0x0161, 0x203a, 0x0153, '?',    0x017e, 0x0178};

}  // namespace

Glib::ustring EnUtf8(std::string_view texte) {
    if (g_utf8_validate(texte.data(), static_cast<gssize>(texte.size()), nullptr))
        return Glib::ustring(std::string(texte));
    std::string converti;
    for (const char c : texte) {
        const auto octet = static_cast<unsigned char>(c);
        const gunichar caractere =
            octet >= 0x80 && octet < 0xa0 ? Windows1252[octet - 0x80] : gunichar{octet};
        char utf8[6];
        converti.append(utf8, static_cast<std::size_t>(g_unichar_to_utf8(caractere, utf8)));
    }
    return converti;
}

Glib::ustring EnLigne(const Glib::ustring& texte) {
    Glib::ustring ligne;
    for (const gunichar c : texte)
        ligne += g_unichar_iscntrl(c) || c == 0x2028 || c == 0x2029 ? gunichar(' ') : c;
    return ligne;
}
