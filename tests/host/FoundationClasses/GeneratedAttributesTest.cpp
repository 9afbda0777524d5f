#include "AllClassesTest.h"

#include "Format/Ifc/Step/StepValue.h"
#include "FoundationClasses/AllEntities.h"
#include "FoundationClasses/AttributeOperations.h"
#include "FoundationClasses/AttributeReader.h"
#include "FoundationClasses/AttributeWriter.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/Enumerations/FcWallTypeEnum.h"

#include <cctype>
#include <map>

namespace qev::fc {

namespace {

using step::StepValue;

/// A record's surroundings: numbers are in SI units, ids are places in the model, counted from 1.
class PlainSurroundings : public AttributeReader, public AttributeWriter
{
public:
    explicit PlainSurroundings(Data& data)
        : m_data(data)
    {
    }

    [[nodiscard]] Data& data() const override { return m_data; }
    [[nodiscard]] EntityIndex indexFromId(step::InstanceId id) const override
    {
        return static_cast<EntityIndex>(id - 1);
    }
    [[nodiscard]] step::InstanceId idOf(ReferenceBase const& reference) const override
    {
        return reference.isSet() ? step::InstanceId(reference.index()) + 1 : 0;
    }
    [[nodiscard]] UnitScale scaleOf(std::string_view) const override { return {}; }
    void mismatch(AttributeDescriptor const& attribute, std::string_view expected, StepValue const&) override
    {
        ADD_FAILURE() << attribute.name << ": expected " << expected;
    }

private:
    Data& m_data;
};

std::string upper(std::string_view text)
{
    std::string result(text);
    for (char& character : result)
        character = static_cast<char>(std::toupper(static_cast<unsigned char>(character)));
    return result;
}

class GeneratedAttributes : public test::AllClassesTest
{
protected:
    /// A value as a record could have it.
    StepValue sample(AttributeDescriptor const& attribute)
    {
        StepValue value = element(attribute);
        for (unsigned int level = 0; level < attribute.depth; ++level)
            value = StepValue::list({value, value, value});
        return value;
    }

    std::shared_ptr<Data> m_data = Data::create();

private:
    StepValue element(AttributeDescriptor const& attribute)
    {
        switch (attribute.kind) {
        case ValueKind::Enumeration:
            return StepValue::enumeration(std::string(attribute.enumeration->items.back()));
        case ValueKind::Reference:
            return reference(attribute.targetFirst, attribute.targetLast);
        case ValueKind::Select:
            return selected(*attribute.select);
        case ValueKind::Value:
            return StepValue::typed("IFCLABEL", StepValue::text("label"));
        default:
            return plain(attribute.kind);
        }
    }

    static StepValue plain(ValueKind kind)
    {
        switch (kind) {
        case ValueKind::Text:
            return StepValue::text("text");
        case ValueKind::Real:
            return StepValue::real(2.5);
        case ValueKind::Integer:
            return StepValue::integer(7);
        case ValueKind::Boolean:
            return StepValue::enumeration("T");
        case ValueKind::Logical:
            return StepValue::enumeration("U");
        case ValueKind::Binary:
            return StepValue::binary("0F");
        default:
            ADD_FAILURE() << "no plain kind";
            return {};
        }
    }

    StepValue reference(unsigned int first, unsigned int last)
    {
        auto const [found, isNew] = m_targets.try_emplace(first);
        if (isNew) {
            found->second = test::concreteClass(first, last)->create();
            m_data->entityAdd(found->second, false);
        }
        return StepValue::reference(step::InstanceId(found->second->getIndex()) + 1);
    }

    StepValue selected(SelectDescriptor const& select)
    {
        SelectMember const& member = select.members.front();
        if (member.select)
            return selected(*member.select);
        if (member.first != 0)
            return reference(member.first, member.last);
        StepValue value = plain(member.kind);
        if (member.isAggregate)
            value = StepValue::list({value, value});
        return StepValue::typed(upper(member.name), value);
    }

