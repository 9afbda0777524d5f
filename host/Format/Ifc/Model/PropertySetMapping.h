#pragma once

#include "FoundationClasses/ForwardDeclarations.h"
#include "HostIfcModelExport.h"

#include <memory>

namespace qev::ifc::def::xml {
class Def;
class SetDef;
} // namespace qev::ifc::def::xml

namespace qev::ifc {

/// The set of \p definition's name and kind that is attached to \p object. When there is none, a new set
/// without entries is made, with a global id, attached, and registered with the object's model. \returns null
/// for an object in no model, and for a definition of neither kind.
HOSTIFCMODEL_EXPORT std::shared_ptr<fc::core::kernel::FcPropertySetDefinition>
addXmlSetDefToFcObjectDefinition(def::xml::SetDef const& definition,
                                 fc::core::kernel::FcObjectDefinition& object);

/// Adds a property or quantity to a set, of the class that \p definition says and registered with the set's
/// model.
///
/// A single value and a quantity begin with the default of their type, so that they can be edited; a complex
/// property with its members; all others without a value. An entry of that name that the set already has
/// stays as it is and is the result. \returns null, and nothing is added, when the definition has no type or
/// is of another kind than the set.
HOSTIFCMODEL_EXPORT std::shared_ptr<fc::FcBase>
addSchemaDefToPropertySetDefinition(def::xml::Def const& definition,
                                    fc::core::kernel::FcPropertySetDefinition& set);

} // namespace qev::ifc
