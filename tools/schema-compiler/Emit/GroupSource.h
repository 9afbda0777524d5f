#pragma once

#include "Model/ClassModel.h"
#include "Output/GeneratedFiles.h"

namespace qev::schemacompiler {

/// One source for each group: constructors, visits, inverse attributes and what the classes say of
/// themselves.
void emitGroupSources(ClassModel const& model, GeneratedFiles& files);

/// The path of the source of a group: "CoreKernel.cpp".
std::string groupSourcePath(std::string const& group);

} // namespace qev::schemacompiler
