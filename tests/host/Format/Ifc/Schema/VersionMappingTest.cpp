#include "Format/Ifc/Schema/VersionMapping.h"

#include "Format/Ifc/Schema/SchemaLoader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <thread>

namespace {

using namespace qev::ifc;
using Certainty = VersionMapping::Certainty;

VersionMapping::Version version(std::string_view name) { return VersionMapping::curr().fromFileSchema(name); }

std::string slotsOf(ClassMapping const& mapping)
{
    std::string text;
    for (std::size_t slot = 0; slot < mapping.modelSlotCount(); ++slot) {
        int const fileSlot = mapping.fileSlot(slot);
        text += text.empty() ? "" : " ";
        text += fileSlot < 0 ? "-" : std::to_string(fileSlot);
    }
    return text;
}

struct NamedVersion
{
    std::string name;
    std::string schema;
    Certainty certainty;
};

class FileSchemaNames : public testing::TestWithParam<NamedVersion>
{
};

TEST_P(FileSchemaNames, GiveTheVersionToReadWith)
{
    auto const found = version(GetParam().name);
    EXPECT_EQ(found.schema->fileSchema().name(), GetParam().schema);
    EXPECT_EQ(found.certainty, GetParam().certainty);
    EXPECT_EQ(found.schema->find("IFCWALL")->classNumber(), 426);
}

INSTANTIATE_TEST_SUITE_P(, FileSchemaNames,
                         testing::Values(NamedVersion{"IFC2X3", "IFC2X3", Certainty::Exact},
                                         NamedVersion{"ifc2x3", "IFC2X3", Certainty::Exact},
                                         NamedVersion{" IFC4 ", "IFC4", Certainty::Exact},
                                         NamedVersion{"IFC4 {1 0 10303 0}", "IFC4", Certainty::Exact},
                                         NamedVersion{"IFC4X1", "IFC4X1", Certainty::Exact},
                                         NamedVersion{"IFC4X2", "IFC4X2", Certainty::Exact},
                                         NamedVersion{"IFC4X3", "IFC4X3_TC1", Certainty::Exact},
                                         NamedVersion{"IFC4X3_TC1", "IFC4X3_TC1", Certainty::Exact},
                                         NamedVersion{"IFC4X3_ADD1", "IFC4X3_ADD2", Certainty::Exact},
                                         NamedVersion{"IFC4X3_ADD2", "IFC4X3_ADD2", Certainty::Exact},
                                         NamedVersion{"IFC4X3_RC1", "IFC4X3_TC1", Certainty::Close},
                                         NamedVersion{"IFC4X3_RC4", "IFC4X3_TC1", Certainty::Close},
                                         NamedVersion{"IFC4X3_DEV_1234abcd", "IFC4X3_TC1", Certainty::Close},
                                         NamedVersion{"IFC4_ADD1", "IFC4", Certainty::Close},
                                         NamedVersion{"IFC2X2_FINAL", "IFC2X3", Certainty::Close},
                                         NamedVersion{"IFC2X_FINAL", "IFC2X3", Certainty::Close},
                                         NamedVersion{"IFC2X3_FINAL", "IFC2X3", Certainty::Close},
                                         NamedVersion{"IFC5", "IFC4X3_TC1", Certainty::Unknown},
                                         NamedVersion{"IFC4X9", "IFC4X3_TC1", Certainty::Unknown},
                                         NamedVersion{"AP214", "IFC4X3_TC1", Certainty::Unknown},
                                         NamedVersion{"", "IFC4X3_TC1", Certainty::Unknown}));

TEST(VersionMapping, AVersionIsMadeOnceWhateverThreadsAsk)
{
    SchemaLoader loader;
    VersionMapping mapping(loader);
    std::vector<VersionSchema const*> seen(4);
    std::vector<std::thread> threads;
    for (auto& schema : seen)
        threads.emplace_back([&mapping, &schema] { schema = mapping.fromFileSchema("IFC4").schema; });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_THAT(seen, testing::Each(seen[0]));
}

struct MappingCounts
{
    std::string name;
    std::size_t vanished;        // classes that the model does not have
    std::size_t withCounterpart; // of these, classes with a nearest class
    std::size_t changed;         // classes that stay themselves, with other slots
    std::size_t onlyLonger;      // of these, classes that only gain slots at the end
    std::size_t changedForms;    // attributes, at the class that declares them, written in another form
};

class VersionMappingCounts : public testing::TestWithParam<MappingCounts>
{
};

bool isOnlyLonger(ClassMapping const& mapping)
{
    for (std::size_t slot = 0; slot < mapping.fileSlotCount(); ++slot) {
        if (mapping.modelSlot(slot) != static_cast<int>(slot))
            return false;
    }
    return true;
}

TEST_P(VersionMappingCounts, AreThoseOfTheDifferencesBetweenTheVersions)
{
    VersionSchema const& schema = *version(GetParam().name).schema;
    MappingCounts found{GetParam().name, 0, 0, 0, 0, 0};
    std::set<std::pair<std::string, std::string>> changedForms;
    for (ClassMapping const& mapping : schema.mappings()) {
        if (!schema.modelSchema().findEntity(mapping.fileEntity().nameUpper())) {
            ++found.vanished;
            found.withCounterpart += mapping.modelEntity() ? 1U : 0U;
            continue;
        }
        if (mapping.modelEntity()->name() != mapping.fileEntity().name())
            continue;
        found.changed += mapping.isIdentity() ? 0U : 1U;
        found.onlyLonger += !mapping.isIdentity() && isOnlyLonger(mapping) ? 1U : 0U;
        for (std::size_t slot = 0; slot < mapping.modelSlotCount(); ++slot) {
            auto const* const attribute = mapping.modelAttribute(slot);
            if (mapping.changesValueForm(slot))
                changedForms.emplace(attribute->owner().name(), attribute->name());
        }
    }
    EXPECT_EQ(found.vanished, GetParam().vanished);
    EXPECT_EQ(found.withCounterpart, GetParam().withCounterpart);
    EXPECT_EQ(found.changed, GetParam().changed);
    EXPECT_EQ(found.onlyLonger, GetParam().onlyLonger);
    EXPECT_EQ(changedForms.size(), GetParam().changedForms);
}

INSTANTIATE_TEST_SUITE_P(, VersionMappingCounts,
                         testing::Values(MappingCounts{"IFC2X3", 120, 90, 120, 76, 68},
                                         MappingCounts{"IFC4", 16, 15, 9, 8, 9},
                                         MappingCounts{"IFC4X1", 31, 30, 12, 6, 9},
                                         MappingCounts{"IFC4X2", 31, 30, 11, 5, 9},
                                         MappingCounts{"IFC4X3_ADD2", 4, 3, 2, 2, 0}),
                         [](auto const& parameters) { return parameters.param.name; });

class AllVersions : public testing::TestWithParam<std::string>
{
protected:
    VersionSchema const& schema = *version(GetParam()).schema;
};

TEST_P(AllVersions, EveryClassThatCanBeInstantiatedHasAClassThatCan)
{
    for (ClassMapping const& mapping : schema.mappings()) {
        if (mapping.fileEntity().isAbstract() || !mapping.modelEntity())
            continue;
        EXPECT_NE(mapping.classNumber(), 0) << mapping.fileEntity().name();
    }
}

TEST_P(AllVersions, EveryKeywordIsFoundWithItsNumber)
{
    for (ClassMapping const& mapping : schema.mappings()) {
        EXPECT_EQ(schema.find(mapping.fileEntity().nameUpper()), &mapping);
        auto const* const model = mapping.modelEntity();
        EXPECT_EQ(mapping.classNumber(), model && !model->isAbstract() ? model->firstNumber() : 0U);
    }
}

TEST_P(AllVersions, SlotsAreAPartialPairing)
{
    for (ClassMapping const& mapping : schema.mappings()) {
        for (std::size_t slot = 0; slot < mapping.modelSlotCount(); ++slot) {
            int const fileSlot = mapping.fileSlot(slot);
            if (fileSlot != ClassMapping::noSlot) {
                EXPECT_EQ(mapping.modelSlot(static_cast<std::size_t>(fileSlot)), static_cast<int>(slot));
            }
        }
        for (std::size_t slot = 0; slot < mapping.fileSlotCount(); ++slot) {
            int const modelSlot = mapping.modelSlot(slot);
            if (modelSlot != ClassMapping::noSlot) {
                EXPECT_EQ(mapping.fileSlot(static_cast<std::size_t>(modelSlot)), static_cast<int>(slot));
            }
        }
    }
}

TEST_P(AllVersions, WhatAnEditOfPropertiesCreatesCanBeWritten)
{
    for (char const* const name : {"IfcPropertySet",
                                   "IfcPropertySingleValue",
                                   "IfcPropertyEnumeratedValue",
                                   "IfcPropertyBoundedValue",
                                   "IfcPropertyListValue",
                                   "IfcPropertyTableValue",
                                   "IfcPropertyReferenceValue",
                                   "IfcComplexProperty",
                                   "IfcElementQuantity",
                                   "IfcQuantityArea",
                                   "IfcQuantityCount",
                                   "IfcQuantityLength",
                                   "IfcQuantityTime",
                                   "IfcQuantityVolume",
                                   "IfcQuantityWeight",
                                   "IfcRelDefinesByProperties",
                                   "IfcRelAssociatesClassification",
                                   "IfcClassification",
                                   "IfcClassificationReference",
                                   "IfcRelAssociatesDocument",
                                   "IfcDocumentReference",
                                   "IfcOwnerHistory",
                                   "IfcPropertyEnumeration"}) {
        auto const* const entity = schema.modelSchema().findEntityByName(name);
        ASSERT_TRUE(entity) << name;
        ClassMapping const* const mapping = schema.forNewObject(entity->firstNumber());
        ASSERT_TRUE(mapping) << name;
        EXPECT_EQ(mapping->fileEntity().name(), name);
    }
}

INSTANTIATE_TEST_SUITE_P(, AllVersions,
                         testing::Values("IFC2X3", "IFC4", "IFC4X1", "IFC4X2", "IFC4X3_TC1", "IFC4X3_ADD2",
                                         "IFC4X3_RC2"),
                         [](auto const& parameters) { return parameters.param; });

TEST(VersionMapping, AClassThatCannotBeInstantiatedHasNoNumber)
{
    VersionSchema const& schema = *version("IFC4").schema;
    EXPECT_EQ(schema.find("IFCROOT")->classNumber(), 0);
    EXPECT_EQ(schema.find("IFCROOT")->modelEntity()->name(), "IfcRoot");
}

// The class became abstract on the way from the drafts to the published version.
TEST(VersionMapping, ADraftUsesTheClassOfTheVersionThatCanInstantiateIt)
{
    ClassMapping const& part = *version("IFC4X3_RC2").schema->find("IFCFACILITYPART");
    EXPECT_FALSE(part.fileEntity().isAbstract());
    EXPECT_EQ(part.modelEntity()->name(), "IfcFacilityPartCommon");
    EXPECT_NE(part.classNumber(), 0);
}

TEST(VersionMapping, TheModelsOwnVersionChangesNothing)
{
    VersionSchema const& own = *version("IFC4X3_TC1").schema;
    for (auto const* const entity : own.modelSchema().entities()) {
        ClassMapping const* const mapping = own.find(entity->nameUpper());
        ASSERT_TRUE(mapping) << entity->name();
        EXPECT_EQ(mapping->modelEntity(), entity);
        EXPECT_TRUE(mapping->isIdentity()) << entity->name();
    }
}

struct SlotRow
{
    std::string version;
    std::string keyword;
    std::string model;
    std::string slots;
};

class SlotMaps : public testing::TestWithParam<SlotRow>
{
};

TEST_P(SlotMaps, FollowTheNamesOfAttributes)
{
    ClassMapping const* const mapping = version(GetParam().version).schema->find(GetParam().keyword);
    ASSERT_TRUE(mapping);
    EXPECT_EQ(mapping->modelEntity()->name(), GetParam().model);
    EXPECT_EQ(slotsOf(*mapping), GetParam().slots);
}

INSTANTIATE_TEST_SUITE_P(
    , SlotMaps,
    testing::Values(
        SlotRow{"IFC2X3", "IFCWALLSTANDARDCASE", "IfcWallStandardCase", "0 1 2 3 4 5 6 7 -"},
        SlotRow{"IFC2X3", "IFCAPPROVAL", "IfcApproval", "6 5 0 1 2 3 4 - -"},
        SlotRow{"IFC2X3", "IFCBLOBTEXTURE", "IfcBlobTexture", "0 1 2 3 - 4 5"},
        SlotRow{"IFC2X3", "IFCTASK", "IfcTask", "0 1 2 3 4 5 - 6 7 8 9 - -"},
        SlotRow{"IFC2X3", "IFCPROFILEPROPERTIES", "IfcProfileProperties", "0 - - 1"},
        SlotRow{"IFC2X3", "IFCOBJECTPLACEMENT", "IfcObjectPlacement", "-"},
        SlotRow{"IFC2X3", "IFCRELDEFINESBYPROPERTIES", "IfcRelDefinesByProperties", "0 1 2 3 4 5"},
        SlotRow{"IFC2X3", "IFCDOORSTYLE", "IfcDoorType", "0 1 2 3 4 5 6 7 - - 8 10 -"},
        SlotRow{"IFC2X3", "IFCELECTRICDISTRIBUTIONPOINT", "IfcElectricDistributionBoard",
                "0 1 2 3 4 5 6 7 8"},
        SlotRow{"IFC2X3", "IFCREPRESENTATION", "IfcShapeRepresentation", "0 1 2 3"},
        SlotRow{"IFC4", "IFCWINDOWSTYLE", "IfcWindowType", "0 1 2 3 4 5 6 7 - - 9 10 -"},
        SlotRow{"IFC4", "IFCWALLELEMENTEDCASE", "IfcWall", "0 1 2 3 4 5 6 7 8"},
        SlotRow{"IFC4", "IFCGRIDPLACEMENT", "IfcGridPlacement", "- 0 1"},
        SlotRow{"IFC4X1", "IFCLINEARPLACEMENT", "IfcLinearPlacement", "0 - 3"},
        SlotRow{"IFC4X2", "IFCBRIDGEPART", "IfcBridgePart", "0 1 2 3 4 5 6 7 8 - 9"},
        SlotRow{"IFC4X2", "IFCFACILITYPART", "IfcFacilityPartCommon", "0 1 2 3 4 5 6 7 8 - -"},
        SlotRow{"IFC4X3_ADD2", "IFCRIGIDOPERATION", "IfcMapConversion", "0 1 2 3 4 - - - - -"},
        SlotRow{"IFC4X3_RC2", "IFCALIGNMENT2DHORIZONTAL", "IfcAlignmentHorizontal", "- - - - - - -"}),
    [](auto const& parameters) { return parameters.param.version + "_" + parameters.param.keyword; });

struct FormRow
{
    std::string keyword;
    std::string attribute;
    ValueForm inFile;
    ValueForm inModel;
};

class ValueForms : public testing::TestWithParam<FormRow>
{
};

TEST_P(ValueForms, ThatChangeAreTold)
{
    ClassMapping const& mapping = *version("IFC2X3").schema->find(GetParam().keyword);
    std::size_t slot = 0;
    while (mapping.modelAttribute(slot) && mapping.modelAttribute(slot)->name() != GetParam().attribute)
        ++slot;
    ASSERT_LT(slot, mapping.modelSlotCount());
    EXPECT_TRUE(mapping.changesValueForm(slot));
    EXPECT_EQ(valueFormOf(*mapping.fileAttribute(slot)), GetParam().inFile);
    EXPECT_EQ(valueFormOf(*mapping.modelAttribute(slot)), GetParam().inModel);
}

using Kind = ValueForm::Kind;

INSTANTIATE_TEST_SUITE_P(
    , ValueForms,
    testing::Values(
        FormRow{"IFCAPPROVAL", "TimeOfApproval", {Kind::Select, false}, {Kind::String, false}},
        FormRow{"IFCOBJECTIVE", "BenchmarkValues", {Kind::Entity, false}, {Kind::Entity, true}},
        FormRow{"IFCCLASSIFICATION", "EditionDate", {Kind::Entity, false}, {Kind::String, false}},
        FormRow{"IFCBLOBTEXTURE", "RasterCode", {Kind::Boolean, false}, {Kind::Binary, false}},
        FormRow{"IFCBOUNDARYNODECONDITION",
                "TranslationalStiffnessX",
                {Kind::Real, false},
                {Kind::Select, false}},
        FormRow{"IFCRELDEFINESBYPROPERTIES",
                "RelatingPropertyDefinition",
                {Kind::Entity, false},
                {Kind::Select, false}},
        FormRow{"IFCPRESENTATIONLAYERWITHSTYLE", "LayerStyles", {Kind::Select, true}, {Kind::Entity, true}},
        FormRow{"IFCMONETARYUNIT", "Currency", {Kind::Enumeration, false}, {Kind::String, false}},
        FormRow{
            "IFCRELASSIGNSTOGROUP", "RelatedObjectsType", {Kind::Enumeration, false}, {Kind::Boolean, false}},
        FormRow{"IFCRELASSOCIATESMATERIAL", "RelatedObjects", {Kind::Entity, true}, {Kind::Select, true}},
        FormRow{"IFCQUANTITYCOUNT", "CountValue", {Kind::Number, false}, {Kind::Integer, false}},
        FormRow{"IFCRELSEQUENCE", "TimeLag", {Kind::Real, false}, {Kind::Entity, false}},
        FormRow{"IFCTEXTSTYLE", "TextStyle", {Kind::Select, false}, {Kind::Entity, false}},
        FormRow{"IFCTEXTURECOORDINATEGENERATOR", "Parameter", {Kind::Select, true}, {Kind::Real, true}},
        FormRow{"IFCWORKPLAN", "Duration", {Kind::Real, false}, {Kind::String, false}}),
    [](auto const& parameters) { return parameters.param.keyword; });

TEST(VersionMapping, AnOldFileKnowsWhichValuesCarryTheirType)
{
    ClassMapping const& value = *version("IFC2X3").schema->find("IFCPROPERTYSINGLEVALUE");
    EXPECT_EQ(valueFormOf(*value.fileAttribute(0)).kind, Kind::String);
    EXPECT_EQ(valueFormOf(*value.fileAttribute(2)).kind, Kind::Select);
    EXPECT_EQ(value.fileAttribute(1)->name(), "Description");
    EXPECT_EQ(value.modelAttribute(1)->name(), "Specification");
}

} // namespace
