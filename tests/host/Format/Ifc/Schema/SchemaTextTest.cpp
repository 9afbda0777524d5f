#include "Format/Ifc/Schema/SchemaText.h"

#include "Core/String/Hash.h"
#include "Format/Ifc/Schema/AttributeBase.h"
#include "Format/Ifc/Schema/DataTypeEnum.h"
#include "Format/Ifc/Schema/Select.h"
#include "Format/Ifc/Schema/Type.h"
#include "ReportRecorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>

namespace {

using namespace qev::ifc;
using namespace qev::ifc::def;
using namespace qev::ifc::def::schema;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view toySchema = R"(# A garden
schema TOY
type ToyLength = REAL
type ToyName = STRING(255)
type ToyTag = ToyName
type ToyPlace = array[1:2] of ToyLength
enumeration ToyColour = RED GREEN
select ToyInner = ToyPlant ToyLength
select ToyOuter = ToyInner ToyPot

abstract entity ToyThing
  Name : ToyName
  Colour ? ToyColour
  inverse Pots = set[0:?] ToyPot.Things
entity ToyPlant : ToyThing
  Height ? ToyLength
  Place ? ToyPlace
  Anything : ToyOuter
entity ToyBush : ToyPlant
  derived ToyPlant.Height
  Flowers : list[1:?] of unique list[0:3] of STRING(22) fixed
  inverse OnlyPot = one ToyPot.Things
entity ToyPot
  Things : set[0:?] of ToyThing
  Owner : ToyBush
  Count : INTEGER
entity ToyBUSHEL : ToyPlant
)";

std::unique_ptr<Schema> toy() { return parseSchema(toySchema); }

std::vector<TextError> errorsOf(std::string_view text)
{
    std::vector<TextError> errors;
    EXPECT_EQ(parseSchema(text, errors), nullptr);
    EXPECT_THAT(errors, testing::Not(IsEmpty()));
    return errors;
}

std::vector<std::string> namesOf(std::vector<Attribute const*> const& attributes)
{
    std::vector<std::string> names;
    for (Attribute const* const attribute : attributes)
        names.push_back(attribute->name());
    return names;
}

TEST(SchemaText, DeclarationsAreKeptInTheirOrder)
{
    auto const schema = toy();
    ASSERT_TRUE(schema);
    EXPECT_EQ(schema->name(), "TOY");
    EXPECT_EQ(schema->types().size(), 4U);
    EXPECT_EQ(schema->types()[2]->name(), "ToyTag");
    EXPECT_EQ(schema->enumerations().size(), 1U);
    EXPECT_THAT(schema->enumerations()[0]->values(), ElementsAre("RED", "GREEN"));
    EXPECT_EQ(schema->selects().size(), 2U);
    EXPECT_EQ(schema->entities().size(), 5U);
    EXPECT_TRUE(schema->entities()[0]->isAbstract());
    EXPECT_FALSE(schema->entities()[1]->isAbstract());
}

TEST(SchemaText, NamesAreFoundInCapitals)
{
    auto const schema = toy();
    EXPECT_EQ(schema->find("TOYBUSH")->name(), "ToyBush");
    EXPECT_EQ(schema->find("TOYCOLOUR")->name(), "ToyColour");
    EXPECT_EQ(schema->find("ToyBush"), nullptr);
    EXPECT_EQ(schema->find(""), nullptr);
    EXPECT_EQ(schema->find("REAL"), nullptr);
    EXPECT_EQ(schema->find("TOYBUSH", qev::str::fnv1a("TOYBUSH")), schema->find("TOYBUSH"));
    EXPECT_EQ(schema->find("TOYBUSH")->hash(), qev::str::fnv1a("TOYBUSH"));
}

TEST(SchemaText, OnlyEntitiesAreFoundAsEntities)
{
    auto const schema = toy();
    EXPECT_EQ(schema->findEntity("TOYPOT")->name(), "ToyPot");
    EXPECT_EQ(schema->findEntity("TOYCOLOUR"), nullptr);
    EXPECT_EQ(schema->findEntityByName("ToyPot"), schema->findEntity("TOYPOT"));
    EXPECT_EQ(schema->findEntityByName("TOYPOT"), nullptr);
}

TEST(SchemaText, AttributesComeWithThoseOfTheSupertypeFirst)
{
    auto const schema = toy();
    Entity const& bush = *schema->findEntity("TOYBUSH");
    EXPECT_THAT(namesOf(bush.attributes()),
                ElementsAre("Name", "Colour", "Height", "Place", "Anything", "Flowers"));
    EXPECT_EQ(bush.ownAttributes().size(), 1U);
    EXPECT_EQ(bush.findAttribute("Name")->owner().name(), "ToyThing");
    EXPECT_FALSE(bush.findAttribute("Name")->isOptional());
    EXPECT_TRUE(bush.findAttribute("Colour")->isOptional());
    EXPECT_EQ(bush.findAttribute("name"), nullptr);
}

