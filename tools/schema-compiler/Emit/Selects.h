#pragma once

#include "Model/ClassModel.h"
#include "Output/GeneratedFiles.h"

namespace qev::schemacompiler {

/// One header for each select that has a class, `Selects/SelectDescriptors.h`, and `Selects.cpp`.
void emitSelects(ClassModel const& model, GeneratedFiles& files);

} // namespace qev::schemacompiler
