#pragma once

#include "QevFoundationClassesUiExport.h"

#include <memory>
#include <string>

namespace qev::unit {
class QuantityPresentationBase;
}

namespace qev::fc::ui {

/// The host's own choice of presentations for numbers.
class QEVFOUNDATIONCLASSESUI_EXPORT PropertyTypePropertySetAndPropertyNameQppOverrideInterface
{
public:
    virtual ~PropertyTypePropertySetAndPropertyNameQppOverrideInterface();

    /// The presentation for a property of that type, without "Ifc"; null to leave it to the library.
    [[nodiscard]] virtual std::unique_ptr<unit::QuantityPresentationBase>
    createQuantityPresentation(std::string propertyType, std::string setName, std::string propertyName) = 0;
};

} // namespace qev::fc::ui
