#pragma once

#include "QtUiTest.h"
#include "Ui/Qt/ListControl/QtListControl.h"
#include "Ui/Qt/QtText.h"
#include "Ui/Window/Controls/ListControl/ListControl.h"
#include "Ui/Window/PopupMenu.h"

#include <map>
#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace qev::test {

/// A list in a Qt window over a small table: a name, a width, a rating out of three, a check box alone, and a
/// column that nobody can edit.
class QtListTest : public QtUiTest
{
protected:
    static constexpr std::size_t name = 0;
    static constexpr std::size_t width = 1;
    static constexpr std::size_t rating = 2;
    static constexpr std::size_t external = 3;
    static constexpr std::size_t locked = 4;

    QtListTest()
        : control(createList())
        , list(*backend->getListControl(*control))
        , view(list.getView())
    {
        attachTo(*control);
        control->setItemAndColumnCounts(texts.size(), titles.size());
        QApplication::setActiveWindow(backend->getWidget(dialog->getHandle()));
        view.setFocus();
        settle();
    }

    [[nodiscard]] std::shared_ptr<ui::ListControl>
    createList(unsigned int style = ui::ListControl::ReportStyle) const
    {
        return ui::Window::create<ui::ListControl>(dialog, style, 0, {0, 0, 500, 400});
    }

    /// Makes this table the owner of a list.
    void attachTo(ui::ListControl& target)
    {
        target.onGetColumnHeaderText.iHandlerAdd(
            [this](auto&, std::size_t column) { return titles.at(column); });
        target.onGetItemText.iHandlerAdd([this](auto&, Item const& item) {
            readCells.push_back(item);
            return item.column == external && titles.size() == 5 ? std::string()
                                                                 : getRow(item).at(*item.column);
        });
        target.onGetItemBackgroundColour.iHandlerAdd([this](auto&, Item const& item) {
            auto const found = colours.find({*item.item, *item.column});
            return found == colours.end() ? std::nullopt : std::optional(found->second);
        });
        target.onGetCheckState.iHandlerAdd([this](auto&, Item const& item) {
            return std::optional(getRow(item).at(external) == "TRUE" ? ui::CheckState::Checked
                                                                     : ui::CheckState::Unchecked);
        });
        target.onCheckBoxClicked.iHandlerAdd([this](auto&, Item const& item, ui::CheckState state) {
            texts[*item.item][external] = state == ui::CheckState::Checked ? "TRUE" : "FALSE";
        });
        target.onDoesItemContainLocalValue.iHandlerAdd([this](auto&, Item const& item) {
            return localCells.contains({*item.item, *item.column});
        });
        target.onResetItemsToGlobalValues.iHandlerAdd(
            [this](auto&, std::vector<std::size_t> const& rows, std::size_t column) {
                std::string entry = "reset ";
                for (auto const row : rows)
                    entry += std::to_string(row) + ' ';
                log.push_back(entry + "of " + std::to_string(column));
            });
        target.onItemActivated.iHandlerAdd(
            [this](auto&, Item const& item) { log.push_back("activated " + std::to_string(*item.item)); });
        target.onItemSecondaryEvent.iHandlerAdd(
            [this](auto&, Item const& item) { log.push_back("asked " + std::to_string(*item.item)); });
        target.onQueryColumn.iHandlerAdd([](auto&, std::size_t) { return true; });
        attachEditing(target);
        target.enableColumnCheckBoxes(external, ui::ListControl::BoxAlone, nullptr, nullptr);
        target.activateComboBoxEditingForColumn(rating);
    }

    [[nodiscard]] std::vector<std::string> const& getRow(ui::ListControl::ItemInfo const& item) const
    {
        return texts.at(*item.item % texts.size());
    }

    void attachEditing(ui::ListControl& target)
    {
        target.onLabelEditBegin.iHandlerAdd([](auto&, ui::ListControl::LabelEditBeginParams const& params) {
            ui::ListControl::LabelEditBeginResultParams result;
            auto const column = params.items.front().column;
            if (column == name || column == width)
                result.editType = ui::ListControl::EditBox;
            else if (column == rating)
                result = {ui::ListControl::DropList, {"F30", "F60", "F90"}};
            return result;
        });
        target.onLabelEditEnd.iHandlerAdd([this](auto&, ui::ListControl::LabelEditEndParams const& params) {
            std::string entry = params.accepted ? "set" : "left";
            for (auto const& item : params.items) {
                entry += ' ' + std::to_string(*item.item);
                if (params.accepted && params.text == "bad")
                    params.refuse(item);
                else if (params.accepted && *item.item < texts.size())
                    texts[*item.item][*item.column] = params.text;
            }
            edits.push_back(params.accepted ? entry + ": " + params.text : entry);
        });
    }