TEST(SchemaText, TheAttributeListIsFormedOnceWhateverThreadsAsk)
{
    for (int round = 0; round < 20; ++round) {
        auto const schema = toy();
        Entity const& bush = *schema->findEntity("TOYBUSH");
        std::vector<std::vector<Attribute const*> const*> seen(8);
        std::vector<std::size_t> sizes(seen.size());
        std::vector<std::thread> threads;
        for (std::size_t index = 0; index < seen.size(); ++index)
            threads.emplace_back([&, index] {
                seen[index] = &bush.attributes();
                sizes[index] = seen[index]->size();
            });
        for (std::thread& thread : threads)
            thread.join();
        for (std::size_t index = 0; index < seen.size(); ++index) {
            EXPECT_EQ(seen[index], seen[0]);
            EXPECT_EQ(sizes[index], 6U);
        }
    }
}

TEST(SchemaText, ADerivedSlotIsDerivedInSubclassesAlone)
{
    auto const schema = toy();
    Entity const& bush = *schema->findEntity("TOYBUSH");
    Entity const& plant = *schema->findEntity("TOYPLANT");
    Attribute const& height = *plant.findAttribute("Height");
    EXPECT_TRUE(bush.isDerived(height));
    EXPECT_FALSE(plant.isDerived(height));
    EXPECT_THAT(bush.derivedAttributes(), ElementsAre(&height));
}

TEST(SchemaText, InverseAttributesNameTheReferringAttribute)
{
    auto const schema = toy();
    InverseAttribute const& pots = schema->findEntity("TOYTHING")->inverseAttributes().at(0);
    EXPECT_EQ(pots.name, "Pots");
    EXPECT_FALSE(pots.isSingle);
    EXPECT_EQ(pots.bounds.kind, DeclaredType::Kind::Set);
    EXPECT_EQ(pots.bounds.lower, 0);
    EXPECT_FALSE(pots.bounds.upper.has_value());
    EXPECT_EQ(pots.referrer, schema->findEntity("TOYPOT"));
    EXPECT_EQ(pots.referringAttribute, "Things");
    EXPECT_TRUE(schema->findEntity("TOYBUSH")->inverseAttributes().at(0).isSingle);
}

TEST(SchemaText, AggregatesKeepTheirStructure)
{
    auto const schema = toy();
    Attribute const& flowers = *schema->findEntity("TOYBUSH")->findAttribute("Flowers");
    DeclaredTypes const& levels = flowers.declaredTypes();
    ASSERT_EQ(levels.size(), 3U);
    EXPECT_EQ(levels[0].kind, DeclaredType::Kind::List);
    EXPECT_EQ(levels[0].lower, 1);
    EXPECT_FALSE(levels[0].upper.has_value());
    EXPECT_TRUE(levels[0].unique);
    EXPECT_EQ(levels[1].upper, 3);
    EXPECT_FALSE(levels[1].unique);
    auto const& text = dynamic_cast<Type const&>(*levels[2].dataType);
    EXPECT_TRUE(text.isBaseType());
    EXPECT_EQ(text.baseKind(), Type::BaseKind::String);
    EXPECT_EQ(text.width(), 22U);
    EXPECT_TRUE(text.isFixedWidth());
    EXPECT_EQ(flowers.typeName(), "list[1:?] of unique list[0:3] of STRING(22) fixed");
}

TEST(SchemaText, TheKindOfTheFirstLevelTellsSimpleAttributes)
{
    auto const schema = toy();
    Entity const& plant = *schema->findEntity("TOYPLANT");
    Entity const& pot = *schema->findEntity("TOYPOT");
    EXPECT_EQ(static_cast<int>(DeclaredType::Kind::Simple), 1);
    EXPECT_TRUE(plant.findAttribute("Height")->isSimple());
    EXPECT_TRUE(plant.findAttribute("Colour")->isSimple());
    EXPECT_TRUE(plant.findAttribute("Place")->isSimple());
    EXPECT_TRUE(pot.findAttribute("Count")->isSimple());
    EXPECT_FALSE(plant.findAttribute("Anything")->isSimple());
    EXPECT_FALSE(pot.findAttribute("Owner")->isSimple());
    EXPECT_FALSE(pot.findAttribute("Things")->isSimple());
}

