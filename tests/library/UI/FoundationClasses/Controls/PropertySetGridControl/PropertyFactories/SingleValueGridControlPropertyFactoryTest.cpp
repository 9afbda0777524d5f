#include "GridFactoriesTest.h"

#include <gmock/gmock.h>

namespace {

using namespace qev::fc::ui;
using namespace qev::test;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using SingleValueGridControlPropertyFactoryTest = GridFactoriesTest;

std::unique_ptr<qev::ifc::def::xml::SetDef> codeAndLength()
{
    return SetBuilder("Pset").single("Code", "IfcLabel").single("Length", "IfcLengthMeasure").take();
}

TEST_F(SingleValueGridControlPropertyFactoryTest, AValueIsATextOrANumberWithItsPresentation)
{
    model.addSet(wall, "Pset", {{"Code", label("A")}, {"Length", length(0.25)}});
    ShownSet shown(codeAndLength(), {wall});

    auto const group = groupOf(shown, false);

    ASSERT_THAT(group->getChildren(), SizeIs(2));
    auto const& code = group->getChildren()[0];
    EXPECT_EQ(code->getState().kind, Kind::Value);
    EXPECT_EQ(code->getName(), "Pset.Code");
    EXPECT_EQ(code->getState().description, shown["Code"].getLocalizedDescription());
    EXPECT_EQ(code->getState().text, "A");
    EXPECT_TRUE(code->getState().allowEdit);
    EXPECT_FALSE(code->hasQuantityPresentation());
    EXPECT_EQ(propertyOf(code), &shown["Code"]);
    auto const& lengthRow = group->getChildren()[1];
    EXPECT_EQ(lengthRow->getName(), "Pset.Length");
    EXPECT_EQ(lengthRow->getState().description, shown["Length"].getLocalizedDescription());
    EXPECT_EQ(lengthRow->getState().number, 0.25);
    EXPECT_TRUE(lengthRow->hasQuantityPresentation());
    EXPECT_EQ(propertyOf(lengthRow), &shown["Length"]);
}

TEST_F(SingleValueGridControlPropertyFactoryTest, ANumberWithoutAPresentationIsAText)
{
    model.addSet(wall, "Pset", {{"Count", integer(4)}});
    ShownSet shown(SetBuilder("Pset").single("Count", "IfcInteger").take(), {wall});

    auto const row = onlyRowOf(shown, false);

    EXPECT_EQ(row->getState().text, "4.000000");
    EXPECT_EQ(row->getState().number, std::nullopt);
}

TEST_F(SingleValueGridControlPropertyFactoryTest, AnUnusedNumberIsNought)
{
    ShownSet shown(codeAndLength(), {wall});

    auto const group = groupOf(shown, true);

    EXPECT_EQ(group->getChildren()[0]->getState().text, "");
    EXPECT_EQ(group->getChildren()[1]->getState().number, 0.0);
    EXPECT_TRUE(group->getChildren()[1]->hasQuantityPresentation());
    EXPECT_THAT(groupOf(shown, false)->getChildren(), IsEmpty());
}

TEST_F(SingleValueGridControlPropertyFactoryTest, ATextWhereANumberIsMeantIsNought)
{
    model.addSet(wall, "Pset", {{"Length", label("wide")}});
    ShownSet shown(SetBuilder("Pset").single("Length", "IfcLengthMeasure").take(), {wall});

    EXPECT_EQ(onlyRowOf(shown, false)->getState().number, 0.0);
}

TEST_F(SingleValueGridControlPropertyFactoryTest, AnEmptyTextIsAValueAllTheSame)
{
    model.addSet(wall, "Pset", {{"Code", label("")}});
    ShownSet shown(SetBuilder("Pset").single("Code", "IfcLabel").take(), {wall});

    EXPECT_EQ(onlyRowOf(shown, false)->getState().text, "");
}

TEST_F(SingleValueGridControlPropertyFactoryTest, RowsHaveTheirOwnButtonWhenTheHostWantsIt)
{
    wantCustomButtons();
    model.addSet(wall, "Pset", {{"Code", label("A")}, {"Length", length(0.25)}});
    ShownSet shown(codeAndLength(), {wall});

    auto const group = groupOf(shown, true);

    EXPECT_THAT(namesOf(group), ElementsAre("Pset.Code", "Pset.Length"));
    for (auto const& row : group->getChildren())
        expectCustomButton(row);
    auto const& code = group->getChildren()[0];
    EXPECT_EQ(code->getState().text, "A");
    EXPECT_EQ(code->getState().description, shown["Code"].getLocalizedDescription());
    EXPECT_EQ(propertyOf(code), &shown["Code"]);
    auto const& lengthRow = group->getChildren()[1];
    EXPECT_EQ(lengthRow->getState().number, 0.25);
    EXPECT_TRUE(lengthRow->hasQuantityPresentation());
    EXPECT_EQ(propertyOf(lengthRow), &shown["Length"]);
}

TEST_F(SingleValueGridControlPropertyFactoryTest, AFormatterThatWantsNoButtonLeavesThePlainRow)
{
    grid.formatter = std::make_shared<ToyGridFormatter>();
    ShownSet shown(codeAndLength(), {wall});

    auto const group = groupOf(shown, true);

    for (auto const& row : group->getChildren())
        EXPECT_FALSE(row->getState().hasCustomButton);
}

} // namespace
