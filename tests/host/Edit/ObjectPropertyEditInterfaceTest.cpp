#include "Edit/ObjectPropertyEditInterface.h"
#include "Ui/Window/Image.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace {

using namespace qev;
using namespace qev::ui::edit;

class ToyEditor : public ObjectPropertyEditInterface
{
public:
    bool isEnabled(PropertyId const&) const override { return true; }
    bool isReadOnly(PropertyId const&) const override { return true; }
    std::vector<PropertyButton> getButtons(PropertyId const&) const override { return {}; }
    std::optional<attr::Colour> getTextColour(PropertyId const&) override { return std::nullopt; }
    std::optional<attr::Colour> getBackgroundColour(PropertyId const&) override { return std::nullopt; }
    std::vector<Property> getPropertiesToBeEdited(PropertiesToBeEditedParams const&) const override
    {
        return {};
    }
    std::map<std::string, std::vector<Property>> getDynamicProperties() const override { return {}; }
};

TEST(ObjectPropertyEditInterface, LetsEverythingPassUnlessOverridden)
{
    ToyEditor const editor;
    EXPECT_FALSE(editor.isReadOnlyObject());
    EXPECT_TRUE(editor.doPropertiesApplyAtEditorLevel(EditorLevel::instance()));
    EXPECT_TRUE(editor.isOkToAddProperty(object::PropertyId("Name")));
    std::vector<Property> rows{{object::PropertyId("Name"), 0, {}, nullptr}};
    editor.onPropertiesFetchedFromConfiguration(EditorLevel::instance(), rows);
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].id, object::PropertyId("Name"));
}

TEST(ObjectPropertyEditInterface, HasAPictureOfItsOwnForEachUsualButton)
{
    std::set<std::string> names;
    for (auto const& image : {ObjectPropertyEditInterface::getDefaultButtonImage(),
                              ObjectPropertyEditInterface::getAddItemButtonImage(),
                              ObjectPropertyEditInterface::getDeleteButtonImage(),
                              ObjectPropertyEditInterface::getOpenInExternalAppButtonImage()}) {
        ASSERT_NE(image, nullptr);
        names.insert(image->name);
    }
    EXPECT_EQ(names.size(), 4u);
}

TEST(ObjectPropertyEditInterface, TakesOtherPicturesFromTheProgram)
{
    auto const before = ObjectPropertyEditInterface::getDeleteButtonImage();
    auto const mine = std::make_shared<ui::Image>(ui::Image{"mine"});
    ObjectPropertyEditInterface::getDeleteButtonImage() = mine;
    EXPECT_EQ(ObjectPropertyEditInterface::getDeleteButtonImage(), mine);
    ObjectPropertyEditInterface::getDeleteButtonImage() = before;
}

} // namespace
