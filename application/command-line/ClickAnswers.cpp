#include "ClickAnswers.h"

#include "Classification/HeadlessClassificationDialog.h"
#include "FoundationClasses/Classification/ClassificationInterface.h"
#include "Ui/Window/Controls/ListControl/ListControl.h"

#include <algorithm>
#include <charconv>
#include <set>
#include <utility>

namespace qev::application {

namespace {

using ui::CheckState;
using ui::HeadlessListControl;
using ui::ListControl;

/// Without a name in the list a row is known by its place, counted from 0.
std::optional<std::size_t> placeFromText(std::string const& text)
{
    std::size_t place = 0;
    auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), place);
    bool const isRead = error == std::errc() && end == text.data() + text.size();
    return isRead ? std::optional(place) : std::nullopt;
}

std::string describeRows(HeadlessListControl const& list)
{
    if (list.getRowCount() == 0)
        return "the list is empty";
    std::string text = "the list has";
    for (std::size_t row = 0; row < list.getRowCount(); ++row)
        text += "\n  " + std::to_string(row) + "  " + list.getCellText(row, 0);
    return text;
}

bool isChecked(HeadlessListControl const& list, std::size_t row)
{
    return list.getCheckState(row, 0) == CheckState::Checked;
}

/// One empty value stands for none at all.
bool areNone(std::vector<std::string> const& texts) { return texts.size() == 1 && texts.front().empty(); }

} // namespace

// --- The dialog -------------------------------------------------------------------------------------

/// Takes the code to pick when it is shown, as only then it is known that it is its turn.
class ClickAnswers::Dialog final : public classification::ui::ClassificationDialogInterface
{
public:
    explicit Dialog(std::shared_ptr<State> state)
        : m_state(std::move(state))
    {
    }

    std::vector<std::string> show(classification::ClassificationInterface& system,
                                  fc::core::kernel::FcObject const* object,
                                  fc::core::kernel::FcTypeObject const* typeObject,
                                  std::string_view selectedCode) override
    {
        m_state->wasDialogShown = true;
        auto code = m_state->takeChoice();
        if (!code) {
            m_state->fail(ExitCode::BadUsage,
                          "a code of " + system.getKey() + " is asked for: give it with --choose");
            return {};
        }
        m_dialog.answer(*code);
        auto path = m_dialog.show(system, object, typeObject, selectedCode);
        if (path.empty())
            m_state->fail(ExitCode::NothingFound, system.getKey() + " has no code " + *code);
        return path;
    }

private:
    std::shared_ptr<State> m_state;
    classification::ui::HeadlessClassificationDialog m_dialog;
};

std::optional<std::string> ClickAnswers::State::takeChoice()
{
    if (choices.empty())
        return std::nullopt;
    auto choice = std::move(choices.front());
    choices.erase(choices.begin());
    return choice;
}

void ClickAnswers::State::fail(ExitCode code, std::string problem)
{
    exitCode = code;
    problems.push_back(std::move(problem));
}

// --- The answers ------------------------------------------------------------------------------------

ClickAnswers::ClickAnswers(std::vector<std::string> choices, std::vector<std::string> values)
    : m_state(std::make_shared<State>())
    , m_values(std::move(values))
{
    m_state->choices = std::move(choices);
    classification::ui::setClassificationDialog(std::make_shared<Dialog>(m_state));
}

ClickAnswers::~ClickAnswers() { classification::ui::setClassificationDialog(nullptr); }

ExitCode ClickAnswers::answer(HeadlessEditor& editor)
{
    std::shared_ptr<ListControl> answered;
    for (auto popup = editor.popup(); popup && popup != answered; popup = editor.popup()) {
        answered = popup;
        answerPopup(editor);
        bool const mayGoOn =
            m_state->exitCode == ExitCode::Success || m_state->exitCode == ExitCode::RefusedEdit;
        if (!mayGoOn)
            return m_state->exitCode;
    }
    editor.closePopup();
    for (std::string const& choice : std::exchange(m_state->choices, {}))
        m_state->fail(ExitCode::BadUsage, "nothing asks for the choice of " + choice);
    if (!m_values.empty())
        m_state->fail(ExitCode::BadUsage, "nothing asks for --values");
    return m_state->exitCode;
}

void ClickAnswers::answerPopup(HeadlessEditor& editor)
{
    auto const list = editor.popupList();
    bool const hasBoxes = list->getCheckBoxMode(0).has_value();
    if (hasBoxes && list->getColumnCount() == 1)
        tick(*list);
    else if (hasBoxes)
        typeBounds(*list);
    else if ((list->getStyleFlags() & ListControl::EditLabels) != 0)
        typeTable(editor, *list);
    else
        choose(editor, *list);
}

