#include "Format/Ifc/Model/PropertySetMapping.h"

#include "Format/Ifc/Schema/Pset/PropertySetDef.h"
#include "Format/Ifc/Schema/Pset/TypeComplexProperty.h"
#include "Format/Ifc/Schema/Pset/TypePropertySingleValue.h"
#include "Format/Ifc/Schema/Qto/QuantitySetDef.h"
#include "Format/Ifc/Schema/SchemaLoader.h"
#include "FoundationClasses/Core/Kernel/FcTypeObject.h"
#include "FoundationClasses/Resource/Property/FcComplexProperty.h"
#include "FoundationClasses/Resource/Property/FcPropertyBoundedValue.h"
#include "FoundationClasses/Resource/Property/FcPropertySingleValue.h"
#include "FoundationClasses/Resource/Quantity/FcPhysicalSimpleQuantity.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWallType.h"
#include "kit/ModelBuilder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev;
using namespace qev::ifc;
using namespace qev::test;
using fc::core::kernel::FcPropertySet;
using fc::core::productextension::FcElementQuantity;
using fc::resource::property::FcComplexProperty;
using fc::resource::property::FcPropertySingleValue;
using fc::resource::quantity::FcPhysicalSimpleQuantity;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

def::xml::SetDef const& standardSet(char const* name)
{
    return *SchemaLoader::curr().pSchemaFromName("IFC4X3_TC1")->pXmlSetFromName(name);
}

/// A set of no kind that models have.
class OddSetDef : public def::xml::SetDef
{
public:
    OddSetDef()
        : SetDef("Odd")
    {
    }
    char const* sKind() const override { return "OddSetDef"; }
    std::vector<def::xml::Def const*> entries() const override { return {}; }
};

class PropertySetMapping : public testing::Test
{
protected:
    std::shared_ptr<fc::FcBase> add(fc::core::kernel::FcPropertySetDefinition& set, char const* entry)
    {
        return addSchemaDefToPropertySetDefinition(*standardSet(set.Name->value().c_str()).findEntry(entry),
                                                   set);
    }

    Model model;
    std::shared_ptr<fc::core::kernel::FcObjectDefinition> wall = model.wall("W1");
};

// --- Sets ---------------------------------------------------------------------------------------

TEST_F(PropertySetMapping, ANewSetHasNameAndGlobalIdAndIsInTheModel)
{
    auto const set = addXmlSetDefToFcObjectDefinition(standardSet("Pset_WallCommon"), *wall);

    ASSERT_TRUE(fc::entityCast<FcPropertySet>(set));
    EXPECT_EQ(set->Name.get(), "Pset_WallCommon");
    EXPECT_FALSE(set->GlobalId.get().empty());
    EXPECT_EQ(set->getData(), model.data().get());
    EXPECT_EQ(wall->getPropertySetDefinitionNonConst<FcPropertySet>("Pset_WallCommon"), set);
    EXPECT_THAT(fc::entityCast<FcPropertySet>(set)->HasProperties.getProperties(), IsEmpty());
}

TEST_F(PropertySetMapping, AQuantitySetBecomesAnElementQuantity)
{
    auto const set = addXmlSetDefToFcObjectDefinition(standardSet("Qto_WallBaseQuantities"), *wall);

    ASSERT_TRUE(fc::entityCast<FcElementQuantity>(set));
    EXPECT_FALSE(set->GlobalId.get().empty());
    EXPECT_EQ(wall->getPropertySetDefinitionNonConst<FcElementQuantity>("Qto_WallBaseQuantities"), set);
}

TEST_F(PropertySetMapping, ATypeGetsTheSetInItsList)
{
    auto const type = model.wallType("WT1");
    auto const set = addXmlSetDefToFcObjectDefinition(standardSet("Pset_WallCommon"), *type);

    EXPECT_THAT(type->HasPropertySets->value().get(), ElementsAre(set));
}

