#include "Ui/Window/Controls/PropertyGridControl/PropertyGridStateProperty.h"

#include <utility>

namespace qev::ui {

PropertyGridStateProperty::PropertyGridStateProperty(
    PropertyGridRowState state, std::unique_ptr<unit::QuantityPresentationBase> presentation)
    : PropertyGridProperty(std::move(state))
{
    if (presentation)
        setQuantityPresentation(std::move(presentation));
}

PropertyGridStateProperty::~PropertyGridStateProperty() = default;

PropertyGridRow* PropertyGridStateProperty::getRow() const
{
    return dynamic_cast<PropertyGridRow*>(getActiveInterface());
}

} // namespace qev::ui
