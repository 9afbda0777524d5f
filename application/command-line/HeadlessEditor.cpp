#include "HeadlessEditor.h"

#include "Ui/Window/Controls/ListControl/ListControl.h"
#include "Ui/Window/Controls/PopupControl/PopupControlAborter.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridControl.h"
#include "Ui/Window/PopupMenu.h"

namespace qev::application {

namespace {

std::vector<HeadlessEditorRow> describe(std::vector<std::shared_ptr<ui::PropertyGridRow>> const& rows)
{
    std::vector<HeadlessEditorRow> described;
    for (auto const& row : rows)
        described.push_back({row->getState().key, row->getName(), ui::PropertyGridRowRecord::of(*row),
                             describe(row->getChildren())});
    return described;
}

} // namespace

HeadlessEditor::HeadlessEditor()
    : m_backend(ui::HeadlessBackend::install())
    , m_session(m_backend->createDialog({800, 600}), requests())
{
}

HeadlessEditor::~HeadlessEditor() = default;

EntityEditSession::Requests HeadlessEditor::requests()
{
    auto const keep = [this](std::string const& reference) { m_openedReferences.push_back(reference); };
    return {keep, keep, {}};
}

void HeadlessEditor::show(std::shared_ptr<fc::Data> data, std::vector<std::shared_ptr<fc::FcBase>> entities)
{
    m_session.show(std::move(data), std::move(entities));
}

ui::HeadlessPropertyGrid& HeadlessEditor::grid() const
{
    return *m_backend->getPropertyGrid(*m_session.getGrid());
}

std::shared_ptr<ui::PropertyGridRow> HeadlessEditor::gridRow(std::string const& path) const
{
    return m_session.getEditor().findRow(object::PropertyId(path));
}

std::vector<HeadlessEditorRow> HeadlessEditor::rows() const { return describe(grid().getModel()->getRows()); }

std::optional<HeadlessEditorRow> HeadlessEditor::findRow(std::string const& path) const
{
    auto const row = gridRow(path);
    return row ? std::optional(describe({row}).front()) : std::nullopt;
}

bool HeadlessEditor::type(std::string const& path, std::string const& text)
{
    return grid().type(gridRow(path), text);
}

bool HeadlessEditor::press(std::string const& path, std::string const& key)
{
    return grid().pressButton(gridRow(path), key);
}

std::shared_ptr<ui::ListControl> HeadlessEditor::popup() const
{
    return std::dynamic_pointer_cast<ui::ListControl>(ui::PopupControlAborter::current().getOpenPopup());
}

std::shared_ptr<ui::HeadlessListControl> HeadlessEditor::popupList() const
{
    auto const control = popup();
    return control ? m_backend->getListControl(*control) : nullptr;
}

void HeadlessEditor::closePopup()
{
    if (popup())
        m_session.getGrid()->setFocus();
}

bool HeadlessEditor::deletePopupRow(std::size_t row)
{
    auto const list = popupList();
    if (!list)
        return false;
    auto const countBefore = list->getRowCount();
    m_backend->setMenuAnswer([](ui::PopupMenu const&) { return std::optional<std::size_t>(0); });
    list->openContextMenu(row, 0);
    m_backend->setMenuAnswer({});
    return list->getRowCount() + 1 == countBefore;
}

std::vector<std::string> HeadlessEditor::messages() const
{
    std::vector<std::string> texts;
    for (auto const& message : m_backend->getMessages())
        texts.push_back(message.text);
    return texts;
}

} // namespace qev::application
