#pragma once

#include "QevFoundationClassesUiExport.h"

#include <string>

namespace qev::ifc::def::xml {
class SetDef;
}

namespace qev::fc::ui {

enum class PropertySetDefinitionType
{
    PropertySet = 0,
    QuantitySet = 1,
    Unknown = 2,
};

/// What a displayed set is built from.
struct QEVFOUNDATIONCLASSESUI_EXPORT PropertySetDefinitionInfo
{
    PropertySetDefinitionInfo() = default;
    /// A set of the schema, with the type of its class. Another class than those of property and quantity
    /// sets is reported, and is of unknown type. \p setDefinition has to outlive what is built from it.
    explicit PropertySetDefinitionInfo(ifc::def::xml::SetDef const& setDefinition);
    /// A set that only objects have.
    PropertySetDefinitionInfo(std::string setName, PropertySetDefinitionType setType);

    std::string name;
    /// Null for a set that the schema does not know.
    ifc::def::xml::SetDef const* definition = nullptr;
    PropertySetDefinitionType type = PropertySetDefinitionType::Unknown;
};

} // namespace qev::fc::ui
