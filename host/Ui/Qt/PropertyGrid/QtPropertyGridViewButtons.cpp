#include "Ui/Qt/PropertyGrid/QtPropertyGridView.h"

#include "Ui/PropertyGrid/PropertyGridEditing.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGridLayout.h"
#include "Ui/Qt/QtLocalize.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <utility>

// What the view does with the buttons at the end of rows, and the menu that offers them.

namespace qev::ui {

namespace {

constexpr auto valueColumn = QtPropertyGridItemModel::valueColumn;

} // namespace

void QtPropertyGridView::leaveEvent(QEvent* event)
{
    redrawButton(std::exchange(m_hoveredButton, std::nullopt));
    QTreeView::leaveEvent(event);
}

void QtPropertyGridView::contextMenuEvent(QContextMenuEvent* event)
{
    auto const isByKey = event->reason() == QContextMenuEvent::Keyboard;
    auto const index = isByKey ? currentIndex() : indexAt(event->pos());
    if (!index.isValid())
        return;
    openMenu(index, isByKey ? viewport()->mapToGlobal(visualRect(getCurrentValueIndex()).bottomLeft())
                            : event->globalPos());
}

void QtPropertyGridView::openMenu(QModelIndex const& index, QPoint const& position)
{
    // What is chosen may make the rows anew; by then the menu is gone.
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    fillMenu(*menu, index);
    if (!menu->isEmpty())
        menu->popup(position);
    else
        delete menu;
}

void QtPropertyGridView::fillMenu(QMenu& menu, QModelIndex const& index)
{
    auto const* const row = QtPropertyGridItemModel::getRow(index);
    if (!row)
        return;
    QPersistentModelIndex const value = index.siblingAtColumn(valueColumn);
    auto const& buttons = row->getState().buttons;
    for (std::size_t button = 0; button < buttons.size(); ++button)
        menu.addAction(QtPropertyGridButtons::getText(buttons[button]), this,
                       [this, value, button] { m_rows.pressButton(value, button); });
    if (PropertyGridEditing::canPressButton(*row))
        menu.addAction(getUiText("Button_edit"), this, [this, value] { m_rows.pressButton(value); });
    if (!menu.isEmpty())
        menu.addSeparator();
    menu.addAction(getUiText("Grid_Copy"), this, [this] { copySelection(); });
    if (PropertyGridEditing::getEditor(*row) != PropertyGridEditor::None)
        menu.addAction(getUiText("Grid_Clear"), this, [this, value] { m_rows.clear(value); });
}

QtPropertyGridButtons::Look QtPropertyGridView::getButtonLook(QModelIndex const& index,
                                                              std::size_t button) const
{
    auto const isThis = [&](std::optional<Button> const& other) {
        return other && other->index == index && other->button == button;
    };
    if (!isThis(m_hoveredButton))
        return QtPropertyGridButtons::Look::Flat;
    return isThis(m_pressedButton) ? QtPropertyGridButtons::Look::Pressed
                                   : QtPropertyGridButtons::Look::Hovered;
}

std::optional<QtPropertyGridView::Button> QtPropertyGridView::findButton(QPoint const& position) const
{
    auto const index = indexAt(position);
    auto const* const row = QtPropertyGridItemModel::getRow(index);
    if (!row || index.column() != valueColumn)
        return std::nullopt;
    auto const button = QtPropertyGridLayout::of(*row, getCellOption(index)).findButton(position);
    return button ? std::optional(Button{index, *button}) : std::nullopt;
}

void QtPropertyGridView::updateHover(QPoint const& position)
{
    redrawButton(std::exchange(m_hoveredButton, findButton(position)));
    redrawButton(m_hoveredButton);
}

void QtPropertyGridView::redrawButton(std::optional<Button> const& button)
{
    if (button && button->index.isValid())
        viewport()->update(visualRect(button->index));
}

} // namespace qev::ui
