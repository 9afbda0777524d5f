#include "Format/Ifc/Schema/PsdReader.h"

#include "Format/Ifc/Schema/Pset/PropertySetDef.h"
#include "Format/Ifc/Schema/Pset/TypeComplexProperty.h"
#include "Format/Ifc/Schema/Pset/TypePropertyBoundedValue.h"
#include "Format/Ifc/Schema/Pset/TypePropertyEnumeratedValue.h"
#include "Format/Ifc/Schema/Pset/TypePropertyListValue.h"
#include "Format/Ifc/Schema/Pset/TypePropertyTableValue.h"
#include "Format/Ifc/Schema/Qto/QuantitySetDef.h"
#include "Format/Ifc/Schema/SchemaLoader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev::ifc::def;
using qev::locale::Locale;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::filesystem::path const examples = QEV_PSD_EXAMPLES;
Locale const german("de", "DE");

template <class Type>
Type const& typeOf(xml::SetDef const& set, char const* entry)
{
    return dynamic_cast<Type const&>(*set.findEntry(entry)->typeBase());
}

class Ifc2x3Psd : public testing::Test
{
protected:
    PsdResult result = readPsd(examples / "ifc2x3");
    xml::SetDef const& lamp = *result.definitions.find("Pset_ToyLamp");
};

TEST_F(Ifc2x3Psd, TheHeadOfASetIsRead)
{
    EXPECT_THAT(result.errors, IsEmpty());
    EXPECT_EQ(result.fileCount, 2U);
    EXPECT_EQ(lamp.description, "What a toy lamp has to tell.");
    EXPECT_EQ(lamp.chapter, "IfcToyDomain");
    EXPECT_EQ(lamp.templateType, xml::TemplateType::NotDefined);
    EXPECT_EQ(lamp.templateTypeName, "NOTDEFINED");
    EXPECT_THAT(lamp.applicableClasses, ElementsAre(xml::ApplicableClass{"IfcLampType", "HALOGEN"}));
}

TEST_F(Ifc2x3Psd, AChapterInFrontOfAClassAndOtherConditionsAreLeftOut)
{
    EXPECT_THAT(result.definitions.find("Pset_ToyRoom")->applicableClasses,
                ElementsAre(xml::ApplicableClass{"IfcSpace", ""}));
}

TEST_F(Ifc2x3Psd, SingleValuesHaveTheirUnit)
{
    auto const& power = typeOf<pset::TypePropertySingleValue>(lamp, "Power");
    EXPECT_EQ(power.valueType, "IfcPowerMeasure");
    EXPECT_EQ(power.unit, "POWERUNIT");
    EXPECT_EQ(lamp.findEntry("Power")->description, "How much it takes.");
}

TEST_F(Ifc2x3Psd, BoundedValuesHaveTheirBounds)
{
    auto const& temperature = typeOf<pset::TypePropertyBoundedValue>(lamp, "Temperature");
    EXPECT_EQ(temperature.valueType, "IfcThermodynamicTemperatureMeasure");
    EXPECT_EQ(temperature.lowerBound, "250");
    EXPECT_EQ(temperature.upperBound, "?");
}

TEST_F(Ifc2x3Psd, ARepeatedEnumerationItemIsTakenOnce)
{
    auto const& socket = typeOf<pset::TypePropertyEnumeratedValue>(lamp, "Socket");
    EXPECT_EQ(socket.enumerationName, "PEnum_ToySocket");
    EXPECT_THAT(socket.values, ElementsAre("SCREW", "PLUG"));
}

