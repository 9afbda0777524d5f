#include "UI/FoundationClasses/ObjectIcons.h"

#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Resource/Material/FcMaterial.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWallType.h"
#include "Icons/IconResources.h"
#include "kit/ModelBuilder.h"

#include <gtest/gtest.h>
#include <set>

namespace qev::test {
namespace {

using fc::ui::getIcon;
using fc::ui::getIconForObject;
using fc::ui::IconSize;
using platform::qt::IconResources;

/// Has the pictures it is given, and writes down which ones were asked for.
class FewIcons final : public platform::qt::IconSource
{
public:
    std::optional<std::string_view> find(std::string_view path) const override
    {
        asked.emplace_back(path);
        return paths.contains(std::string(path)) ? std::optional<std::string_view>("<svg/>") : std::nullopt;
    }

    std::set<std::string> paths;
    mutable std::vector<std::string> asked;
};

class ObjectIconsTest : public testing::Test
{
protected:
    ObjectIconsTest() { IconResources::setSource(icons); }
    ~ObjectIconsTest() override { IconResources::setSource(nullptr); }

    std::string path(std::string_view className, std::optional<std::string_view> predefinedType,
                     IconSize size = IconSize::Small)
    {
        icons->asked.clear();
        return IconResources::getPath(getIcon(className, predefinedType, size));
    }
    /// The names that were looked for, each by the first of its two sizes.
    std::vector<std::string> names() const
    {
        std::vector<std::string> names;
        for (auto const& asked : icons->asked)
            if (names.empty() || !asked.starts_with("/IFC/" + names.back() + "_"))
                names.push_back(asked.substr(5, asked.size() - 5 - std::string("_16x16.svg").size()));
        return names;
    }

