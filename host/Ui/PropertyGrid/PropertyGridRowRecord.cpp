#include "Ui/PropertyGrid/PropertyGridRowRecord.h"

#include "Ui/PropertyGrid/PropertyGridEditing.h"
#include "Ui/PropertyGrid/PropertyGridNumber.h"
#include "Ui/PropertyGrid/PropertyGridRow.h"

#include <algorithm>

namespace qev::ui {

PropertyGridRowRecord PropertyGridRowRecord::of(PropertyGridRow const& row)
{
    auto const& state = row.getState();
    auto const editor = PropertyGridEditing::getEditor(row);
    PropertyGridRowRecord record;
    record.path = getPath(row);
    record.isGroup = state.kind == PropertyGridRowState::Kind::Group;
    record.value = PropertyGridEditing::getDisplayedText(row);
    record.number = state.number;
    record.unit = PropertyGridNumber::getUnit(row.getQuantityPresentation());
    record.editor = PropertyGridEditing::getEditorName(editor);
    for (auto const& option : state.options)
        if (option.enabled)
            record.choices.push_back(option.text);
    if (PropertyGridEditing::hasCheckBox(row))
        record.checked = state.checkState;
    record.enabled = state.enabled;
    record.editable = editor != PropertyGridEditor::None;
    record.hasButton = PropertyGridEditing::hasVisibleButton(row);
    for (auto const& button : state.buttons)
        record.buttonKeys.push_back(button.key);
    record.isMixed = state.isMixed;
    record.isLink = state.isLink;
    record.isLocalValue = state.isLocalValue;
    record.description = state.description;
    return record;
}

std::vector<std::string> PropertyGridRowRecord::getPath(PropertyGridRow const& row)
{
    std::vector<std::string> path;
    for (auto const* step = &row; step; step = step->getParent())
        path.push_back(step->getName());
    std::reverse(path.begin(), path.end());
    return path;
}

std::vector<std::string> PropertyGridRowRecord::getPlace(PropertyGridRow const& row)
{
    if (!row.getState().key.empty())
        return {row.getState().key};
    std::vector<std::string> place;
    if (row.getParent())
        place = getPlace(*row.getParent());
    place.push_back(row.getName());
    return place;
}

} // namespace qev::ui
