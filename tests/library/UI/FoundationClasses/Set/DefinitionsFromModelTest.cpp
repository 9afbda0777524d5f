#include "FoundationClasses/AllEntities.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "UI/FoundationClasses/Set/IfcXmlPropertySetDefFromFcPropertySet.h"
#include "UI/FoundationClasses/Set/IfcXmlQuantitySetDefFromFcElementQuantity.h"

#include "Format/Ifc/Schema/Pset/TypePropertyEnumeratedValue.h"
#include "Format/Ifc/Schema/Pset/TypePropertyReferenceValue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev::fc;
using namespace qev::fc::ui;
using namespace qev::test;
using testing::ElementsAre;
using testing::IsEmpty;
using FromProperties = IfcXmlPropertySetDefFromFcPropertySet;
using FromQuantities = IfcXmlQuantitySetDefFromFcElementQuantity;

constexpr char propertiesPath[] = "UI/FoundationClasses/Set/IfcXmlPropertySetDefFromFcPropertySet";
constexpr char quantitiesPath[] = "UI/FoundationClasses/Set/IfcXmlQuantitySetDefFromFcElementQuantity";

/// Name, kind and value type of each entry.
std::vector<std::string> entriesOf(qev::ifc::def::pset::PropertySetDef const& set)
{
    std::vector<std::string> entries;
    for (auto const& property : set.propertyDefs) {
        auto const* const typed = dynamic_cast<qev::ifc::def::pset::TypePropertyReferenceValue const*>(
            property->propertyType.get());
        entries.push_back(property->name + " " + property->propertyType->sEntityName() +
                          (typed ? " " + typed->valueType : std::string()));
    }
    return entries;
}

class DefinitionsFromModel : public testing::Test
{
protected:
    std::shared_ptr<core::kernel::FcPropertySet>
    setOf(std::vector<std::shared_ptr<resource::property::FcProperty>> const& properties)
    {
        auto const set = model.addSet(model.wall("W"), "Own");
        for (auto const& property : properties)
            set->HasProperties.addProperty(property);
        return set;
    }
    template <class T>
    static std::shared_ptr<T> named(std::string const& name)
    {
        auto property = std::make_shared<T>();
        property->Name = name;
        return property;
    }

    Model model;
};

TEST_F(DefinitionsFromModel, EachKindOfPropertyHasItsEntryInStoredOrder)
{
    using namespace resource::property;
    auto const set =
        setOf({singleValue("Single", label("A")), enumeratedValue("Enumerated", {label("A")}, {}),
               boundedValue("Bounded", {}, length(1), {}), listValue("List", {label("A")}),
               named<FcPropertyReferenceValue>("Reference"), tableValue("Table", {})});

    auto const definition = FromProperties::get(set.get());

    EXPECT_EQ(definition->name, "Own");
    EXPECT_EQ(definition->description, "");
    EXPECT_THAT(entriesOf(*definition),
                ElementsAre("Single IfcPropertySingleValue IfcLabel", "Enumerated IfcPropertyEnumeratedValue",
                            "Bounded IfcPropertyBoundedValue IfcLengthMeasure", "List IfcPropertyListValue",
                            "Reference IfcPropertyReferenceValue IfcObjectReferenceSelect",
                            "Table IfcPropertyTableValue"));
}

TEST_F(DefinitionsFromModel, AnEmptySingleValueHasNoEntry)
{
    EXPECT_THAT(entriesOf(*FromProperties::get(setOf({singleValue("Empty", {})}).get())), IsEmpty());
}

TEST_F(DefinitionsFromModel, ABoundedValueHasTheTypeOfItsFirstValue)
{
    auto const typed = [this](FcValue lower, FcValue upper, FcValue setPoint) {
        return entriesOf(*FromProperties::get(setOf({boundedValue("B", lower, upper, setPoint)}).get()));
    };

    EXPECT_THAT(typed(integer(1), real(2), label("x")), ElementsAre("B IfcPropertyBoundedValue IfcReal"));
    EXPECT_THAT(typed(integer(1), {}, label("x")), ElementsAre("B IfcPropertyBoundedValue IfcInteger"));
    EXPECT_THAT(typed({}, {}, label("x")), ElementsAre("B IfcPropertyBoundedValue IfcLabel"));
    EXPECT_THAT(typed({}, {}, {}), IsEmpty());
}

