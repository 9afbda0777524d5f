#include "Edit/EditorRow.h"

#include "Core/Localization/Localize.h"
#include "Core/Unit/QuantityPresentation.h"
#include "Object/PropertyText.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace qev::ui::edit {

namespace {

using RowKind = PropertyGridRowState::Kind;
using ValueKind = PropertyGridRowState::ValueKind;
using PropertyButton = ObjectPropertyEditInterface::PropertyButton;

struct Context
{
    ShownObjects const& objects;
    ObjectPropertyEditControllerBase const& controller;
};

std::string getButtonText(PropertyButton const& button)
{
    if (!button.tooltip.empty())
        return button.tooltip;
    auto const name = button.image ? button.image->name : button.key;
    constexpr std::array<std::pair<std::string_view, std::string_view>, 4> known = {
        {{"add", "Button_add"},
         {"delete", "Button_delete"},
         {"edit", "Button_edit"},
         {"open", "Button_open"}}};
    auto const text = std::find_if(known.begin(), known.end(),
                                   [&name](auto const& imageAndText) { return imageAndText.first == name; });
    return text == known.end() ? name : localize(text->second, "Ui");
}

std::vector<PropertyGridRowButton> makeButtons(ShownObject const& object, object::PropertyId const& id)
{
    std::vector<PropertyGridRowButton> buttons;
    for (auto const& button : object.getEditor().getButtons(id))
        buttons.push_back({button.key, button.image, getButtonText(button)});
    return buttons;
}

/// What stands below a row repeats its label in some trees.
std::string withoutLabelAbove(std::string label, std::string const& above)
{
    auto const beginning = above + '.';
    return !above.empty() && label.starts_with(beginning) ? label.substr(beginning.size()) : label;
}

CheckState getCheckState(EditorProperty const& property)
{
    auto const plain = property.isMixed() ? std::nullopt : property.getValue().getUnwrappedOptionalValue();
    if (!plain || !plain->is<bool>())
        return CheckState::Indeterminate;
    return plain->get<bool>() ? CheckState::Checked : CheckState::Unchecked;
}

void addOptions(PropertyGridRowState& state, EditorProperty const& property)
{
    auto const choices = property.getChoices();
    if (choices.empty())
        return;
    auto const isEmptyThere =
        std::any_of(choices.begin(), choices.end(), [](auto const& choice) { return choice.text.empty(); });
    if (property.isEmptyAllowed() && !isEmptyThere)
        state.options.push_back({});
    for (auto const& choice : choices)
        state.options.push_back({choice.text, true});
    state.optionsOnly = property.getKind() == EditorProperty::Kind::Choice;
}

std::string getHint(PropertyGridRowState const& state, EditorProperty const& property, Property const& row)
{
    if (state.isMixed)
        return localize("Value_Mixed", "Ui");
    if (row.hint)
        return *row.hint;
    auto const isUnset = object::PropertyText::isUnset(property.getValue());
    return isUnset && !property.isReadOnly() ? localize("Value_NotSet", "Ui") : std::string();
}

void addValue(PropertyGridRowState& state, EditorProperty const& property, Property const& row)
{
    state.isMixed = property.isMixed();
    state.hint = getHint(state, property, row);
    switch (property.getKind()) {
    case EditorProperty::Kind::Boolean:
        state.kind = RowKind::CheckBox;
        state.checkState = getCheckState(property);
        state.canClearCheckBox = property.isEmptyAllowed();
        return;
    case EditorProperty::Kind::Number:
        state.kind = RowKind::Value;
        state.valueKind = ValueKind::Number;
        state.number = property.getNumber();
        return;
    case EditorProperty::Kind::Text:
    case EditorProperty::Kind::Integer:
    case EditorProperty::Kind::Choice:
        state.kind = RowKind::Value;
        state.valueKind = ValueKind::Text;
        state.text = property.getText();
        addOptions(state, property);
        return;
    }
}

void addFixedText(PropertyGridRowState& state, std::string const& text)
{
    state.kind = RowKind::Value;
    state.valueKind = ValueKind::Text;
    state.text = text;
    state.allowEdit = false;
}

/// The colours of the first object; those of several could contradict each other.
void addColours(PropertyGridRowState& state, ShownObject const& object, object::PropertyId const& id)
{
    state.textColour = object.getEditor().getTextColour(id);
    state.backgroundColour = object.getEditor().getBackgroundColour(id);
}

void addReset(PropertyGridRowState& state)
{
    static auto const image = std::make_shared<Image>(Image{"reset"});
    state.isLocalValue = true;
    state.buttons.push_back({std::string(EditorRow::resetKey), image, localize("Button_reset", "Ui")});
}

PropertyGridRowState makeState(Context const& context, EditorNode const& node, std::string const& labelAbove)
{
    auto const& row = node.property;
    EditorProperty const property(context.objects, context.controller, row.id);
    PropertyGridRowState state;
    state.key = row.id.text();
    if (!node.isShared) {
        state.name = localize("Grid_Common", "Ui");
        return state;
    }
    auto const& labels = row.labelAndDescription;
    state.name = labels ? labels->first : withoutLabelAbove(property.getLabel(), labelAbove);
    state.description = labels ? labels->second : property.getDescription();
    state.enabled = property.isEnabled();
    state.buttons = makeButtons(*context.objects.front(), row.id);
    addColours(state, *context.objects.front(), row.id);
    if (row.fixedText) {
        addFixedText(state, *row.fixedText);
    } else if (!row.isGroup) {
        addValue(state, property, row);
        state.allowEdit = !property.isReadOnly();
        if (!state.allowEdit)
            state.options.clear();
        state.isLink = property.isReference();
        if (state.allowEdit && property.isLocalValue())
            addReset(state);
    }
    // What can be typed over is the value alone.
    if (row.suffix && !state.allowEdit && !state.text.empty())
        state.text += *row.suffix;
    return state;
}

std::vector<EditorRow> makeRowsOf(Context const& context, std::vector<EditorNode> const& nodes,
                                  std::string const& labelAbove)
{
    std::vector<EditorRow> rows;
    for (auto const& node : nodes) {
        EditorRow row;
        row.state = makeState(context, node, labelAbove);
        if (row.state.valueKind == ValueKind::Number)
            row.presentation = EditorProperty(context.objects, context.controller, node.property.id)
                                   .createQuantityPresentation();
        row.children = makeRowsOf(context, node.children, row.state.name);
        rows.push_back(std::move(row));
    }
    return rows;
}

} // namespace

std::vector<EditorRow> EditorRow::makeRows(ShownObjects const& objects,
                                           ObjectPropertyEditControllerBase const& controller,
                                           EditorLevel const& level)
{
    return makeRowsOf({objects, controller}, EditorNode::makeTree(objects, level), {});
}

} // namespace qev::ui::edit
