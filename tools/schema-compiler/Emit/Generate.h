#pragma once

#include "Model/ClassModel.h"
#include "Output/GeneratedFiles.h"

namespace qev::schemacompiler {

/// Everything that is made of a schema.
GeneratedFiles generate(ClassModel const& model);

} // namespace qev::schemacompiler
