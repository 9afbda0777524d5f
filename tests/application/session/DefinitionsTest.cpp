#include "Definitions.h"

#include "Core/Localization/LocalizationAdmin.h"
#include "TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace qev::test {
namespace {

using application::addDefinitions;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr std::string_view definition = R"(<?xml version="1.0" encoding="utf-8"?>
<PropertySetDef>
  <Name>Company_Delivery</Name>
  <Definition>What the supplier has promised.</Definition>
  <ApplicableClasses><ClassName>IfcWall</ClassName></ApplicableClasses>
  <PropertyDefs>
    <PropertyDef>
      <Name>Week</Name>
      <Definition>When it comes.</Definition>
      <PropertyType><TypePropertySingleValue><DataType type="IfcLabel"/></TypePropertySingleValue></PropertyType>
    </PropertyDef>
  </PropertyDefs>
</PropertySetDef>
)";

TEST(Definitions, OfAFolderBringTheirTexts)
{
    TemporaryFolder const folder;
    folder.write("Company_Delivery.xml", definition);
    auto const result = addDefinitions(folder.path());
    EXPECT_TRUE(result.isAnyFound);
    EXPECT_THAT(result.messages, IsEmpty());
    EXPECT_EQ(
        resource::localization::getAdminInstance().text("IfcProperties", "Company_Delivery_Description"),
        "What the supplier has promised.");
}

TEST(Definitions, AreMissedInAFolderWithoutAny)
{
    TemporaryFolder const folder;
    auto const result = addDefinitions(folder.path());
    EXPECT_FALSE(result.isAnyFound);
    EXPECT_THAT(result.messages, ElementsAre(HasSubstr("there are no property-set definitions in")));
}

TEST(Definitions, ThatCannotBeReadAreToldAndTheOthersTaken)
{
    TemporaryFolder const folder;
    folder.write("broken.xml", "<PropertySetDef><Name>");
    folder.write("good.xml", definition);
    auto const result = addDefinitions(folder.path());
    EXPECT_TRUE(result.isAnyFound);
    EXPECT_THAT(result.messages, ElementsAre(HasSubstr("broken.xml, line ")));
}

} // namespace
} // namespace qev::test
