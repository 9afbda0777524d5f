#include "Edit/ObjectPropertyEditControllerBase.h"
#include "Edit/EditedObject.h"
#include "Edit/ObjectPropertyEditControllerOwnerInterface.h"
#include "ToyProperties.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace {

using namespace qev;
using namespace qev::ui::edit;

object::PropertyId const id("Name");

TEST(ObjectPropertyEditControllerBase, DoesNothingUnlessOverridden)
{
    ObjectPropertyEditControllerBase controller;
    EXPECT_FALSE(controller.hasEnumeratedValues(id));
    EXPECT_TRUE(controller.getEnumeratedValues(id).empty());
    EXPECT_EQ(controller.getOnPropertyChangedAction(id), ObjectPropertyEditControllerBase::RedrawProperty);
    EXPECT_TRUE(controller.onRequestToResetPropertyLocalValue(id));
    controller.onButtonClicked(id, "edit");
    controller.onPropertyChanged(id, {});
    controller.onPropertyChangedAfterObjectRegen(id, {});
    controller.onAfterPropertyUpdated(id);
    controller.onAfterResetPropertyLocalValue(id);
    controller.onResetPropertyLocalValueAfterObjectRegen(id);
    controller.onPropertySelected(id);
    controller.onPropertyDeselected(id);
    EXPECT_TRUE(controller.getOwner().expired());
}

TEST(ObjectPropertyEditControllerBase, KeepsObjectsInTheOrderOfTheSelection)
{
    auto const first = std::make_shared<EditedObject>(std::make_shared<test::ToyProperties>());
    auto const second = std::make_shared<EditedObject>(std::make_shared<test::ToyProperties>());
    ObjectPropertyEditControllerBase controller;
    controller.setObjects({second, first}, {first});
    EXPECT_THAT(controller.getEditedObjects(), testing::ElementsAre(second, first));
    EXPECT_THAT(controller.getWritableObjects(), testing::ElementsAre(first));
}

TEST(EditedObject, GivesItsPropertiesForReadingAndForWriting)
{
    auto const properties = std::make_shared<test::ToyProperties>();
    EditedObject object(properties);
    object.getWritablePropertyInterface()->setValue(id, "W1");
    EXPECT_EQ(object.getPropertyInterface()->getValue(id), object::PropertyValue("W1"));
}

} // namespace
