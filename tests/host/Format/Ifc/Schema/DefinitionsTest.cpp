#include "Format/Ifc/Schema/Pset/PropertySetDef.h"
#include "Format/Ifc/Schema/Pset/TypeComplexProperty.h"
#include "Format/Ifc/Schema/Pset/TypePropertyBoundedValue.h"
#include "Format/Ifc/Schema/Pset/TypePropertyEnumeratedValue.h"
#include "Format/Ifc/Schema/Pset/TypePropertyListValue.h"
#include "Format/Ifc/Schema/Pset/TypePropertyTableValue.h"
#include "Format/Ifc/Schema/Qto/QuantitySetDef.h"
#include "Format/Ifc/Schema/Qto/QuantityTypeSimple.h"
#include "Format/Ifc/Schema/SchemaLoader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev::ifc::def;
using qev::locale::Locale;
using testing::ElementsAre;

schema::Schema const& model() { return *qev::ifc::SchemaLoader::curr().classesFromName("IFC4X3_TC1"); }

TEST(Definitions, AnEntrysConceptIsSetAndEntryJoinedByADot)
{
    pset::PropertySetDef const properties("Pset_WallCommon");
    qto::QuantitySetDef const quantities("Qto_WallBaseQuantities");
    EXPECT_EQ(pset::PropertyDef(properties, "Status", nullptr).getConcept(), "Pset_WallCommon.Status");
    EXPECT_EQ(qto::QuantityDef(quantities, "Length", nullptr).getConcept(), "Qto_WallBaseQuantities.Length");
}

TEST(Definitions, KindTextsAreThoseOfThePublishedForm)
{
    EXPECT_STREQ(pset::PropertySetDef("X").sKind(), "PropertySetDef");
    EXPECT_STREQ(qto::QuantitySetDef("X").sKind(), "QtoSetDef");
}

TEST(Definitions, APropertyMayHaveNoType)
{
    pset::PropertySetDef set("Pset_X");
    set.propertyDefs.push_back(std::make_unique<pset::PropertyDef>(set, "Odd", nullptr));
    xml::XmlSetErrors errors;
    EXPECT_EQ(set.findEntry("Odd")->typeBase(), nullptr);
    EXPECT_TRUE(set.checkForErrors(model(), errors));
}

TEST(Definitions, PropertyTypesNameTheirClass)
{
    EXPECT_EQ(pset::TypePropertySingleValue("IfcReal").sEntityName(), "IfcPropertySingleValue");
    EXPECT_EQ(pset::TypePropertyReferenceValue("IfcPerson").sEntityName(), "IfcPropertyReferenceValue");
    EXPECT_EQ(pset::TypePropertyBoundedValue("IfcReal").sEntityName(), "IfcPropertyBoundedValue");
    EXPECT_EQ(pset::TypePropertyEnumeratedValue().sEntityName(), "IfcPropertyEnumeratedValue");
    EXPECT_EQ(pset::TypePropertyListValue().sEntityName(), "IfcPropertyListValue");
    EXPECT_EQ(pset::TypePropertyTableValue().sEntityName(), "IfcPropertyTableValue");
    EXPECT_EQ(pset::TypeComplexProperty("CP_X").sEntityName(), "IfcComplexProperty");
}

TEST(Definitions, ASingleValueIsAReferenceValueAndABoundedOneASingleValue)
{
    pset::TypePropertyBoundedValue const bounded("IfcLengthMeasure");
    EXPECT_NE(dynamic_cast<pset::TypePropertySingleValue const*>(&bounded), nullptr);
    EXPECT_NE(dynamic_cast<pset::TypePropertyReferenceValue const*>(&bounded), nullptr);
    EXPECT_NE(dynamic_cast<pset::PropertyType const*>(&bounded), nullptr);
}

struct QuantityRow
{
    std::string kind;
    std::string entity;
    std::string attribute;
    std::string measure;
};

class QuantityTypes : public testing::TestWithParam<QuantityRow>
{
};

