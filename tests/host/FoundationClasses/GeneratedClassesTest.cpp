#include "AllClassesTest.h"

#include "Format/Ifc/Schema/DataTypeEnum.h"
#include "Format/Ifc/Schema/Schema.h"
#include "Format/Ifc/Schema/SchemaText.h"
#include "FoundationClasses/AllEntities.h"
#include "FoundationClasses/EntityList.h"

#include <cctype>
#include <fstream>
#include <iterator>
#include <type_traits>

namespace qev::fc {

namespace {

using test::AllClassesTest;

/// The schema itself, read apart from what the classes were made of.
ifc::def::schema::Schema const& schema()
{
    static auto const parsed = [] {
        std::ifstream file(QEV_SCHEMA_FOLDER "/IFC4X3_TC1.schema", std::ios::binary);
        std::string const text((std::istreambuf_iterator<char>(file)), {});
        return ifc::def::schema::parseSchema(text);
    }();
    return *parsed;
}

class GeneratedClasses : public AllClassesTest
{
protected:
    [[nodiscard]] ifc::def::schema::Entity const& entity() const
    {
        return *schema().entityFromNumber(number());
    }
};

std::string upper(std::string text)
{
    for (char& character : text)
        character = static_cast<char>(std::toupper(static_cast<unsigned char>(character)));
    return text;
}

std::uint32_t fnv1a(std::string_view text)
{
    std::uint32_t hash = 2166136261u;
    for (char const character : text)
        hash = (hash ^ static_cast<unsigned char>(character)) * 16777619u;
    return hash;
}

} // namespace

TEST_P(GeneratedClasses, SaysWhatTheSchemaSays)
{
    EXPECT_EQ(entityClass().name, entity().name());
    EXPECT_EQ(entityClass().nameUpper, upper(entity().name()));
    EXPECT_EQ(entityClass().idFirst, entity().firstNumber());
    EXPECT_EQ(entityClass().idLast, entity().lastNumber());
    EXPECT_EQ(entityClass().isAbstract, entity().isAbstract());
    EXPECT_EQ(entityClass().supertype == nullptr, entity().supertype() == nullptr);
    if (entityClass().supertype && entity().supertype()) {
        EXPECT_EQ(entityClass().supertype->name, entity().supertype()->name());
    }
}

TEST_P(GeneratedClasses, HasTheAttributesOfTheSchemaInTheirOrder)
{
    auto const& expected = entity().attributes();
    auto const& attributes = entityClass().attributes;
    ASSERT_EQ(attributes.size(), expected.size());
    for (std::size_t slot = 0; slot < expected.size(); ++slot) {
        EXPECT_EQ(attributes[slot]->name, expected[slot]->name());
        EXPECT_EQ(attributes[slot]->isOptional, expected[slot]->isOptional()) << expected[slot]->name();
        EXPECT_EQ(attributes[slot]->typeName, expected[slot]->dataType().name()) << expected[slot]->name();
        EXPECT_EQ(slotFromName(entityClass(), expected[slot]->name()), slot);
        EXPECT_EQ((entityClass().derivedSlots >> slot) & 1u, entity().isDerived(*expected[slot]) ? 1u : 0u);
        if (auto const* const enumeration = expected[slot]->enumeration()) {
            ASSERT_NE(attributes[slot]->enumeration, nullptr);
            EXPECT_THAT(attributes[slot]->enumeration->items,
                        testing::ElementsAreArray(enumeration->values()));
        }
    }
    EXPECT_EQ(slotFromName(entityClass(), "NoSuchAttribute"), attributes.size());
}

TEST_P(GeneratedClasses, HasTheInverseAttributesOfTheSchema)
{
    auto const& expected = entity().inverseAttributes();
    auto const& inverses = entityClass().inverses;
    ASSERT_EQ(inverses.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(inverses[i].name, expected[i].name);
        EXPECT_EQ(inverses[i].relationFirst, expected[i].referrer->firstNumber());
        EXPECT_EQ(inverses[i].relationLast, expected[i].referrer->lastNumber());
        auto const* const attribute = expected[i].referrer->attributes().at(inverses[i].slot);
        EXPECT_EQ(attribute->name(), expected[i].referringAttribute);
    }
}

TEST_P(GeneratedClasses, MakesObjectsOfItselfUnlessAbstract)
{
    if (entityClass().isAbstract) {
        EXPECT_EQ(entityClass().create, nullptr);
        return;
    }
    std::shared_ptr<FcBase> const object = entityClass().create();
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(&object->getEntityClass(), &entityClass());
    EXPECT_EQ(object->getIdFirst(), number());
    EXPECT_EQ(object->getIdLast(), entityClass().idLast);
    EXPECT_STREQ(object->getEntityName(), entityClass().name);
    EXPECT_STREQ(object->getEntityNameUpper(), entityClass().nameUpper);
    EXPECT_STREQ(object->getGroupName(), entityClass().group);
    EXPECT_STREQ(object->getQualifiedGroupName(), entityClass().qualifiedGroup);
    EXPECT_EQ(object->getEntityNameHashed().text, entityClass().name);
    EXPECT_EQ(object->getEntityNameHashed().hash, fnv1a(entityClass().name));
    EXPECT_EQ(object->getEntityNameUpperHashed().hash, fnv1a(entityClass().nameUpper));
    EXPECT_EQ(object->shared_from_this(), object);
}

TEST_P(GeneratedClasses, GroupNameIsTheLastPartOfTheQualifiedOne)
{
    std::string const qualified = entityClass().qualifiedGroup;
    auto const dot = qualified.find('.');
    ASSERT_NE(dot, std::string::npos);
    EXPECT_EQ(qualified.substr(dot + 1), entityClass().group);
    EXPECT_THAT(qualified.substr(0, dot), testing::AnyOf("Core", "Shared", "Domain", "Resource"));
}

INSTANTIATE_TEST_SUITE_P(Model, GeneratedClasses, testing::ValuesIn(test::allNumbers()), test::classNameOf);

namespace {

/// One class of the list, with what its type says of itself.
struct ListedClass
{
    std::string name;
    unsigned int first;
    unsigned int last;
    EntityClass const& entityClass;
    bool isConstructible;
};

template <class T>
ListedClass listedClass(std::string const& name)
{
    return {name, T::idFirst, T::idLast, T::staticEntityClass(), std::is_default_constructible_v<T>};
}

std::vector<ListedClass> listedClasses()
{
    return {
#define QEV_LISTED_CLASS(SPACE, CLASS) listedClass<SPACE::CLASS>(#CLASS),
        QEV_FC_ENTITIES(QEV_LISTED_CLASS)
#undef QEV_LISTED_CLASS
    };
}

/// One attribute of the list: the class that declares it, and the way to its member.
struct ListedMember
{
    std::string className;
    std::string attribute;
    unsigned int first;
    unsigned int last;
    AttributeBase& (*member)(FcBase&);
};

std::vector<ListedMember> listedMembers()
{
    return {
#define QEV_LISTED_MEMBER(SPACE, CLASS, MEMBER)                                                              \
    {#CLASS, #MEMBER, SPACE::CLASS::idFirst, SPACE::CLASS::idLast,                                           \
     [](FcBase& entity) -> AttributeBase& { return static_cast<SPACE::CLASS&>(entity).MEMBER; }},
        QEV_FC_ATTRIBUTES(QEV_LISTED_MEMBER)
#undef QEV_LISTED_MEMBER
    };
}

} // namespace

TEST(GeneratedClassList, EveryNameInTheListIsTheClassOfItsNumber)
{
    std::vector<unsigned int> numbers;
    for (ListedClass const& listed : listedClasses()) {
        numbers.push_back(listed.first);
        EXPECT_EQ(entityClassFromNumber(listed.first), &listed.entityClass) << listed.name;
        EXPECT_EQ(listed.last, listed.entityClass.idLast) << listed.name;
        EXPECT_EQ("Ifc" + listed.name.substr(2), listed.entityClass.name);
        EXPECT_TRUE(listed.isConstructible || listed.entityClass.isAbstract) << listed.name;
    }
    EXPECT_EQ(numbers, test::allNumbers());
}

TEST(GeneratedClassList, GroupsOfTheClassesThatOthersNameByTheirNamespace)
{
    EXPECT_STREQ(resource::property::FcProperty::staticEntityClass().group, "Property");
    EXPECT_STREQ(resource::property::FcProperty::staticEntityClass().qualifiedGroup, "Resource.Property");
    EXPECT_STREQ(resource::quantity::FcQuantityArea::staticEntityClass().group, "Quantity");
    EXPECT_STREQ(resource::quantity::FcQuantityArea::staticEntityClass().qualifiedGroup, "Resource.Quantity");
    EXPECT_STREQ(core::kernel::FcRoot::staticEntityClass().qualifiedGroup, "Core.Kernel");
}

TEST(GeneratedClassList, EveryMemberIsTheAttributeOfItsName)
{
    std::size_t expected = 0;
    for (auto const* const entity : schema().entities())
        expected += entity->ownAttributes().size();
    auto const members = listedMembers();
    EXPECT_EQ(members.size(), expected);
    for (ListedMember const& listed : members) {
        auto const object = test::concreteClass(listed.first, listed.last)->create();
        unsigned int const slot = slotFromName(object->getEntityClass(), listed.attribute);
        ASSERT_LT(slot, object->getEntityClass().attributes.size())
            << listed.className << "." << listed.attribute;
        AttributeBase& attribute = listed.member(*object);
        EXPECT_EQ(&attribute, &object->attribute(slot)) << listed.className << "." << listed.attribute;
        EXPECT_EQ(attribute.slot(), slot) << listed.className << "." << listed.attribute;
        EXPECT_EQ(&attribute.owner(), object.get()) << listed.className << "." << listed.attribute;
    }
}

} // namespace qev::fc
