#pragma once

#include "Model/ClassModel.h"
#include "Output/GeneratedFiles.h"

namespace qev::schemacompiler {

/// `ValueTypes.h` and `ValueTypes.cpp`: the types of the three families of values.
void emitValueTypes(ClassModel const& model, GeneratedFiles& files);

} // namespace qev::schemacompiler
