#include "Format/Ifc/Model/PropertyDefinitions.h"

#include "Format/Ifc/Schema/Pset/PropertySetDef.h"
#include "Format/Ifc/Schema/SchemaLoader.h"
#include "FoundationClasses/Resource/Material/FcMaterialProperties.h"
#include "FoundationClasses/Resource/Property/FcComplexProperty.h"
#include "FoundationClasses/Resource/Property/FcPropertySingleValue.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "kit/ModelBuilder.h"

#include <gtest/gtest.h>

namespace {

using namespace qev;
using namespace qev::ifc;
using namespace qev::test;
using fc::resource::property::FcComplexProperty;
using fc::resource::property::FcProperty;

using Names = std::optional<std::pair<std::string, std::string>>;

class PropertyDefinitions : public testing::Test
{
protected:
    std::shared_ptr<FcProperty> add(std::string const& set, std::string const& property)
    {
        return model.addSet(wall, set, {{property, label("A")}})->HasProperties.getProperties().back();
    }

    Model model;
    std::shared_ptr<fc::core::kernel::FcObjectDefinition> wall = model.wall("W1");
};

TEST_F(PropertyDefinitions, APropertyGoesByTheNamesOfItsSetAndItself)
{
    EXPECT_EQ(getPsetAndPropertyName(*add("Company", "Code")), Names({"Company", "Code"}));
}

TEST_F(PropertyDefinitions, TheFirstNamedSetOfASharedPropertyCounts)
{
    auto const property = add("First", "Code");
    model.addSet(wall, "Second")->HasProperties.addProperty(property);
    EXPECT_EQ(getPsetAndPropertyName(*property), Names({"First", "Code"}));

    model.addSet(wall, "First")->Name = std::nullopt;
    EXPECT_EQ(getPsetAndPropertyName(*property), Names({"Second", "Code"}));
}

TEST_F(PropertyDefinitions, APropertyOutsideOfNamedSetsHasNoNames)
{
    EXPECT_EQ(getPsetAndPropertyName(*singleValue("Code", label("A"))), std::nullopt);
    auto const property = add("Company", "Code");
    model.addSet(wall, "Company")->Name = std::nullopt;
    EXPECT_EQ(getPsetAndPropertyName(*property), std::nullopt);
}

TEST_F(PropertyDefinitions, AMemberOfAComplexPropertyHasNoNamesAndNoDefinition)
{
    auto const complex = std::make_shared<FcComplexProperty>();
    complex->Name = "Layers";
    auto const member = singleValue("FireRating", label("F30"));
    complex->HasProperties.edit([&member](auto& list) { list.push_back(member); });
    model.addSet(wall, "Pset_WallCommon")->HasProperties.addProperty(complex);

    EXPECT_EQ(getPsetAndPropertyName(*member), std::nullopt);
    EXPECT_EQ(findSchemaDefForProperty(*member), nullptr);
}

TEST_F(PropertyDefinitions, PropertiesOfAMaterialCountAsASet)
{
    auto const properties = std::make_shared<fc::resource::material::FcMaterialProperties>();
    properties->Name = "Pset_MaterialCommon";
    auto const density = singleValue("MassDensity", number("MassDensityMeasure", 2400.0));
    properties->Properties.edit([&density](auto& list) { list.push_back(density); });
    model.data()->entityAdd(properties, false);

    EXPECT_EQ(getPsetAndPropertyName(*density), Names({"Pset_MaterialCommon", "MassDensity"}));
    auto const* const definition = findSchemaDefForProperty(*density);
    ASSERT_NE(definition, nullptr);
    EXPECT_EQ(definition->name, "MassDensity");
}

TEST_F(PropertyDefinitions, ADefinitionIsFoundBySetAndName)
{
    auto const* const set =
        SchemaLoader::curr().pSchemaFromName("IFC4X3_TC1")->pXmlSetFromName("Pset_WallCommon");

    EXPECT_EQ(findSchemaDefForProperty(*add("Pset_WallCommon", "FireRating")), set->findEntry("FireRating"));
    EXPECT_EQ(findSchemaDefForProperty(*add("Pset_WallCommon", "Firerating")), nullptr);
    EXPECT_EQ(findSchemaDefForProperty(*add("Company", "FireRating")), nullptr);
    EXPECT_EQ(findSchemaDefForProperty(*singleValue("FireRating", label("F30"))), nullptr);
}

TEST_F(PropertyDefinitions, AnySetOfASharedPropertyMayDefineIt)
{
    auto const property = add("Company", "FireRating");
    model.addSet(wall, "Pset_WallCommon")->HasProperties.addProperty(property);

    EXPECT_NE(findSchemaDefForProperty(*property), nullptr);
}

TEST_F(PropertyDefinitions, ASetLacksPropertiesUntilItHasEveryEntry)
{
    auto const set = model.addSet(wall, "Pset_WallCommon");
    for (char const* const name :
         {"Reference", "Status", "AcousticRating", "FireRating", "Combustible", "SurfaceSpreadOfFlame",
          "ThermalTransmittance", "IsExternal", "LoadBearing", "ExtendToStructure"})
        model.addSet(wall, "Pset_WallCommon", {{name, label("A")}});
    EXPECT_FALSE(hasAllProperties(*set));

    model.addSet(wall, "Pset_WallCommon", {{"Compartmentation", boolean(true)}});
    EXPECT_TRUE(hasAllProperties(*set));
}

TEST_F(PropertyDefinitions, AQuantitySetLacksQuantitiesUntilItHasEveryEntry)
{
    auto const set = model.addQuantities(wall, "Qto_SpaceBaseQuantities", {{"Height", 2.5}});
    EXPECT_FALSE(hasAllProperties(*set));
    auto const* const definition =
        SchemaLoader::curr().pSchemaFromName("IFC4X3_TC1")->pXmlSetFromName("Qto_SpaceBaseQuantities");
    for (auto const* const entry : definition->entries())
        model.addQuantities(wall, "Qto_SpaceBaseQuantities", {{entry->name, 1.0}});
    EXPECT_TRUE(hasAllProperties(*set));
}

TEST_F(PropertyDefinitions, ASetThatNothingCanBeAddedToLacksNothing)
{
    EXPECT_TRUE(hasAllProperties(*model.addSet(wall, "Company")));
    EXPECT_TRUE(hasAllProperties(*model.addSet(wall, "Qto_WallBaseQuantities")));
    auto const nameless = model.addSet(wall, "Pset_WallCommon");
    nameless->Name = std::nullopt;
    EXPECT_TRUE(hasAllProperties(*nameless));
}

} // namespace