TEST_F(PropertySetMapping, ASetThatTheObjectHasIsUsedAgain)
{
    auto const own = model.addSet(wall, "Pset_WallCommon", {{"FireRating", label("F30")}});

    EXPECT_EQ(addXmlSetDefToFcObjectDefinition(standardSet("Pset_WallCommon"), *wall), own);
    EXPECT_THAT(own->HasProperties.getProperties(), SizeIs(1));
}

TEST_F(PropertySetMapping, AnObjectWithoutModelAndASetOfNoKindGiveNothing)
{
    fc::shared::sharedbldgelements::FcWall loose;
    EXPECT_EQ(addXmlSetDefToFcObjectDefinition(standardSet("Pset_WallCommon"), loose), nullptr);
    EXPECT_EQ(addXmlSetDefToFcObjectDefinition(OddSetDef(), *wall), nullptr);
    EXPECT_THAT(wall->attachedSets(), IsEmpty());
}

// --- Entries ------------------------------------------------------------------------------------

TEST_F(PropertySetMapping, ASingleValueBeginsWithTheDefaultOfItsType)
{
    auto const set = model.addSet(wall, "Pset_WallCommon");
    auto const property = fc::entityCast<FcPropertySingleValue>(add(*set, "ThermalTransmittance"));

    ASSERT_TRUE(property);
    EXPECT_EQ(property->Name.get(), "ThermalTransmittance");
    EXPECT_EQ(property->NominalValue.get(), number("ThermalTransmittanceMeasure", 0.0));
    EXPECT_EQ(property->getData(), model.data().get());
    EXPECT_THAT(set->HasProperties.getProperties(), ElementsAre(property));
}

struct AddedClass
{
    char const* set;
    char const* entry;
    char const* className;
};

class AddedClasses : public PropertySetMapping, public testing::WithParamInterface<AddedClass>
{
};

TEST_P(AddedClasses, FollowTheDefinition)
{
    auto const set = addXmlSetDefToFcObjectDefinition(standardSet(GetParam().set), *wall);
    auto const entry = add(*set, GetParam().entry);

    ASSERT_TRUE(entry);
    EXPECT_STREQ(entry->getEntityName(), GetParam().className);
    EXPECT_EQ(entry->getAttributeAsString("Name"), GetParam().entry);
    EXPECT_TRUE(set->hasProperty(GetParam().entry));
    EXPECT_EQ(entry->getData(), model.data().get());
}

INSTANTIATE_TEST_SUITE_P(
    , AddedClasses,
    testing::Values(AddedClass{"Pset_WallCommon", "FireRating", "IfcPropertySingleValue"},
                    AddedClass{"Pset_WallCommon", "Status", "IfcPropertyEnumeratedValue"},
                    AddedClass{"Pset_BuildingUse", "RentalRatesInCategoryNow", "IfcPropertyBoundedValue"},
                    AddedClass{"Pset_BuildingUse", "TenureModesAvailableNow", "IfcPropertyListValue"},
                    AddedClass{"Pset_ElementKinematics", "LinearPath", "IfcPropertyTableValue"},
                    AddedClass{"Pset_ProjectCommon", "ProjectInvestmentEstimate",
                               "IfcPropertyReferenceValue"},
                    AddedClass{"Qto_WallBaseQuantities", "Length", "IfcQuantityLength"},
                    AddedClass{"Qto_WallBaseQuantities", "NetSideArea", "IfcQuantityArea"},
                    AddedClass{"Qto_WallBaseQuantities", "NetVolume", "IfcQuantityVolume"},
                    AddedClass{"Qto_WallBaseQuantities", "NetWeight", "IfcQuantityWeight"}),
    [](auto const& parameters) { return std::string(parameters.param.className) + parameters.param.entry; });

TEST_F(PropertySetMapping, AQuantityBeginsWithZero)
{
    auto const set = model.addQuantities(wall, "Qto_WallBaseQuantities");
    auto const quantity = fc::entityCast<FcPhysicalSimpleQuantity>(add(*set, "Length"));

    ASSERT_TRUE(quantity);
    EXPECT_EQ(quantity->getValue(), 0.0);
}

