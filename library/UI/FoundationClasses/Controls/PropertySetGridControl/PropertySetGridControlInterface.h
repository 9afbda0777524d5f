#pragma once

#include "QevFoundationClassesUiExport.h"

#include <memory>
#include <string>

namespace qev::ui {
class PropertyGridControl;
class PropertyGridProperty;
} // namespace qev::ui

namespace qev::fc::ui {

class PropertyGridControlPropertyFormatterInterface;

/// What the factories of rows see of a property set grid.
class QEVFOUNDATIONCLASSESUI_EXPORT PropertySetGridControlInterface
{
public:
    virtual ~PropertySetGridControlInterface();

    /// Shows rows without a value too.
    virtual void showUnusedProperties() = 0;
    virtual void hideUnusedProperties() = 0;
    /// The window; null before it is made.
    [[nodiscard]] virtual std::shared_ptr<qev::ui::PropertyGridControl> getPropertyGridControl() = 0;
    /// May be null.
    [[nodiscard]] virtual std::shared_ptr<PropertyGridControlPropertyFormatterInterface>
    getGridControlPropertyFormatter() = 0;
    /// The row \p property exists, and does not yet stand under \p parent.
    virtual void onPropertyCreated(std::string const& setName, qev::ui::PropertyGridProperty& parent,
                                   std::string const& propertyName,
                                   qev::ui::PropertyGridProperty& property) = 0;
    /// The row stands under \p parent.
    virtual void onPropertyCreatedAfter(std::string const& setName, qev::ui::PropertyGridProperty& parent,
                                        std::string const& propertyName, bool wasEnabled) = 0;
    /// The check box of a row was clicked, and the model has the new state.
    virtual void onCheckBoxPropertyClicked(std::string const& setName, std::string const& propertyName,
                                           bool checked) = 0;
};

} // namespace qev::fc::ui
