#pragma once

#include "Model/ClassModel.h"
#include "Output/GeneratedFiles.h"

namespace qev::schemacompiler {

/// One header for each enumeration, and `Enumerations.cpp` with their items.
void emitEnumerations(ClassModel const& model, GeneratedFiles& files);

} // namespace qev::schemacompiler
