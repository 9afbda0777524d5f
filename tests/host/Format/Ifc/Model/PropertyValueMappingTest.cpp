#include "Format/Ifc/Model/PropertyValueMapping.h"

#include "Format/Ifc/Schema/Pset/PropertySetDef.h"
#include "Format/Ifc/Schema/Pset/TypeComplexProperty.h"
#include "Format/Ifc/Schema/Pset/TypePropertyBoundedValue.h"
#include "Format/Ifc/Schema/Pset/TypePropertyEnumeratedValue.h"
#include "Format/Ifc/Schema/Pset/TypePropertyListValue.h"
#include "Format/Ifc/Schema/Pset/TypePropertyTableValue.h"
#include "FoundationClasses/Resource/Property/FcPropertyEnumeratedValue.h"
#include "FoundationClasses/Resource/Property/FcPropertyListValue.h"
#include "FoundationClasses/Resource/Property/FcPropertyTableValue.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "kit/ModelBuilder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev;
using namespace qev::ifc;
using namespace qev::ifc::def::pset;
using namespace qev::test;
using testing::ElementsAre;
using testing::IsEmpty;

// --- Types of values ----------------------------------------------------------------------------

FcValue corrected(std::unique_ptr<PropertyType> type, FcValue value)
{
    PropertySetDef const set("Pset_Toy");
    PropertyDef const definition(set, "Size", std::move(type));
    setCorrectValueType(definition, value);
    return value;
}

template <class T>
FcValue correctedTo(char const* valueType, FcValue value)
{
    return corrected(std::make_unique<T>(valueType), std::move(value));
}

TEST(CorrectValueType, AnEmptyValueBecomesTheDefaultOfTheType)
{
    EXPECT_EQ(correctedTo<TypePropertySingleValue>("IfcLengthMeasure", {}), length(0.0));
    EXPECT_EQ(correctedTo<TypePropertyBoundedValue>("IfcLengthMeasure", {}), length(0.0));
    EXPECT_EQ(correctedTo<TypePropertyListValue>("IfcLabel", {}), label(""));
    EXPECT_EQ(corrected(std::make_unique<TypePropertyEnumeratedValue>(), {}), label(""));
}

TEST(CorrectValueType, AValueOfTheRightTypeStays)
{
    EXPECT_EQ(correctedTo<TypePropertySingleValue>("IfcLengthMeasure", length(2.5)), length(2.5));
}

TEST(CorrectValueType, WhatTheNewTypeCanHoldGoesOver)
{
    EXPECT_EQ(correctedTo<TypePropertySingleValue>("IfcLengthMeasure", real(2.5)), length(2.5));
    EXPECT_EQ(correctedTo<TypePropertySingleValue>("IfcLabel", real(2.5)), label("2.5"));
    EXPECT_EQ(correctedTo<TypePropertySingleValue>("IfcBoolean", label("true")), boolean(true));
    EXPECT_EQ(correctedTo<TypePropertySingleValue>("IfcText", label("F30")), text("F30"));
}

TEST(CorrectValueType, WhatTheNewTypeCannotHoldGivesItsDefault)
{
    EXPECT_EQ(correctedTo<TypePropertySingleValue>("IfcLengthMeasure", label("long")), length(0.0));
}

TEST(CorrectValueType, ADefinitionWithoutASingleTypeChangesNothing)
{
    EXPECT_EQ(corrected(nullptr, label("A")), label("A"));
    EXPECT_EQ(correctedTo<TypePropertyReferenceValue>("IfcPerson", label("A")), label("A"));
    EXPECT_EQ(corrected(std::make_unique<TypePropertyTableValue>("IfcReal", "IfcReal"), label("A")),
              label("A"));
    EXPECT_EQ(correctedTo<TypeComplexProperty>("Usage", label("A")), label("A"));
    EXPECT_EQ(correctedTo<TypePropertySingleValue>("IfcMagic", label("A")), label("A"));
    EXPECT_EQ(correctedTo<TypePropertySingleValue>("", FcValue()), FcValue());
}

// --- Values of properties in a model ------------------------------------------------------------

class PropertyValues : public testing::Test
{
protected:
    template <class T>
    std::shared_ptr<T> in(char const* set, std::shared_ptr<T> const& property)
    {
        model.addSet(wall, set)->HasProperties.addProperty(property);
        return property;
    }

