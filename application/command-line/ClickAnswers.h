#pragma once

#include "ExitCode.h"
#include "HeadlessEditor.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace qev::application {

/// The answers to the lists and dialogs that open after a click in the object editor, one after the other.
class ClickAnswers
{
public:
    /// Rows of lists and codes of classifications, in the order in which they are asked for; the values of a
    /// popup in which values are typed. One empty choice or value stands for none, where several may be
    /// given.
    ClickAnswers(std::vector<std::string> choices, std::vector<std::string> values);
    ~ClickAnswers();
    ClickAnswers(ClickAnswers const&) = delete;
    ClickAnswers& operator=(ClickAnswers const&) = delete;

    /// Answers what opens until nothing is open any more. The object answers the dialog of classifications
    /// from its beginning on, as a click may open that at once.
    /// \returns Success, RefusedEdit when values were refused, or why nothing is to be saved
    ExitCode answer(HeadlessEditor& editor);
    /// What went wrong, a line each.
    [[nodiscard]] std::vector<std::string> const& problems() const { return m_state->problems; }

private:
    /// Shared with the dialog.
    struct State
    {
        std::vector<std::string> choices;
        std::vector<std::string> problems;
        ExitCode exitCode = ExitCode::Success;
        bool wasDialogShown = false;

        std::optional<std::string> takeChoice();
        void fail(ExitCode code, std::string problem);
    };
    class Dialog;

    void answerPopup(HeadlessEditor& editor);
    void choose(HeadlessEditor& editor, ui::HeadlessListControl& list);
    void tick(ui::HeadlessListControl& list);
    void typeBounds(ui::HeadlessListControl& list);
    void typeTable(HeadlessEditor& editor, ui::HeadlessListControl& list);
    void typeCell(HeadlessEditor& editor, std::size_t row, std::size_t column, std::string const& value);
    /// Nothing, and a problem, when the list has no such row.
    std::optional<std::size_t> findRow(ui::HeadlessListControl const& list, std::string const& choice);
    /// Empty, with a problem, when there are none.
    std::vector<std::string> takeValues(std::string const& wanted);
    void refuse(std::string problem);

    std::shared_ptr<State> m_state;
    std::vector<std::string> m_values;
};

} // namespace qev::application
