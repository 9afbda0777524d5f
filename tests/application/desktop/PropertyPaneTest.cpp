#include "PropertyPane.h"

#include "InspectorWindow.h"

namespace qev::test {
namespace {

using testing::HasSubstr;

/// The small building with a thing whose two sets share their properties, numbers without units among them.
std::string sharedProperties()
{
    std::string text(smallBuilding);
    text.insert(text.rfind("ENDSEC;"), R"(#60=IFCPROPERTYSINGLEVALUE('Factor',$,IFCREAL(2.5),$);
#61=IFCPROPERTYSINGLEVALUE('Checked',$,IFCBOOLEAN(.F.),$);
#62=IFCPROPERTYSET('0000000000000000000062',$,'First',$,(#60,#61));
#63=IFCPROPERTYSET('0000000000000000000063',$,'Second',$,(#60,#61));
#64=IFCRELDEFINESBYPROPERTIES('0000000000000000000064',$,$,$,(#33),#62);
#65=IFCRELDEFINESBYPROPERTIES('0000000000000000000065',$,$,$,(#33),#63);
#66=IFCQUANTITYCOUNT('Pieces',$,$,3,$);
#67=IFCELEMENTQUANTITY('0000000000000000000067',$,'Counts',$,$,(#66));
#68=IFCRELDEFINESBYPROPERTIES('0000000000000000000068',$,$,$,(#33),#67);
)");
    return text;
}

class PropertyPaneTest : public InspectorWindow
{
protected:
    PropertyPaneTest()
        : InspectorWindow(sharedProperties())
    {
        open();
        window->selectObject("0000000000000000000033");
    }

    void replace(QModelIndex const& index, char const* text)
    {
        startEditing(index);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), text);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        settle();
    }
    void expectRefused(std::vector<std::string> const& names, char const* text)
    {
        auto const shown = value(row(names));
        replace(row(names), text);
        EXPECT_THAT(view().getMessage().toStdString(), HasSubstr(text));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        settle();
        EXPECT_EQ(value(row(names)), shown);
        EXPECT_FALSE(window->isWindowModified());
    }
};

TEST_F(PropertyPaneTest, ANumberWithoutUnitRefusesOtherTextsAndStaysAsItWas)
{
    ASSERT_EQ(value(row({"First", "Factor"})), "2.500000");
    expectRefused({"First", "Factor"}, "none");
}

TEST_F(PropertyPaneTest, AQuantityRefusesOtherTextsAndNumbersItCannotHold)
{
    ASSERT_EQ(value(row({"Counts", "Pieces"})), "3");
    expectRefused({"Counts", "Pieces"}, "many");
    expectRefused({"Counts", "Pieces"}, "1e19");
}

TEST_F(PropertyPaneTest, ATakenTextIsShownAsTheModelHoldsIt)
{
    replace(row({"Counts", "Pieces"}), "7.9");
    EXPECT_EQ(value(row({"Counts", "Pieces"})), "7");
}

TEST_F(PropertyPaneTest, AnEditShowsInEachSetThatSharesTheProperty)
{
    replace(row({"First", "Factor"}), "3");
    EXPECT_EQ(value(row({"First", "Factor"})), "3.000000");
    EXPECT_EQ(value(row({"Second", "Factor"})), "3.000000");

    view().setFocus();
    view().setCurrentIndex(row({"Second", "Checked"}));
    QTest::keyClick(&view(), Qt::Key_Space);
    settle();
    auto const* const first = ui::QtPropertyGridItemModel::getRow(row({"First", "Checked"}));
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->getCheckState(), ui::CheckState::Checked);
}

} // namespace
} // namespace qev::test