TEST_F(Ifc2x3Psd, ListsAndTablesHaveTheirValues)
{
    auto const& levels = typeOf<pset::TypePropertyListValue>(lamp, "Levels");
    EXPECT_EQ(levels.valueType, "IfcPowerMeasure");
    EXPECT_EQ(levels.unit, "POWERUNIT");
    EXPECT_THAT(levels.values, ElementsAre("10", "20"));
    auto const& dimming = typeOf<pset::TypePropertyTableValue>(lamp, "Dimming");
    EXPECT_EQ(dimming.expression, "half the light at half the power");
    EXPECT_EQ(dimming.definingValueType, "IfcPowerMeasure");
    EXPECT_EQ(dimming.definedValueType, "IfcLuminousFluxMeasure");
    EXPECT_EQ(dimming.definedUnit, "LUMINOUSFLUXUNIT");
    EXPECT_THAT(dimming.definingValues, ElementsAre("1"));
    EXPECT_THAT(dimming.definedValues, ElementsAre("2"));
}

TEST_F(Ifc2x3Psd, ASimplePropertyIsAReferenceWhenItsTypeIsAClass)
{
    EXPECT_EQ(typeOf<xml::TypeBase>(lamp, "History").sEntityName(), "IfcPropertyReferenceValue");
    EXPECT_EQ(typeOf<pset::TypePropertyReferenceValue>(lamp, "History").valueType, "IfcTimeSeries");
    EXPECT_EQ(typeOf<xml::TypeBase>(lamp, "Nickname").sEntityName(), "IfcPropertySingleValue");
}

TEST_F(Ifc2x3Psd, AComplexPropertyHasItsMembers)
{
    auto const& bulb = typeOf<pset::TypeComplexProperty>(lamp, "Bulb");
    EXPECT_EQ(bulb.usageName, "CP_ToyBulb");
    ASSERT_EQ(bulb.members.size(), 2U);
    EXPECT_EQ(bulb.members[0]->name, "Shape");
    EXPECT_EQ(bulb.members[1]->propertyType->sEntityName(), "IfcPropertyReferenceValue");
}

class Ifc4Psd : public testing::Test
{
protected:
    PsdResult result = readPsd(examples / "ifc4");
};

TEST_F(Ifc4Psd, TextsInOtherLanguagesAreRead)
{
    EXPECT_THAT(result.errors, IsEmpty());
    xml::SetDef const& wall = *result.definitions.find("Pset_WallCommon");
    EXPECT_EQ(wall.definitionAliases.sValueFromLanguage(german), "Was Wände gemeinsam haben.");
    xml::Def const& status = *wall.findEntry("Status");
    EXPECT_EQ(status.description, "Old or new.");
    EXPECT_EQ(status.nameAliases.sValueFromLanguage(german), "Zustand");
    EXPECT_EQ(status.definitionAliases.sValueFromLanguage(german), "Alt oder neu.");
    EXPECT_EQ(status.nameAliases.texts().size(), 2U);
}

TEST_F(Ifc4Psd, AnEmptyAliasCountsAsNone)
{
    xml::Def const& status = *result.definitions.find("Pset_WallCommon")->findEntry("Status");
    EXPECT_EQ(status.definitionAliases.texts().size(), 1U);
}

TEST_F(Ifc4Psd, ConstantsAreTheValuesAndCarryTexts)
{
    auto const& status =
        typeOf<pset::TypePropertyEnumeratedValue>(*result.definitions.find("Pset_WallCommon"), "Status");
    EXPECT_THAT(status.values, ElementsAre("NEW", "EXISTING"));
    EXPECT_EQ(status.items.at("NEW").description, "Just built.");
    EXPECT_EQ(status.items.at("NEW").definitionAliases.sValueFromLanguage(german), "Gerade gebaut.");
    EXPECT_EQ(status.items.count("EXISTING"), 0U);
    ASSERT_EQ(status.valueAliases.size(), 1U);
    EXPECT_EQ(status.valueAliases[0].nameAliases.sValueFromLanguage(german), "neu");
}

TEST_F(Ifc4Psd, WhatIsMissingIsTakenAsEmpty)
{
    xml::SetDef const& shelf = *result.definitions.find("Pset_ToyShelf");
    EXPECT_EQ(shelf.templateTypeName, "NOTDEFINED");
    EXPECT_EQ(shelf.description, "");
    EXPECT_EQ(typeOf<pset::TypePropertySingleValue>(shelf, "Load").valueType, "");
    auto const& board = typeOf<pset::TypePropertyEnumeratedValue>(shelf, "Board");
    EXPECT_EQ(board.enumerationName, "");
    EXPECT_THAT(board.values, ElementsAre("WOOD", "GLASS"));
}