    void setRows(std::vector<std::vector<std::string>> rows)
    {
        texts = std::move(rows);
        control->setItemAndColumnCounts(texts.size(), titles.size());
        finish();
    }

    /// The rows over and over again, as many as \p count.
    void setRowCount(std::size_t count)
    {
        control->setItemAndColumnCounts(count, titles.size());
        finish();
    }

    /// Lets filter, order and search come to their end.
    void finish()
    {
        EXPECT_TRUE(QTest::qWaitFor([this] { return !list.isWorking(); }, 10000));
        settle();
    }

    /// The rows from above as they are shown.
    [[nodiscard]] std::vector<std::size_t> shownRows() const
    {
        std::vector<std::size_t> rows;
        auto const& order = list.getCells().getOrder();
        for (std::size_t position = 0; position < order.getShownCount(); ++position)
            rows.push_back(order.getRow(position));
        return rows;
    }

    [[nodiscard]] QModelIndex index(int position, std::size_t column) const
    {
        return list.getCells().index(position, static_cast<int>(column));
    }
    [[nodiscard]] ui::ListControl::ItemInfo current() const
    {
        return list.getCells().getItem(view.currentIndex());
    }
    void select(int position, std::size_t column)
    {
        view.selectionModel()->setCurrentIndex(index(position, column), QItemSelectionModel::ClearAndSelect);
    }
    void select(int top, std::size_t left, int bottom, std::size_t right)
    {
        select(top, left);
        view.selectionModel()->select(QItemSelection(index(top, left), index(bottom, right)),
                                      QItemSelectionModel::ClearAndSelect);
    }
    void addToSelection(int position, std::size_t column)
    {
        view.selectionModel()->select(index(position, column), QItemSelectionModel::Select);
    }

    void key(Qt::Key pressed, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        auto* const target = QApplication::focusWidget();
        ASSERT_NE(target, nullptr);
        QTest::keyClick(target, pressed, modifiers);
        settle();
    }
    void type(char const* typed)
    {
        for (; *typed; ++typed)
            QTest::keyClick(QApplication::focusWidget(), *typed);
    }
    template <class Editor>
    [[nodiscard]] Editor* editor(int position, std::size_t column) const
    {
        return qobject_cast<Editor*>(view.indexWidget(index(position, column)));
    }

    void clickHeader(std::size_t column, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        auto& header = view.getHeader();
        auto const left = header.sectionViewportPosition(static_cast<int>(column));
        QTest::mouseClick(
            header.viewport(), Qt::LeftButton, modifiers,
            QPoint(left + header.sectionSize(static_cast<int>(column)) / 2, header.height() / 2));
        finish();
    }

    /// Opens the context menu of a cell, and chooses the entry of that text; none for an empty one.
    /// \returns the texts of the entries, without their keys
    std::vector<std::string> openMenu(int position, std::size_t column, char const* chosen)
    {
        std::vector<std::string> entries;
        QTimer::singleShot(0, [&] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            for (auto* const action : menu->actions()) {
                if (action->isSeparator())
                    continue;
                entries.push_back(ui::fromQString(action->text().section('\t', 0, 0)));
                if (entries.back() == chosen)
                    menu->setActiveAction(action);
            }
            QTest::keyClick(menu, *chosen ? Qt::Key_Return : Qt::Key_Escape);
        });
        auto const place = view.visualRect(index(position, column)).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, view.viewport()->mapToGlobal(place));
        QApplication::sendEvent(view.viewport(), &event);
        settle();
        return entries;
    }

    using Item = ui::ListControl::ItemInfo;

    std::vector<std::string> titles = {"Name", "Width", "Rating", "External", "Locked"};
    std::vector<std::vector<std::string>> texts = {{"Wall 1", "2 m", "F30", "FALSE", "a"},
                                                   {"Wall 2", "10 m", "F60", "TRUE", "b"},
                                                   {"Wall 10", "2.5 m", "F90", "FALSE", "c"},
                                                   {"Door", "", "F30", "FALSE", "d"}};
    std::map<std::pair<std::size_t, std::size_t>, attr::Colour> colours;
    std::set<std::pair<std::size_t, std::size_t>> localCells;
    /// The cells whose text was asked for.
    std::vector<Item> readCells;
    std::vector<std::string> log;
    /// How edits ended: "set 0 2: text", "left 1".
    std::vector<std::string> edits;
    std::shared_ptr<ui::ListControl> control;
    ui::QtListControl& list;
    ui::QtListView& view;
};

} // namespace qev::test
