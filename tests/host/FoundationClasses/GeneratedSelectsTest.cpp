#include "Core/Exception.h"
#include "FoundationClasses/AllEntities.h"
#include "FoundationClasses/Resource/Measure/FcValue.h"
#include "FoundationClasses/Selects/FcActorSelect.h"
#include "FoundationClasses/Selects/FcClassificationReferenceSelect.h"
#include "FoundationClasses/Selects/FcDefinitionSelect.h"
#include "FoundationClasses/Selects/FcDocumentSelect.h"
#include "FoundationClasses/Selects/FcMaterialSelect.h"
#include "FoundationClasses/Selects/FcObjectReferenceSelect.h"
#include "FoundationClasses/Selects/FcSpatialReferenceSelect.h"
#include "FoundationClasses/Selects/FcUnit.h"
#include "FoundationClasses/Selects/SelectDescriptors.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace qev::fc {

namespace {

using namespace resource::externalreference;
using namespace resource::measure;
using resource::property::FcObjectReferenceSelect;

SelectDescriptor const& descriptorOf(std::string_view name)
{
    for (SelectDescriptor const* const descriptor : selectDescriptors()) {
        if (descriptor->name == name)
            return *descriptor;
    }
    throw std::runtime_error("no select " + std::string(name));
}

std::size_t memberCount(std::string_view name) { return descriptorOf(name).members.size(); }

} // namespace

TEST(GeneratedSelects, TagsAreAlphabeticalPositionsAndTheCountIsNone)
{
    EXPECT_EQ(FcObjectReferenceSelect::Address, 0u);
    EXPECT_EQ(FcObjectReferenceSelect::AppliedValue, 1u);
    EXPECT_EQ(FcObjectReferenceSelect::ExternalReference, 2u);
    EXPECT_EQ(FcObjectReferenceSelect::MaterialDefinition, 3u);
    EXPECT_EQ(FcObjectReferenceSelect::Organization, 4u);
    EXPECT_EQ(FcObjectReferenceSelect::Person, 5u);
    EXPECT_EQ(FcObjectReferenceSelect::PersonAndOrganization, 6u);
    EXPECT_EQ(FcObjectReferenceSelect::Table, 7u);
    EXPECT_EQ(FcObjectReferenceSelect::TimeSeries, 8u);
    EXPECT_EQ(FcObjectReferenceSelect::None, 9u);
}

TEST(GeneratedSelects, TagsOfTheRelationsToMaterialsDocumentsAndStructures)
{
    using resource::material::FcMaterialSelect;
    EXPECT_EQ(FcMaterialSelect::MaterialDefinition, 0u);
    EXPECT_EQ(FcMaterialSelect::MaterialList, 1u);
    EXPECT_EQ(FcMaterialSelect::MaterialUsageDefinition, 2u);
    EXPECT_EQ(FcDocumentSelect::DocumentInformation, 0u);
    EXPECT_EQ(FcDocumentSelect::DocumentReference, 1u);
    EXPECT_EQ(FcClassificationReferenceSelect::Classification, 0u);
    EXPECT_EQ(FcClassificationReferenceSelect::ClassificationReference, 1u);
    EXPECT_EQ(core::kernel::FcDefinitionSelect::ObjectDefinition, 0u);
    EXPECT_EQ(core::kernel::FcDefinitionSelect::PropertyDefinition, 1u);
    EXPECT_EQ(core::productextension::FcSpatialReferenceSelect::Group, 0u);
    EXPECT_EQ(core::productextension::FcSpatialReferenceSelect::Product, 1u);
    EXPECT_EQ(FcUnit::DerivedUnit, 0u);
    EXPECT_EQ(FcUnit::MonetaryUnit, 1u);
    EXPECT_EQ(FcUnit::NamedUnit, 2u);
}

TEST(GeneratedSelects, EverySelectOfTheSchemaIsDescribedWithSortedMembers)
{
    EXPECT_EQ(selectDescriptors().size(), 61u);
    for (SelectDescriptor const* const descriptor : selectDescriptors()) {
        EXPECT_TRUE(std::is_sorted(descriptor->members.begin(), descriptor->members.end(),
                                   [](auto const& a, auto const& b) { return a.name < b.name; }))
            << descriptor->name;
        EXPECT_FALSE(descriptor->members.empty()) << descriptor->name;
    }
}