TEST_F(Ifc4Psd, TheJoinedListOfClassesStandsInForMissingOnes)
{
    EXPECT_THAT(result.definitions.find("Pset_ToyShelf")->applicableClasses,
                ElementsAre(xml::ApplicableClass{"IfcFurniture", "SHELF"},
                            xml::ApplicableClass{"IfcSystemFurnitureElement", ""}));
}

TEST_F(Ifc4Psd, QuantitiesAreReadWhateverTheirNamespace)
{
    xml::SetDef const& shelf = *result.definitions.find("Qto_ToyShelf");
    EXPECT_STREQ(shelf.sKind(), "QtoSetDef");
    EXPECT_EQ(shelf.description, "Measures of a shelf < a room.");
    EXPECT_EQ(shelf.templateType, xml::TemplateType::QtoOccurrenceDriven);
    EXPECT_EQ(shelf.definitionAliases.sValueFromLanguage(Locale("fr", "FR")), "Mesures.");
    std::vector<std::string> classes;
    for (xml::Def const* const entry : shelf.entries())
        classes.push_back(entry->typeBase()->sEntityName());
    EXPECT_THAT(classes, ElementsAre("IfcQuantityLength", "IfcQuantityCount", "IfcQuantityArea",
                                     "IfcQuantityVolume", "IfcQuantityWeight", "IfcQuantityTime"));
    EXPECT_EQ(shelf.findEntry("Length")->nameAliases.sValueFromLanguage(german), "Länge");
}

TEST(Ifc4x3Psd, FoldersBelowAreReadAndOtherFilesLeftAlone)
{
    PsdResult const result = readPsd(examples / "ifc4x3");
    EXPECT_THAT(result.errors, IsEmpty());
    EXPECT_EQ(result.fileCount, 2U);
    xml::SetDef const& track = *result.definitions.find("Pset_ToyTrack");
    EXPECT_EQ(track.templateType, xml::TemplateType::PsetOccurrenceDriven);
    EXPECT_THAT(track.applicableClasses, ElementsAre(xml::ApplicableClass{"IfcRail", "RAIL"},
                                                     xml::ApplicableClass{"IfcRailType", "RAIL"}));
    EXPECT_EQ(typeOf<pset::TypePropertyReferenceValue>(track, "Plan").valueType, "IfcDocumentReference");
    EXPECT_THAT(typeOf<pset::TypePropertyEnumeratedValue>(track, "Wear").values, ElementsAre("LOW", "HIGH"));
    EXPECT_EQ(result.definitions.find("Qto_ToyTrack")->templateType,
              xml::TemplateType::QtoTypeDrivenOverride);
}

TEST(PsdReader, OneFileCanBeRead)
{
    PsdResult const result = readPsd(examples / "ifc4x3" / "qto" / "Qto_ToyTrack.xml");
    EXPECT_THAT(result.errors, IsEmpty());
    EXPECT_EQ(result.definitions.sets().size(), 1U);
}

