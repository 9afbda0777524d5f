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

/// One part of what a `PropertyFormatter` knows. No value means that the strategy has no opinion.
class QEVFOUNDATIONCLASSESUI_EXPORT PropertyFormatterStrategyInterface
{
public:
    virtual ~PropertyFormatterStrategyInterface();

    virtual void setObject(std::shared_ptr<Data> data, std::shared_ptr<FcBase> object) = 0;
    virtual void onPropertySetPropertyChanged(std::shared_ptr<core::kernel::FcPropertySet const> const& set,
                                              std::string const& propertyName) = 0;
    virtual void onPropertyCustomButtonClicked(std::string const& setName,
                                               std::string const& propertyName) = 0;

    [[nodiscard]] virtual std::optional<std::string>
    getRelatedValueProperty(std::string const& setName, std::string const& propertyName) const = 0;
    [[nodiscard]] virtual std::optional<bool> isEnabled(std::string const& setName,
                                                        std::string const& propertyName) const = 0;
    [[nodiscard]] virtual std::optional<bool> isReadOnly(std::string const& setName,
                                                         std::string const& propertyName) const = 0;
    [[nodiscard]] virtual std::optional<attr::Colour>
    getBackgroundColour(std::string const& setName, std::string const& propertyName) const = 0;
};

} // namespace qev::fc::ui
