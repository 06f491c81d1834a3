#include "dialogs/champsimage.h"

#include "dialogs/nombres.h"
#include "elements/angles.h"
#include "model/eltimage.h"

ChampsImage::ChampsImage(const EltImage& image)
    : Identificateur(image.Identificateur),
      Angle(TexteNombre(EnDegres(image.Angle))),
      Agrandissement(TexteNombre(image.Agrandissement)) {}

void ChampsImage::Prend(EltImage& image) const {
    if (Identificateur.EstModifie()) image.SetIdentificateur(Identificateur.get_text());
    if (const auto degres = Angle.Nombre()) image.Angle = EnRadians(*degres);
    if (const auto k = Agrandissement.Nombre()) image.Agrandissement = *k;
}