    Model model;
    std::shared_ptr<fc::core::kernel::FcObjectDefinition> wall = model.wall("W1");
};

TEST_F(PropertyValues, AnEnumerationThatThePropertyRefersToGivesThePossibleValues)
{
    auto const property =
        in("Pset_WallCommon", enumeratedValue("Status", {label("NEW")}, {label("OLD "), label("NEW")}));
    EXPECT_THAT(getPossibleEnumValues(*property), ElementsAre("OLD", "NEW"));
}

TEST_F(PropertyValues, TheDefinitionGivesThePossibleValuesOfAPropertyThatRefersToNone)
{
    auto const property = in("Pset_WallCommon", enumeratedValue("Status", {label("NEW")}, {}));
    EXPECT_THAT(getPossibleEnumValues(*property),
                ElementsAre("DEMOLISH", "EXISTING", "NEW", "TEMPORARY", "OTHER", "NOTKNOWN", "UNSET"));
}

TEST_F(PropertyValues, PossibleValuesThatNobodyKnowsAreNone)
{
    EXPECT_THAT(getPossibleEnumValues(*in("Company", enumeratedValue("Status", {label("NEW")}, {}))),
                IsEmpty());
    // Defined, but not as an enumeration.
    EXPECT_THAT(getPossibleEnumValues(*in("Pset_WallCommon", enumeratedValue("FireRating", {}, {}))),
                IsEmpty());
    EXPECT_THAT(getPossibleEnumValues(*enumeratedValue("Status", {label("NEW")}, {})), IsEmpty());
}

TEST_F(PropertyValues, ANewTableRowHasTheTypesOfTheRowsThatAreThere)
{
    auto const property = in("Pset_ElementKinematics", tableValue("LinearPath", {{real(1.0), label("A")}}));
    auto const row = createTableValue(*property);
    ASSERT_TRUE(row);
    EXPECT_EQ(row->first, real(0.0));
    EXPECT_EQ(row->second, label(""));
    EXPECT_EQ(property->DefiningValues->value().size(), 1u);
}

TEST_F(PropertyValues, ANewRowOfAnEmptyTableHasTheTypesOfTheDefinition)
{
    auto const property = in("Pset_ElementKinematics", tableValue("LinearPath", {}));
    auto const row = createTableValue(*property);
    ASSERT_TRUE(row);
    EXPECT_EQ(row->first, number("TimeMeasure", 0.0));
    EXPECT_EQ(row->second, length(0.0));

    property->DefiningValues = std::nullopt;
    property->DefinedValues = std::vector<FcValue>{real(1.0)};
    auto const mixed = createTableValue(*property);
    ASSERT_TRUE(mixed);
    EXPECT_EQ(mixed->first, number("TimeMeasure", 0.0));
    EXPECT_EQ(mixed->second, real(0.0));
}

TEST_F(PropertyValues, ATableOfUnknownTypesGetsNoRow)
{
    EXPECT_EQ(createTableValue(*in("Company", tableValue("Path", {}))), std::nullopt);
    auto const half = in("Company", tableValue("Path", {}));
    half->DefiningValues = std::vector<FcValue>{real(1.0)};
    EXPECT_EQ(createTableValue(*half), std::nullopt);
}

TEST_F(PropertyValues, AListGrowsByTheDefaultOfItsType)
{
    auto const property = in("Company", listValue("Sizes", {FcValue(), length(2.5)}));
    EXPECT_TRUE(addListValue(*property));
    EXPECT_THAT(property->ListValues->value(), ElementsAre(FcValue(), length(2.5), length(0.0)));
    EXPECT_EQ(model.data()->changes().canUndo(), true);
}

TEST_F(PropertyValues, AnEmptyListGrowsByTheDefaultOfTheDefinitionsType)
{
    auto const property = in("Pset_BuildingUse", listValue("TenureModesAvailableNow", {}));
    property->ListValues = std::nullopt;
    EXPECT_TRUE(addListValue(*property));
    EXPECT_THAT(property->ListValues->value(), ElementsAre(label("")));
}

TEST_F(PropertyValues, AListOfUnknownTypeStaysAsItIs)
{
    auto const property = in("Company", listValue("Sizes", {}));
    property->ListValues = std::nullopt;
    EXPECT_FALSE(addListValue(*property));
    EXPECT_EQ(property->ListValues.get(), std::nullopt);
}

} // namespace
