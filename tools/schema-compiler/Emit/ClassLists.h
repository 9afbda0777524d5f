#pragma once

#include "Model/ClassModel.h"
#include "Output/GeneratedFiles.h"

namespace qev::schemacompiler {

/// What goes over all classes: `ForwardDeclarations.h`, `AllEntities.h`, `EntityList.h` and
/// `EntityClasses.cpp`.
void emitClassLists(ClassModel const& model, GeneratedFiles& files);

} // namespace qev::schemacompiler
