#include "Emit/Generate.h"
#include "Model/CppNames.h"
#include "ToySchema.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace qev::schemacompiler {

namespace {

ClassModel const& model()
{
    static ClassModel const real = test::realModel();
    return real;
}

} // namespace

TEST(RealSchema, HasTheNumbersOfDeclarationsOfTheStandard)
{
    EXPECT_EQ(model().entities.size(), 872u);
    EXPECT_EQ(model().enumerations.size(), 243u);
    EXPECT_EQ(model().selects.size(), 61u);
}

TEST(RealSchema, NumbersAreDenseAndRangesNest)
{
    for (std::size_t i = 0; i < model().entities.size(); ++i) {
        EntityModel const& entity = model().entities[i];
        EXPECT_EQ(entity.first, i + 1) << entity.name;
        if (entity.supertype.empty())
            continue;
        EntityModel const& supertype = model().entity(entity.supertype);
        EXPECT_LT(supertype.first, entity.first) << entity.name;
        EXPECT_LE(entity.last, supertype.last) << entity.name;
    }
}

TEST(RealSchema, EveryClassHasItsOwnHeaderAndEveryGroupItsSource)
{
    auto const files = generate(model());
    for (EntityModel const& entity : model().entities)
        EXPECT_TRUE(files.texts().contains(generatedHeader(entity))) << entity.name;
    for (std::string const& group : model().groups)
        EXPECT_TRUE(files.texts().contains(groupFileName(group) + ".cpp")) << group;
    EXPECT_EQ(model().groups.size(), 42u);
}

TEST(RealSchema, EveryFileSaysOnItsFirstLineWhatMadeItFromWhat)
{
    auto const files = generate(model());
    for (auto const& [path, text] : files.texts())
        EXPECT_THAT(text,
                    testing::StartsWith("// Made by schema-compiler from IFC4X3_TC1.schema. Do not edit.\n"))
            << path;
}

TEST(RealSchema, NoAttributeRepeatsANameOfItsClassOrItsBases)
{
    for (EntityModel const& entity : model().entities) {
        std::set<std::string> names;
        for (EntityModel const* current = &entity;;) {
            for (AttributeModel const& attribute : current->attributes)
                EXPECT_TRUE(names.insert(attribute.name).second) << entity.name << "." << attribute.name;
            for (InverseModel const& inverse : current->inverses)
                EXPECT_TRUE(names.insert(inverse.name).second) << entity.name << "." << inverse.name;
            if (current->supertype.empty())
                break;
            current = &model().entity(current->supertype);
        }
    }
}

namespace {

AttributeModel const& attributeAt(EntityModel const& entity, unsigned int slot)
{
    EntityModel const* current = &entity;
    while (slot < current->slotCount - current->attributes.size())
        current = &model().entity(current->supertype);
    return current->attributes.at(slot - (current->slotCount - current->attributes.size()));
}

/// Tells whether a value of \p type can be an entity of the class \p entity or of a base or subclass of it.
bool canRefer(ElementType const& type, EntityModel const& entity)
{
    if (type.kind == Kind::Reference)
        return model().isOrDerives(entity, type.name) ||
               model().isOrDerives(model().entity(type.name), entity.name);
    if (type.kind != Kind::Select)
        return false;
    auto const& members = model().select(type.name).members;
    return std::any_of(members.begin(), members.end(), [&](SelectMemberModel const& member) {
        auto const kind = member.role == SelectMemberModel::Role::Entity ? Kind::Reference : Kind::Select;
        return member.role != SelectMemberModel::Role::Type && canRefer({member.name, kind, 0}, entity);
    });
}

} // namespace

TEST(RealSchema, EveryInverseAttributeNamesAnAttributeThatCanReferToItsClass)
{
    std::size_t count = 0;
    for (EntityModel const& entity : model().entities) {
        for (InverseModel const& inverse : entity.inverses) {
            AttributeModel const& attribute = attributeAt(model().entity(inverse.relation), inverse.slot);
            // A defined type may be a set of entities, so that only its name is known here.
            bool const isSetType = attribute.type.name == "IfcPropertySetDefinitionSelect";
            EXPECT_TRUE(isSetType || canRefer(attribute.type, entity)) << entity.name << "." << inverse.name;
            ++count;
        }
    }
    EXPECT_GT(count, 100u);
}

} // namespace qev::schemacompiler
