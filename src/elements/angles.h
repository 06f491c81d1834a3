#pragma once

#include <algorithm>
#include <cmath>

constexpr double Pi = 3.14159265358979323846;
constexpr double DeuxPi = 2.0 * Pi;

inline double EnRadians(double degres) {
    return degres * Pi / 180.0;
}

inline double EnDegres(double radians) {
    return radians * 180.0 / Pi;
}

/// Whole degrees as the dialogs show them: rounded up, forgiving the noise of the conversion, so
/// that 13 degrees read 13.
inline double DegresEntiers(double radians) {
    return std::ceil(EnDegres(radians) - 0.001);
}

/// An angle (radians) brought into [0, 2 pi); what lies within epsilon below 0, and no more than
/// rounding makes it, is 0.
inline double AngleReduit(double angle, double epsilon) {
    double reste = std::fmod(angle, DeuxPi);
    if (reste < -std::min(epsilon, 1e-6)) reste += DeuxPi;
    return reste < 0.0 ? 0.0 : reste;
}
