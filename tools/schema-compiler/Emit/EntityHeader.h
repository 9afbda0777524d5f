#pragma once

#include "Model/ClassModel.h"
#include "Output/GeneratedFiles.h"

namespace qev::schemacompiler {

/// One header for each entity.
void emitEntityHeaders(ClassModel const& model, GeneratedFiles& files);

/// The text of the header of one entity.
std::string entityHeader(ClassModel const& model, EntityModel const& entity);

/// The attribute `PredefinedType` when \p entity declares one and is an object or a type of objects, else
/// null.
AttributeModel const* predefinedType(ClassModel const& model, EntityModel const& entity);

} // namespace qev::schemacompiler
