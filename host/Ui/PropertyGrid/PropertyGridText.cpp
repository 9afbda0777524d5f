#include "Ui/PropertyGrid/PropertyGridText.h"

#include "Ui/PropertyGrid/PropertyGridEditing.h"

#include <array>
#include <cstdio>
#include <string_view>
#include <vector>

namespace qev::ui {

namespace {

using Kind = PropertyGridRowState::Kind;

std::string onOneLine(std::string_view text)
{
    std::string result;
    for (char const character : text) {
        if (character == '\n')
            result += "\\n";
        else if (character != '\r')
            result += character;
    }
    return result;
}

std::size_t getDepth(PropertyGridRow const& row)
{
    std::size_t depth = 0;
    for (auto const* parent = row.getParent(); parent; parent = parent->getParent())
        ++depth;
    return depth;
}

char const* getFoldMark(PropertyGridRow const& row, bool isExpanded)
{
    if (row.getChildren().empty())
        return row.getState().kind == Kind::Group ? "- " : "  ";
    return isExpanded ? "- " : "+ ";
}

char const* getCheckMark(CheckState state)
{
    switch (state) {
    case CheckState::Checked:
        return " [x]";
    case CheckState::Unchecked:
        return " [ ]";
    case CheckState::Indeterminate:
        return " [-]";
    }
    return "";
}

char const* getCheckText(CheckState state)
{
    switch (state) {
    case CheckState::Checked:
        return "true";
    case CheckState::Unchecked:
        return "false";
    case CheckState::Indeterminate:
        return "";
    }
    return "";
}

std::string getEditorMark(PropertyGridRow const& row)
{
    auto const editor = PropertyGridEditing::getEditor(row);
    if (editor == PropertyGridEditor::None)
        return row.getState().enabled ? "read-only" : "disabled";
    std::string mark = PropertyGridEditing::getEditorName(editor);
    if (PropertyGridEditing::getValueEditor(row) == PropertyGridEditor::Choice)
        for (auto const& option : row.getState().options)
            mark += (option.enabled ? " \"" : " -\"") + onOneLine(option.text) + '"';
    return mark;
}

std::string getColourMark(attr::Colour const& colour)
{
    std::array<char, 16> buffer{};
    std::snprintf(buffer.data(), buffer.size(), "#%02X%02X%02X%02X", unsigned{colour.alpha},
                  unsigned{colour.red}, unsigned{colour.green}, unsigned{colour.blue});
    return buffer.data();
}

char const* getLineMark(PropertyGridHorizontalLine line)
{
    switch (line) {
    case PropertyGridHorizontalLine::Above:
        return "line above";
    case PropertyGridHorizontalLine::Below:
        return "line below";
    case PropertyGridHorizontalLine::AboveAndBelow:
        return "lines above and below";
    }
    return "";
}

std::vector<std::string> getMarks(PropertyGridRow const& row)
{
    auto const& state = row.getState();
    std::vector<std::string> marks;
    if (state.kind == Kind::Value || state.kind == Kind::CheckBox)
        marks.push_back(getEditorMark(row));
    if (PropertyGridEditing::hasVisibleButton(row))
        marks.emplace_back("button");
    for (auto const& button : state.buttons)
        marks.push_back("button \"" + onOneLine(button.key) + '"');
    if (state.isLink)
        marks.emplace_back("link");
    if (state.isLocalValue)
        marks.emplace_back("local");
    if (state.bold)
        marks.emplace_back("bold");
    if (state.textColour)
        marks.push_back("text " + getColourMark(*state.textColour));
    if (state.backgroundColour)
        marks.push_back(getColourMark(*state.backgroundColour));
    if (state.alignment == PropertyGridAlignment::Right)
        marks.emplace_back("right");
    if (state.horizontalLine)
        marks.emplace_back(getLineMark(*state.horizontalLine));
    return marks;
}

std::string getMarksText(PropertyGridRow const& row)
{
    std::string text;
    for (auto const& mark : getMarks(row))
        text += (text.empty() ? "" : ", ") + mark;
    return text.empty() ? text : " {" + text + '}';
}

} // namespace

std::string PropertyGridText::getLine(PropertyGridRow const& row, bool isExpanded)
{
    auto const& state = row.getState();
    std::string line(2 * getDepth(row), ' ');
    if (state.kind == Kind::EmptyLine)
        return line + "  (empty line)";
    line += getFoldMark(row, isExpanded);
    line += std::string(state.nameIndentationInCharacters, ' ') + onOneLine(state.name);
    if (PropertyGridEditing::hasCheckBox(row))
        line += getCheckMark(state.checkState);
    if (auto const value = PropertyGridEditing::getDisplayedText(row); !value.empty())
        line += " = " + onOneLine(value);
    else if (auto const hint = PropertyGridEditing::getHint(row); !hint.empty())
        line += " (" + onOneLine(hint) + ')';
    return line + getMarksText(row);
}

std::string PropertyGridText::getValueText(PropertyGridRow const& row)
{
    auto text = PropertyGridEditing::getDisplayedText(row);
    return text.empty() && PropertyGridEditing::hasCheckBox(row) ? getCheckText(row.getCheckState()) : text;
}

std::string PropertyGridText::getCopiedText(PropertyGridRow const& row)
{
    return row.getState().kind == Kind::Group ? row.getName() : getValueText(row);
}

} // namespace qev::ui