TEST(SchemaText, AttributeTypesHaveTheirNumbers)
{
    auto const schema = toy();
    auto const typeOf = [&schema](char const* entity, char const* attribute) {
        return static_cast<int>(
            AttributeBase::TypeFromSchemaAttribute(*schema->findEntity(entity)->findAttribute(attribute)));
    };
    EXPECT_EQ(typeOf("TOYPLANT", "Height"), 0);
    EXPECT_EQ(typeOf("TOYPOT", "Count"), 2);
    EXPECT_EQ(typeOf("TOYPLANT", "Name"), 4);
    EXPECT_EQ(typeOf("TOYPOT", "Owner"), 7);
    EXPECT_EQ(typeOf("TOYPLANT", "Colour"), 8);
    EXPECT_EQ(typeOf("TOYPLANT", "Anything"), 9);
    EXPECT_EQ(typeOf("TOYPOT", "Things"), 10);
    EXPECT_EQ(typeOf("TOYPLANT", "Place"), 10);
}

TEST(SchemaText, BaseKindsHaveTheirNumbers)
{
    auto const schema = parseSchema("schema T\nentity A\n R : REAL\n B : BOOLEAN\n I : INTEGER\n N : NUMBER\n"
                                    " S : STRING\n Y : BINARY(32)\n L : LOGICAL\n");
    std::vector<int> kinds;
    for (Attribute const* const attribute : schema->findEntity("A")->attributes())
        kinds.push_back(static_cast<int>(dynamic_cast<Type const&>(attribute->dataType()).baseKind()));
    EXPECT_THAT(kinds, ElementsAre(0, 1, 2, 3, 4, 5, 6));
}

TEST(SchemaText, ADefinedTypeHasTheBaseKindAtTheEndOfItsChain)
{
    auto const schema = toy();
    auto const& tag = dynamic_cast<Type const&>(*schema->find("TOYTAG"));
    EXPECT_EQ(tag.baseKind(), Type::BaseKind::String);
    EXPECT_FALSE(tag.isAggregate());
    auto const& place = dynamic_cast<Type const&>(*schema->find("TOYPLACE"));
    EXPECT_EQ(place.baseKind(), Type::BaseKind::Real);
    EXPECT_TRUE(place.isAggregate());
}

TEST(SchemaText, NestedSelectsAreFlattened)
{
    auto const schema = toy();
    auto const& outer = dynamic_cast<Select const&>(*schema->find("TOYOUTER"));
    EXPECT_EQ(outer.members().size(), 2U);
    EXPECT_THAT(outer.flattenedMembers(),
                ElementsAre(schema->find("TOYPLANT"), schema->find("TOYLENGTH"), schema->find("TOYPOT")));
}

TEST(SchemaText, ASelectThatContainsItselfIsFlattenedToo)
{
    auto const schema = parseSchema("schema T\nselect A = B E\nselect B = A E\nentity E\n");
    auto const& select = dynamic_cast<Select const&>(*schema->find("A"));
    EXPECT_THAT(select.flattenedMembers(), ElementsAre(schema->find("E")));
}

// "ToyBUSHEL" stands before "ToyBush": capitals come first.
TEST(SchemaText, ClassesAreNumberedDepthFirstBySiblingsInCharacterOrder)
{
    auto const schema = toy();
    std::vector<std::string> names;
    for (unsigned int number = 1; Entity const* const entity = schema->entityFromNumber(number); ++number) {
        EXPECT_EQ(entity->firstNumber(), number);
        names.push_back(entity->name());
    }
    EXPECT_THAT(names, ElementsAre("ToyPot", "ToyThing", "ToyPlant", "ToyBUSHEL", "ToyBush"));
    EXPECT_EQ(schema->findEntity("TOYTHING")->lastNumber(), 5U);
    EXPECT_EQ(schema->findEntity("TOYPOT")->lastNumber(), 1U);
    EXPECT_EQ(schema->entityFromNumber(0), nullptr);
    EXPECT_TRUE(schema->findEntity("TOYBUSH")->isA(*schema->findEntity("TOYTHING")));
    EXPECT_FALSE(schema->findEntity("TOYTHING")->isA(*schema->findEntity("TOYBUSH")));
    EXPECT_FALSE(schema->findEntity("TOYPOT")->isA(*schema->findEntity("TOYTHING")));
}

