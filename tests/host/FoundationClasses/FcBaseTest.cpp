#include "FoundationClasses/FcBase.h"

#include "Core/Unit/QuantityPresentation.h"
#include "FoundationClasses/Core/Kernel/FcRelAggregates.h"
#include "FoundationClasses/Core/Kernel/FcRelDefinesByProperties.h"
#include "FoundationClasses/Core/ProductExtension/FcBuildingStorey.h"
#include "FoundationClasses/Core/ProductExtension/FcSite.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/LocalValue.h"
#include "FoundationClasses/Resource/Actor/FcPostalAddress.h"
#include "FoundationClasses/Resource/Geometry/FcCartesianPoint.h"
#include "FoundationClasses/Resource/Property/FcPropertySingleValue.h"
#include "FoundationClasses/Resource/Utility/FcOwnerHistory.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcDoor.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWallType.h"
#include "kit/ModelBuilder.h"
#include "Object/Property.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev;
using namespace qev::test;
using fc::FcBase;
using fc::LocalValue;
using fc::core::productextension::FcSite;
using fc::resource::measure::FcCompoundPlaneAngleMeasure;
using fc::shared::sharedbldgelements::FcDoor;
using fc::shared::sharedbldgelements::FcWall;
using object::PropertyId;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;

PropertyId id(char const* text) { return PropertyId(text); }

// --- As text --------------------------------------------------------------------------------------

TEST(AttributeText, ShowsEachKindOfAttribute)
{
    Model model;
    auto const door = model.door("D1");
    door->OverallHeight = 2.01;
    door->PredefinedType = fc::FcDoorTypeEnum::TRAPDOOR;
    EXPECT_EQ(door->getAttributeAsString("Name"), "D1");
    EXPECT_EQ(door->getAttributeAsString("OverallHeight"), "2.01");
    EXPECT_EQ(door->getAttributeAsString("PredefinedType"), "TRAPDOOR");
    auto const site = model.site("S1");
    site->RefLatitude = FcCompoundPlaneAngleMeasure({48, 8, 0});
    EXPECT_EQ(site->getAttributeAsString("RefLatitude"), "(48, 8, 0)");
    EXPECT_EQ(singleValue("A", label("F30"))->getAttributeAsString("NominalValue"), "F30");
}

TEST(AttributeText, IsNoneForUnsetUnknownAndReferences)
{
    Model model;
    auto const wall = model.wall("W1");
    wall->OwnerHistory = std::make_shared<fc::resource::utility::FcOwnerHistory>();
    EXPECT_EQ(wall->getAttributeAsString("Tag"), std::nullopt);
    EXPECT_EQ(wall->getAttributeAsString("PredefinedType"), std::nullopt);
    EXPECT_EQ(wall->getAttributeAsString("Nonsense"), std::nullopt);
    EXPECT_EQ(wall->getAttributeAsString("name"), std::nullopt);
    EXPECT_EQ(wall->getAttributeAsString("OwnerHistory"), std::nullopt);
}

TEST(AttributeText, StoresWhatFits)
{
    Model model;
    auto const door = model.door("D1");
    EXPECT_TRUE(door->setAttributeFromString("Front door", "Name"));
    EXPECT_TRUE(door->setAttributeFromString("2.5", "OverallHeight"));
    EXPECT_TRUE(door->setAttributeFromString("GATE", "PredefinedType"));
    EXPECT_EQ(door->Name.get(), "Front door");
    EXPECT_EQ(door->OverallHeight.get(), 2.5);
    EXPECT_EQ(door->PredefinedType.get(), fc::FcDoorTypeEnum::GATE);
}

TEST(AttributeText, RefusesWhatDoesNotFitAndChangesNothing)
{
    Model model;
    auto const door = model.door("D1");
    door->OverallHeight = 2.0;
    model.data()->changes().setSaved();
    EXPECT_FALSE(door->setAttributeFromString("high", "OverallHeight"));
    EXPECT_FALSE(door->setAttributeFromString("2,5", "OverallHeight"));
    EXPECT_FALSE(door->setAttributeFromString("PORTAL", "PredefinedType"));
    EXPECT_FALSE(door->setAttributeFromString("gate", "PredefinedType"));
    EXPECT_FALSE(door->setAttributeFromString("x", "Nonsense"));
    EXPECT_FALSE(door->setAttributeFromString("x", "OwnerHistory"));
    EXPECT_FALSE(door->setAttributeFromString("no id", "GlobalId"));
    EXPECT_EQ(door->OverallHeight.get(), 2.0);
    EXPECT_FALSE(model.data()->changes().isModified());
}