    std::map<unsigned int, std::shared_ptr<FcBase>> m_targets;
};

} // namespace

TEST_P(GeneratedAttributes, WritesEveryAttributeAsItWasRead)
{
    if (entityClass().isAbstract)
        return;
    PlainSurroundings surroundings(*m_data);
    auto const object = entityClass().create();
    for (AttributeDescriptor const* const attribute : entityClass().attributes) {
        AttributeBase& value = attribute->access(*object);
        StepValue const expected = sample(*attribute);
        attribute->operations->read(value, *attribute, expected, surroundings);
        EXPECT_FALSE(attribute->operations->isUnset(value)) << attribute->name;
        EXPECT_EQ(attribute->operations->write(value, *attribute, surroundings), expected) << attribute->name;
    }
}

TEST_P(GeneratedAttributes, TakesBackEveryAttributeToWhatItWas)
{
    if (entityClass().isAbstract)
        return;
    PlainSurroundings surroundings(*m_data);
    auto const object = entityClass().create();
    for (AttributeDescriptor const* const attribute : entityClass().attributes) {
        AttributeBase& value = attribute->access(*object);
        auto const before = attribute->operations->snapshot(value);
        EXPECT_TRUE(attribute->operations->equals(value, before.get())) << attribute->name;
        attribute->operations->read(value, *attribute, sample(*attribute), surroundings);
        EXPECT_FALSE(attribute->operations->equals(value, before.get())) << attribute->name;
        attribute->operations->restore(value, before.get());
        EXPECT_TRUE(attribute->operations->equals(value, before.get())) << attribute->name;
    }
}

TEST_P(GeneratedAttributes, OptionalAttributesOfANewObjectAreUnset)
{
    if (entityClass().isAbstract)
        return;
    auto const object = entityClass().create();
    for (AttributeDescriptor const* const attribute : entityClass().attributes) {
        if (attribute->isOptional) {
            EXPECT_TRUE(attribute->operations->isUnset(attribute->access(*object))) << attribute->name;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Model, GeneratedAttributes, testing::ValuesIn(test::allNumbers()),
                         test::classNameOf);

TEST(GeneratedAttributeAccess, WhatReflectionFillsTheMembersShow)
{
    auto const data = Data::create();
    PlainSurroundings surroundings(*data);
    shared::sharedbldgelements::FcWall wall;
    auto const fill = [&](std::string const& name, StepValue const& value) {
        AttributeDescriptor const& attribute =
            *wall.getEntityClass().attributes[slotFromName(wall.getEntityClass(), name)];
        attribute.operations->read(attribute.access(wall), attribute, value, surroundings);
    };
    fill("Name", StepValue::text("W1"));
    fill("PredefinedType", StepValue::enumeration("PARAPET"));
    EXPECT_EQ(wall.Name.get(), "W1");
    EXPECT_EQ(wall.PredefinedType.get(), FcWallTypeEnum::PARAPET);
    EXPECT_STREQ(wall.getPredefinedTypeText(), "PARAPET");
}

TEST(GeneratedAttributeAccess, WhatTheMembersGetReflectionShows)
{
    auto const data = Data::create();
    PlainSurroundings surroundings(*data);
    shared::sharedbldgelements::FcWall wall;
    EXPECT_EQ(wall.getPredefinedTypeText(), nullptr);
    wall.Tag = std::string("T7");
    wall.PredefinedType = FcWallTypeEnum::SHEAR;
    auto const shown = [&](std::string const& name) {
        AttributeDescriptor const& attribute =
            *wall.getEntityClass().attributes[slotFromName(wall.getEntityClass(), name)];
        return attribute.operations->write(attribute.access(wall), attribute, surroundings);
    };
    EXPECT_EQ(shown("Tag"), StepValue::text("T7"));
    EXPECT_EQ(shown("PredefinedType"), StepValue::enumeration("SHEAR"));
    EXPECT_EQ(shown("Description"), StepValue());
}

TEST(GeneratedInverses, BothEndsOfARelationAreReadable)
{
    using namespace core::kernel;
    auto const data = Data::create();
    auto const project = std::make_shared<FcProject>();
    auto const site = std::make_shared<core::productextension::FcSite>();
    auto const relation = std::make_shared<FcRelAggregates>();
    relation->RelatingObject = Reference<FcObjectDefinition>(project);
    relation->RelatedObjects.edit([&](auto& list) { list.push_back(site); });
    data->entityAdd(relation, false);

    ASSERT_EQ(project->IsDecomposedBy().size(), 1u);
    EXPECT_EQ(project->IsDecomposedBy().front().lock(), relation);
    ASSERT_EQ(site->Decomposes().size(), 1u);
    EXPECT_EQ(site->Decomposes().front().lock(), relation);
    EXPECT_TRUE(site->IsDecomposedBy().empty());
}

TEST(GeneratedInverses, AnEntityInNoModelHasNone)
{
    EXPECT_TRUE(std::make_shared<core::kernel::FcProject>()->IsDecomposedBy().empty());
}

} // namespace qev::fc
