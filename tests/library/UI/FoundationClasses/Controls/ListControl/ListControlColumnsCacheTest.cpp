#include "UI/FoundationClasses/Controls/ListControl/ListControlColumnsCache.h"

#include "kit/ReportRecorder.h"
#include "UI/FoundationClasses/Controls/Formatters/ListControlPropertyFormatter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev::fc::ui;
using qev::test::expectReport;
using qev::test::takeReportTexts;
using testing::ElementsAre;

constexpr char path[] = "UI/FoundationClasses/Controls/ListControl/ListControlColumnsCache";
constexpr char function[] = "qev::fc::ui::ListControlColumnsCache::";

/// Gives each column a text made of its id.
class TextsFromIds : public ListControlPropertyFormatter
{
public:
    [[nodiscard]] std::string getCustomColumnItemString(std::string const& columnId) const override
    {
        return "text of " + columnId;
    }
};

/// Stands for a property; the cache never looks into it.
PropertyInterface* someProperty()
{
    static int placeholder = 0;
    return reinterpret_cast<PropertyInterface*>(&placeholder);
}

class ListControlColumnsCacheTest : public testing::Test
{
protected:
    std::vector<std::string> titles() const
    {
        std::vector<std::string> result;
        for (std::size_t index = 0; index < cache.getColumnCount(); ++index)
            result.push_back(cache.getColumnTitle(index));
        return result;
    }

    ListControlColumnsCache cache{std::make_shared<TextsFromIds>()};
};

TEST_F(ListControlColumnsCacheTest, APropertyColumnKnowsItsNamesTitleAndProperty)
{
    cache.addPropertyColumn("Fire rating", "Pset_WallCommon", "FireRating", someProperty());

    EXPECT_EQ(cache.getColumnNames(0), (ColumnPropertyNames{"Pset_WallCommon", "FireRating"}));
    EXPECT_EQ(cache.getColumnTitle(0), "Fire rating");
    EXPECT_FALSE(cache.isCustomColumn(0));
    EXPECT_EQ(cache.getProperty(0), someProperty());
    auto& column = *cache.getColumns().front();
    column.resetProperty();
    EXPECT_EQ(cache.getProperty(0), nullptr);
    column.setProperty(someProperty());
    EXPECT_EQ(cache.getProperty(0), someProperty());
}

TEST_F(ListControlColumnsCacheTest, ACustomColumnHasItsIdForAName)
{
    cache.addCustomColumn("id", "Title", std::nullopt);

    EXPECT_EQ(cache.getColumnNames(0), (ColumnPropertyNames{"", "id"}));
    EXPECT_EQ(cache.getColumnTitle(0), "Title");
    EXPECT_TRUE(cache.isCustomColumn(0));
    EXPECT_EQ(cache.getCustomColumnItemString(0), "text of id");
}

TEST_F(ListControlColumnsCacheTest, ACustomColumnNeverYieldsAProperty)
{
    cache.addCustomColumn("id", "Title", std::nullopt);
    auto& column = *cache.getColumns().front();
    std::string const text = "Should never be called for custom columns.";

    EXPECT_EQ(column.getProperty(), nullptr);
    expectReport(text, std::string(function) + "CustomColumnElement::getProperty", path);
    column.setProperty(someProperty());
    expectReport(text, std::string(function) + "CustomColumnElement::setProperty", path);
    column.resetProperty();
    expectReport(text, std::string(function) + "CustomColumnElement::resetProperty", path);
    EXPECT_EQ(cache.getProperty(0), nullptr);
    EXPECT_THAT(takeReportTexts(), ElementsAre(text));
}

TEST_F(ListControlColumnsCacheTest, EveryQuestionOutOfRangeIsHeardOf)
{
    cache.addPropertyColumn("A", "Set", "A", someProperty());
    EXPECT_FALSE(cache.isColumnIndexOutOfRange(0));

    EXPECT_TRUE(cache.isColumnIndexOutOfRange(1));
    expectReport("Column index out of range.", std::string(function) + "isColumnIndexOutOfRange", path);
    EXPECT_EQ(cache.getColumnNames(1), ColumnPropertyNames());
    EXPECT_EQ(cache.getColumnTitle(1), "");
    EXPECT_EQ(cache.getCustomColumnItemString(1), "");
    EXPECT_FALSE(cache.isCustomColumn(1));
    EXPECT_EQ(cache.getProperty(1), nullptr);
    EXPECT_EQ(takeReportTexts(), std::vector<std::string>(5, "Column index out of range."));
}

TEST_F(ListControlColumnsCacheTest, TheTextOfACustomColumnNeedsAFormatter)
{
    ListControlColumnsCache plain(nullptr);
    plain.addCustomColumn("id", "Title", std::nullopt);

    EXPECT_EQ(plain.getCustomColumnItemString(0), "");
    expectReport("Need list control property formatter to provide item strings.",
                 std::string(function) + "getCustomColumnItemString", path);
}

TEST_F(ListControlColumnsCacheTest, ACustomColumnGoesInFrontOfThePropertyItNames)
{
    cache.addPropertyColumn("A", "Set", "A", someProperty());
    cache.addPropertyColumn("B", "Set", "B", someProperty());
    cache.addPropertyColumn("B again", "Set", "B", someProperty());

    cache.addCustomColumn("c", "C", ColumnPropertyNames{"Set", "B"});

    EXPECT_THAT(titles(), ElementsAre("A", "C", "B", "B again"));
}

TEST_F(ListControlColumnsCacheTest, ACustomColumnGoesInFrontOfAnotherOneItNames)
{
    cache.addCustomColumn("a", "A", std::nullopt);
    cache.addCustomColumn("b", "B", ColumnPropertyNames{"", "a"});

    EXPECT_THAT(titles(), ElementsAre("B", "A"));
}

TEST_F(ListControlColumnsCacheTest, ColumnsAddedFromTheLastToTheFirstStandInOrderInFrontOfAnother)
{
    cache.addPropertyColumn("W", "Set", "W", someProperty());
    cache.addPropertyColumn("X", "Set", "X", someProperty());

    cache.addCustomColumn("c", "C", ColumnPropertyNames{"Set", "X"});
    cache.addCustomColumn("b", "B", ColumnPropertyNames{"Set", "X"});
    cache.addCustomColumn("a", "A", ColumnPropertyNames{"Set", "X"});

    EXPECT_THAT(titles(), ElementsAre("W", "A", "B", "C", "X"));
}

TEST_F(ListControlColumnsCacheTest, ColumnsAddedFromTheLastToTheFirstWithoutAPlaceStandInReverse)
{
    cache.addCustomColumn("b", "B", std::nullopt);
    cache.addCustomColumn("a", "A", std::nullopt);
    EXPECT_THAT(titles(), ElementsAre("B", "A"));
}

TEST_F(ListControlColumnsCacheTest, BothNamesCountForThePlaceOfACustomColumn)
{
    cache.addPropertyColumn("A", "Set", "A", someProperty());

    cache.addCustomColumn("b", "B", ColumnPropertyNames{"Other", "A"});
    cache.addCustomColumn("c", "C", ColumnPropertyNames{"Set", "Other"});

    EXPECT_THAT(titles(), ElementsAre("A", "B", "C"));
}

TEST_F(ListControlColumnsCacheTest, ClearingLeavesNoColumn)
{
    cache.addPropertyColumn("A", "Set", "A", someProperty());
    cache.clear();
    EXPECT_EQ(cache.getColumnCount(), 0u);
}

} // namespace