void ClickAnswers::choose(HeadlessEditor& editor, HeadlessListControl& list)
{
    auto const choice = m_state->takeChoice();
    if (!choice) {
        m_state->fail(ExitCode::BadUsage,
                      "a list opens: choose one of its rows with --choose; " + describeRows(list));
        return;
    }
    auto const row = findRow(list, *choice);
    if (!row)
        return;
    auto const popup = editor.popup();
    m_state->wasDialogShown = false;
    auto const messagesBefore = editor.messages().size();
    list.activate(*row, 0);
    bool const didNothing =
        editor.popup() == popup && !m_state->wasDialogShown && editor.messages().size() == messagesBefore;
    if (didNothing)
        refuse("the row " + *choice + " cannot be chosen");
}

void ClickAnswers::tick(HeadlessListControl& list)
{
    auto const choices = std::exchange(m_state->choices, {});
    if (choices.empty()) {
        m_state->fail(ExitCode::BadUsage,
                      "a list of values opens: name those to be ticked with --choose; " + describeRows(list));
        return;
    }
    std::set<std::size_t> wanted;
    for (std::string const& choice : areNone(choices) ? std::vector<std::string>() : choices) {
        if (auto const row = findRow(list, choice))
            wanted.insert(*row);
    }
    if (m_state->exitCode != ExitCode::Success)
        return;
    for (std::size_t row = 0; row < list.getRowCount(); ++row) {
        if (isChecked(list, row) != wanted.contains(row))
            list.clickCheckBox(row, 0);
    }
}

void ClickAnswers::typeBounds(HeadlessListControl& list)
{
    auto const values = takeValues("lower bound, upper bound and set point, an empty one for none");
    if (values.empty())
        return;
    if (values.size() != list.getRowCount()) {
        m_state->fail(ExitCode::BadUsage, "expected " + std::to_string(list.getRowCount()) +
                                              " --values: lower bound, upper bound and set point, an empty "
                                              "one for none");
        return;
    }
    for (std::size_t row = 0; row < values.size(); ++row) {
        std::string const& value = values[row];
        if (value.empty())
            continue;
        if (!isChecked(list, row))
            list.clickCheckBox(row, 0);
        if (!list.type(row, 1, value))
            refuse(list.getText(row, 0) + ": it does not take the value " + value);
    }
    // A new bound takes its type from the others, so they go last.
    for (std::size_t row = 0; row < values.size(); ++row) {
        if (values[row].empty() && isChecked(list, row))
            list.clickCheckBox(row, 0);
    }
}

void ClickAnswers::typeTable(HeadlessEditor& editor, HeadlessListControl& list)
{
    auto const values = takeValues("defining and defined value of each row in turn");
    if (values.empty())
        return;
    auto const cells = areNone(values) ? std::vector<std::string>() : values;
    if (cells.size() % 2 != 0) {
        m_state->fail(ExitCode::BadUsage, "a table takes two --values for each row");
        return;
    }
    std::size_t const wantedRows = cells.size() / 2;
    while (list.getRowCount() > wantedRows && editor.deletePopupRow(list.getRowCount() - 1)) {
    }
    for (std::size_t cell = 0; cell < cells.size(); ++cell)
        typeCell(editor, cell / 2, cell % 2, cells[cell]);
}

void ClickAnswers::typeCell(HeadlessEditor& editor, std::size_t row, std::size_t column,
                            std::string const& value)
{
    auto const list = editor.popupList();
    if (row < list->getRowCount()) {
        if (list->type(row, column, value))
            return;
    } else {
        // Below the last row an edit begins a new one.
        editor.popup()->startLabelEdit(row, column);
        if (list->commitText(value) && row < list->getRowCount())
            return;
    }
    refuse("row " + std::to_string(row) + ": it does not take the value " + value);
}

std::optional<std::size_t> ClickAnswers::findRow(HeadlessListControl const& list, std::string const& choice)
{
    for (std::size_t row = 0; row < list.getRowCount(); ++row) {
        if (list.getText(row, 0) == choice)
            return row;
    }
    auto const place = placeFromText(choice);
    if (place && *place < list.getRowCount())
        return place;
    m_state->fail(ExitCode::NothingFound, "there is no row " + choice + "; " + describeRows(list));
    return std::nullopt;
}

std::vector<std::string> ClickAnswers::takeValues(std::string const& wanted)
{
    auto values = std::exchange(m_values, {});
    if (values.empty())
        m_state->fail(ExitCode::BadUsage, "values are asked for: give them with --values, " + wanted);
    return values;
}

void ClickAnswers::refuse(std::string problem) { m_state->fail(ExitCode::RefusedEdit, std::move(problem)); }

} // namespace qev::application
