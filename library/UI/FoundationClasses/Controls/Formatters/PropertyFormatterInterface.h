#pragma once

#include "Core/Attribute/Colour.h"
#include "QevFoundationClassesUiExport.h"

#include <memory>
#include <optional>
#include <string>

namespace qev::fc {
class Data;
class FcBase;
} // namespace qev::fc

namespace qev::fc::core::kernel {
class FcPropertySet;
}

namespace qev::fc::ui {

/// Decides how properties look and behave, whatever control shows them.
class QEVFOUNDATIONCLASSESUI_EXPORT PropertyFormatterInterface
{
public:
    virtual ~PropertyFormatterInterface();

    /// The object that the questions after this one are about. May come more than once for the same object.
    virtual void setObject(std::shared_ptr<Data> data, std::shared_ptr<FcBase> object) = 0;
    /// A property of \p set was changed by the user.
    virtual void onPropertySetPropertyChanged(std::shared_ptr<core::kernel::FcPropertySet const> const& set,
                                              std::string const& propertyName) = 0;
    virtual void onPropertyCustomButtonClicked(std::string const& setName,
                                               std::string const& propertyName) = 0;

    /// The property whose value the given property, a boolean, switches on and off; both then share one row.
    [[nodiscard]] virtual std::optional<std::string>
    getRelatedValueProperty(std::string const& setName, std::string const& propertyName) const = 0;
    [[nodiscard]] virtual bool isEnabled(std::string const& setName,
                                         std::string const& propertyName) const = 0;
    [[nodiscard]] virtual bool isReadOnly(std::string const& setName,
                                          std::string const& propertyName) const = 0;
    [[nodiscard]] virtual std::optional<attr::Colour>
    getBackgroundColour(std::string const& setName, std::string const& propertyName) const = 0;
};

} // namespace qev::fc::ui
