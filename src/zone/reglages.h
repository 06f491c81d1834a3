#pragma once

class ZoneDessin;

// What the user has set of what goes beyond the preferences, in a key file of its own in his
// configuration folder. What is missing or cannot be read stays as it is.

void ChargeReglages(ZoneDessin& zone);

/// Keeps what else the file holds.
void SauveReglages(ZoneDessin& zone);
