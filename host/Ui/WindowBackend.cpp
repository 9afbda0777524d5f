#include "Ui/WindowBackend.h"

#include "Ui/PropertyGrid/PropertyGridRow.h"

#include <utility>

namespace qev::ui {

Size WindowBackend::getDefaultWindowSize(WindowClass windowClass) const
{
    switch (windowClass) {
    case WindowClass::Window:
    case WindowClass::Dialog:
        return {800, 600};
    case WindowClass::DialogControl:
    case WindowClass::PropertyGridControl:
        return {120, 24};
    case WindowClass::GroupBox:
        return {200, 100};
    case WindowClass::ListControl:
        return {500, 300};
    }
    return {};
}

std::unique_ptr<PropertyGridPropertyInterface>
WindowBackend::createPropertyGridRow(PropertyGridRowState state)
{
    return std::make_unique<PropertyGridRow>(std::move(state));
}

} // namespace qev::ui
