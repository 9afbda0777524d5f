#include "Format/Ifc/Schema/DefinitionTexts.h"

#include "Core/Localization/LocalizationAdmin.h"
#include "Format/Ifc/Schema/PsdReader.h"

#include <gtest/gtest.h>

namespace {

using namespace qev;

TEST(DefinitionTexts, NamesAndDescriptionsAreFoundByTheKeysOfSetsAndProperties)
{
    ifc::def::PsdResult result;
    ifc::def::readPsdText(R"(<PropertySetDef templatetype="PSET_TYPEDRIVENOVERRIDE">
  <IfcVersion version="IFC4" /><Name>Pset_Toy</Name><Definition>About toys.</Definition>
  <ApplicableClasses><ClassName>IfcWall</ClassName></ApplicableClasses>
  <PropertyDefs><PropertyDef><Name>Colour</Name><Definition>How it looks.</Definition>
    <PropertyType><TypePropertySingleValue><DataType type="IfcLabel" /></TypePropertySingleValue></PropertyType>
    <NameAliases><NameAlias lang="de-DE">Farbe</NameAlias></NameAliases>
    <DefinitionAliases><DefinitionAlias lang="de-DE">Wie es aussieht.</DefinitionAlias></DefinitionAliases>
  </PropertyDef></PropertyDefs></PropertySetDef>)",
                          "toy.xml", result);
    ASSERT_TRUE(result.errors.empty());

    localization::LocalizationAdmin dictionaries{localization::Dictionaries()};
    ifc::def::addTexts(result.definitions, "IfcProperties", dictionaries);
    EXPECT_EQ(dictionaries.text("IfcProperties", "Pset_Toy_Description"), "About toys.");
    EXPECT_EQ(dictionaries.text("IfcProperties", "Pset_Toy.Colour_Description"), "How it looks.");
    dictionaries.setLanguage(*locale::Locale::fromCode("de-DE"));
    EXPECT_EQ(dictionaries.text("IfcProperties", "Pset_Toy.Colour"), "Farbe");
    EXPECT_EQ(dictionaries.text("IfcProperties", "Pset_Toy.Colour_Description"), "Wie es aussieht.");
    EXPECT_EQ(dictionaries.text("IfcProperties", "Pset_Toy_Description"), "About toys.");
}

} // namespace
