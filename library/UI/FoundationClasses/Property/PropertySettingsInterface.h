#pragma once

#include "QevFoundationClassesUiExport.h"

#include <string_view>

namespace qev::fc::ui {

/// What a host may decide about properties everywhere.
class QEVFOUNDATIONCLASSESUI_EXPORT PropertySettingsInterface
{
public:
    virtual ~PropertySettingsInterface();

    /// Tells if object editors show the global id.
    [[nodiscard]] virtual bool showGlobalId() const = 0;
    /// Tells if the enumeration of that property is the user's to edit.
    [[nodiscard]] virtual bool isUserEditableEnumeration(std::string_view setName,
                                                         std::string_view propertyName) const = 0;
};

} // namespace qev::fc::ui
