#include "Ui/Window/Controls/PropertyGridControl/PropertyGridCustomButtonProperty.h"

#include <utility>

namespace qev::ui {

namespace {

using VisibleState = propertygridcontrol::button::VisibleState;

PropertyGridRowState buttonState(std::string const& name, std::shared_ptr<Image const> image,
                                 VisibleState visibleState, std::string const& description)
{
    PropertyGridRowState state;
    state.kind = PropertyGridRowState::Kind::Value;
    state.name = name;
    state.description = description;
    state.hasCustomButton = true;
    state.buttonVisibleState = visibleState;
    state.buttonImage = std::move(image);
    return state;
}

PropertyGridRowState buttonWithText(std::string const& name, std::shared_ptr<Image const> image,
                                    VisibleState visibleState, std::string const& value,
                                    std::string const& description)
{
    auto state = buttonState(name, std::move(image), visibleState, description);
    state.valueKind = PropertyGridRowState::ValueKind::Text;
    state.text = value;
    return state;
}

PropertyGridRowState buttonWithNumber(std::string const& name, std::shared_ptr<Image const> image,
                                      VisibleState visibleState, double value, std::string const& description)
{
    auto state = buttonState(name, std::move(image), visibleState, description);
    state.valueKind = PropertyGridRowState::ValueKind::Number;
    state.number = value;
    return state;
}

} // namespace

PropertyGridCustomButtonProperty::PropertyGridCustomButtonProperty(std::string const& name,
                                                                   std::shared_ptr<Image const> image,
                                                                   VisibleState visibleState,
                                                                   std::string const& value,
                                                                   std::string const& description)
    : PropertyGridProperty(buttonWithText(name, std::move(image), visibleState, value, description))
{
}

PropertyGridCustomButtonProperty::PropertyGridCustomButtonProperty(std::string const& name,
                                                                   std::shared_ptr<Image const> image,
                                                                   VisibleState visibleState, double value,
                                                                   std::string const& description)
    : PropertyGridProperty(buttonWithNumber(name, std::move(image), visibleState, value, description))
{
}

PropertyGridCustomButtonProperty::PropertyGridCustomButtonProperty(
    std::shared_ptr<PropertyGridPropertyInterface> existing)
    : PropertyGridProperty(std::move(existing))
{
}

PropertyGridCustomButtonProperty::~PropertyGridCustomButtonProperty() = default;

PropertyGridCustomButtonProperty::CustomButtonClickedHandlers&
PropertyGridCustomButtonProperty::getOnButtonClickedHandlers(
    std::shared_ptr<PropertyGridControl> const& /*control*/)
{
    if (auto* const row = requireInterface("getOnButtonClickedHandlers"))
        return row->getCustomButtonClickedHandlers();
    if (!m_buttonHandlersOfNoRow)
        m_buttonHandlersOfNoRow = std::make_unique<CustomButtonClickedHandlers>();
    return *m_buttonHandlersOfNoRow;
}

} // namespace qev::ui
