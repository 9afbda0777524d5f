#include "QtPropertyGridTest.h"

#include "Ui/Window/Controls/PropertyGridControl/PropertyGridStateProperty.h"

#include <QHelpEvent>
#include <QMenu>
#include <QPainter>
#include <QPixmap>
#include <QToolTip>

namespace qev::test {
namespace {

using namespace ui;
using testing::ElementsAre;
using testing::IsEmpty;

/// Rows with buttons at their end, driven by mouse and keys.
class QtPropertyGridButtonsTest : public QtPropertyGridTest
{
protected:
    QtPropertyGridButtonsTest()
    {
        addMore = [this](PropertyGridProperty& set) {
            PropertyGridRowState state;
            state.kind = PropertyGridRowState::Kind::Value;
            state.valueKind = PropertyGridRowState::ValueKind::Text;
            state.name = "Uniclass";
            state.text = "Ss_25_10";
            state.allowEdit = false;
            state.buttons = {makeButton("delete", "Delete"), makeButton("edit", "Edit…")};
            addRow(set, state);
            state.name = "Document";
            state.isLink = true;
            state.buttons = {makeButton("", "Open")};
            addRow(set, state);
            state.name = "Address";
            state.allowEdit = true;
            addRow(set, state);
            PropertyGridRowState group;
            group.name = "Sets";
            group.buttons = {makeButton("", "Add")};
            addRow(set, group);
        };
        fill();
        settle();
    }

    static PropertyGridRowButton makeButton(std::string key, std::string text)
    {
        return {std::move(key), std::make_shared<Image>(Image{"delete"}), std::move(text)};
    }
    void addRow(PropertyGridProperty& set, PropertyGridRowState state)
    {
        auto const rowName = state.name;
        PropertyGridStateProperty property(std::move(state), nullptr);
        auto& row = *property.getRow();
        row.setButtonFunction([this, rowName, &row](std::size_t button) {
            presses.push_back(rowName + ":" + row.getState().buttons[button].key);
            if (refillOnPress)
                fill();
        });
        set.addSubProperty(property);
    }
    [[nodiscard]] QPoint buttonAt(Path const& path, std::size_t button) const
    {
        return layout(path).buttons.at(button).center();
    }
    [[nodiscard]] QMenu* openMenu() const { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }
    [[nodiscard]] std::vector<std::string> entries(QMenu const& menu) const
    {
        std::vector<std::string> texts;
        for (auto const* const action : menu.actions())
            if (!action->isSeparator())
                texts.push_back(fromQString(action->text()));
        return texts;
    }

    Path const codeRow{"Pset_WallCommon", "Uniclass"};
    Path const documentRow{"Pset_WallCommon", "Document"};
    Path const addressRow{"Pset_WallCommon", "Address"};
    Path const setsRow{"Pset_WallCommon", "Sets"};
    bool refillOnPress = false;
    std::vector<std::string> presses;
};

TEST_F(QtPropertyGridButtonsTest, TheTextOfAButtonIsNoMarkup)
{
    addMore = [this](PropertyGridProperty& set) {
        PropertyGridRowState state;
        state.kind = PropertyGridRowState::Kind::Value;
        state.name = "Code";
        state.buttons = {makeButton("", "Add <b>new</b>")};
        addRow(set, state);
    };
    fill();
    settle();
    auto const position = buttonAt({"Pset_WallCommon", "Code"}, 0);
    QHelpEvent event(QEvent::ToolTip, position, view.viewport()->mapToGlobal(position));
    QApplication::sendEvent(view.viewport(), &event);
    EXPECT_EQ(fromQString(QToolTip::text()), "Add &lt;b&gt;new&lt;/b&gt;");
    QToolTip::hideText();
}

TEST_F(QtPropertyGridButtonsTest, ButtonsStandAtTheRightEndOfTheValue)
{
    auto const parts = layout(codeRow);
    ASSERT_EQ(parts.buttons.size(), 2u);
    EXPECT_EQ(parts.buttons[1].right(), view.visualRect(index(codeRow)).right());
    EXPECT_EQ(parts.buttons[0].right() + 1, parts.buttons[1].left());
    EXPECT_LT(parts.value.right(), parts.buttons[0].left());
    EXPECT_TRUE(layout(nameRow).buttons.empty());
}

TEST_F(QtPropertyGridButtonsTest, AClickPressesTheButtonItHits)
{
    click(buttonAt(codeRow, 1));
    click(buttonAt(codeRow, 0));
    click(layout(codeRow).value.center());
    click(buttonAt(setsRow, 0));
    EXPECT_THAT(presses, ElementsAre("Uniclass:edit", "Uniclass:delete", "Sets:"));
}

TEST_F(QtPropertyGridButtonsTest, AButtonThatIsLeftBeforeTheReleaseIsNotPressed)
{
    QTest::mousePress(view.viewport(), Qt::LeftButton, Qt::NoModifier, buttonAt(codeRow, 1));
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, Qt::NoModifier, buttonAt(codeRow, 0));
    QTest::mousePress(view.viewport(), Qt::LeftButton, Qt::NoModifier, buttonAt(codeRow, 1));
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, Qt::NoModifier, layout(codeRow).value.center());
    EXPECT_THAT(presses, IsEmpty());
}