TEST_P(QuantityTypes, HaveTheirTexts)
{
    auto const type = qto::quantityTypeFromKind(GetParam().kind);
    ASSERT_TRUE(type);
    EXPECT_EQ(type->sEntityName(), GetParam().entity);
    EXPECT_EQ(type->sKind(), GetParam().kind);
    EXPECT_EQ(type->sValueAttribute(), GetParam().attribute);
    EXPECT_EQ(type->sMeasure(), GetParam().measure);
    EXPECT_NE(dynamic_cast<qto::QuantityTypeSimple const*>(type.get()), nullptr);
    xml::XmlSetErrors errors;
    EXPECT_TRUE(type->checkForErrors(model(), errors));
}

INSTANTIATE_TEST_SUITE_P(
    , QuantityTypes,
    testing::Values(QuantityRow{"Q_AREA", "IfcQuantityArea", "AreaValue", "IfcAreaMeasure"},
                    QuantityRow{"Q_COUNT", "IfcQuantityCount", "CountValue", "IfcCountMeasure"},
                    QuantityRow{"Q_LENGTH", "IfcQuantityLength", "LengthValue", "IfcLengthMeasure"},
                    QuantityRow{"Q_TIME", "IfcQuantityTime", "TimeValue", "IfcTimeMeasure"},
                    QuantityRow{"Q_VOLUME", "IfcQuantityVolume", "VolumeValue", "IfcVolumeMeasure"},
                    QuantityRow{"Q_WEIGHT", "IfcQuantityWeight", "WeightValue", "IfcMassMeasure"}),
    [](auto const& parameters) { return parameters.param.kind; });

TEST(Definitions, AnUnknownQuantityKindGivesNothing)
{
    EXPECT_EQ(qto::quantityTypeFromKind("Q_MASS"), nullptr);
}

TEST(Aliases, GiveTheTextOfALanguage)
{
    xml::Aliases aliases;
    aliases.set(Locale("de", "DE"), "Wand");
    aliases.set(Locale("fr", "FR"), "mur");
    EXPECT_EQ(aliases.sValueFromLanguage(Locale("de", "DE")), "Wand");
    EXPECT_EQ(aliases.sValueFromLanguage(Locale("fr", "FR")), "mur");
    EXPECT_EQ(aliases.sValueFromLanguage(Locale("ja", "JP")), "");
}

TEST(Aliases, AnotherRegionOfTheLanguageStandsIn)
{
    xml::Aliases aliases;
    aliases.set(Locale("de", "DE"), "Wand");
    aliases.set(Locale("de", "CH"), "Mauer");
    EXPECT_EQ(aliases.sValueFromLanguage(Locale("de", "")), "Wand");
    EXPECT_EQ(aliases.sValueFromLanguage(Locale("de", "CH")), "Mauer");
}

TEST(Aliases, ALanguageHasOneText)
{
    xml::Aliases aliases;
    aliases.set(Locale("de", "DE"), "Wand");
    aliases.set(Locale("de", "DE"), "Mauer");
    EXPECT_EQ(aliases.texts().size(), 1U);
    EXPECT_EQ(aliases.sValueFromLanguage(Locale("de", "DE")), "Mauer");
}

TEST(CheckForErrors, TellsWhatTheSchemaDoesNotKnow)
{
    pset::PropertySetDef set("Pset_Odd");
    set.applicableClasses = {{"IfcWall", ""}, {"IfcCastle", ""}, {"IfcWall", "TOWER"}, {"IfcPerson", "TALL"}};
    auto const add = [&set](char const* name, std::unique_ptr<pset::PropertyType> type) {
        set.propertyDefs.push_back(std::make_unique<pset::PropertyDef>(set, name, std::move(type)));
    };
    add("Good", std::make_unique<pset::TypePropertySingleValue>("IfcLabel"));
    add("Single", std::make_unique<pset::TypePropertySingleValue>("IfcMagic"));
    add("Select", std::make_unique<pset::TypePropertySingleValue>("IfcValue"));
    add("Reference", std::make_unique<pset::TypePropertyReferenceValue>("IfcWizard"));
    add("List", std::make_unique<pset::TypePropertyListValue>(""));
    add("Table", std::make_unique<pset::TypePropertyTableValue>("IfcLabel", "IfcMagic"));
    add("Enum", std::make_unique<pset::TypePropertyEnumeratedValue>("PEnum_X",
                                                                    std::vector<std::string>{"A", "B", "A"}));
    xml::XmlSetErrors errors;
    EXPECT_FALSE(set.checkForErrors(model(), errors));
    std::vector<std::string> texts;
    for (auto const& entry : errors.entries)
        texts.push_back(entry.place + ": " + entry.message);
    EXPECT_THAT(texts, ElementsAre("Pset_Odd: The class IfcCastle is unknown.",
                                   "Pset_Odd: The class IfcWall has no predefined type TOWER.",
                                   "Pset_Odd: The class IfcPerson has no predefined type TALL.",
                                   "Pset_Odd.Single: The value type \"IfcMagic\" is unknown.",
                                   "Pset_Odd.Select: The value type \"IfcValue\" is unknown.",
                                   "Pset_Odd.Reference: The referenced class \"IfcWizard\" is unknown.",
                                   "Pset_Odd.List: The value type \"\" is unknown.",
                                   "Pset_Odd.Table: The value type \"IfcMagic\" is unknown.",
                                   "Pset_Odd.Enum: The value A stands in the list twice."));
}