TEST_F(DefinitionsFromModel, APropertyOfAnotherClassIsReportedAndLeftOut)
{
    auto const set =
        setOf({named<resource::property::FcComplexProperty>("Complex"), singleValue("A", label("A"))});

    auto const definition = FromProperties::get(set.get());

    expectReport("Unknown property.", "qev::fc::ui::IfcXmlPropertySetDefFromFcPropertySet::get",
                 propertiesPath);
    EXPECT_THAT(entriesOf(*definition), ElementsAre("A IfcPropertySingleValue IfcLabel"));
}

TEST_F(DefinitionsFromModel, ANullPropertyIsReportedAndLeftOut)
{
    auto const set = setOf({singleValue("A", label("A"))});
    // A set of this model never holds null. Another host's may.
    auto& properties = const_cast<std::vector<std::shared_ptr<resource::property::FcProperty>>&>(
        set->HasProperties.getProperties());
    properties.insert(properties.begin(), nullptr);

    auto const definition = FromProperties::get(set.get());

    expectReport("Property not set.", "qev::fc::ui::IfcXmlPropertySetDefFromFcPropertySet::get",
                 propertiesPath);
    EXPECT_THAT(entriesOf(*definition), ElementsAre("A IfcPropertySingleValue IfcLabel"));
}

TEST_F(DefinitionsFromModel, AnEnumerationHasNoValues)
{
    using Enumerated = qev::ifc::def::pset::TypePropertyEnumeratedValue;
    auto const set = setOf({enumeratedValue("E", {label("A")}, {label("A"), label("B")})});

    auto const definition = FromProperties::get(set.get());

    auto const* const type = dynamic_cast<Enumerated const*>(definition->propertyDefs[0]->propertyType.get());
    ASSERT_NE(type, nullptr);
    EXPECT_THAT(type->values, IsEmpty());
}

TEST_F(DefinitionsFromModel, NoPropertySetIsReported)
{
    EXPECT_EQ(FromProperties::get(nullptr), nullptr);

    expectReport("Property set not given.", "qev::fc::ui::IfcXmlPropertySetDefFromFcPropertySet::get",
                 propertiesPath);
}

TEST_F(DefinitionsFromModel, TypesAreNamedAsTheSchemaDoes)
{
    using namespace resource::measure;
    auto const typeOf = FromProperties::getValueTypeFromValue;

    EXPECT_EQ(typeOf(label("A")), "IfcLabel");
    EXPECT_EQ(typeOf(length(1)), "IfcLengthMeasure");
    EXPECT_EQ(typeOf(number("ThermalTransmittanceMeasure", 1)), "IfcThermalTransmittanceMeasure");
    EXPECT_EQ(typeOf(FcValue()), std::nullopt);
    EXPECT_EQ(typeOf(FcValue(FcSimpleValue())), "");
    EXPECT_EQ(typeOf(FcValue(FcMeasureValue())), "");
    EXPECT_EQ(typeOf(FcValue(FcDerivedMeasureValue())), "");
}

TEST_F(DefinitionsFromModel, EachKindOfQuantityHasItsEntry)
{
    auto const set = model.addQuantities(model.wall("W"), "Own",
                                         {{"A", 1, QuantityKind::Area},
                                          {"C", 1, QuantityKind::Count},
                                          {"L", 1, QuantityKind::Length},
                                          {"T", 1, QuantityKind::Time},
                                          {"V", 1, QuantityKind::Volume},
                                          {"W", 1, QuantityKind::Weight}});

    auto const definition = FromQuantities::get(set);

    std::vector<std::string> entries;
    for (auto const& quantity : definition->quantityDefs)
        entries.push_back(quantity->name + " " + quantity->quantityType->sEntityName());
    EXPECT_EQ(definition->name, "Own");
    EXPECT_THAT(entries, ElementsAre("A IfcQuantityArea", "C IfcQuantityCount", "L IfcQuantityLength",
                                     "T IfcQuantityTime", "V IfcQuantityVolume", "W IfcQuantityWeight"));
}

TEST_F(DefinitionsFromModel, AQuantityOfAnotherClassIsReportedAndLeftOut)
{
    auto const set = model.addQuantities(model.wall("W"), "Own", {{"N", 1, QuantityKind::Number}});

    EXPECT_THAT(FromQuantities::get(set)->quantityDefs, IsEmpty());

    expectReport("Unknown quantity.", "qev::fc::ui::IfcXmlQuantitySetDefFromFcElementQuantity::get",
                 quantitiesPath);
}

TEST_F(DefinitionsFromModel, AQuantitySetWithoutANameHasNoDefinition)
{
    auto const set = model.addQuantities(model.wall("W"), "Own", {{"L", 1}});
    set->Name = std::nullopt;

    EXPECT_EQ(FromQuantities::get(set), nullptr);
}

} // namespace