// Two pairs of names with one hash each, of equal and of different lengths.
TEST(SchemaText, NamesWithEqualHashesAreToldApart)
{
    ASSERT_EQ(qev::str::fnv1a("IFCNMBKTOVK"), qev::str::fnv1a("IFCZWHVIOVU"));
    ASSERT_EQ(qev::str::fnv1a("IFCENVZ"), qev::str::fnv1a("IFCMDHND"));
    auto const schema = parseSchema("schema T\nentity IFCZWHVIOVU\nentity IFCNMBKTOVK\nentity IFCMDHND\n"
                                    "entity IFCENVZ\nentity IFCWALL\n");
    for (char const* const name : {"IFCZWHVIOVU", "IFCNMBKTOVK", "IFCMDHND", "IFCENVZ", "IFCWALL"})
        EXPECT_EQ(schema->findEntity(name)->name(), name);
}

TEST(SchemaText, OneOfTwoNamesWithEqualHashesIsNotFoundForTheOther)
{
    auto const schema = parseSchema("schema T\nentity IFCZWHVIOVU\nentity IFCENVZ\n");
    EXPECT_EQ(schema->find("IFCNMBKTOVK"), nullptr);
    EXPECT_EQ(schema->find("IFCMDHND"), nullptr);
}

struct BadText
{
    std::string name;
    std::string text;
    std::size_t line;
    std::string message;
};

class SchemaTextErrors : public testing::TestWithParam<BadText>
{
};

TEST_P(SchemaTextErrors, AreToldWithTheirLine)
{
    TextError const error = errorsOf(GetParam().text).front();
    EXPECT_EQ(error.line, GetParam().line);
    EXPECT_THAT(error.message, testing::HasSubstr(GetParam().message));
}

INSTANTIATE_TEST_SUITE_P(
    , SchemaTextErrors,
    testing::Values(
        BadText{"NoName", "type A = REAL\n", 1, "name of the schema"},
        BadText{"UnknownDeclaration", "schema T\nclass A\n", 2, "\"class A\""},
        BadText{"DeclaredTwice", "schema T\n\nentity A\ntype A = REAL\n", 4, "declared twice"},
        BadText{"UnknownSupertype", "schema T\nentity A : B\n", 2, "\"B\" is no entity"},
        BadText{"SupertypeIsNoEntity", "schema T\ntype B = REAL\nentity A : B\n", 3, "\"B\" is no entity"},
        BadText{"SubtypeOfItself", "schema T\nentity A : B\nentity B : A\n", 2, "subtype of itself"},
        BadText{"UnknownType", "schema T\nentity A\n  Name : IfcLabel\n", 3, "\"IfcLabel\" is not declared"},
        BadText{"TypeOfItself", "schema T\ntype A = B\ntype B = A\n", 2, "defined by itself"},
        BadText{"BadBounds", "schema T\nentity A\n  Names : list[1-2] of STRING\n", 3, "Bounds"},
        BadText{"BoundsWithoutUpper", "schema T\nentity A\n  Names : list[1:] of STRING\n", 3, "Bounds"},
        BadText{"MissingOf", "schema T\nentity A\n  Names : list[1:2] STRING\n", 3, "\"of\""},
        BadText{"BadWidth", "schema T\nentity A\n  Name : STRING(x)\n", 3, "not declared"},
        BadText{"AttributeBeforeEntity", "schema T\n  Name : STRING\n", 2, "An entity is expected"},
        BadText{"AttributeTwice", "schema T\nentity A\n  X : REAL\nentity B : A\n  X : REAL\n", 5,
                "declared twice"},
        BadText{"NoAttribute", "schema T\nentity A\n  Name\n", 3, "An attribute is expected"},
        BadText{"UnknownDerived", "schema T\nentity A\n  derived A.X\n", 3, "inherited attribute"},
        BadText{"UnknownInverse", "schema T\nentity A\n  inverse X = one A.Y\n", 3,
                "\"A.Y\" is not declared"},
        BadText{"IncompleteInverse", "schema T\nentity A\n  inverse X\n", 3, "referring attribute"},
        BadText{"UnknownMember", "schema T\nselect A = B\n", 2, "\"B\" is not declared"}),
    [](auto const& parameters) { return parameters.param.name; });

TEST(SchemaText, AnErrorInABuiltInTextIsReported)
{
    EXPECT_EQ(parseSchema("schema T\nselect A = B\n"), nullptr);
    qev::test::expectReport("Line 2: \"B\" is not declared.", "qev::ifc::def::schema::parseSchema",
                            "Format/Ifc/Schema/SchemaText");
}

TEST(SchemaText, LineEndsOfAnyKindAreRead)
{
    std::vector<TextError> errors;
    auto const schema = parseSchema("schema T\r\nentity A\r\n  Name : STRING", errors);
    ASSERT_TRUE(schema);
    EXPECT_EQ(schema->findEntity("A")->attributes().size(), 1U);
}

} // namespace