TEST(ExportDef, WritesThePublishedForm)
{
    pset::PropertySetDef set("Pset_Toy");
    set.description = "Big & small";
    set.templateTypeName = "PSET_OCCURRENCEDRIVEN";
    set.applicableClasses = {{"IfcWall", "PARAPET"}, {"IfcDoor", ""}};
    set.propertyDefs.push_back(std::make_unique<pset::PropertyDef>(
        set, "Mark", std::make_unique<pset::TypePropertySingleValue>("IfcLabel")));
    set.propertyDefs.back()->nameAliases.set(Locale("de", "DE"), "Marke");
    set.propertyDefs.push_back(std::make_unique<pset::PropertyDef>(
        set, "State",
        std::make_unique<pset::TypePropertyEnumeratedValue>("PEnum_State", std::vector<std::string>{"NEW"})));

    qev::xml::Element document("Document");
    xml::ExtraExportInfo info{"IFC4X3"};
    EXPECT_EQ(set.exportDef(document, &info).name(), "PropertySetDef");
    EXPECT_EQ(document.toString(), R"(<Document>
  <PropertySetDef templatetype="PSET_OCCURRENCEDRIVEN">
    <IfcVersion version="IFC4X3" />
    <Name>Pset_Toy</Name>
    <Definition>Big &amp; small</Definition>
    <Applicability />
    <ApplicableClasses>
      <ClassName>IfcWall/PARAPET</ClassName>
      <ClassName>IfcDoor</ClassName>
    </ApplicableClasses>
    <ApplicableTypeValue>IfcWall/PARAPET,IfcDoor</ApplicableTypeValue>
    <PropertyDefs>
      <PropertyDef>
        <Name>Mark</Name>
        <Definition />
        <PropertyType>
          <TypePropertySingleValue>
            <DataType type="IfcLabel" />
          </TypePropertySingleValue>
        </PropertyType>
        <NameAliases>
          <NameAlias lang="de-DE">Marke</NameAlias>
        </NameAliases>
      </PropertyDef>
      <PropertyDef>
        <Name>State</Name>
        <Definition />
        <PropertyType>
          <TypePropertyEnumeratedValue>
            <EnumList name="PEnum_State">
              <EnumItem>NEW</EnumItem>
            </EnumList>
          </TypePropertyEnumeratedValue>
        </PropertyType>
      </PropertyDef>
    </PropertyDefs>
  </PropertySetDef>
</Document>
)");
}

TEST(ExportDef, WritesQuantities)
{
    qto::QuantitySetDef set("Qto_Toy");
    set.quantityDefs.push_back(
        std::make_unique<qto::QuantityDef>(set, "Width", qto::quantityTypeFromKind("Q_LENGTH")));
    qev::xml::Element document("Document");
    set.exportDef(document, nullptr);
    EXPECT_THAT(document.toString(), testing::HasSubstr("<QtoType>Q_LENGTH</QtoType>"));
    EXPECT_THAT(document.toString(), testing::Not(testing::HasSubstr("IfcVersion")));
}

} // namespace
