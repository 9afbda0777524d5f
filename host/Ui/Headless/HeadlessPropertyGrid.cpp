#include "Ui/Headless/HeadlessPropertyGrid.h"

#include "Ui/Headless/HeadlessInterface.h"
#include "Ui/PropertyGrid/PropertyGridText.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridControlInterface.h"

#include <algorithm>
#include <utility>

namespace qev::ui {

namespace {

class HeadlessPropertyGridInterface final : public HeadlessInterface<PropertyGridControlInterface>
{
public:
    explicit HeadlessPropertyGridInterface(std::shared_ptr<HeadlessPropertyGrid> const& grid)
        : HeadlessInterface(grid)
        , m_grid(grid)
    {
    }

    [[nodiscard]] std::shared_ptr<PropertyGridModel> getModel() const override { return m_grid->getModel(); }
    void adjustLayout() override { m_grid->countLayout(); }
    void showRow(PropertyGridRow& row) override { m_grid->showRow(row); }
    [[nodiscard]] std::shared_ptr<PropertyGridRow> getCurrentRow() const override
    {
        return m_grid->getCurrentRow();
    }

private:
    std::shared_ptr<HeadlessPropertyGrid> m_grid;
};

} // namespace

HeadlessPropertyGrid::HeadlessPropertyGrid(int controlId, WindowPlacement const& placement)
    : HeadlessWindow(WindowClass::PropertyGridControl, controlId, placement)
{
}

std::unique_ptr<WindowInterface> HeadlessPropertyGrid::createInterface()
{
    return std::make_unique<HeadlessPropertyGridInterface>(
        std::static_pointer_cast<HeadlessPropertyGrid>(shared_from_this()));
}

std::vector<HeadlessPropertyGrid::Row> HeadlessPropertyGrid::rows() const
{
    std::vector<Row> result;
    auto const append = [&](auto const& self, std::vector<Row> const& level) -> void {
        for (auto const& row : level) {
            result.push_back(row);
            if (isExpanded(*row))
                self(self, row->getChildren());
        }
    };
    append(append, m_model->getRows());
    return result;
}

HeadlessPropertyGrid::Row HeadlessPropertyGrid::findRow(std::vector<std::string> const& path) const
{
    auto const visible = rows();
    auto const found = std::find_if(visible.begin(), visible.end(), [&](Row const& row) {
        return PropertyGridRowRecord::getPath(*row) == path;
    });
    return found == visible.end() ? nullptr : *found;
}

bool HeadlessPropertyGrid::select(Row const& row)
{
    if (!isReachableRow(row) || row->getState().kind == PropertyGridRowState::Kind::EmptyLine)
        return false;
    // The handlers may take this window away.
    auto const keepAlive = shared_from_this();
    makeCurrent(*row);
    return true;
}

HeadlessPropertyGrid::Row HeadlessPropertyGrid::getCurrentRow() const
{
    auto const visible = rows();
    auto const found = std::find_if(visible.begin(), visible.end(), [&](Row const& row) {
        return PropertyGridRowRecord::getPlace(*row) == m_current;
    });
    return found == visible.end() ? nullptr : *found;
}

bool HeadlessPropertyGrid::selectNextEditable(bool forwards)
{
    auto visible = rows();
    if (!forwards)
        std::reverse(visible.begin(), visible.end());
    auto const current = std::find(visible.begin(), visible.end(), getCurrentRow());
    auto const next = std::find_if(
        current == visible.end() ? visible.begin() : std::next(current), visible.end(),
        [](Row const& row) { return PropertyGridEditing::getEditor(*row) != PropertyGridEditor::None; });
    return next != visible.end() && select(*next);
}

std::string HeadlessPropertyGrid::getDescription() const
{
    auto const row = getCurrentRow();
    return row ? row->getState().description : std::string();
}

std::string HeadlessPropertyGrid::copy() const
{
    auto const row = getCurrentRow();
    return row ? PropertyGridText::getCopiedText(*row) : std::string();
}

bool HeadlessPropertyGrid::type(Row const& row, std::string_view text)
{
    return drive(row, PropertyGridEditing::commitText, text);
}

bool HeadlessPropertyGrid::choose(Row const& row, std::string_view text)
{
    return drive(row, PropertyGridEditing::choose, text);
}

bool HeadlessPropertyGrid::clear(Row const& row)
{
    return drive(row,
                 [](PropertyGridRow& target, std::string_view) { return PropertyGridEditing::clear(target); },
                 {});
}

bool HeadlessPropertyGrid::clickCheckBox(Row const& row)
{
    return drive(
        row,
        [](PropertyGridRow& target, std::string_view) { return PropertyGridEditing::clickCheckBox(target); },
        {});
}

bool HeadlessPropertyGrid::pressButton(Row const& row)
{
    return drive(
        row,
        [](PropertyGridRow& target, std::string_view) { return PropertyGridEditing::pressButton(target); },
        {});
}

bool HeadlessPropertyGrid::pressButton(Row const& row, std::string_view key)
{
    return drive(
        row,
        [](PropertyGridRow& target, std::string_view pressed) {
            auto const button = PropertyGridEditing::findButton(target, pressed);
            return PropertyGridEditing::pressButton(target,
                                                    button.value_or(target.getState().buttons.size()));
        },
        key);
}

bool HeadlessPropertyGrid::followLink(Row const& row)
{
    return drive(
        row,
        [](PropertyGridRow& target, std::string_view) { return PropertyGridEditing::followLink(target); },
        {});
}

void HeadlessPropertyGrid::showRow(PropertyGridRow& row)
{
    for (auto const* parent = row.getParent(); parent; parent = parent->getParent())
        m_collapsed.erase(PropertyGridRowRecord::getPlace(*parent));
    makeCurrent(row);
}

bool HeadlessPropertyGrid::expand(Row const& row) { return setExpanded(row, true); }

bool HeadlessPropertyGrid::collapse(Row const& row) { return setExpanded(row, false); }

bool HeadlessPropertyGrid::isExpanded(PropertyGridRow const& row) const
{
    return !row.getChildren().empty() && !m_collapsed.contains(PropertyGridRowRecord::getPlace(row));
}

std::vector<PropertyGridRowRecord> HeadlessPropertyGrid::records() const
{
    std::vector<PropertyGridRowRecord> result;
    for (auto const& row : rows())
        result.push_back(PropertyGridRowRecord::of(*row));
    return result;
}

std::string HeadlessPropertyGrid::dump() const
{
    std::string text;
    for (auto const& row : rows())
        text += PropertyGridText::getLine(*row, isExpanded(*row)) + '\n';
    return text;
}

bool HeadlessPropertyGrid::drive(Row const& row, Input input, std::string_view text)
{
    m_message.clear();
    if (!isReachableRow(row))
        return false;
    // The handlers may take this window away.
    auto const keepAlive = shared_from_this();
    auto const keepRow = row;
    auto result = input(*keepRow, text);
    m_message = std::move(result.message);
    return result.accepted;
}

void HeadlessPropertyGrid::makeCurrent(PropertyGridRow& row)
{
    auto place = PropertyGridRowRecord::getPlace(row);
    if (place == m_current)
        return;
    m_current = std::move(place);
    m_model->notifyRowSelected(&row);
}

bool HeadlessPropertyGrid::isReachableRow(Row const& row) const
{
    return row && row->getModel() == m_model.get() && isReachable() && isShown(*row);
}

bool HeadlessPropertyGrid::isShown(PropertyGridRow const& row) const
{
    auto const* const parent = row.getParent();
    return !parent || (isExpanded(*parent) && isShown(*parent));
}

bool HeadlessPropertyGrid::setExpanded(Row const& row, bool expanded)
{
    if (!isReachableRow(row) || row->getChildren().empty())
        return false;
    auto path = PropertyGridRowRecord::getPlace(*row);
    if (expanded)
        m_collapsed.erase(path);
    else
        m_collapsed.insert(std::move(path));
    return true;
}

} // namespace qev::ui
