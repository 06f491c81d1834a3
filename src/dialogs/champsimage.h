#pragma once

#include "dialogs/saisiedialog.h"

class EltImage;

/// The fields of an image of a group, in the dialogs of both kinds of image.
struct ChampsImage {
    explicit ChampsImage(const EltImage& image);

    /// Gives the image what was entered.
    void Prend(EltImage& image) const;

    ChampSaisie Identificateur;
    ChampSaisie Angle;  ///< Degrees.
    ChampSaisie Agrandissement;
};
