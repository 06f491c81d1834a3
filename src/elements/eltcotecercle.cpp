#include "elements/eltcotecercle.h"

#include "elements/eltarc.h"

void EltCoteCercle::SetPoint1(const PointVek& p) {
    Point1 = Position = p;
}

void EltCoteCercle::SetPoint2(const PointVek& p) {
    Point2 = Position = p;
}

void EltCoteCercle::PlaceLigne(const PointVek& p) {
    Position = p;
    Texte = TexteValeur();
}

void EltCoteCercle::DepuisArc(const EltArc& arc) {
    Point1 = arc.Debut();
    Point2 = Position = arc.Centre();
}

double EltCoteCercle::AngleCote() const {
    return 0.0;
}