TEST_F(PropertySetMapping, AnEntryThatTheSetHasStaysAsItIs)
{
    auto const set = model.addSet(wall, "Pset_WallCommon", {{"FireRating", label("F30")}});
    auto const quantities = model.addQuantities(wall, "Qto_WallBaseQuantities", {{"Length", 2.5}});

    EXPECT_EQ(add(*set, "FireRating"), set->HasProperties.getProperties().front());
    EXPECT_EQ(add(*quantities, "Length"), quantities->Quantities->get().front());
    EXPECT_THAT(set->HasProperties.getProperties(), SizeIs(1));
    EXPECT_THAT(quantities->Quantities->get(), SizeIs(1));
}

TEST_F(PropertySetMapping, AnEntryOfAnotherKindOrWithoutTypeIsNotAdded)
{
    auto const set = model.addSet(wall, "Pset_WallCommon");
    auto const quantities = model.addQuantities(wall, "Qto_WallBaseQuantities");
    auto const& property = *standardSet("Pset_WallCommon").findEntry("FireRating");
    auto const& quantity = *standardSet("Qto_WallBaseQuantities").findEntry("Length");
    def::pset::PropertySetDef const owner("Pset_Toy");
    def::qto::QuantitySetDef const quantityOwner("Qto_Toy");

    EXPECT_EQ(addSchemaDefToPropertySetDefinition(property, *quantities), nullptr);
    EXPECT_EQ(addSchemaDefToPropertySetDefinition(quantity, *set), nullptr);
    EXPECT_EQ(addSchemaDefToPropertySetDefinition(def::pset::PropertyDef(owner, "Odd", nullptr), *set),
              nullptr);
    EXPECT_EQ(addSchemaDefToPropertySetDefinition(def::qto::QuantityDef(quantityOwner, "Odd", nullptr),
                                                  *quantities),
              nullptr);
    EXPECT_THAT(set->HasProperties.getProperties(), IsEmpty());
    EXPECT_THAT(quantities->Quantities->get(), IsEmpty());
}

TEST_F(PropertySetMapping, AComplexPropertyComesWithItsMembers)
{
    def::pset::PropertySetDef const owner("Pset_Toy");
    auto type = std::make_unique<def::pset::TypeComplexProperty>("CP_Size");
    type->members.push_back(std::make_unique<def::pset::PropertyDef>(
        owner, "Width", std::make_unique<def::pset::TypePropertySingleValue>("IfcLengthMeasure")));
    type->members.push_back(std::make_unique<def::pset::PropertyDef>(owner, "Odd", nullptr));
    auto const set = model.addSet(wall, "Pset_Toy");

    auto const property = fc::entityCast<FcComplexProperty>(
        addSchemaDefToPropertySetDefinition(def::pset::PropertyDef(owner, "Size", std::move(type)), *set));

    ASSERT_TRUE(property);
    EXPECT_EQ(property->UsageName.get(), "CP_Size");
    ASSERT_THAT(property->HasProperties->get(), SizeIs(1));
    auto const member = fc::entityCast<FcPropertySingleValue>(property->HasProperties->get().front());
    ASSERT_TRUE(member);
    EXPECT_EQ(member->NominalValue.get(), length(0.0));
    EXPECT_EQ(member->getData(), model.data().get());
}

TEST_F(PropertySetMapping, AddingIsOneStepThatCanBeTakenBack)
{
    auto const set = model.addSet(wall, "Pset_WallCommon");
    add(*set, "FireRating");

    EXPECT_EQ(model.data()->changes().undoName(), "Add property");
    model.data()->changes().undo();
    EXPECT_THAT(set->HasProperties.getProperties(), IsEmpty());
    EXPECT_TRUE(wall->getPropertySetDefinitionNonConst<FcPropertySet>("Pset_WallCommon"));
}

TEST_F(PropertySetMapping, ASetInNoModelTakesEntriesToo)
{
    FcPropertySet set;
    set.Name = "Pset_WallCommon";

    EXPECT_TRUE(add(set, "FireRating"));
    EXPECT_THAT(set.HasProperties.getProperties(), SizeIs(1));
}

} // namespace
