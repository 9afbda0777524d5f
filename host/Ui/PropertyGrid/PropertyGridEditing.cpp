#include "Ui/PropertyGrid/PropertyGridEditing.h"

#include "Core/Localization/Localize.h"
#include "Ui/PropertyGrid/PropertyGridModel.h"
#include "Ui/PropertyGrid/PropertyGridNumber.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridCheckBoxProperty.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridCustomButtonProperty.h"

#include <algorithm>
#include <utility>

namespace qev::ui {

namespace {

using Kind = PropertyGridRowState::Kind;
using ValueKind = PropertyGridRowState::ValueKind;

PropertyGridEditResult accepted() { return {true, {}}; }

PropertyGridEditResult refused(std::string message) { return {false, std::move(message)}; }

PropertyGridEditResult refusedAsReadOnly() { return refused(localize("Input_ReadOnly", "Ui")); }

PropertyGridEditResult refusedAsChoice(std::string_view text)
{
    return refused(localize("Input_NotAmongChoices", "Ui", {std::string(text)}));
}

PropertyGridEditResult refusedAsNumber(PropertyGridRow const& row, std::string_view text)
{
    return refused(localize("Input_NotANumber", "Ui", {std::string(text)}) + ' ' +
                   PropertyGridNumber::describeExpected(text, row.getQuantityPresentation()));
}

bool hasShownValue(PropertyGridRowState const& state)
{
    if (state.valueKind == ValueKind::None)
        return false;
    return state.kind != Kind::CheckBox || state.valueDisplayMode == ValueDisplayMode::BesideCheckBox;
}

PropertyGridOption const* findOption(PropertyGridRowState const& state, std::string_view text)
{
    auto const found = std::find_if(state.options.begin(), state.options.end(),
                                    [&](PropertyGridOption const& option) { return option.text == text; });
    return found == state.options.end() ? nullptr : &*found;
}

bool isChoosable(PropertyGridRowState const& state, std::string_view text)
{
    auto const* const option = findOption(state, text);
    return option && option->enabled;
}

void tellEdited(PropertyGridRow& row)
{
    if (auto* const model = row.getModel())
        model->notifyRowEdited(row);
}

/// Why the row's owner does not want the input; nothing where it does.
std::optional<std::string> findObjection(PropertyGridRow const& row, PropertyGridInput const& input)
{
    auto const& check = row.getInputCheck();
    return check ? check(input) : std::nullopt;
}

/// What a row that stands for many values holds is no value: even the same says something new.
enum class IfEqual
{
    Skip,
    Tell
};

PropertyGridEditResult storeText(PropertyGridRow& row, std::string_view text, IfEqual ifEqual)
{
    if (row.getState().text == text && ifEqual == IfEqual::Skip)
        return accepted();
    if (auto objection = findObjection(row, {std::string(text), std::nullopt, std::nullopt}))
        return refused(std::move(*objection));
    row.setText(std::string(text));
    tellEdited(row);
    return accepted();
}

/// The handlers run for an equal number too: a zero that is shown may stand for no value at all.
PropertyGridEditResult storeNumber(PropertyGridRow& row, std::string_view text, std::optional<double> number,
                                   IfEqual ifEqual)
{
    if (!row.getState().number && !number && ifEqual == IfEqual::Skip)
        return accepted();
    if (auto objection = findObjection(row, {std::string(text), number, std::nullopt}))
        return refused(std::move(*objection));
    row.setNumber(number);
    tellEdited(row);
    return accepted();
}

/// Stores what \p text says in the terms of the row's value.
PropertyGridEditResult store(PropertyGridRow& row, std::string_view text, IfEqual ifEqual = IfEqual::Skip)
{
    if (row.getState().valueKind == ValueKind::Text)
        return storeText(row, text, ifEqual);
    if (text.empty())
        return storeNumber(row, text, std::nullopt, ifEqual);
    // An unchanged text stands for the very number, whatever a round trip through units would make of it.
    if (text == PropertyGridEditing::getEditorText(row))
        return storeNumber(row, text, row.getState().number, ifEqual);
    auto const number = PropertyGridNumber::read(text, row.getQuantityPresentation());
    if (!number)
        return refusedAsNumber(row, text);
    return storeNumber(row, text, number, ifEqual);
}

PropertyGridEditResult storeCheckState(PropertyGridRow& row, CheckState state)
{
    if (auto objection = findObjection(row, {{}, std::nullopt, state}))
        return refused(std::move(*objection));
    auto const keepAlive = row.getShared();
    row.setCheckState(state);
    PropertyGridCheckBoxProperty property(keepAlive);
    fireEvent(row.getCheckBoxClickedHandlers(), property);
    return accepted();
}

} // namespace

PropertyGridEditor PropertyGridEditing::getEditor(PropertyGridRow const& row)
{
    auto const valueEditor = getValueEditor(row);
    if (!canClickCheckBox(row))
        return valueEditor;
    return valueEditor == PropertyGridEditor::None ? PropertyGridEditor::CheckBox
                                                   : PropertyGridEditor::CheckBoxWithValue;
}

PropertyGridEditor PropertyGridEditing::getValueEditor(PropertyGridRow const& row)
{
    auto const& state = row.getState();
    if (!state.enabled || !hasShownValue(state))
        return PropertyGridEditor::None;
    if (!state.options.empty())
        return state.allowEdit || !state.optionsOnly ? PropertyGridEditor::Choice : PropertyGridEditor::None;
    if (!state.allowEdit)
        return PropertyGridEditor::None;
    return state.valueKind == ValueKind::Number ? PropertyGridEditor::Number : PropertyGridEditor::Text;
}

char const* PropertyGridEditing::getEditorName(PropertyGridEditor editor)
{
    switch (editor) {
    case PropertyGridEditor::None:
        return "none";
    case PropertyGridEditor::Text:
        return "text";
    case PropertyGridEditor::Number:
        return "number";
    case PropertyGridEditor::Choice:
        return "choice";
    case PropertyGridEditor::CheckBox:
        return "check box";
    case PropertyGridEditor::CheckBoxWithValue:
        return "check box with value";
    }
    return "none";
}

bool PropertyGridEditing::hasCheckBox(PropertyGridRow const& row)
{
    return row.getState().kind == Kind::CheckBox;
}

bool PropertyGridEditing::canClickCheckBox(PropertyGridRow const& row)
{
    auto const& state = row.getState();
    return state.kind == Kind::CheckBox && state.enabled && state.allowEdit;
}

bool PropertyGridEditing::hasVisibleButton(PropertyGridRow const& row)
{
    return row.getState().buttonVisibleState == propertygridcontrol::button::VisibleState::Visible;
}

bool PropertyGridEditing::canPressButton(PropertyGridRow const& row)
{
    return hasVisibleButton(row) && row.getState().enabled;
}

std::optional<std::size_t> PropertyGridEditing::findButton(PropertyGridRow const& row, std::string_view key)
{
    auto const& buttons = row.getState().buttons;
    auto const found = std::find_if(buttons.begin(), buttons.end(),
                                    [&](PropertyGridRowButton const& button) { return button.key == key; });
    return found == buttons.end() ? std::nullopt : std::optional<std::size_t>(found - buttons.begin());
}

bool PropertyGridEditing::canFollowLink(PropertyGridRow const& row)
{
    return row.getState().isLink && !row.getState().buttons.empty();
}

bool PropertyGridEditing::canTypeFreely(PropertyGridRow const& row)
{
    auto const& state = row.getState();
    return state.enabled && hasShownValue(state) && state.allowEdit && !state.optionsOnly;
}

std::string PropertyGridEditing::getDisplayedText(PropertyGridRow const& row)
{
    auto const& state = row.getState();
    std::string text;
    if (!state.emptyState && hasShownValue(state))
        row.getStringValue(text);
    return text;
}

std::string PropertyGridEditing::getHint(PropertyGridRow const& row)
{
    auto const& state = row.getState();
    auto const mayShow = !state.emptyState && (hasShownValue(state) || hasCheckBox(row));
    return mayShow && getDisplayedText(row).empty() ? state.hint : std::string();
}

std::string PropertyGridEditing::getEditorText(PropertyGridRow const& row)
{
    auto const& state = row.getState();
    if (state.valueKind != ValueKind::Number)
        return state.text;
    return state.number ? PropertyGridNumber::getEditorText(*state.number, row.getQuantityPresentation())
                        : std::string();
}

PropertyGridEditResult PropertyGridEditing::commitText(PropertyGridRow& row, std::string_view text)
{
    switch (getValueEditor(row)) {
    case PropertyGridEditor::Text:
    case PropertyGridEditor::Number:
        return store(row, text);
    case PropertyGridEditor::Choice:
        if (!isChoosable(row.getState(), text) && !canTypeFreely(row))
            return refusedAsChoice(text);
        return store(row, text);
    case PropertyGridEditor::None:
    case PropertyGridEditor::CheckBox:
    case PropertyGridEditor::CheckBoxWithValue:
        break;
    }
    return refusedAsReadOnly();
}

PropertyGridEditResult PropertyGridEditing::choose(PropertyGridRow& row, std::string_view text)
{
    if (getValueEditor(row) != PropertyGridEditor::Choice)
        return refusedAsReadOnly();
    if (!isChoosable(row.getState(), text))
        return refusedAsChoice(text);
    return store(row, text, row.getState().isMixed ? IfEqual::Tell : IfEqual::Skip);
}

PropertyGridEditResult PropertyGridEditing::clear(PropertyGridRow& row)
{
    auto const& state = row.getState();
    if (canClickCheckBox(row) && state.canClearCheckBox)
        return state.checkState == CheckState::Indeterminate && !state.isMixed
                   ? accepted()
                   : storeCheckState(row, CheckState::Indeterminate);
    if (getValueEditor(row) == PropertyGridEditor::Choice && !isChoosable(state, {}) && !canTypeFreely(row))
        if (auto objection = findObjection(row, {}))
            return refused(std::move(*objection));
    if (!state.isMixed || getValueEditor(row) == PropertyGridEditor::None)
        return commitText(row, {});
    return store(row, {}, IfEqual::Tell);
}

PropertyGridEditResult PropertyGridEditing::clickCheckBox(PropertyGridRow& row)
{
    if (!canClickCheckBox(row))
        return refusedAsReadOnly();
    return storeCheckState(row, row.getCheckState() == CheckState::Checked ? CheckState::Unchecked
                                                                           : CheckState::Checked);
}

PropertyGridEditResult PropertyGridEditing::pressButton(PropertyGridRow& row)
{
    if (!canPressButton(row))
        return refused(localize("Input_NoButton", "Ui"));
    auto const keepAlive = row.getShared();
    if (row.getState().hasCustomButton) {
        PropertyGridCustomButtonProperty property(keepAlive);
        fireEvent(row.getCustomButtonClickedHandlers(), property, getDisplayedText(row));
    }
    PropertyGridProperty property(keepAlive);
    fireEvent(row.getButtonClickedHandlers(), property);
    return accepted();
}

PropertyGridEditResult PropertyGridEditing::pressButton(PropertyGridRow& row, std::size_t button)
{
    if (button >= row.getState().buttons.size())
        return refused(localize("Input_NoButton", "Ui"));
    auto const keepAlive = row.getShared();
    if (auto const pressed = row.getButtonFunction())
        pressed(button);
    return accepted();
}

PropertyGridEditResult PropertyGridEditing::followLink(PropertyGridRow& row)
{
    return canFollowLink(row) ? pressButton(row, 0) : refused(localize("Input_NoLink", "Ui"));
}

} // namespace qev::ui
