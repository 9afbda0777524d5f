#include "Ui/Window/Controls/PropertyGridControl/PropertyGridEmptyLineProperty.h"

namespace qev::ui {

namespace {

PropertyGridRowState emptyLineState()
{
    PropertyGridRowState state;
    state.kind = PropertyGridRowState::Kind::EmptyLine;
    return state;
}

} // namespace

PropertyGridEmptyLineProperty::PropertyGridEmptyLineProperty()
    : PropertyGridProperty(emptyLineState())
{
}

} // namespace qev::ui