TEST(AttributeText, TheEmptyTextUnsetsAnOptionalAttribute)
{
    Model model;
    auto const door = model.door("D1");
    door->OverallHeight = 2.0;
    door->PredefinedType = fc::FcDoorTypeEnum::GATE;
    for (char const* const attribute : {"Name", "OverallHeight", "PredefinedType"}) {
        EXPECT_TRUE(door->setAttributeFromString("", attribute));
        EXPECT_EQ(door->getAttributeAsString(attribute), std::nullopt) << attribute;
    }
    auto const property = singleValue("A", label("x"));
    EXPECT_TRUE(property->setAttributeFromString("", "Name"));
    EXPECT_EQ(property->Name.get(), "");
}

TEST(AttributeText, AChangeByTextCanBeTakenBack)
{
    Model model;
    auto const door = model.door("D1");
    door->setAttributeFromString("D2", "Name");
    model.data()->changes().undo();
    EXPECT_EQ(door->Name.get(), "D1");
}

// --- As number ------------------------------------------------------------------------------------

TEST(AttributeNumber, IsThatOfNumericAttributesAlone)
{
    Model model;
    auto const door = model.door("2.5");
    door->OverallHeight = 2.01;
    auto const& data = *model.data();
    EXPECT_EQ(door->getAttributeAsSiUnit(data, "OverallHeight"), 2.01);
    EXPECT_EQ(door->getAttributeAsSiUnit(data, "OverallWidth"), std::nullopt);
    EXPECT_EQ(door->getAttributeAsSiUnit(data, "Name"), std::nullopt);
    EXPECT_EQ(door->getAttributeAsSiUnit(data, "Nonsense"), std::nullopt);
    EXPECT_EQ(singleValue("A", length(3))->getAttributeAsSiUnit(data, "NominalValue"), 3.0);
    EXPECT_EQ(singleValue("A", label("3"))->getAttributeAsSiUnit(data, "NominalValue"), std::nullopt);
}

// --- As local value -------------------------------------------------------------------------------

TEST(AttributeLocalValue, HasTheKindOfTheAttribute)
{
    Model model;
    auto const door = model.door("D1");
    door->OverallHeight = 2.5;
    door->PredefinedType = fc::FcDoorTypeEnum::GATE;
    EXPECT_EQ(std::get<std::string>(door->getLocalValue(id("Name")).value), "D1");
    EXPECT_EQ(std::get<double>(door->getLocalValue(id("OverallHeight")).value), 2.5);
    EXPECT_EQ(std::get<std::string>(door->getLocalValue(id("PredefinedType")).value), "GATE");
    EXPECT_EQ(std::get<Guid>(door->getLocalValue(id("GlobalId")).value), door->getGuid());
    EXPECT_TRUE(std::holds_alternative<LocalValue::Unset>(door->getLocalValue(id("Tag")).value));
    EXPECT_TRUE(std::holds_alternative<std::monostate>(door->getLocalValue(id("Nonsense")).value));
}

TEST(AttributeLocalValue, OfAReferenceIsTheEntity)
{
    Model model;
    auto const wall = model.wall("W1");
    EXPECT_TRUE(std::holds_alternative<LocalValue::Unset>(wall->getLocalValue(id("OwnerHistory")).value));
    auto const history = std::make_shared<fc::resource::utility::FcOwnerHistory>();
    wall->OwnerHistory = history;
    EXPECT_EQ(std::get<std::shared_ptr<FcBase>>(wall->getLocalValue(id("OwnerHistory")).value), history);
}

TEST(AttributeLocalValue, OfASelectThatHoldsAnEntityIsTheEntity)
{
    Model model;
    auto const set = model.addSet(model.wall("W1"), "Pset_X");
    auto const relation = set->DefinesOccurrence()[0].lock();
    EXPECT_EQ(
        std::get<std::shared_ptr<FcBase>>(relation->getLocalValue(id("RelatingPropertyDefinition")).value),
        set);
}

