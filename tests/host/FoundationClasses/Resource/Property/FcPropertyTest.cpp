#include "FoundationClasses/Resource/Property/FcProperty.h"

#include "Core/Unit/QuantityPresentation.h"
#include "Core/Unit/QuantityPresentationFactory.h"
#include "Core/Unit/Unit.h"
#include "Core/Utilities/ScopeGuard.h"
#include "FoundationClasses/Core/Kernel/FcRelDefinesByProperties.h"
#include "FoundationClasses/Resource/Material/FcMaterialProperties.h"
#include "FoundationClasses/Resource/Property/FcComplexProperty.h"
#include "FoundationClasses/Resource/Property/FcPropertyBoundedValue.h"
#include "FoundationClasses/Resource/Property/FcPropertyEnumeratedValue.h"
#include "FoundationClasses/Resource/Property/FcPropertyListValue.h"
#include "FoundationClasses/Resource/Property/FcPropertySingleValue.h"
#include "FoundationClasses/Resource/Property/SetsOfProperty.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "kit/ModelBuilder.h"
#include "Object/PropertyValue.h"

#include <gtest/gtest.h>

namespace {

using namespace qev;
using namespace qev::test;
using namespace fc::resource::property;
using fc::core::kernel::FcPropertySet;
using object::PropertyValue;

TEST(PropertyClasses, BeginEmpty)
{
    EXPECT_TRUE(FcPropertySingleValue().NominalValue->isEmpty());
    EXPECT_FALSE(FcPropertySingleValue().Unit->isSet());
    EXPECT_FALSE(FcPropertyEnumeratedValue().EnumerationValues->has_value());
    EXPECT_FALSE(FcPropertyEnumeratedValue().EnumerationReference->isSet());
    EXPECT_FALSE(FcPropertyListValue().ListValues->has_value());
    FcPropertyBoundedValue const bounded;
    EXPECT_TRUE(bounded.LowerBoundValue->isEmpty());
    EXPECT_TRUE(bounded.UpperBoundValue->isEmpty());
    EXPECT_TRUE(bounded.SetPointValue->isEmpty());
    EXPECT_FALSE(bounded.Unit->isSet());
}

TEST(SetsOfProperty, AreVisitedInOrderUntilTheVisitorHasEnough)
{
    Model model;
    auto const first = model.addSet(model.wall("W1"), "Pset_X", {{"A", label("1")}});
    auto const second = model.addSet(model.wall("W2"), "Pset_Y", {});
    auto const property = first->HasProperties.getProperties()[0];
    second->HasProperties.edit([&property](auto& list) { list.push_back(property); });
    std::vector<std::string> names;
    auto const visitUpTo = [&](std::size_t count) {
        names.clear();
        visitSetsOf(*property, [&](FcPropertySet const& set) {
            names.push_back(set.Name.get().value_or(""));
            return names.size() < count;
        });
        return names;
    };
    EXPECT_EQ(visitUpTo(3), (std::vector<std::string>{"Pset_X", "Pset_Y"}));
    EXPECT_EQ(visitUpTo(1), std::vector<std::string>{"Pset_X"});
    first->HasProperties.edit([&property](auto& list) { list.erase(property); });
    EXPECT_EQ(visitUpTo(3), std::vector<std::string>{"Pset_Y"});
}

TEST(SetsOfProperty, AreNoneOutsideAModel)
{
    bool isVisited = false;
    visitSetsOf(FcPropertySingleValue(), [&isVisited](FcPropertySet const&) { return isVisited = true; });
    EXPECT_FALSE(isVisited);
}

TEST(DeleteProperty, TakesItOutOfItsSetAndTheModel)
{
    Model model;
    auto const set = model.addSet(model.wall("W1"), "Pset_X", {{"A", label("1")}, {"B", label("2")}});
    auto const property = set->HasProperties.getProperties()[0];
    property->deleteProperty(*model.data(), true);
    EXPECT_FALSE(set->hasProperty("A"));
    EXPECT_TRUE(set->hasProperty("B"));
    EXPECT_TRUE(model.data()->isDeleted(property->getIndex()));
    EXPECT_FALSE(model.data()->isDeleted(set->getIndex()));
}

TEST(DeleteProperty, TakesTheSetAlongWithItsLastProperty)
{
    Model model;
    auto const wall = model.wall("W1");
    auto const set = model.addSet(wall, "Pset_X", {{"A", label("1")}});
    set->HasProperties.getProperties()[0]->deleteProperty(*model.data(), true);
    EXPECT_TRUE(model.data()->isDeleted(set->getIndex()));
    EXPECT_EQ(wall->getPropertySetDefinitionNonConst<FcPropertySet>("Pset_X"), nullptr);
    model.data()->changes().undo();
    ASSERT_NE(wall->getPropertySetDefinitionNonConst<FcPropertySet>("Pset_X"), nullptr);
    EXPECT_TRUE(set->hasProperty("A"));
}

TEST(DeleteProperty, TakesTheSetAlongWhereOnlyDeletedPropertiesAreLeft)
{
    Model model;
    auto const set = model.addSet(model.wall("W1"), "Pset_X", {{"A", label("1")}, {"B", label("2")}});
    auto const properties = set->HasProperties.getProperties();
    model.data()->entityDelete(properties[1]);
    properties[0]->deleteProperty(*model.data(), true);
    EXPECT_TRUE(model.data()->isDeleted(set->getIndex()));
}

TEST(DeleteProperty, LeavesTheEmptySetWhenAskedTo)
{
    Model model;
    auto const set = model.addSet(model.wall("W1"), "Pset_X", {{"A", label("1")}});
    set->HasProperties.getProperties()[0]->deleteProperty(*model.data(), false);
    EXPECT_FALSE(model.data()->isDeleted(set->getIndex()));
    EXPECT_TRUE(set->HasProperties.getProperties().empty());
}

TEST(DeleteProperty, TakesItOutOfEverythingThatHoldsIt)
{
    Model model;
    auto const set = model.addSet(model.wall("W1"), "Pset_X", {{"A", label("1")}, {"B", label("2")}});
    auto const property = set->HasProperties.getProperties()[0];
    auto const other = model.addSet(model.wall("W2"), "Pset_Y", {{"C", label("3")}});
    other->HasProperties.addProperty(property);
    auto const complex = std::make_shared<FcComplexProperty>();
    complex->Name = "Complex";
    complex->HasProperties.edit([&property](auto& list) { list.push_back(property); });
    set->HasProperties.addProperty(complex);
    auto const material = std::make_shared<fc::resource::material::FcMaterialProperties>();
    material->Properties.edit([&property](auto& list) { list.push_back(property); });
    model.data()->entityAdd(material, false);

    property->deleteProperty(*model.data(), true);
    EXPECT_FALSE(set->hasProperty("A"));
    EXPECT_FALSE(other->hasProperty("A"));
    EXPECT_TRUE(complex->HasProperties->empty());
    EXPECT_TRUE(material->Properties->empty());
    EXPECT_FALSE(model.data()->isReferenced(property->getIndex()));
}

TEST(PropertyPresentation, IsThatOfTheValueAndCarriesIt)
{
    auto const property = singleValue("Width", length(2.5));
    auto const presentation = property->createQuantityPresentationFor(property->NominalValue, std::nullopt);
    ASSERT_NE(presentation, nullptr);
    EXPECT_EQ(presentation->value(), 2.5);
}

TEST(PropertyPresentation, IsNoneForValuesWithoutAQuantity)
{
    auto const property = singleValue("Name", label("x"));
    EXPECT_EQ(property->createQuantityPresentationFor(property->NominalValue, "Pset_X"), nullptr);
    EXPECT_EQ(property->createQuantityPresentationFor(FcValue(), std::nullopt), nullptr);
}

TEST(PropertyPresentation, IsTheOneSetForThePropertyOfTheSet)
{
    auto& factory = unit::QuantityPresentationFactory::current();
    factory.registerIfcProperty("Pset_X.Speed", [](double value, std::string const&) {
        auto presentation = unit::createPresentationForMeasure("LinearVelocityMeasure");
        presentation->setValue(value);
        return presentation;
    });
    ScopeGuard const guard([&factory] { factory.registerIfcProperty("Pset_X.Speed", {}); });
    auto const property = singleValue("Speed", real(3));
    auto const own = property->createQuantityPresentationFor(property->NominalValue, "Pset_X");
    ASSERT_NE(own, nullptr);
    EXPECT_EQ(own->value(), 3.0);
    EXPECT_NE(own->text(), "3");
    auto const other = property->createQuantityPresentationFor(property->NominalValue, "Pset_Y");
    EXPECT_TRUE(!other || other->text() != own->text());
}

TEST(SetFromPropertyValue, StoresWhatFitsTheType)
{
    auto const property = singleValue("Width", length(2.5));
    EXPECT_TRUE(property->setFromPropertyValue(PropertyValue(3.0)));
    EXPECT_EQ(property->NominalValue.get(), length(3.0));
    EXPECT_TRUE(property->setFromPropertyValue(PropertyValue(std::optional(4.0))));
    EXPECT_EQ(property->NominalValue.get(), length(4.0));
}

TEST(SetFromPropertyValue, RefusesWhatEmptiesTheProperty)
{
    auto const property = singleValue("Width", length(2.5));
    EXPECT_FALSE(property->setFromPropertyValue(PropertyValue(std::optional<double>())));
    EXPECT_FALSE(property->setFromPropertyValue(PropertyValue(std::optional<std::string>())));
    EXPECT_FALSE(property->setFromPropertyValue(PropertyValue("")));
    EXPECT_FALSE(property->setFromPropertyValue(PropertyValue()));
    EXPECT_EQ(property->NominalValue.get(), length(2.5));
}

TEST(SetFromPropertyValue, EmptiesNothingThatReadsAsUnset)
{
    auto const without = singleValue("P", {});
    EXPECT_TRUE(without->setFromPropertyValue(PropertyValue(std::optional<std::string>())));
    EXPECT_TRUE(without->setFromPropertyValue(PropertyValue("")));
    EXPECT_TRUE(without->setFromPropertyValue(PropertyValue()));
    auto const described = singleValue("P", valueOf("DescriptiveMeasure", "about"));
    EXPECT_TRUE(described->setFromPropertyValue(PropertyValue(std::optional<double>())));
    EXPECT_EQ(described->NominalValue->getAsString(false), "about");
    EXPECT_FALSE(described->setFromPropertyValue(PropertyValue(std::optional<std::string>())));
}

TEST(SetFromPropertyValue, StoresTheEmptyTextInATypeOfTexts)
{
    auto const property = singleValue("Mark", label("A"));
    EXPECT_TRUE(property->setFromPropertyValue(PropertyValue("")));
    EXPECT_EQ(property->NominalValue.get(), label(""));
}

TEST(SetFromPropertyValue, AValueThatDoesNotFitIsNoChangeOfTheModel)
{
    Model model;
    auto const set = model.addSet(model.wall("W1"), "Pset_X", {{"Width", length(2.5)}});
    auto const property = fc::entityCast<FcPropertySingleValue>(set->HasProperties.getProperties()[0]);
    model.data()->changes().setSaved();
    EXPECT_TRUE(property->setFromPropertyValue(PropertyValue("wide")));
    EXPECT_FALSE(property->setFromPropertyValue(PropertyValue("")));
    EXPECT_FALSE(model.data()->changes().isModified());
    EXPECT_TRUE(property->setFromPropertyValue(PropertyValue(3.0)));
    EXPECT_TRUE(model.data()->changes().isModified());
}

TEST(SetFromPropertyValue, GivesAPropertyWithoutAValueTheTypeOfTheKind)
{
    auto const stored = [](PropertyValue const& value) {
        auto const property = singleValue("P", {});
        property->setFromPropertyValue(value);
        return property->NominalValue.get();
    };
    EXPECT_EQ(stored("A"), label("A"));
    EXPECT_EQ(stored(2.5), real(2.5));
    EXPECT_EQ(stored(3), integer(3));
    EXPECT_EQ(stored(true), boolean(true));
    EXPECT_EQ(stored(""), FcValue());
}

TEST(BoundedValueLine, ShowsBoundsAndSetPoint)
{
    auto const all = boundedValue("P", real(1), real(3), real(2));
    EXPECT_EQ(all->getAsOneLineString(std::nullopt), "[1, 3] 2");
    EXPECT_EQ(boundedValue("P", real(1), {}, {})->getAsOneLineString(std::nullopt), "[1, ]");
    EXPECT_EQ(boundedValue("P", {}, real(3), {})->getAsOneLineString(std::nullopt), "[, 3]");
    EXPECT_EQ(boundedValue("P", {}, {}, real(2))->getAsOneLineString(std::nullopt), "2");
    EXPECT_EQ(boundedValue("P", {}, {}, {})->getAsOneLineString(std::nullopt), "");
}

TEST(BoundedValueLine, ShowsUnits)
{
    auto const width = boundedValue("P", length(1), length(3), length(2));
    auto const text = [](double value) {
        auto const presentation = length(value).createQuantityPresentation();
        presentation->setValue(value);
        return presentation->text();
    };
    EXPECT_EQ(width->getAsOneLineString(std::nullopt), "[" + text(1) + ", " + text(3) + "] " + text(2));
}

} // namespace
