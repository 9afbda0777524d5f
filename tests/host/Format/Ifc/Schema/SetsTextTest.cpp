#include "Format/Ifc/Schema/SetsText.h"

#include "Format/Ifc/Schema/Pset/PropertySetDef.h"
#include "Format/Ifc/Schema/Pset/TypePropertyBoundedValue.h"
#include "Format/Ifc/Schema/Pset/TypePropertyEnumeratedValue.h"
#include "Format/Ifc/Schema/Pset/TypePropertyListValue.h"
#include "Format/Ifc/Schema/Pset/TypePropertyTableValue.h"
#include "Format/Ifc/Schema/Qto/QuantitySetDef.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev::ifc::def;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view garden = R"(sets TOY1
enumeration PEnum_Season ToyLabel = SPRING FALL

chapter ToyGarden

set Pset_Bush PSET_TYPEDRIVENOVERRIDE
  for ToyBush/TALL
  for ToyTree
  Name : single ToyLabel
  Height : bounded ToyLength
  Season : enum PEnum_Season
  Colours : list ToyColour
  Growth : table ToyTime ToyLength
  Owner : ref ToyPerson

chapter ToyYard
set Qto_Bush QTO_OCCURRENCEDRIVEN
  Area : area
  Count : count
  Length : length
  Time : time
  Volume : volume
  Weight : weight
set Pset_Soil PSET_MATERIALDRIVEN
)";

template <class Type>
Type const& typeOf(xml::SetDef const& set, char const* entry)
{
    return dynamic_cast<Type const&>(*set.findEntry(entry)->typeBase());
}

TEST(SetsText, ASetHasItsHead)
{
    SetsTextResult const result = parseSets(garden);
    EXPECT_THAT(result.errors, IsEmpty());
    EXPECT_EQ(result.context.name, "TOY1");
    EXPECT_TRUE(result.context.isStandard);
    ASSERT_EQ(result.definitions.sets().size(), 3U);
    xml::SetDef const& bush = *result.definitions.sets()[0];
    EXPECT_EQ(bush.name, "Pset_Bush");
    EXPECT_STREQ(bush.sKind(), "PropertySetDef");
    EXPECT_EQ(bush.chapter, "ToyGarden");
    EXPECT_EQ(bush.templateType, xml::TemplateType::PsetTypeDrivenOverride);
    EXPECT_THAT(bush.applicableClasses,
                ElementsAre(xml::ApplicableClass{"ToyBush", "TALL"}, xml::ApplicableClass{"ToyTree", ""}));
    EXPECT_TRUE(bush.description.empty());
}

TEST(SetsText, EveryKindOfPropertyIsRead)
{
    SetsTextResult const result = parseSets(garden);
    xml::SetDef const& bush = *result.definitions.find("Pset_Bush");
    EXPECT_EQ(typeOf<pset::TypePropertySingleValue>(bush, "Name").valueType, "ToyLabel");
    EXPECT_EQ(typeOf<pset::TypePropertyBoundedValue>(bush, "Height").valueType, "ToyLength");
    auto const& season = typeOf<pset::TypePropertyEnumeratedValue>(bush, "Season");
    EXPECT_EQ(season.enumerationName, "PEnum_Season");
    EXPECT_EQ(season.valueType, "ToyLabel");
    EXPECT_THAT(season.values, ElementsAre("SPRING", "FALL"));
    EXPECT_EQ(typeOf<pset::TypePropertyListValue>(bush, "Colours").valueType, "ToyColour");
    EXPECT_EQ(typeOf<pset::TypePropertyTableValue>(bush, "Growth").definingValueType, "ToyTime");
    EXPECT_EQ(typeOf<pset::TypePropertyTableValue>(bush, "Growth").definedValueType, "ToyLength");
    EXPECT_EQ(typeOf<pset::TypePropertyReferenceValue>(bush, "Owner").valueType, "ToyPerson");
    EXPECT_EQ(typeOf<pset::TypePropertyReferenceValue>(bush, "Owner").sEntityName(),
              "IfcPropertyReferenceValue");
}

