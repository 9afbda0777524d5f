#pragma once

#include "Ui/Window/Controls/PropertyGridControl/PropertyGridProperty.h"

namespace qev::ui {

/// A row with a check box, and perhaps a value beside it.
class HOSTUI_EXPORT PropertyGridCheckBoxProperty : public PropertyGridProperty
{
public:
    using CheckBoxClickedHandlers = PropertyGridPropertyInterface::CheckBoxClickedHandlers;

    /// A check box alone.
    PropertyGridCheckBoxProperty(std::string const& name, CheckState state, std::string const& description);
    /// A check box with a text beside it.
    PropertyGridCheckBoxProperty(std::string const& name, CheckState state, std::string const& value,
                                 std::string const& description);
    /// A check box with a number in internal units beside it.
    PropertyGridCheckBoxProperty(std::string const& name, CheckState state, double value,
                                 std::string const& description);
    /// A handle of a row that stands already.
    explicit PropertyGridCheckBoxProperty(std::shared_ptr<PropertyGridPropertyInterface> existing);
    ~PropertyGridCheckBoxProperty() override;

    [[nodiscard]] CheckState getCheckState() const;
    void setValueDisplayMode(ValueDisplayMode mode);

    /// The handlers of a click on the check box; they run with the new state in place, and last as
    /// long as the row. \p control is the control that the row is meant for.
    [[nodiscard]] CheckBoxClickedHandlers&
    getOnCheckBoxClickedHandlers(std::shared_ptr<PropertyGridControl> const& control);

private:
    std::unique_ptr<CheckBoxClickedHandlers> m_checkBoxHandlersOfNoRow;
};

} // namespace qev::ui
