#pragma once

#include "UI/FoundationClasses/Controls/Formatters/PropertyGridControlPropertyFormatterInterface.h"
#include "UI/FoundationClasses/Controls/PropertySetControl.h"
#include "UI/FoundationClasses/Controls/PropertySetControlFormatters.h"
#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertySetGridControlInterface.h"
#include "Ui/Window/WindowPlacement.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace qev::ui {
class PropertyGridCustomButtonProperty;
}

namespace qev::fc::ui {

struct PropertyOrQuantityValue;

/// Shows objects in a property grid: a group with the attributes of each and one with those of its type,
/// and then a group for each set they have in common. Edits go to the model at once.
///
/// Held by `std::shared_ptr`. The rows go with the control; the window may stay with the dialog.
///
/// \code
/// auto const control = std::make_shared<PropertySetGridControl>(
///     SchemaLoader::curr().pSchemaFromName("IFC4X3_TC1"), data, dialog, filter,
///     PropertySetControlFormatters<PropertyGridControlPropertyFormatterInterface>{}, contexts, nullptr);
/// control->init(gridId, std::nullopt, true);
/// control->setObject(data, wall);
/// \endcode
class QEVFOUNDATIONCLASSESUI_EXPORT PropertySetGridControl
    : public PropertySetControl,
      public PropertySetGridControlInterface,
      public std::enable_shared_from_this<PropertySetGridControl>
{
public:
    /// Makes no window; see `init`.
    PropertySetGridControl(
        ifc::def::SchemaPset const* schemaPset, std::shared_ptr<Data> const& data,
        std::shared_ptr<qev::ui::Dialog> const& dialog,
        std::shared_ptr<PropertySetDefinitionFilterInterface> const& filter,
        PropertySetControlFormatters<PropertyGridControlPropertyFormatterInterface> const& formatters,
        std::vector<std::string> const& contexts,
        std::shared_ptr<PropertyTypePropertySetAndPropertyNameQppOverrideInterface> const& qppOverride);
    ~PropertySetGridControl() override;

    /// Makes the window in the dialog, and shows the objects in it.
    ///
    /// A child of the dialog with that id, above 0, is the place for it: it is taken away, and the window
    /// has its placement and id. With \p placement the child stays, and the window goes there. Without such
    /// a child the window fills the dialog down to a row of buttons. A second call is reported, and
    /// replaces the window. Without a dialog nothing happens.
    /// \param handlePropertyChanges edits in the grid reach the model
    void init(int controlId, std::optional<qev::ui::WindowPlacement> placement, bool handlePropertyChanges);
    /// Makes the window when the dialog's page is activated for the first time.
    void initOnPropertySheetPageActivate(int controlId);

    void reset() override;

    void showUnusedProperties() override;
    void hideUnusedProperties() override;
    [[nodiscard]] std::shared_ptr<qev::ui::PropertyGridControl> getPropertyGridControl() override;
    [[nodiscard]] std::shared_ptr<PropertyGridControlPropertyFormatterInterface>
    getGridControlPropertyFormatter() override;
    void onPropertyCreated(std::string const& setName, qev::ui::PropertyGridProperty& parent,
                           std::string const& propertyName, qev::ui::PropertyGridProperty& property) override;
    void onPropertyCreatedAfter(std::string const& setName, qev::ui::PropertyGridProperty& parent,
                                std::string const& propertyName, bool wasEnabled) override;
    void onCheckBoxPropertyClicked(std::string const& setName, std::string const& propertyName,
                                   bool checked) override;

    /// Called with this control, the set's name, the property's name, and the new state, after a click on
    /// a check box.
    EventHandlerContainer<void, void, PropertySetGridControlInterface&, std::string const&,
                          std::string const&, bool>
        checkBoxClickedHandlers;

protected:
    using Row = qev::ui::PropertyGridProperty;

    /// The steps by which a row is dressed. Each reports a formatter that is missing, and then does nothing.
    void applyEnabledState(std::string const& setName, std::string const& propertyName, Row& row);
    void applyReadOnlyState(std::string const& setName, std::string const& propertyName, Row& row);
    void applyBackgroundColour(std::string const& setName, std::string const& propertyName, Row& row);
    void applyPropertyHorizontalLineState(std::string const& setName, std::string const& propertyName,
                                          Row& row);
    void applyPropertyAlignment(std::string const& setName, std::string const& propertyName, Row& row);
    void applyEmptyLineState(std::string const& setName, std::string const& propertyName, Row& parent);
    void applyEmptyLineStateAfterPropertyWasAdded(std::string const& setName, std::string const& propertyName,
                                                  Row& parent);
    void applyPropertyNameIndentation(std::string const& setName, std::string const& propertyName, Row& row);
    void applyPropertyFontStyle(std::string const& setName, std::string const& propertyName, Row& row);
    void notifyFormatterThatPropertyWasCreated(std::string const& setName, std::string const& propertyName,
                                               Row& row);

private:
    void refreshDisplay() override;
    [[nodiscard]] std::shared_ptr<qev::ui::Window> getWindow() override;

    [[nodiscard]] std::shared_ptr<qev::ui::PropertyGridControl>
    createWindow(int controlId, std::optional<qev::ui::WindowPlacement> const& placement);
    [[nodiscard]] qev::ui::WindowPlacement derivedPlacement() const;

    [[nodiscard]] bool isIncluded(std::string const& setName) const;
    void addAttributeGroups(FcBase& object);
    void addSetGroups();
    void addGroup(std::unique_ptr<Row> group);
    void updateNonUsedProperty(std::unique_ptr<Row> group);

    void propertyChanged(Row& row);
    [[nodiscard]] PropertyOrQuantityValue getValueFromGridProperty(Row const& row) const;
    void setupOnCustomButtonClickedHandler(Row& row);
    void onCustomButtonClicked(Row const& row);
    void onButtonClicked(Row const& row);

    [[nodiscard]] PropertyFormatterInterface* requireFormatter(char const* operation) const;
    [[nodiscard]] std::shared_ptr<PropertyGridControlPropertyFormatterInterface>
    requireGridFormatter(char const* operation);

    bool m_showUnused = true;
    bool m_initialised = false;
    std::shared_ptr<PropertyGridControlPropertyFormatterInterface> m_gridFormatter;
    std::shared_ptr<qev::ui::PropertyGridControl> m_gridControl;
};

} // namespace qev::fc::ui
