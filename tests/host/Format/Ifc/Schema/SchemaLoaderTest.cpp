#include "Format/Ifc/Schema/SchemaLoader.h"

#include "Format/Ifc/Schema/DataTypeEnum.h"
#include "Format/Ifc/Schema/Select.h"
#include "Format/Ifc/Schema/Type.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <thread>

namespace {

using namespace qev::ifc;
using namespace qev::ifc::def::schema;

struct Counts
{
    std::string version;
    std::size_t types, enumerations, items, selects, members, entities, abstractEntities, attributes,
        optionalAttributes, derived, inverse;
};

class SchemaLoaderCounts : public testing::TestWithParam<Counts>
{
};

TEST_P(SchemaLoaderCounts, AreThoseOfTheStandard)
{
    Counts const& expected = GetParam();
    Schema const* const schema = SchemaLoader::curr().classesFromName(expected.version);
    ASSERT_TRUE(schema);
    EXPECT_EQ(schema->name(), expected.version);
    EXPECT_EQ(schema->types().size(), expected.types);
    EXPECT_EQ(schema->enumerations().size(), expected.enumerations);
    EXPECT_EQ(schema->selects().size(), expected.selects);
    EXPECT_EQ(schema->entities().size(), expected.entities);

    Counts found{};
    for (DataTypeEnum const* const enumeration : schema->enumerations())
        found.items += enumeration->values().size();
    for (Select const* const select : schema->selects())
        found.members += select->members().size();
    for (Entity const* const entity : schema->entities()) {
        found.abstractEntities += entity->isAbstract() ? 1U : 0U;
        found.attributes += entity->ownAttributes().size();
        for (Attribute const& attribute : entity->ownAttributes())
            found.optionalAttributes += attribute.isOptional() ? 1U : 0U;
        found.derived += entity->derivedAttributes().size();
        found.inverse += entity->inverseAttributes().size();
    }
    EXPECT_EQ(found.items, expected.items);
    EXPECT_EQ(found.members, expected.members);
    EXPECT_EQ(found.abstractEntities, expected.abstractEntities);
    EXPECT_EQ(found.attributes, expected.attributes);
    EXPECT_EQ(found.optionalAttributes, expected.optionalAttributes);
    EXPECT_EQ(found.derived, expected.derived);
    EXPECT_EQ(found.inverse, expected.inverse);
}

INSTANTIATE_TEST_SUITE_P(
    , SchemaLoaderCounts,
    testing::Values(Counts{"IFC2X3", 117, 164, 1310, 46, 221, 653, 97, 1320, 599, 7, 115},
                    Counts{"IFC4", 130, 207, 1632, 60, 270, 776, 123, 1491, 818, 8, 153},
                    Counts{"IFC4X1", 130, 210, 1645, 60, 271, 801, 130, 1542, 838, 8, 158},
                    Counts{"IFC4X2", 130, 217, 1744, 60, 271, 816, 129, 1554, 844, 8, 160},
                    Counts{"IFC4X3_TC1", 131, 243, 2113, 61, 270, 872, 133, 1635, 896, 8, 164},
                    Counts{"IFC4X3_ADD2", 132, 243, 2117, 61, 271, 876, 133, 1644, 899, 8, 165}),
    [](auto const& parameters) { return parameters.param.version; });

TEST(SchemaLoader, AnUnknownNameGivesNothing)
{
    EXPECT_EQ(SchemaLoader::curr().pSchemaFromName("IFC5"), nullptr);
    EXPECT_EQ(SchemaLoader::curr().pSchemaFromName(""), nullptr);
    EXPECT_EQ(SchemaLoader::curr().pSchemaFromName("ifc4x3_tc1"), nullptr);
    EXPECT_EQ(SchemaLoader::curr().classesFromName("IFC5"), nullptr);
}

TEST(SchemaLoader, ASchemaIsReadOnceWhateverThreadsAsk)
{
    SchemaLoader loader;
    std::vector<qev::ifc::def::SchemaPset*> seen(4);
    std::vector<std::thread> threads;
    for (auto& schema : seen)
        threads.emplace_back([&loader, &schema] { schema = loader.pSchemaFromName("IFC4X1"); });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_NE(seen[0], nullptr);
    EXPECT_THAT(seen, testing::Each(seen[0]));
}

TEST(SchemaLoader, OnlyTheModelsVersionHasSets)
{
    auto const countOfContexts = [](def::SchemaPset const& schema) {
        int contexts = 0;
        schema.forEachDefinition([&contexts](auto const&, auto const&) { ++contexts; });
        return contexts;
    };
    EXPECT_EQ(countOfContexts(*SchemaLoader::curr().pSchemaFromName("IFC4X3_TC1")), 1);
    EXPECT_EQ(countOfContexts(*SchemaLoader::curr().pSchemaFromName("IFC4X1")), 0);
}

struct ClassRange
{
    char const* name;
    unsigned int first;
    unsigned int last;
};

class ClassNumbers : public testing::TestWithParam<ClassRange>
{
};

TEST_P(ClassNumbers, AreThoseThatTheModelDependsOn)
{
    Entity const* const entity =
        SchemaLoader::curr().classesFromName("IFC4X3_TC1")->findEntityByName(GetParam().name);
    ASSERT_TRUE(entity);
    EXPECT_EQ(entity->firstNumber(), GetParam().first);
    EXPECT_EQ(entity->lastNumber(), GetParam().last);
}

INSTANTIATE_TEST_SUITE_P(
    , ClassNumbers,
    testing::Values(
        ClassRange{"IfcClassificationReference", 39, 39}, ClassRange{"IfcPhysicalQuantity", 80, 89},
        ClassRange{"IfcQuantityArea", 83, 83}, ClassRange{"IfcQuantityCount", 84, 84},
        ClassRange{"IfcProperty", 166, 174}, ClassRange{"IfcPropertyBoundedValue", 169, 169},
        ClassRange{"IfcPropertyEnumeratedValue", 170, 170}, ClassRange{"IfcPropertyListValue", 171, 171},
        ClassRange{"IfcPropertySingleValue", 173, 173}, ClassRange{"IfcPropertyTableValue", 174, 174},
        ClassRange{"IfcDirection", 241, 241}, ClassRange{"IfcCartesianPoint", 264, 264},
        ClassRange{"IfcRoot", 354, 837}, ClassRange{"IfcObjectDefinition", 355, 769},
        ClassRange{"IfcObject", 359, 611}, ClassRange{"IfcPort", 556, 557},
        ClassRange{"IfcDistributionPort", 557, 557}, ClassRange{"IfcTypeObject", 612, 769},
        ClassRange{"IfcPropertySetDefinition", 771, 781}, ClassRange{"IfcPropertySet", 779, 779},
        ClassRange{"IfcQuantitySet", 780, 781}, ClassRange{"IfcMaterialLayerSet", 56, 56},
        ClassRange{"IfcOwnerHistory", 77, 77}, ClassRange{"IfcRelReferencedInSpatialStructure", 820, 820},
        ClassRange{"IfcRelAssignsToGroup", 791, 792}, ClassRange{"IfcIrregularTimeSeries", 868, 868},
        ClassRange{"IfcRegularTimeSeries", 869, 869}, ClassRange{"IfcCShapeProfileDef", 145, 145},
        ClassRange{"IfcCircleProfileDef", 146, 147}, ClassRange{"IfcCircleHollowProfileDef", 147, 147},
        ClassRange{"IfcTShapeProfileDef", 154, 154}, ClassRange{"IfcTrapeziumProfileDef", 155, 155},
        ClassRange{"IfcRailType", 639, 639}, ClassRange{"IfcRailingType", 640, 640},
        ClassRange{"IfcRelConnectsPortToElement", 808, 808}, ClassRange{"IfcRelConnectsPorts", 809, 809}),
    [](auto const& parameters) { return std::string(parameters.param.name); });

TEST(ClassRanges, TheSubclassesOfAClassAreItsRange)
{
    Schema const& schema = *SchemaLoader::curr().classesFromName("IFC4X3_TC1");
    for (Entity const* const entity : schema.entities()) {
        for (Entity const* const other : schema.entities()) {
            bool descends = false;
            for (Entity const* level = other; level && !descends; level = level->supertype())
                descends = level == entity;
            ASSERT_EQ(other->isA(*entity), descends) << entity->name() << ' ' << other->name();
        }
    }
}

std::vector<std::string> sortedMembers(char const* select)
{
    Schema const& schema = *SchemaLoader::curr().classesFromName("IFC4X3_TC1");
    std::vector<std::string> names;
    for (ObjectBase const* const member : dynamic_cast<Select const&>(*schema.find(select)).members())
        names.push_back(member->name());
    std::sort(names.begin(), names.end());
    return names;
}

TEST(SelectMembers, TheValueFamiliesHaveTheirCountsAndPositions)
{
    auto const simple = sortedMembers("IFCSIMPLEVALUE");
    EXPECT_EQ(simple.size(), 14U);
    EXPECT_EQ(simple.at(1), "IfcBoolean");
    EXPECT_EQ(simple.at(7), "IfcLabel");
    EXPECT_EQ(sortedMembers("IFCMEASUREVALUE").size(), 23U);
    EXPECT_EQ(sortedMembers("IFCDERIVEDMEASUREVALUE").size(), 71U);
    EXPECT_THAT(sortedMembers("IFCVALUE"),
                testing::ElementsAre("IfcDerivedMeasureValue", "IfcMeasureValue", "IfcSimpleValue"));
}

TEST(Schemas, AnEntitysAttributesAreItsParametersInOrder)
{
    Entity const* const wall = SchemaLoader::curr().classesFromName("IFC4X1")->findEntity("IFCWALL");
    std::vector<std::string> names;
    for (Attribute const* const attribute : wall->attributes())
        names.push_back(attribute->name());
    EXPECT_THAT(names, testing::ElementsAre("GlobalId", "OwnerHistory", "Name", "Description", "ObjectType",
                                            "ObjectPlacement", "Representation", "Tag", "PredefinedType"));
    EXPECT_EQ(wall->attributes()[8]->enumeration()->values().back(), "NOTDEFINED");
}

TEST(Schemas, ADerivedSlotKeepsItsPlace)
{
    Schema const& schema = *SchemaLoader::curr().classesFromName("IFC4X3_TC1");
    Entity const* const unit = schema.findEntity("IFCSIUNIT");
    Attribute const* const dimensions = unit->attributes().at(0);
    EXPECT_EQ(dimensions->name(), "Dimensions");
    EXPECT_TRUE(unit->isDerived(*dimensions));
    EXPECT_EQ(unit->attributes().size(), 4U);
}

} // namespace
