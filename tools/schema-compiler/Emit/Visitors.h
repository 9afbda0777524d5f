#pragma once

#include "Model/ClassModel.h"
#include "Output/GeneratedFiles.h"

namespace qev::schemacompiler {

/// `FcVisitorBase` and `FcVisitorBaseNonConst`: one visit for each class.
void emitVisitors(ClassModel const& model, GeneratedFiles& files);

} // namespace qev::schemacompiler
