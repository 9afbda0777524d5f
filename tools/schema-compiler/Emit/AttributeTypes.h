#pragma once

#include "Model/ClassModel.h"
#include "Output/GeneratedFiles.h"

#include <string>
#include <vector>

namespace qev::schemacompiler {

/// The operations of every type that an attribute has, each made once: a few sources of about the same size.
void emitAttributeTypes(ClassModel const& model, GeneratedFiles& files);

/// The paths of those sources.
std::vector<std::string> attributeTypesSources();

} // namespace qev::schemacompiler