TEST(SetsText, EveryKindOfQuantityIsRead)
{
    SetsTextResult const result = parseSets(garden);
    auto const& bush = dynamic_cast<qto::QuantitySetDef const&>(*result.definitions.find("Qto_Bush"));
    EXPECT_STREQ(bush.sKind(), "QtoSetDef");
    EXPECT_EQ(bush.chapter, "ToyYard");
    std::vector<std::string> kinds;
    for (auto const& quantity : bush.quantityDefs)
        kinds.push_back(quantity->quantityType->sKind());
    EXPECT_THAT(kinds, ElementsAre("Q_AREA", "Q_COUNT", "Q_LENGTH", "Q_TIME", "Q_VOLUME", "Q_WEIGHT"));
}

TEST(SetsText, ATemplateTypeWithoutANumberKeepsItsName)
{
    SetsTextResult const result = parseSets(garden);
    xml::SetDef const& soil = *result.definitions.find("Pset_Soil");
    EXPECT_EQ(static_cast<unsigned>(soil.templateType), 7U);
    EXPECT_EQ(soil.templateTypeName, "PSET_MATERIALDRIVEN");
    EXPECT_THAT(soil.applicableClasses, IsEmpty());
}

TEST(TemplateTypes, HaveTheirNumbers)
{
    std::vector<unsigned> numbers;
    for (char const* const name :
         {"PSET_TYPEDRIVENONLY", "PSET_TYPEDRIVENOVERRIDE", "PSET_OCCURRENCEDRIVEN", "PSET_PERFORMANCEDRIVEN",
          "QTO_TYPEDRIVENONLY", "QTO_TYPEDRIVENOVERRIDE", "QTO_OCCURRENCEDRIVEN", "NOTDEFINED", ""})
        numbers.push_back(static_cast<unsigned>(xml::templateTypeFromName(name)));
    EXPECT_THAT(numbers, ElementsAre(0U, 1U, 2U, 3U, 4U, 5U, 6U, 7U, 7U));
}

struct BadLine
{
    std::string name;
    std::string text;
    std::size_t line;
};

class SetsTextErrors : public testing::TestWithParam<BadLine>
{
};

TEST_P(SetsTextErrors, AreToldWithTheirLineAndTheRestIsRead)
{
    SetsTextResult const result = parseSets("set Pset_Good PSET_OCCURRENCEDRIVEN\n" + GetParam().text +
                                            "set Pset_Last PSET_OCCURRENCEDRIVEN\n");
    ASSERT_EQ(result.errors.size(), 1U);
    EXPECT_EQ(result.errors[0].line, GetParam().line);
    EXPECT_TRUE(result.definitions.find("Pset_Good"));
    EXPECT_TRUE(result.definitions.find("Pset_Last"));
}

INSTANTIATE_TEST_SUITE_P(
    , SetsTextErrors,
    testing::Values(
        BadLine{"UnknownDeclaration", "group X\n", 2}, BadLine{"SetWithoutTemplate", "set X\n", 2},
        BadLine{"UnknownKind", "  X : single2 A\n", 2}, BadLine{"SingleWithoutType", "  X : single\n", 2},
        BadLine{"SingleWithTwoTypes", "  X : single A B\n", 2},
        BadLine{"TableWithOneType", "  X : table A\n", 2},
        BadLine{"UnknownEnumeration", "  X : enum PEnum_X\n", 2}, BadLine{"NoSign", "  X single A\n", 2},
        BadLine{"UnknownQuantity", "set Q QTO_OCCURRENCEDRIVEN\n  X : mass\n", 3},
        BadLine{"EnumerationTwice", "enumeration E L = A\nenumeration E L = B\n", 3},
        BadLine{"SetTwice", "set Pset_Good PSET_OCCURRENCEDRIVEN\n", 3}),
    [](auto const& parameters) { return parameters.param.name; });

TEST(SetsText, AnEntryBeforeAnySetIsAnError) { EXPECT_EQ(parseSets("  X : single A\n").errors.size(), 1U); }

} // namespace
