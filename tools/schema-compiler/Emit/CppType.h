#pragma once

#include "Model/ClassModel.h"

#include <set>
#include <string>

/// The C++ types of attributes.
namespace qev::schemacompiler {

/// The type inside `Attribute<...>`, as code in the namespace of \p fromGroup names it.
std::string attributeType(ClassModel const& model, AttributeModel const& attribute,
                          std::string const& fromGroup);
/// The whole type of the member: `Attribute<...>`, or the class of its own.
std::string memberType(ClassModel const& model, AttributeModel const& attribute,
                       std::string const& fromGroup);
/// The headers that the member needs, beside those of the runtime that every class has.
std::set<std::string> memberHeaders(ClassModel const& model, AttributeModel const& attribute);
/// "ValueKind::Real" and so on.
std::string valueKind(Kind kind);

} // namespace qev::schemacompiler
