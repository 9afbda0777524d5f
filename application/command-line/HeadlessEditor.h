#pragma once

#include "EntityEditSession.h"
#include "Ui/Headless/HeadlessBackend.h"
#include "Ui/PropertyGrid/PropertyGridRowRecord.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace qev::application {

/// A row of the object editor, with those below it.
struct HeadlessEditorRow
{
    /// The path by which the objects answer for the row.
    std::string path;
    std::string label;
    ui::PropertyGridRowRecord record;
    std::vector<HeadlessEditorRow> children;
};

/// The object editor of some objects on the headless back end, read and driven as by a user.
///
/// Enumerations have a button that opens a list of their values while a session lives.
class HeadlessEditor
{
public:
    HeadlessEditor();
    ~HeadlessEditor();
    HeadlessEditor(HeadlessEditor const&) = delete;
    HeadlessEditor& operator=(HeadlessEditor const&) = delete;

    /// Shows entities of a model together, in place of former ones.
    void show(std::shared_ptr<fc::Data> data, std::vector<std::shared_ptr<fc::FcBase>> entities);

    [[nodiscard]] std::vector<HeadlessEditorRow> rows() const;
    /// The row of a path; nothing when there is none.
    [[nodiscard]] std::optional<HeadlessEditorRow> findRow(std::string const& path) const;
    /// Types into a row. False when there is no such row, or it refuses the text.
    bool type(std::string const& path, std::string const& text);
    /// Presses the first button of that key. False when the row has none.
    bool press(std::string const& path, std::string const& key);

    /// The popup that is open; null when none is.
    [[nodiscard]] std::shared_ptr<ui::ListControl> popup() const;
    /// Its list, to be driven.
    [[nodiscard]] std::shared_ptr<ui::HeadlessListControl> popupList() const;
    /// Leaves the popup that is open, as by a click elsewhere.
    void closePopup();
    /// Deletes a row of the popup by its menu. False when the list offers none.
    bool deletePopupRow(std::size_t row);

    /// What buttons have led to, oldest first: the path or address of something outside of the model, or a
    /// GlobalId.
    [[nodiscard]] std::vector<std::string> const& openedReferences() const { return m_openedReferences; }
    /// The texts of the messages that were shown.
    [[nodiscard]] std::vector<std::string> messages() const;

private:
    [[nodiscard]] EntityEditSession::Requests requests();
    [[nodiscard]] ui::HeadlessPropertyGrid& grid() const;
    [[nodiscard]] std::shared_ptr<ui::PropertyGridRow> gridRow(std::string const& path) const;

    std::shared_ptr<ui::HeadlessBackend> m_backend;
    std::vector<std::string> m_openedReferences;
    EntityEditSession m_session;
};

} // namespace qev::application
