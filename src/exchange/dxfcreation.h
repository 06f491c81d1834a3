#pragma once

#include <memory>

class EltBDD;
class EltGeo;
class EltProfil;
struct EntiteDxf;

/// The element of an entity that stands by itself; null when the program knows none, or the entity
/// says too little of it.
std::unique_ptr<EltGeo> CreeElement(const EntiteDxf& entite);

/// The dimension, by its kind.
std::unique_ptr<EltGeo> CreeCote(const EntiteDxf& entite);

/// The group of a BLOCK, to be filled with what follows.
std::unique_ptr<EltBDD> CreeGroupe(const EntiteDxf& entite);

/// The profile of a POLYLINE, to be given the vertices that follow.
std::unique_ptr<EltProfil> CreePolyligne(const EntiteDxf& entite);
