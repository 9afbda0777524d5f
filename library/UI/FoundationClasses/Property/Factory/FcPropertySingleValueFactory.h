#pragma once

#include "QevFoundationClassesUiExport.h"
#include "UI/FoundationClasses/Property/PropertyInterface.h"

#include <memory>
#include <string>
#include <vector>

namespace qev::ifc::def::pset {
class PropertyDef;
}

namespace qev::fc::ui {

class PropertySet;

/// Makes the displayed properties with a single value, by the type of the value.
class QEVFOUNDATIONCLASSESUI_EXPORT FcPropertySingleValueFactory
{
public:
    [[nodiscard]] static std::unique_ptr<PropertyInterface> create(ifc::def::pset::PropertyDef& definition,
                                                                   PropertySet& set,
                                                                   std::vector<std::string> const& contexts);

    /// Null, with a report, when the toggle is no boolean. The value may be of any type.
    [[nodiscard]] static std::unique_ptr<PropertyInterface>
    createWithToggleProperty(ifc::def::pset::PropertyDef& valueDefinition,
                             ifc::def::pset::PropertyDef& toggleDefinition, PropertySet& set,
                             std::vector<std::string> const& contexts);
};

} // namespace qev::fc::ui
