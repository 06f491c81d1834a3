#include "commun/mutation.h"

#include <algorithm>

std::string Mute(std::string texte, Hasard& hasard) {
    static const char* const nombres[] = {"1e400", "nan",   "-1",     "2147483647",
                                          "1e308", "10000", "-1e308", "1e-9",
                                          "0",     "4",     "",       "99999999999"};
    for (int coups = 1 + hasard.Entier(4); coups > 0 && !texte.empty(); --coups) {
        const auto ou = static_cast<std::size_t>(hasard.Entier(static_cast<int>(texte.size())));
        const std::size_t mot = texte.find_first_of(" \n", ou);
        switch (hasard.Entier(5)) {
            case 0:
                texte[ou] = static_cast<char>(texte[ou] ^ (1 << hasard.Entier(8)));
                break;
            case 1:
                texte.resize(std::max<std::size_t>(ou, 11));
                break;
            case 2: {
                const std::size_t fin = texte.find('\n', ou);
                const std::size_t debut = texte.rfind('\n', ou) + 1;
                if (fin != std::string::npos)
                    texte.insert(fin + 1, texte.substr(debut, fin + 1 - debut));
                break;
            }
            default:
                if (mot == std::string::npos) break;
                texte.replace(mot + 1, texte.find_first_of(" \n", mot + 1) - mot - 1,
                              nombres[hasard.Entier(12)]);
        }
    }
    return texte;
}
