#pragma once

class ZoneDessin;

// What the area keeps from one run to the next, in a file of the user's.

/// What the file lacks or holds wrongly stays as it is.
void ChargePreferences(ZoneDessin& zone);

/// Nothing is said when the file cannot be written.
void SauvePreferences(const ZoneDessin& zone);
