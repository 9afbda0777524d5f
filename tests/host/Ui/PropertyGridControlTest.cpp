#include "Ui/Window/Controls/PropertyGridControl/PropertyGridControl.h"

#include "Ui/PropertyGrid/PropertyGridEditing.h"
#include "UiTest.h"

namespace {

using namespace qev;
using namespace qev::ui;
using testing::ElementsAre;

constexpr auto controlPath = "Ui/Window/Controls/PropertyGridControl/PropertyGridControl";

class PropertyGridControlTest : public test::UiTest
{
protected:
    PropertyGridControlTest()
        : control(createGrid())
    {
    }

    std::shared_ptr<PropertyGridControl> control;
};

TEST_F(PropertyGridControlTest, ReportsAMissingPlatformSide)
{
    PropertyGridControl unattached;
    unattached.addProperty(std::make_unique<PropertyGridProperty>("Set"));
    test::expectReport("Property grid control interface not set.",
                       "qev::ui::PropertyGridControl::addProperty", controlPath);
    unattached.removeAllProperties();
    test::expectReport("Property grid control interface not set.",
                       "qev::ui::PropertyGridControl::removeAllProperties", controlPath);
    unattached.adjustLayout();
    test::expectReport("Property grid control interface not set.",
                       "qev::ui::PropertyGridControl::adjustLayout", controlPath);
    EXPECT_EQ(unattached.getModel(), nullptr);
    test::expectReport("Property grid control interface not set.", "qev::ui::PropertyGridControl::getModel",
                       controlPath);
}

TEST_F(PropertyGridControlTest, HoldsTopLevelRowsInTheOrderTheyCome)
{
    control->addProperty(std::make_unique<PropertyGridProperty>("First"));
    control->addProperty(std::make_unique<PropertyGridProperty>("Second"));
    auto const& rows = control->getModel()->getRows();
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0]->getName(), "First");
    EXPECT_EQ(rows[1]->getName(), "Second");
    control->removeAllProperties();
    EXPECT_TRUE(control->getModel()->getRows().empty());
}

TEST_F(PropertyGridControlTest, ReportsARowThatIsNotNew)
{
    control->addProperty(nullptr);
    test::expectReport("Property isn't new.", "qev::ui::PropertyGridControl::addProperty", controlPath);
}

TEST_F(PropertyGridControlTest, AdjustLayoutReachesTheBackEnd)
{
    control->adjustLayout();
    EXPECT_EQ(backend->getPropertyGrid(*control)->getLayoutCount(), 1);
}

TEST_F(PropertyGridControlTest, TheHandlerAddedLastHearsOfAChangeAndDecidesIfItGoesOn)
{
    std::vector<std::string> log;
    control->onPropertyChanged.iHandlerAdd([&](auto&, PropertyGridProperty&) { log.emplace_back("first"); });
    control->onPropertyChanged.iHandlerAdd([&](auto& event, PropertyGridProperty& property) {
        log.push_back("second, " + property.getName());
        forwardEvent(event, property);
    });
    control->addProperty(std::make_unique<PropertyGridProperty>("FireRating", "F30", "", false));
    PropertyGridEditing::commitText(*control->getModel()->getRows().front(), "F60");
    EXPECT_THAT(log, ElementsAre("second, FireRating", "first"));
}

TEST_F(PropertyGridControlTest, SetValueTellsTheHandlersOnlyWhenAsked)
{
    int calls = 0;
    control->onPropertyChanged.iHandlerAdd([&](auto&, PropertyGridProperty&) { ++calls; });
    auto property = std::make_unique<PropertyGridProperty>("FireRating", "F30", "", false);
    control->addProperty(std::move(property));
    PropertyGridProperty row(control->getModel()->getRows().front());
    row.setValue("F60");
    EXPECT_EQ(calls, 0);
    row.setValue("F90", true);
    EXPECT_EQ(calls, 1);
}

TEST_F(PropertyGridControlTest, AHandlerMayRemoveTheRowItIsCalledFor)
{
    std::string seen;
    control->onPropertyChanged.iHandlerAdd([&](auto&, PropertyGridProperty& property) {
        control->removeAllProperties();
        property.getStringValue(seen);
    });
    control->addProperty(std::make_unique<PropertyGridProperty>("FireRating", "F30", "", false));
    auto const grid = backend->getPropertyGrid(*control);
    EXPECT_TRUE(grid->type(grid->findRow({"FireRating"}), "F60"));
    EXPECT_EQ(seen, "F60");
    EXPECT_TRUE(grid->rows().empty());
}

TEST_F(PropertyGridControlTest, AHandlerMayLetGoOfTheControl)
{
    control->onPropertyChanged.iHandlerAdd([&](auto&, PropertyGridProperty&) {
        control->detach(true);
        control.reset();
    });
    control->addProperty(std::make_unique<PropertyGridProperty>("FireRating", "F30", "", false));
    auto const grid = backend->getPropertyGrid(*control);
    EXPECT_TRUE(grid->type(grid->findRow({"FireRating"}), "F60"));
    EXPECT_EQ(control, nullptr);
}

TEST_F(PropertyGridControlTest, RowsOfAControlThatIsGoneStayHarmless)
{
    control->addProperty(std::make_unique<PropertyGridProperty>("FireRating", "F30", "", false));
    PropertyGridProperty row(control->getModel()->getRows().front());
    control->detach(true);
    control.reset();
    row.setValue("F60", true);
    std::string text;
    EXPECT_TRUE(row.getStringValue(text));
    EXPECT_EQ(text, "F60");
}

/// Writes down what a grid's back end hears.
class Log : public PropertyGridObserver
{
public:
    void onAboutToReset() override { entries.emplace_back("about to reset"); }
    void onReset() override { entries.emplace_back("reset"); }
    void onRowAboutToBeInserted(PropertyGridRow* parent, std::size_t index) override
    {
        entries.push_back("about to insert " + std::to_string(index) +
                          (parent ? " below " + parent->getName() : ""));
    }
    void onRowInserted(PropertyGridRow* parent, std::size_t index) override
    {
        entries.push_back("inserted " + std::to_string(index) +
                          (parent ? " below " + parent->getName() : ""));
    }
    void onRowChanged(PropertyGridRow& row) override { entries.push_back("changed " + row.getName()); }

    std::vector<std::string> entries;
};

TEST_F(PropertyGridControlTest, ObserversHearOfEachChangeInOrder)
{
    Log log;
    control->getModel()->addObserver(log);
    control->addProperty(std::make_unique<PropertyGridProperty>("Set"));
    PropertyGridProperty group(control->getModel()->getRows().front());
    PropertyGridProperty row("FireRating", "F30", "", false);
    row.enable(true);
    group.addSubProperty(row);
    row.setValue("F60");
    control->removeAllProperties();
    row.setValue("F90");
    control->getModel()->removeObserver(log);
    EXPECT_THAT(log.entries,
                ElementsAre("about to insert 0", "inserted 0", "about to insert 0 below Set",
                            "inserted 0 below Set", "changed FireRating", "about to reset", "reset"));
}

} // namespace
