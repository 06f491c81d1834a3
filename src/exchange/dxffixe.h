#pragma once

class EcrivainDxf;

// What is the same in every DXF text that is written.

/// The groups of the header's variables.
void EcritVariables(EcrivainDxf& sortie);

/// All tables. The last one, that of the blocks, goes on with so many blocks of dimensions.
void EcritTables(EcrivainDxf& sortie, int nombreCotes);

/// The blocks of the model and of the paper.
void EcritBlocsFixes(EcrivainDxf& sortie);
