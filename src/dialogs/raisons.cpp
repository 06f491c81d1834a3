#include "dialogs/raisons.h"

#include <glibmm/convert.h>
#include <glibmm/miscutils.h>

#include <cerrno>

Glib::ustring Raison(int erreur) {
    switch (erreur) {
        case ENOSPC:
        case EDQUOT:
            return "disque plein";
        case EFBIG:
            return "fichier trop grand";
        case ENOENT:
        case ENOTDIR:
            return "le dossier n'existe pas";
        case EISDIR:
            return "c'est le nom d'un dossier";
        case EACCES:
        case EPERM:
            return "pas le droit d'y écrire";
        case EROFS:
            return "le disque est en lecture seule";
        case ENAMETOOLONG:
            return "le nom est trop long";
        case EINVAL:
        case ENXIO:
            return "ce n'est pas un fichier ordinaire";
        case EIO:
            return "le disque ne répond pas";
        default:
            return {};
    }
}

Glib::ustring EntreGuillemets(const std::string& fichier) {
    return "« " + Glib::filename_display_basename(fichier) + " »";
}