TEST_F(QtPropertyGridButtonsTest, AButtonShowsThatTheMouseIsOverItAndHoldsIt)
{
    using Look = QtPropertyGridButtons::Look;
    EXPECT_EQ(view.getButtonLook(index(codeRow), 1), Look::Flat);
    QTest::mouseMove(view.viewport(), buttonAt(codeRow, 1));
    EXPECT_EQ(view.getButtonLook(index(codeRow), 1), Look::Hovered);
    EXPECT_EQ(view.getButtonLook(index(codeRow), 0), Look::Flat);
    QTest::mousePress(view.viewport(), Qt::LeftButton, Qt::NoModifier, buttonAt(codeRow, 1));
    EXPECT_EQ(view.getButtonLook(index(codeRow), 1), Look::Pressed);
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, Qt::NoModifier, buttonAt(codeRow, 1));
    EXPECT_EQ(view.getButtonLook(index(codeRow), 1), Look::Hovered);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&view, &leave);
    EXPECT_EQ(view.getButtonLook(index(codeRow), 1), Look::Flat);
}

TEST_F(QtPropertyGridButtonsTest, APressMayMakeTheRowsAnew)
{
    refillOnPress = true;
    click(buttonAt(codeRow, 0));
    settle();
    click(buttonAt(codeRow, 1));
    settle();
    EXPECT_THAT(presses, ElementsAre("Uniclass:delete", "Uniclass:edit"));
    EXPECT_EQ(current(), "Uniclass");
}

TEST_F(QtPropertyGridButtonsTest, AClickOnALinkThatCannotBeTypedInFollowsIt)
{
    click(layout(documentRow).value.center());
    EXPECT_THAT(presses, ElementsAre("Document:"));
    select(documentRow);
    key(Qt::Key_Return);
    EXPECT_THAT(presses, ElementsAre("Document:", "Document:"));
}

TEST_F(QtPropertyGridButtonsTest, ALinkThatCanBeTypedInIsFollowedWithControl)
{
    auto const position = layout(addressRow).value.center();
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::ControlModifier, position);
    EXPECT_THAT(presses, ElementsAre("Address:"));
    click(position);
    EXPECT_NE(view.indexWidget(index(addressRow)), nullptr);
    EXPECT_THAT(presses, ElementsAre("Address:"));
}

TEST_F(QtPropertyGridButtonsTest, AltDownPressesAnOnlyButtonAndOffersSeveral)
{
    select(setsRow);
    key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_THAT(presses, ElementsAre("Sets:"));
    select(codeRow);
    key(Qt::Key_Down, Qt::AltModifier);
    ASSERT_NE(openMenu(), nullptr);
    QTest::keyClick(openMenu(), Qt::Key_Down);
    QTest::keyClick(openMenu(), Qt::Key_Return);
    EXPECT_THAT(presses, ElementsAre("Sets:", "Uniclass:delete"));
}

TEST_F(QtPropertyGridButtonsTest, TheMenuOfARowOffersItsButtons)
{
    select(codeRow);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(view.viewport(), &event);
    ASSERT_NE(openMenu(), nullptr);
    EXPECT_THAT(entries(*openMenu()), ElementsAre("Delete", "Edit…", "Copy"));
    openMenu()->close();

    auto const position = view.visualRect(index(nameRow)).center();
    QContextMenuEvent byMouse(QContextMenuEvent::Mouse, position, view.viewport()->mapToGlobal(position));
    QApplication::sendEvent(view.viewport(), &byMouse);
    ASSERT_NE(openMenu(), nullptr);
    EXPECT_THAT(entries(*openMenu()), ElementsAre("Copy", "Clear"));
    openMenu()->actions().back()->trigger();
    openMenu()->close();
    EXPECT_EQ(value(nameRow), "");
}

TEST_F(QtPropertyGridButtonsTest, AButtonHasItsPictureOrElseThreeDots)
{
    auto const draw = [](std::string const& image) {
        QImage picture(20, 20, QImage::Format_ARGB32);
        picture.fill(Qt::white);
        QPainter painter(&picture);
        PropertyGridRowButton const drawn{{}, std::make_shared<Image>(Image{image}), {}};
        QtPropertyGridButtons::paint(painter, {}, drawn, picture.rect(), Qt::black,
                                     QtPropertyGridButtons::Look::Flat);
        painter.end();
        return picture;
    };
    auto const isRed = [](QColor const& colour) { return colour.red() > colour.blue() + 40; };
    EXPECT_TRUE(isRed(draw("delete").pixelColor(10, 10)));
    EXPECT_FALSE(isRed(draw("nowhere").pixelColor(10, 10)));
    EXPECT_NE(draw("nowhere").pixelColor(10, 10), QColor(Qt::white));
    EXPECT_NE(draw("reset"), draw("nowhere"));
}

} // namespace
} // namespace qev::test