TEST(AttributeLocalValue, OfAnAngleIsItsWholeNumbers)
{
    auto const site = std::make_shared<FcSite>();
    site->RefLatitude = FcCompoundPlaneAngleMeasure({48, 8, 0});
    auto const value = site->getLocalValue(id("RefLatitude"));
    EXPECT_THAT(std::get<std::vector<std::int64_t>>(value.value), ElementsAre(48, 8, 0));
    auto const other = std::make_shared<FcSite>();
    EXPECT_TRUE(other->setLocalValue(value, id("RefLatitude")));
    EXPECT_EQ(other->RefLatitude.get(), site->RefLatitude.get());
}

TEST(AttributeLocalValue, OfAListIsAList)
{
    auto const point = std::make_shared<fc::resource::geometry::FcCartesianPoint>();
    point->Coordinates = std::vector<double>{1.0, 2.0};
    auto const value = point->getLocalValue(id("Coordinates"));
    auto const& list = std::get<LocalValue::List>(value.value);
    ASSERT_EQ(list.size(), 2u);
    EXPECT_EQ(std::get<double>(list[1].value), 2.0);
    auto const other = std::make_shared<fc::resource::geometry::FcCartesianPoint>();
    EXPECT_TRUE(other->setLocalValue(value, id("Coordinates")));
    EXPECT_THAT(other->Coordinates.get(), ElementsAre(1.0, 2.0));
}

TEST(AttributeLocalValue, OfAListOfEntitiesIsNothing)
{
    Model model;
    auto const wall = model.wall("W1");
    model.aggregate(model.storey("S1"), {wall});
    auto const relation = wall->Decomposes()[0].lock();
    EXPECT_TRUE(std::holds_alternative<std::monostate>(relation->getLocalValue(id("RelatedObjects")).value));
    auto const type = std::make_shared<fc::shared::sharedbldgelements::FcWallType>();
    EXPECT_TRUE(std::holds_alternative<std::monostate>(type->getLocalValue(id("HasPropertySets")).value));
}

TEST(AttributeLocalValue, IsStoredWhereItFits)
{
    Model model;
    auto const door = model.door("D1");
    auto const store = [&door](LocalValue::Variant value, char const* attribute) {
        LocalValue local;
        local.value = std::move(value);
        return door->setLocalValue(local, id(attribute));
    };
    EXPECT_TRUE(store(std::string("D2"), "Name"));
    EXPECT_TRUE(store(3.5, "OverallHeight"));
    EXPECT_TRUE(store(std::int64_t{4}, "OverallWidth"));
    EXPECT_TRUE(store(std::string("GATE"), "PredefinedType"));
    EXPECT_EQ(door->Name.get(), "D2");
    EXPECT_EQ(door->OverallHeight.get(), 3.5);
    EXPECT_EQ(door->OverallWidth.get(), 4.0);
    EXPECT_EQ(door->PredefinedType.get(), fc::FcDoorTypeEnum::GATE);
    EXPECT_TRUE(store(LocalValue::Unset(), "Name"));
    EXPECT_EQ(door->Name.get(), std::nullopt);

    model.data()->changes().setSaved();
    EXPECT_FALSE(store(std::string("high"), "OverallHeight"));
    EXPECT_FALSE(store(2.5, "Name"));
    EXPECT_FALSE(store(std::string("PORTAL"), "PredefinedType"));
    EXPECT_FALSE(store(LocalValue::Unset(), "GlobalId"));
    EXPECT_FALSE(store(std::monostate(), "Name"));
    EXPECT_FALSE(store(std::string("x"), "Nonsense"));
    EXPECT_FALSE(model.data()->changes().isModified());
}

// --- What the generic editor asks -----------------------------------------------------------------

TEST(AttributeFacts, TellWhatIsOptional)
{
    auto const wall = std::make_shared<FcWall>();
    EXPECT_TRUE(wall->isOptional(id("Name")));
    EXPECT_FALSE(wall->isOptional(id("GlobalId")));
    EXPECT_FALSE(wall->isOptional(id("Nonsense")));
}

TEST(AttributeFacts, MeasuresHaveAPresentation)
{
    auto const door = std::make_shared<FcDoor>();
    EXPECT_TRUE(door->hasQuantityPresentationLocal(id("OverallHeight")));
    EXPECT_NE(door->createQuantityPresentationLocal(id("OverallHeight")), nullptr);
    EXPECT_FALSE(door->hasQuantityPresentationLocal(id("Name")));
    EXPECT_EQ(door->createQuantityPresentationLocal(id("Nonsense")), nullptr);
}

