#include "FoundationClasses/Select.h"

#include "Core/Exception.h"
#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Resource/ExternalReference/FcClassification.h"
#include "FoundationClasses/Resource/ExternalReference/FcClassificationReference.h"
#include "FoundationClasses/Resource/ExternalReference/FcDocumentInformation.h"
#include "FoundationClasses/Resource/ExternalReference/FcDocumentReference.h"
#include "FoundationClasses/Selects/FcClassificationReferenceSelect.h"
#include "FoundationClasses/Selects/FcDefinitionSelect.h"
#include "FoundationClasses/Selects/FcDocumentSelect.h"
#include "FoundationClasses/Selects/FcPropertySetDefinitionSelect.h"
#include "FoundationClasses/Selects/FcSpatialReferenceSelect.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "kit/ModelBuilder.h"

#include <gtest/gtest.h>

namespace {

using namespace qev;
using namespace qev::test;
using namespace fc::core::kernel;
using namespace fc::core::productextension;
using namespace fc::resource::externalreference;
using fc::shared::sharedbldgelements::FcWall;

TEST(Selects, HoldOneEntityOrNothing)
{
    auto const wall = std::make_shared<FcWall>();
    FcDefinitionSelect const select(wall);
    EXPECT_TRUE(select.isSet());
    EXPECT_EQ(select.tag(), FcDefinitionSelect::ObjectDefinition);
    EXPECT_EQ(select.getObjectDefinition(), wall);
    EXPECT_EQ(select.entity(), wall);
    FcDefinitionSelect const nothing;
    EXPECT_FALSE(nothing.isSet());
    EXPECT_EQ(nothing.tag(), FcDefinitionSelect::None);
    EXPECT_EQ(nothing.entity(), nullptr);
    EXPECT_FALSE(FcDefinitionSelect(std::shared_ptr<FcObjectDefinition>()).isSet());
}

TEST(Selects, TellTheirMembersApartByTag)
{
    EXPECT_EQ(FcDefinitionSelect(std::make_shared<FcPropertySet>()).tag(),
              FcDefinitionSelect::PropertyDefinition);
    EXPECT_EQ(FcDocumentSelect(std::make_shared<FcDocumentInformation>()).tag(), 0u);
    EXPECT_EQ(FcDocumentSelect(std::make_shared<FcDocumentReference>()).tag(), 1u);
    EXPECT_EQ(FcClassificationReferenceSelect(std::make_shared<FcClassification>()).tag(), 0u);
    EXPECT_EQ(FcClassificationReferenceSelect(std::make_shared<FcClassificationReference>()).tag(), 1u);
    EXPECT_EQ(FcSpatialReferenceSelect(std::shared_ptr<FcProduct>(std::make_shared<FcWall>())).tag(), 1u);
}

TEST(Selects, ReadAsTheWrongMemberRaise)
{
    FcDefinitionSelect const select(std::make_shared<FcWall>());
    EXPECT_THROW((void)select.getPropertyDefinition(), qev::exception);
    try {
        (void)FcDefinitionSelect().getObjectDefinition();
        FAIL();
    } catch (qev::exception const& error) {
        EXPECT_STREQ(error.what(), "Not of correct type");
    }
}

TEST(Selects, CompareByWhatTheyHold)
{
    auto const wall = std::make_shared<FcWall>();
    EXPECT_EQ(FcDefinitionSelect(wall), FcDefinitionSelect(wall));
    EXPECT_FALSE(FcDefinitionSelect(wall) == FcDefinitionSelect(std::make_shared<FcWall>()));
    EXPECT_FALSE(FcDefinitionSelect(wall) == FcDefinitionSelect());
}

TEST(Selects, OfEntitiesAtTheSamePlaceOfTwoModelsDiffer)
{
    Model one;
    Model two;
    auto const first = one.wall("W1");
    auto const second = two.wall("W1");
    ASSERT_EQ(first->getIndex(), second->getIndex());
    EXPECT_FALSE(FcDefinitionSelect(first) == FcDefinitionSelect(second));
}

TEST(Selects, AreTheSameBeforeAndAfterTheEntityJoinsAModel)
{
    Model model;
    auto const wall = std::make_shared<FcWall>();
    FcDefinitionSelect const before(wall);
    model.data()->entityAdd(wall, false);
    EXPECT_EQ(before, FcDefinitionSelect(wall));
    EXPECT_EQ(before.getObjectDefinition(), wall);
}

TEST(Selects, OfADeletedEntityAreNotSet)
{
    Model model;
    auto const wall = model.wall("W1");
    FcDefinitionSelect const select(wall);
    model.data()->entityDelete(wall);
    EXPECT_FALSE(select.isSet());
    EXPECT_EQ(select.getObjectDefinition(), nullptr);
}

TEST(Selects, TakeNoEntityThatIsNoMember)
{
    FcDocumentSelect select(std::make_shared<FcDocumentReference>());
    EXPECT_FALSE(select.setReference(fc::ReferenceBase(std::make_shared<FcWall>())));
    EXPECT_FALSE(select.isSet());
    EXPECT_TRUE(select.setReference(fc::ReferenceBase(std::make_shared<FcDocumentInformation>())));
    EXPECT_EQ(select.tag(), FcDocumentSelect::DocumentInformation);
}

TEST(Selects, HoldSetsOfEntitiesWhereAMemberIsOne)
{
    auto const a = std::make_shared<FcPropertySet>();
    auto const b = std::make_shared<FcPropertySet>();
    FcPropertySetDefinitionSelect select;
    EXPECT_TRUE(
        select.setReferences("IfcPropertySetDefinitionSet", {fc::ReferenceBase(a), fc::ReferenceBase(b)}));
    EXPECT_EQ(select.tag(), FcPropertySetDefinitionSelect::PropertySetDefinitionSet);
    ASSERT_EQ(select.references().size(), 2u);
    EXPECT_EQ(select.references()[1].entity(), b);
    EXPECT_EQ(select.entity(), nullptr);
    EXPECT_FALSE(select.setReferences("IfcLabel", {}));
}

} // namespace
