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

/// Makes the displayed properties of a property set.
///
/// What is made refers to the definitions, the set and the contexts, which outlive it.
class QEVFOUNDATIONCLASSESUI_EXPORT FcPropertyValueFactory
{
public:
    /// Null for a kind of property that has no row, and for a definition without a type.
    [[nodiscard]] static std::unique_ptr<PropertyInterface> create(ifc::def::pset::PropertyDef& definition,
                                                                   PropertySet& set,
                                                                   std::vector<std::string> const& contexts);

    /// A value together with the boolean that switches it. Null, with a report, when the value is not a
    /// single one or the toggle no boolean.
    [[nodiscard]] static std::unique_ptr<PropertyInterface>
    createWithToggleProperty(ifc::def::pset::PropertyDef& valueDefinition,
                             ifc::def::pset::PropertyDef& toggleDefinition, PropertySet& set,
                             std::vector<std::string> const& contexts);
};

} // namespace qev::fc::ui
