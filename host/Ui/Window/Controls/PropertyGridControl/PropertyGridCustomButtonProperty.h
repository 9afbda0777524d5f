#pragma once

#include "Ui/Window/Controls/PropertyGridControl/PropertyGridProperty.h"

namespace qev::ui {

/// A row with a value and a button of its own.
class HOSTUI_EXPORT PropertyGridCustomButtonProperty : public PropertyGridProperty
{
public:
    using CustomButtonClickedHandlers = PropertyGridPropertyInterface::CustomButtonClickedHandlers;
    using VisibleState = propertygridcontrol::button::VisibleState;

    /// A row with a text; \p image may be null for the button's usual look.
    PropertyGridCustomButtonProperty(std::string const& name, std::shared_ptr<Image const> image,
                                     VisibleState visibleState, std::string const& value,
                                     std::string const& description);
    /// A row with a number in internal units.
    PropertyGridCustomButtonProperty(std::string const& name, std::shared_ptr<Image const> image,
                                     VisibleState visibleState, double value, std::string const& description);
    /// A handle of a row that stands already.
    explicit PropertyGridCustomButtonProperty(std::shared_ptr<PropertyGridPropertyInterface> existing);
    ~PropertyGridCustomButtonProperty() override;

    /// The handlers of the button; they run with the row and the text it shows, and last as long as
    /// the row. \p control is the control that the row is meant for.
    [[nodiscard]] CustomButtonClickedHandlers&
    getOnButtonClickedHandlers(std::shared_ptr<PropertyGridControl> const& control);

private:
    std::unique_ptr<CustomButtonClickedHandlers> m_buttonHandlersOfNoRow;
};

} // namespace qev::ui
