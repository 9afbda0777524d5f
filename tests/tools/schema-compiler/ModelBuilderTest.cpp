#include "Model/ModelBuilder.h"
#include "Format/Ifc/Schema/SchemaText.h"
#include "Model/InputError.h"
#include "ToySchema.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace qev::schemacompiler {

namespace {

std::string buildError(std::string const& schema, std::string const& groups, std::string const& handwritten)
{
    std::vector<ifc::def::TextError> errors;
    auto const parsed = ifc::def::schema::parseSchema(schema, errors);
    try {
        buildModel(*parsed, GroupTable::parse(groups, "x.groups"), "x.groups",
                   HandwrittenClasses::parse(handwritten, "x.txt"), "x.schema");
    } catch (InputError const& error) {
        return error.what();
    }
    return {};
}

constexpr char const* oneEntity = "schema X\nentity IfcA\n  Name : STRING\n";

} // namespace

TEST(ModelBuilder, NumbersGoDepthFirstWithSiblingsByCharacterCode)
{
    auto const model = test::toyModel();
    std::vector<std::string> names;
    for (EntityModel const& entity : model.entities)
        names.push_back(entity.name);
    EXPECT_THAT(names, testing::ElementsAre("IfcMortar", "IfcObjectDefinition", "IfcAssembly", "IfcBrick",
                                            "IfcCutBrick", "IfcPlan"));
    EXPECT_EQ(model.entity("IfcObjectDefinition").first, 2u);
    EXPECT_EQ(model.entity("IfcObjectDefinition").last, 5u);
}

TEST(ModelBuilder, SlotsCountInheritedAttributes)
{
    auto const model = test::toyModel();
    EXPECT_EQ(model.entity("IfcCutBrick").attributes.front().slot, 3u);
    EXPECT_EQ(model.entity("IfcCutBrick").slotCount, 4u);
    EXPECT_EQ(model.entity("IfcCutBrick").derivedSlots, 0b10u);
    EXPECT_EQ(model.entity("IfcBrick").derivedSlots, 0u);
    EXPECT_EQ(model.entity("IfcObjectDefinition").inverses.front().slot, 1u);
}

TEST(ModelBuilder, DefinedTypesAreFollowedToTheirValues)
{
    auto const model = test::toyModel();
    ElementType const& scale = model.entity("IfcPlan").attributes.at(2).type;
    EXPECT_EQ(scale.name, "IfcPair");
    EXPECT_EQ(scale.kind, Kind::Integer);
    EXPECT_EQ(scale.depth, 1u);
    ElementType const& profile = model.entity("IfcCutBrick").attributes.front().type;
    EXPECT_EQ(profile.kind, Kind::Real);
    EXPECT_EQ(profile.depth, 2u);
}

TEST(ModelBuilder, SelectMembersAreSortedAndNestedSelectsGoFirst)
{
    auto const model = test::toyModel();
    std::vector<std::string> members;
    for (SelectMemberModel const& member : model.select("IfcFiller").members)
        members.push_back(member.name);
    EXPECT_THAT(members, testing::ElementsAre("IfcLabel", "IfcMeasureValue", "IfcMortar"));
    EXPECT_LT(model.selectPositions.at("IfcSize"), model.selectPositions.at("IfcUse"));
    EXPECT_FALSE(model.select("IfcValue").hasClass);
}

TEST(ModelBuilder, RefusesTablesThatDoNotFitTheSchema)
{
    EXPECT_EQ(buildError(oneEntity, "Core.Kernel\n  IfcA IfcB\n", ""),
              "x.groups:2: IfcB is no entity or select of X");
    EXPECT_EQ(buildError(oneEntity, "", ""), "x.groups: IfcA has no group");
    EXPECT_EQ(buildError(oneEntity, "Core.Kernel\n  IfcA\n", "class FcB"), "x.txt:1: FcB is no entity of X");
    EXPECT_EQ(buildError(oneEntity, "Core.Kernel\n  IfcA\n", "select FcA"), "x.txt:1: FcA is no select of X");
    EXPECT_EQ(buildError(oneEntity, "Core.Kernel\n  IfcA\n", "member FcA.Size C D.h"),
              "x.txt:1: FcA.Size is no attribute of X");
}

TEST(ModelBuilder, RefusesARecordOfMoreThan64Attributes)
{
    std::string schema = "schema X\nentity IfcA\n";
    for (int i = 0; i < 65; ++i)
        schema += "  A" + std::to_string(i) + " : REAL\n";
    EXPECT_EQ(buildError(schema, "Core.Kernel\n  IfcA\n", ""), "X: IfcA has more than 64 attributes");
}

} // namespace qev::schemacompiler