    std::shared_ptr<FewIcons> icons = std::make_shared<FewIcons>();
};

using Names = std::vector<std::string>;

TEST_F(ObjectIconsTest, AreLookedForFromTheMostSpecialNameToTheGenericOne)
{
    icons->paths = {"/IFC/IfcGeneric_20x20.svg"};
    EXPECT_EQ(path("IfcWall", "SOLIDWALL", IconSize::Large), "/IFC/IfcGeneric_20x20.svg");
    EXPECT_EQ(names(), (Names{"WallTypeEnum.SOLIDWALL", "IfcWallTypeEnum.SOLIDWALL", "Wall", "IfcWall",
                              "IfcGeneric"}));
}

TEST_F(ObjectIconsTest, AreLookedForInTheWantedSizeFirst)
{
    icons->paths = {"/IFC/Wall_16x16.svg", "/IFC/Wall_20x20.svg"};
    EXPECT_EQ(path("IfcWall", std::nullopt, IconSize::Small), "/IFC/Wall_16x16.svg");
    EXPECT_EQ(icons->asked, (Names{"/IFC/Wall_16x16.svg"}));
    EXPECT_EQ(path("IfcWall", std::nullopt, IconSize::Large), "/IFC/Wall_20x20.svg");
    EXPECT_EQ(icons->asked, (Names{"/IFC/Wall_20x20.svg"}));
    EXPECT_EQ(path("IfcWall", std::nullopt, static_cast<IconSize>(2)), "/IFC/Wall_20x20.svg");
}

TEST_F(ObjectIconsTest, OfTheOtherSizeServeWhereTheWantedOneIsMissing)
{
    icons->paths = {"/IFC/Wall_16x16.svg", "/IFC/Slab_20x20.svg"};
    EXPECT_EQ(path("IfcWall", std::nullopt, IconSize::Large), "/IFC/Wall_16x16.svg");
    EXPECT_EQ(icons->asked, (Names{"/IFC/Wall_20x20.svg", "/IFC/Wall_16x16.svg"}));
    EXPECT_EQ(path("IfcSlab", std::nullopt, IconSize::Small), "/IFC/Slab_20x20.svg");
}

TEST_F(ObjectIconsTest, OfAnotherSizeGoBeforeMoreGeneralNames)
{
    icons->paths = {"/IFC/WallTypeEnum.SOLIDWALL_16x16.svg", "/IFC/Wall_20x20.svg"};
    EXPECT_EQ(path("IfcWall", "SOLIDWALL", IconSize::Large), "/IFC/WallTypeEnum.SOLIDWALL_16x16.svg");
}

TEST_F(ObjectIconsTest, OfATypeAreThoseOfItsObjects)
{
    icons->paths = {"/IFC/Wall_16x16.svg"};
    EXPECT_EQ(path("IfcWallType", std::nullopt), "/IFC/Wall_16x16.svg");
    EXPECT_EQ(path("Wall", std::nullopt), "/IFC/Wall_16x16.svg");
    EXPECT_EQ(path("WallType", std::nullopt), "/IFC/Wall_16x16.svg");
}

TEST_F(ObjectIconsTest, MayKeepThePrefixInTheirName)
{
    icons->paths = {"/IFC/IfcWall_16x16.svg", "/IFC/IfcSlabTypeEnum.ROOF_16x16.svg"};
    EXPECT_EQ(path("IfcWall", std::nullopt), "/IFC/IfcWall_16x16.svg");
    EXPECT_EQ(path("IfcSlab", "ROOF"), "/IFC/IfcSlabTypeEnum.ROOF_16x16.svg");
}

TEST_F(ObjectIconsTest, TakeThePredefinedTypeAsItIsWritten)
{
    icons->paths = {"/IFC/WallTypeEnum.SOLIDWALL_16x16.svg", "/IFC/IfcGeneric_16x16.svg"};
    EXPECT_EQ(path("IfcWall", "SolidWall"), "/IFC/IfcGeneric_16x16.svg");
}

TEST_F(ObjectIconsTest, OfNamesThatAreNothingButAPrefixOrAnEndingAreLookedForAllTheSame)
{
    icons->paths = {"/IFC/IfcGeneric_16x16.svg"};
    EXPECT_EQ(path("Type", std::nullopt), "/IFC/IfcGeneric_16x16.svg");
    EXPECT_EQ(names(), (Names{"", "Ifc", "IfcGeneric"}));
    EXPECT_EQ(path("IfcType", std::nullopt), "/IFC/IfcGeneric_16x16.svg");
    EXPECT_EQ(names(), (Names{"", "Ifc", "IfcGeneric"}));
    EXPECT_EQ(path("", std::nullopt), "/IFC/IfcGeneric_16x16.svg");
    EXPECT_EQ(path("If", std::nullopt), "/IFC/IfcGeneric_16x16.svg");
    EXPECT_EQ(names(), (Names{"If", "IfcIf", "IfcGeneric"}));
}

TEST_F(ObjectIconsTest, WithoutAGenericOneThrow)
{
    icons->paths = {"/IFC/Wall_16x16.svg"};
    EXPECT_THROW(static_cast<void>(getIcon("IfcSlab", std::nullopt, IconSize::Small)),
                 std::bad_optional_access);
}

TEST_F(ObjectIconsTest, OfAnObjectFollowItsPredefinedType)
{
    icons->paths = {"/IFC/WallTypeEnum.SOLIDWALL_16x16.svg", "/IFC/Wall_16x16.svg"};
    Model model;
    auto const wall = model.wall("W");
    EXPECT_EQ(IconResources::getPath(getIconForObject(*wall, IconSize::Small)), "/IFC/Wall_16x16.svg");
    EXPECT_EQ(names(), (Names{"WallTypeEnum.", "IfcWallTypeEnum.", "Wall"}));
    wall->setAttributeFromString("SOLIDWALL", "PredefinedType");
    EXPECT_EQ(IconResources::getPath(getIconForObject(*wall, IconSize::Small)),
              "/IFC/WallTypeEnum.SOLIDWALL_16x16.svg");
}

TEST_F(ObjectIconsTest, OfATypeFollowItsPredefinedTypeToo)
{
    icons->paths = {"/IFC/WallTypeEnum.SOLIDWALL_16x16.svg"};
    Model model;
    auto const type = model.wallType("T");
    type->setAttributeFromString("SOLIDWALL", "PredefinedType");
    EXPECT_EQ(IconResources::getPath(getIconForObject(*type, IconSize::Small)),
              "/IFC/WallTypeEnum.SOLIDWALL_16x16.svg");
}

TEST_F(ObjectIconsTest, OfOtherEntitiesGoByTheClassAlone)
{
    icons->paths = {"/IFC/Material_16x16.svg", "/IFC/IfcGeneric_16x16.svg"};
    fc::resource::material::FcMaterial const material;
    EXPECT_EQ(IconResources::getPath(getIconForObject(material, IconSize::Small)), "/IFC/Material_16x16.svg");
    EXPECT_EQ(names(), (Names{"Material"}));
    fc::core::kernel::FcPropertySet const set;
    EXPECT_EQ(IconResources::getPath(getIconForObject(set, IconSize::Small)), "/IFC/IfcGeneric_16x16.svg");
}

TEST(ObjectIcons, OfTheProgramKnowTheCommonClasses)
{
    for (auto const* const name : {"Project",
                                   "Site",
                                   "Building",
                                   "BuildingStorey",
                                   "Space",
                                   "Wall",
                                   "Slab",
                                   "Door",
                                   "Window",
                                   "Column",
                                   "Beam",
                                   "Roof",
                                   "Stair",
                                   "PipeSegment",
                                   "DuctFitting",
                                   "Valve",
                                   "LightFixture",
                                   "Bridge",
                                   "Road",
                                   "Railway",
                                   "Alignment",
                                   "PropertySet",
                                   "ElementQuantity",
                                   "Material",
                                   "DocumentReference",
                                   "Classification",
                                   "ClassificationReference"})
        EXPECT_TRUE(IconResources::getPath(getIcon(std::string("Ifc") + name, std::nullopt, IconSize::Large))
                        .ends_with(std::string("/") + name + "_20x20.svg"))
            << name;
    EXPECT_EQ(IconResources::getPath(getIcon("IfcTableRow", std::nullopt, IconSize::Small)),
              "/IFC/IfcGeneric_16x16.svg");
}

} // namespace
} // namespace qev::test
