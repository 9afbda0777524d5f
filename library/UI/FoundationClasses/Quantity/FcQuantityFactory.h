#pragma once

#include "QevFoundationClassesUiExport.h"
#include "UI/FoundationClasses/Property/PropertyInterface.h"

#include <memory>

namespace qev::ifc::def::qto {
class QuantityDef;
}

namespace qev::fc::ui {

class QuantitySet;

/// Makes the displayed quantities of a quantity set.
class QEVFOUNDATIONCLASSESUI_EXPORT FcQuantityFactory
{
public:
    /// \throws std::runtime_error "Not supported!" for an unknown type of quantity. \p definition must have
    /// a type.
    [[nodiscard]] static std::unique_ptr<PropertyInterface>
    create(ifc::def::qto::QuantityDef const& definition, QuantitySet& set);
};

} // namespace qev::fc::ui
