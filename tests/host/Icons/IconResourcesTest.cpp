#include "Icons/IconResources.h"
#include "Icons/BuiltInIcons.h"

#include <gtest/gtest.h>
#include <string>

namespace qev::test {
namespace {

using namespace platform::qt;

/// One picture, at "/only".
class OnePicture final : public IconSource
{
public:
    std::optional<std::string_view> find(std::string_view path) const override
    {
        return path == "/only" ? std::optional<std::string_view>("<svg/>") : std::nullopt;
    }
};

TEST(IconResources, KnowsThePicturesThatAreCompiledIn)
{
    EXPECT_TRUE(IconResources::existsIcon("/IFC/Wall_16x16.svg"));
    EXPECT_TRUE(IconResources::existsIcon("/IFC/IfcGeneric_20x20.svg"));
    EXPECT_TRUE(IconResources::existsIcon("/Buttons/delete_16x16.svg"));
    EXPECT_FALSE(IconResources::existsIcon("/IFC/Wall_24x24.svg"));
    EXPECT_FALSE(IconResources::existsIcon("/IFC/Wall"));
    EXPECT_FALSE(IconResources::existsIcon(""));
}

TEST(IconResources, GivesTheSamePathTheSameIdAndEachAnIdOfItsOwn)
{
    auto const wall = IconResources::getImageId("/IFC/Wall_16x16.svg");
    EXPECT_EQ(wall, IconResources::getImageId("/IFC/Wall_16x16.svg"));
    EXPECT_NE(wall, IconResources::getImageId("/IFC/Wall_20x20.svg"));
    EXPECT_NE(wall, Guid());
    EXPECT_EQ(IconResources::getPath(wall), "/IFC/Wall_16x16.svg");
    EXPECT_EQ(IconResources::getPath(Guid()), "");
}

TEST(IconResources, TakesThePicturesOfAnotherSource)
{
    auto const before = IconResources::setSource(std::make_shared<OnePicture>());
    EXPECT_EQ(before, nullptr);
    EXPECT_TRUE(IconResources::existsIcon("/only"));
    EXPECT_EQ(IconResources::getDrawing("/only"), "<svg/>");
    EXPECT_FALSE(IconResources::existsIcon("/IFC/Wall_16x16.svg"));
    EXPECT_NE(IconResources::setSource(nullptr), nullptr);
    EXPECT_TRUE(IconResources::existsIcon("/IFC/Wall_16x16.svg"));
}

TEST(BuiltInIcons, HaveEachPictureInBothSizes)
{
    BuiltInIcons const icons;
    ASSERT_FALSE(icons.getPictures().empty());
    for (auto const& [path, drawing] : icons.getPictures()) {
        auto const small = path.ends_with("_16x16.svg");
        ASSERT_TRUE(small || path.ends_with("_20x20.svg")) << path;
        auto other = std::string(path);
        other.replace(other.size() - 9, 5, small ? "20x20" : "16x16");
        EXPECT_TRUE(icons.find(other)) << other;
        EXPECT_NE(drawing.find(small ? "viewBox=\"0 0 16 16\"" : "viewBox=\"0 0 20 20\""),
                  std::string_view::npos)
            << path;
    }
}

} // namespace
} // namespace qev::test
