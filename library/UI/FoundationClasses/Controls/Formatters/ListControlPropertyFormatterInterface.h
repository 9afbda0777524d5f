#pragma once

#include "QevFoundationClassesUiExport.h"
#include "UI/FoundationClasses/Controls/ListControl/ColumnPropertyNames.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace qev::fc {
class Data;
class FcBase;
} // namespace qev::fc

namespace qev::ui {
class ListControl;
}

namespace qev::fc::ui {

/// Decides how a list of objects looks and behaves, beyond what holds for all controls.
class QEVFOUNDATIONCLASSESUI_EXPORT ListControlPropertyFormatterInterface
{
public:
    /// A column of the host's own.
    struct CustomColumn
    {
        std::string id;
        std::string title;
        /// The property column in front of which the column goes; at the end when there is no such column.
        std::optional<ColumnPropertyNames> insertBefore;

        friend bool operator==(CustomColumn const&, CustomColumn const&) = default;
    };

    virtual ~ListControlPropertyFormatterInterface();

    /// The object that the questions after this one are about.
    virtual void setObject(std::shared_ptr<Data> data, std::shared_ptr<FcBase> object) = 0;
    /// The list, once it exists.
    virtual void setListControl(std::shared_ptr<qev::ui::ListControl> const& listControl) = 0;
    /// The list has been filled anew.
    virtual void onItemAndColumnCountUpdated() = 0;
    [[nodiscard]] virtual bool doesItemContainLocalValue(std::string const& setName,
                                                         std::string const& propertyName) const = 0;
    virtual void onResetItemToGlobalValue(std::string const& setName, std::string const& propertyName) = 0;
    [[nodiscard]] virtual bool isPropertyToBeHiddenByDefault(std::string const& setName,
                                                             std::string const& propertyName) const = 0;
    [[nodiscard]] virtual std::vector<CustomColumn> getCustomColumns() const = 0;
    /// The text of a column of the host's own for the present object.
    [[nodiscard]] virtual std::string getCustomColumnItemString(std::string const& columnId) const = 0;
};

} // namespace qev::fc::ui