TEST(PsdReader, WhatIsWrongIsToldWithFileAndLineAndTheRestIsRead)
{
    PsdResult const result = readPsd(examples / "broken");
    std::vector<std::string> places;
    for (PsdError const& error : result.errors)
        places.push_back(error.file.filename().string() + ":" + std::to_string(error.line) + " " +
                         error.message);
    EXPECT_THAT(
        places,
        ElementsAre(HasSubstr("1-syntax.xml:3 "),
                    "2-other.xml:3 PropertySetDef or QtoSetDef is expected instead of Catalogue.",
                    "3-nameless.xml:1 A Name is expected in PropertySetDef.",
                    "4-entries.xml:4 A Name is expected in PropertyDef.",
                    "4-entries.xml:7 The type of the property is expected, TypePropertySingleValue for "
                    "example.",
                    "4-entries.xml:12 The type of the property is expected, TypePropertySingleValue for "
                    "example.",
                    "4-entries.xml:20 The property Good stands in the set twice.",
                    "5-quantities.xml:4 A Name is expected in QtoDef.",
                    "5-quantities.xml:5 A QtoType such as Q_LENGTH is expected in QtoDef.",
                    "5-quantities.xml:7 The quantity Good stands in the set twice.",
                    "6-again.xml:1 The set Pset_Half is defined by another file too.",
                    HasSubstr("7-empty.xml:")));
    EXPECT_EQ(result.fileCount, 7U);
    ASSERT_EQ(result.definitions.sets().size(), 2U);
    EXPECT_EQ(result.definitions.find("Pset_Half")->entries().size(), 1U);
    EXPECT_EQ(typeOf<pset::TypePropertySingleValue>(*result.definitions.find("Pset_Half"), "Good").valueType,
              "IfcLabel");
    EXPECT_EQ(result.definitions.find("Qto_Half")->entries().size(), 1U);
}

TEST(PsdReader, AFileThatIsNotThereIsToldByName)
{
    PsdResult const result = readPsd(examples / "nowhere.xml");
    ASSERT_EQ(result.errors.size(), 1U);
    EXPECT_EQ(result.errors[0].file, examples / "nowhere.xml");
    EXPECT_EQ(result.errors[0].line, 0U);
    EXPECT_EQ(result.errors[0].message, "The file cannot be read.");
}

TEST(PsdReader, ComplexPropertiesThatStandTooDeepAreRefused)
{
    std::string open;
    std::string close;
    for (int level = 0; level < 5000; ++level) {
        open += "<PropertyDef><Name>X</Name><PropertyType><TypeComplexProperty name='Y'>";
        close += "</TypeComplexProperty></PropertyType></PropertyDef>";
    }
    PsdResult result;
    readPsdText("<PropertySetDef><Name>Pset_Deep</Name><PropertyDefs>" + open + close +
                    "</PropertyDefs></PropertySetDef>",
                "deep.xml", result);
    ASSERT_EQ(result.errors.size(), 1U);
    EXPECT_EQ(result.errors[0].message, "Complex properties stand too deep in each other.");
    EXPECT_TRUE(result.definitions.find("Pset_Deep"));
}

TEST(PsdReader, WhatIsExportedReadsBackEqual)
{
    PsdResult const result = readPsd(examples);
    ASSERT_TRUE(result.definitions.find("Pset_ToyLamp"));
    for (auto const& set : result.definitions.sets()) {
        qev::xml::Element document("Document");
        std::string const text = set->exportDef(document, nullptr).toString();
        PsdResult again;
        readPsdText(text, "again.xml", again);
        EXPECT_THAT(again.errors, IsEmpty()) << set->name;
        ASSERT_EQ(again.definitions.sets().size(), 1U);
        qev::xml::Element other("Document");
        EXPECT_EQ(again.definitions.sets()[0]->exportDef(other, nullptr).toString(), text);
    }
}

TEST(PsdReader, TheStandardsSetsGainTextsFromPublishedOnes)
{
    qev::ifc::SchemaLoader loader;
    SchemaPset& schema = *loader.pSchemaFromName("IFC4X3_TC1");
    PsdResult result = readPsd(examples / "ifc4");
    schema.addDefinitions("Company", std::move(result.definitions));
    xml::SetDef const& wall = *schema.pXmlSetFromName("Pset_WallCommon");
    EXPECT_EQ(wall.description, "What walls have in common.");
    EXPECT_EQ(wall.findEntry("Status")->nameAliases.sValueFromLanguage(german), "Zustand");
    EXPECT_GT(wall.entries().size(), 5U);
    auto const isCompany = [](auto const& context) { return context.name == "Company"; };
    EXPECT_EQ(schema.pXmlSetFromName("Pset_WallCommon", isCompany), nullptr);
    EXPECT_NE(schema.pXmlSetFromName("Pset_ToyShelf", isCompany), nullptr);
}

} // namespace
