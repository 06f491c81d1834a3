// The question that the tool of parallel segments asks.

#include "dialogs/reeldialog.h"
#include "elements/eltsegment.h"

namespace {

/// The distance given last, in drawing units.
double DistanceParallele = 10.0;

}  // namespace

bool EltSegment::DemandeParallele(const EltSegment& segment, const PointVek& p) {
    ReelDialog dialogue("A quelle distance ?", &DistanceParallele, UnNombre());
    if (dialogue.run() != Gtk::RESPONSE_OK) return false;
    ParalleleCote(DistanceParallele, segment, p);
    return true;
}
