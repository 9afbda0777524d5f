#pragma once

#include "Model/ClassModel.h"

#include <string>

/// How names of the schema become names, namespaces and headers of C++.
namespace qev::schemacompiler {

/// "IfcWall" gives "FcWall".
std::string className(std::string const& schemaName);
/// The class that is generated: "FcWall", or "FcRootAttributes" where FcRoot is written by hand.
std::string generatedName(EntityModel const& entity);
std::string generatedName(SelectModel const& select);
/// "IfcWall" gives "Wall".
std::string withoutPrefix(std::string const& schemaName);

/// "Core.Kernel" gives "core::kernel", the namespace inside `qev::fc`.
std::string groupNamespace(std::string const& group);
/// "Core.Kernel" gives "FoundationClasses/Core/Kernel".
std::string groupFolder(std::string const& group);
/// "Core.Kernel" gives "CoreKernel".
std::string groupFileName(std::string const& group);
/// "Core.Kernel" gives "Kernel".
std::string shortGroupName(std::string const& group);

/// The class as code in the namespace of \p fromGroup names it; an empty group means `qev::fc` itself.
std::string qualified(EntityModel const& entity, std::string const& fromGroup);
std::string qualified(SelectModel const& select, std::string const& fromGroup);
/// The base class of an entity as code in the entity's own namespace names it.
std::string qualifiedBase(ClassModel const& model, EntityModel const& entity);

/// The header that users include.
std::string header(EntityModel const& entity);
std::string header(SelectModel const& select);
std::string enumerationHeader(std::string const& schemaName);
/// The header that is generated.
std::string generatedHeader(EntityModel const& entity);
std::string generatedHeader(SelectModel const& select);

/// An enumeration item as an enumerator: one that some platform's headers define as a macro gets a trailing
/// underscore.
std::string enumerator(std::string const& item);

} // namespace qev::schemacompiler
