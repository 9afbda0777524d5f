#pragma once

#include "Core/Attribute/Colour.h"
#include "HostUiExport.h"
#include "Ui/PropertyGrid/PropertyGridRowState.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridPropertyInterface.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace qev::ui {

class PropertyGridControl;

/// A handle of one row of a property grid.
///
/// A new row is made with one of the constructors, dressed, and given to a control
/// (`PropertyGridControl::addProperty`) or to another row (`addSubProperty`), which owns it from then on;
/// the handle still leads to it. Each operation goes to the row; without one it reports
/// "No active interface." and does nothing.
///
/// A handle outlives the removal of its row harmlessly: the row then stands in no control.
class HOSTUI_EXPORT PropertyGridProperty
{
public:
    using ButtonClickedHandlers = PropertyGridPropertyInterface::ButtonClickedHandlers;

    /// A group row.
    explicit PropertyGridProperty(std::string const& name);
    /// A row with a text; \p readOnly rows cannot be typed in.
    PropertyGridProperty(std::string const& name, std::string const& value, std::string const& description,
                         bool readOnly);
    /// A row with a number in internal units.
    PropertyGridProperty(std::string const& name, double value, std::string const& description,
                         bool readOnly);
    /// A handle of a row that stands already.
    explicit PropertyGridProperty(std::shared_ptr<PropertyGridPropertyInterface> existing);
    /// A handle with the two sides as they are given.
    PropertyGridProperty(std::shared_ptr<PropertyGridPropertyInterface> existing,
                         std::unique_ptr<PropertyGridPropertyInterface> created);

    virtual ~PropertyGridProperty();
    PropertyGridProperty(PropertyGridProperty const&) = delete;
    PropertyGridProperty& operator=(PropertyGridProperty const&) = delete;
    PropertyGridProperty(PropertyGridProperty&&) noexcept;
    PropertyGridProperty& operator=(PropertyGridProperty&&) noexcept;

    /// The row: the new one if there is one, else the existing one, else null. Reports
    /// "Existing and new property objects can't both be set at the same time." and "Property not
    /// initialized.".
    [[nodiscard]] PropertyGridPropertyInterface* getActiveInterface() const;

    [[nodiscard]] std::string getName() const;

    /// Reads the text that the row shows for its value. False for rows without a value.
    bool getStringValue(std::string& value) const;
    /// Reads the number in internal units. False for rows that are no number rows, or blank.
    bool getDoubleValue(double& value) const;
    /// Writes the row's value. The empty text blanks the row. A number row reads the text as a user's
    /// input; a text that is no number leaves it as it is. \p notify tells the control's property-changed
    /// handlers too.
    void setValue(std::string const& text, bool notify = false);

    [[nodiscard]] bool hasQuantityPresentation() const;
    /// The row shows and reads its number through \p presentation from now on. A text row becomes a number
    /// row.
    void setQuantityPresentation(std::unique_ptr<unit::QuantityPresentationBase> presentation);

    /// One slot for the owner of the row, not owned and not looked at. It gives back the very pointer that
    /// was set, so it has to be read as the same type.
    [[nodiscard]] void* getUserData() const;
    void setUserData(void* userData);

    /// Puts \p property, a new row, below the children there are. A row that has a place already is
    /// reported with "Property isn't new." and left there.
    void addSubProperty(PropertyGridProperty& property);
    [[nodiscard]] std::size_t getSubPropertyCount() const;

    void setDescription(std::string const& description);
    /// Adds an entry to the drop list; one that is not \p enabled is shown and cannot be chosen.
    void addOption(std::string const& text, bool enabled = true);
    /// The row takes only values from the drop list.
    void setOptionsOnly(bool optionsOnly);
    /// Permits typing in the row. A row with a drop list that may also be typed in can still be
    /// changed by choosing; one that takes only values from the drop list cannot be changed then.
    void allowEdit(bool allowed);
    void enable(bool enabled);
    [[nodiscard]] bool isEnabled() const;
    /// In the empty state a row shows no value.
    void activateEmptyState();
    void deactivateEmptyState();
    /// What the row shows in grey while it has no value to show, such as that values differ. It is no value:
    /// it is not edited, not copied and not read.
    void setHint(std::string const& hint);

    void setBoldFontStyleForNameAndValue();
    void setBackgroundColour(attr::Colour const& colour);
    /// A `PropertyGridAlignment` as a number; others are passed over.
    void setAlignment(int alignment);
    /// A `PropertyGridHorizontalLine` as a number; others are passed over.
    void setHorizontalLine(int horizontalLine);
    void setNameIndentationInCharacters(unsigned int characters);

    void showButton(bool shown);
    /// The handlers of the row's button. \p control is the control that the row is meant for; the
    /// handlers last as long as the row.
    [[nodiscard]] ButtonClickedHandlers&
    onButtonClickedHandlers(std::shared_ptr<PropertyGridControl> const& control);

    /// Gives the new row up to whoever owns it from now on; the handle goes on as one of an existing row.
    /// Null when the row is not new.
    [[nodiscard]] std::shared_ptr<PropertyGridPropertyInterface> takeCreated();

protected:
    /// A handle of a new row.
    explicit PropertyGridProperty(PropertyGridRowState state);

    /// The row; null, with the report "No active interface." for \p operation, when there is none.
    [[nodiscard]] PropertyGridPropertyInterface* requireInterface(std::string_view operation) const;

private:
    std::shared_ptr<PropertyGridPropertyInterface> m_existing;
    std::unique_ptr<PropertyGridPropertyInterface> m_created;
    /// Stands in for the handlers of a row that is not there.
    std::unique_ptr<ButtonClickedHandlers> m_handlersOfNoRow;
};

} // namespace qev::ui