TEST(AttributeFacts, EnumerationsListTheirItems)
{
    auto const wall = std::make_shared<FcWall>();
    auto const items = wall->getEnumeratedValuesLocal(id("PredefinedType"));
    EXPECT_THAT(items, Contains("PARTITIONING"));
    EXPECT_THAT(items, Contains("NOTDEFINED"));
    EXPECT_TRUE(wall->getEnumeratedValuesLocal(id("Name")).empty());
}

TEST(AttributeFacts, LocalPropertiesAreThoseWithASimpleValueInSchemaOrder)
{
    auto const wall = std::make_shared<FcWall>();
    std::vector<std::string> ids;
    for (auto const& property : wall->getLocalProperties()) {
        ids.push_back(property->id.text());
        EXPECT_EQ(property->object, wall);
        EXPECT_FALSE(property->isGroup);
    }
    EXPECT_THAT(ids, ElementsAre("GlobalId", "Name", "Description", "ObjectType", "Tag", "PredefinedType"));
}

TEST(AttributeFacts, ALabelFallsBackOnTheNameAndADescriptionOnNothing)
{
    auto const wall = std::make_shared<FcWall>();
    EXPECT_EQ(wall->getPropertyName(id("NoSuchAttribute")), "NoSuchAttribute");
    EXPECT_EQ(wall->getPropertyDescription(id("NoSuchAttribute")), "");
}

// --- Whole entities -------------------------------------------------------------------------------

TEST(EntityWalk, VisitsTheEntitiesReferredToInTheOrderOfTheAttributes)
{
    Model model;
    auto const wall = model.wall("W1");
    auto const door = model.door("D1");
    auto const storey = model.storey("S1");
    model.aggregate(storey, {wall, door});
    std::vector<std::shared_ptr<FcBase>> visited;
    storey->IsDecomposedBy()[0].lock()->forEachEntity(
        [&visited](std::shared_ptr<FcBase> const& entity) { visited.push_back(entity); });
    EXPECT_THAT(visited, ElementsAre(storey, wall, door));
    model.data()->entityDelete(wall);
    visited.clear();
    storey->IsDecomposedBy()[0].lock()->forEachEntity(
        [&visited](std::shared_ptr<FcBase> const& entity) { visited.push_back(entity); });
    EXPECT_THAT(visited, ElementsAre(storey, door));
}

TEST(EntityCopy, HasTheValuesAndReferencesOfTheOriginalAndAnIdOfItsOwn)
{
    Model model;
    auto const wall = model.wall("W1");
    auto const history = std::make_shared<fc::resource::utility::FcOwnerHistory>();
    wall->OwnerHistory = history;
    wall->PredefinedType = fc::FcWallTypeEnum::SHEAR;
    auto const copy = fc::entityCast<FcWall>(wall->copy());
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(copy->getData(), nullptr);
    EXPECT_EQ(copy->Name.get(), "W1");
    EXPECT_EQ(copy->PredefinedType.get(), fc::FcWallTypeEnum::SHEAR);
    EXPECT_EQ(copy->OwnerHistory->get(), history);
    EXPECT_FALSE(copy->getGuid().isNull());
    EXPECT_NE(copy->getGuid(), wall->getGuid());
    copy->Name = "W2";
    EXPECT_EQ(wall->Name.get(), "W1");
}

TEST(EntityCopy, KeepsTheIdWhenAskedTo)
{
    Model model;
    auto const wall = model.wall("W1");
    auto const copy = fc::entityCast<FcWall>(wall->copy({.keepGlobalId = true}));
    EXPECT_EQ(copy->GlobalId.get(), wall->GlobalId.get());
}

TEST(EntityOrder, IsByClassAndThenByAttributes)
{
    auto const a = std::make_shared<FcWall>();
    auto const b = std::make_shared<FcWall>();
    a->Name = "A";
    b->Name = "B";
    EXPECT_TRUE(a->isLessThanSkipAttributes(*b, {}));
    EXPECT_FALSE(b->isLessThanSkipAttributes(*a, {}));
    EXPECT_FALSE(a->isLessThanSkipAttributes(*a, {}));
    EXPECT_FALSE(a->isLessThanSkipAttributes(*b, {"Name"}));
    EXPECT_FALSE(b->isLessThanSkipAttributes(*a, {"Name"}));
    FcDoor const door;
    EXPECT_EQ(a->isLessThanSkipAttributes(door, {}), a->getIdFirst() < door.getIdFirst());
}

} // namespace
