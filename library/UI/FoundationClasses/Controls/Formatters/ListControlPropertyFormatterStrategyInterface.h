#pragma once

#include "UI/FoundationClasses/Controls/Formatters/ListControlPropertyFormatterInterface.h"

namespace qev::fc::ui {

/// One part of what a `ListControlPropertyFormatter` knows. No value means that the strategy has no opinion.
class QEVFOUNDATIONCLASSESUI_EXPORT ListControlPropertyFormatterStrategyInterface
{
public:
    using CustomColumn = ListControlPropertyFormatterInterface::CustomColumn;

    virtual ~ListControlPropertyFormatterStrategyInterface();

    virtual void setObject(std::shared_ptr<Data> data, std::shared_ptr<FcBase> object) = 0;
    virtual void setListControl(std::shared_ptr<qev::ui::ListControl> const& listControl) = 0;
    virtual void onItemAndColumnCountUpdated() = 0;
    [[nodiscard]] virtual std::optional<bool>
    doesItemContainLocalValue(std::string const& setName, std::string const& propertyName) const = 0;
    virtual void onResetItemToGlobalValue(std::string const& setName, std::string const& propertyName) = 0;
    [[nodiscard]] virtual std::optional<bool>
    isPropertyToBeHiddenByDefault(std::string const& setName, std::string const& propertyName) const = 0;
    [[nodiscard]] virtual std::optional<std::vector<CustomColumn>> getCustomColumns() const = 0;
    [[nodiscard]] virtual std::optional<std::string>
    getCustomColumnItemString(std::string const& columnId) const = 0;
};

} // namespace qev::fc::ui
