#include "exchange/dxfecrivain.h"

#include <algorithm>

void EcrivainDxf::Code(int code) {
    if (code < 100) Sortie << ' ';
    if (code < 10) Sortie << ' ';
    Sortie << code << '\n';
}

void EcrivainDxf::Groupe(int code, const Glib::ustring& texte) {
    std::string ligne = texte.raw();
    std::replace_if(
        ligne.begin(), ligne.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
    Groupe(code, ligne);
}

void EcrivainDxf::Groupe(const char* code, const char* valeur) {
    Sortie << code << '\n' << valeur << '\n';
}

void EcrivainDxf::Point(int code, const PointVek& p) {
    PointXY(code, p);
    Groupe(code + 20, p.z);
}

void EcrivainDxf::PointPlan(int code, const PointVek& p) {
    PointXY(code, p);
    Groupe(code + 20, "0.0");
}

void EcrivainDxf::PointXY(int code, const PointVek& p) {
    Groupe(code, p.x);
    Groupe(code + 10, p.y);
}