TEST(GeneratedSelects, ANewSelectHasTheTagOfNoMember)
{
    FcUnit const unit;
    EXPECT_FALSE(unit.isSet());
    EXPECT_EQ(unit.tag(), FcUnit::None);
    EXPECT_EQ(unit.entity(), nullptr);
}

TEST(GeneratedSelects, TheTypedAccessorOfAnotherMemberRaises)
{
    auto const unit = std::make_shared<FcDerivedUnit>();
    FcUnit const select(unit);
    EXPECT_EQ(select.tag(), FcUnit::DerivedUnit);
    EXPECT_EQ(select.getDerivedUnit(), unit);
    try {
        static_cast<void>(select.getNamedUnit());
        FAIL() << "expected an exception";
    } catch (qev::exception const& error) {
        EXPECT_STREQ(error.what(), "Not of correct type");
    }
}

TEST(GeneratedSelects, ASubclassIsHeldAsTheMemberItDerivesFrom)
{
    FcUnit const select(std::make_shared<FcSIUnit>());
    EXPECT_EQ(select.tag(), FcUnit::NamedUnit);
    EXPECT_NE(select.getNamedUnit(), nullptr);
}

TEST(GeneratedValueTypes, TheNumberOfTypesStandsForNoType)
{
    EXPECT_EQ(static_cast<unsigned int>(FcSimpleValueTypes::None), 14u);
    EXPECT_EQ(static_cast<unsigned int>(FcMeasureValueTypes::None), 23u);
    EXPECT_EQ(static_cast<unsigned int>(FcDerivedMeasureValueTypes::None), 71u);
    EXPECT_EQ(simpleValueTypes().size(), 14u);
    EXPECT_EQ(measureValueTypes().size(), 23u);
    EXPECT_EQ(derivedMeasureValueTypes().size(), 71u);
}

TEST(GeneratedValueTypes, SimpleTypesThatAreAskedForByNumber)
{
    EXPECT_EQ(static_cast<unsigned int>(FcSimpleValueTypes::Boolean), 1u);
    EXPECT_EQ(static_cast<unsigned int>(FcSimpleValueTypes::Label), 7u);
    EXPECT_EQ(static_cast<unsigned int>(FcSimpleValueTypes::Real), 10u);
    EXPECT_EQ(FcSimpleValue::nameFromEnum(FcSimpleValueTypes::Label), "Label");
    EXPECT_EQ(FcMeasureValue::nameFromEnum(FcMeasureValueTypes::LengthMeasure), "LengthMeasure");
    EXPECT_EQ(FcDerivedMeasureValue::nameFromEnum(FcDerivedMeasureValueTypes::PowerMeasure), "PowerMeasure");
}

TEST(GeneratedValueTypes, TablesAgreeWithTheSelectsOfTheSchema)
{
    auto const expectAgreement = [](std::span<ValueTypeInfo const> types, std::string_view select) {
        auto const members = descriptorOf(select).members;
        ASSERT_EQ(types.size(), members.size());
        for (std::size_t i = 0; i < types.size(); ++i) {
            EXPECT_EQ(types[i].schemaName, members[i].name);
            EXPECT_EQ("Ifc" + std::string(types[i].name), types[i].schemaName);
            EXPECT_EQ(types[i].kind, members[i].kind) << members[i].name;
            EXPECT_EQ(types[i].isAggregate, members[i].isAggregate) << members[i].name;
        }
    };
    expectAgreement(simpleValueTypes(), "IfcSimpleValue");
    expectAgreement(measureValueTypes(), "IfcMeasureValue");
    expectAgreement(derivedMeasureValueTypes(), "IfcDerivedMeasureValue");
}

TEST(GeneratedValueTypes, TheDiscriminatorOfAValueIsThePositionOfItsFamily)
{
    auto const members = descriptorOf("IfcValue").members;
    ASSERT_EQ(memberCount("IfcValue"), 3u);
    EXPECT_EQ(members[FcValue::DerivedMeasure].name, "IfcDerivedMeasureValue");
    EXPECT_EQ(members[FcValue::Measure].name, "IfcMeasureValue");
    EXPECT_EQ(members[FcValue::Simple].name, "IfcSimpleValue");
    EXPECT_EQ(FcValue::Empty, 3u);
    EXPECT_EQ(FcValue().discriminator(), 3u);
    EXPECT_EQ(FcValue(FcSimpleValue(FcSimpleValueTypes::Boolean)).discriminator(), 2u);
}

} // namespace qev::fc
