#include "ComparisonTest.h"
#include "ExpectedText.h"
#include "Format/Ifc/Schema/Pset/PropertyDef.h"
#include "Format/Ifc/Schema/Pset/PropertySetDef.h"
#include "Format/Ifc/Schema/Qto/QuantityDef.h"
#include "Format/Ifc/Schema/Qto/QuantitySetDef.h"
#include "UI/FoundationClasses/Set/PropertySetDefinition.h"

#include <algorithm>
#include <iostream>
#include <set>

namespace {

using namespace qev::test::samples;
using namespace qev::test::reference;
using namespace qev::fc::ui;
using qev::application::GridGroup;
using qev::application::HeadlessGrid;
using Kind = ReferenceProperty::Kind;

/// Tells whether a set that only objects have gets an entry for a property.
bool hasEntry(ReferenceProperty const& property)
{
    switch (property.kind) {
    case Kind::Single:
        return !property.values.empty();
    case Kind::Bounded:
        return property.lower || property.upper || property.setPoint;
    case Kind::Enumerated:
    case Kind::List:
    case Kind::Length:
    case Kind::Area:
    case Kind::Volume:
    case Kind::Count:
    case Kind::Weight:
    case Kind::Time:
        return true;
    default:
        return false;
    }
}

/// Tells whether the schema's definition of a set has a row for a name. References, tables and properties
/// made of properties have none.
bool isOffered(qev::ifc::def::xml::SetDef const& definition, std::string const& name)
{
    if (auto const* const quantities = dynamic_cast<qev::ifc::def::qto::QuantitySetDef const*>(&definition)) {
        auto const& all = quantities->quantityDefs;
        return std::any_of(all.begin(), all.end(), [&name](auto const& one) { return one->name == name; });
    }
    auto const* const properties = dynamic_cast<qev::ifc::def::pset::PropertySetDef const*>(&definition);
    if (!properties)
        return false;
    static std::set<std::string> const withRow = {"IfcPropertySingleValue", "IfcPropertyEnumeratedValue",
                                                  "IfcPropertyBoundedValue", "IfcPropertyListValue"};
    auto const& all = properties->propertyDefs;
    return std::any_of(all.begin(), all.end(), [&name](auto const& one) {
        return one->name == name && one->propertyType &&
               withRow.contains(std::string(one->propertyType->sEntityName()));
    });
}

class Agreement : public ComparisonTest
{
protected:
    void compareSets(HeadlessGrid const& session, std::vector<GridGroup> const& groups, std::uint64_t id);
    void compareSet(PropertySetDefinition const& definition, GridGroup const* group, ReferenceSet const& set);
    void compareProperty(PropertyInterface const& shown, Row const* row, ReferenceProperty const& property);
    void compareAttributes(GridGroup const& group, std::uint64_t id);
    void compareAttribute(Row const& row, ReferenceAttribute const& attribute);

    std::size_t valuesCompared = 0;
    std::size_t attributesCompared = 0;
    std::size_t withoutPlace = 0;
    std::size_t failedObjects = 0;
};

void Agreement::compareSets(HeadlessGrid const& session, std::vector<GridGroup> const& groups,
                            std::uint64_t id)
{
    // The control lists the own sets of objects and types; a project is neither.
    bool const isContext = reader.keyword(id) == "IFCPROJECT" || reader.keyword(id) == "IFCPROJECTLIBRARY";
    std::set<std::pair<ReferenceSet::Kind, std::string>> seen;
    for (ReferenceSet const& set : reader.sets(id)) {
        if (set.kind == ReferenceSet::Kind::Predefined || !set.name ||
            !seen.insert({set.kind, *set.name}).second)
            continue;
        SCOPED_TRACE("set #" + std::to_string(set.id) + " " + *set.name);
        auto const& definitions = session.definitions();
        auto const found =
            std::find_if(definitions.begin(), definitions.end(), [&set](auto const& definition) {
                return definition && definition->getName() == *set.name;
            });
        if (isContext && found == definitions.end()) {
            ++withoutPlace;
            continue;
        }
        ASSERT_NE(found, definitions.end());
        bool const isQuantitySet = (*found)->getType() == PropertySetDefinitionType::QuantitySet;
        // A set of quantities and one of properties share a name: the first of them, or the schema's, is
        // shown.
        if (isQuantitySet != (set.kind == ReferenceSet::Kind::Quantities)) {
            ++withoutPlace;
            continue;
        }
        char const* const kind = isQuantitySet ? "quantity set" : "property set";
        compareSet(**found, findGroup(groups, kind, *set.name), set);
    }
}

void Agreement::compareSet(PropertySetDefinition const& definition, GridGroup const* group,
                           ReferenceSet const& set)
{
    std::set<std::string> seen;
    for (ReferenceProperty const& property : set.properties) {
        if (!seen.insert(property.name).second)
            continue;
        SCOPED_TRACE("property #" + std::to_string(property.id) + " " + property.name);
        auto const& all = definition.getProperties();
        auto const shown = std::find_if(all.begin(), all.end(),
                                        [&](auto const& one) { return one->getName() == property.name; });
        if (shown == all.end()) {
            bool const isExpected = definition.getDefinition()
                                        ? isOffered(*definition.getDefinition(), property.name)
                                        : hasEntry(property);
            EXPECT_FALSE(isExpected) << "no row for " << expectedText(property).describe();
            ++withoutPlace;
            continue;
        }
        compareProperty(**shown, findRow(group, property.name), property);
    }
}

void Agreement::compareProperty(PropertyInterface const& shown, Row const* row,
                                ReferenceProperty const& property)
{
    if (!isComparable(property))
        return;
    if (!canShow(shown, property.kind)) {
        EXPECT_EQ(row, nullptr);
        ++withoutPlace;
        return;
    }
    ++valuesCompared;
    if (property.kind == Kind::Single) {
        if (property.values.empty())
            EXPECT_EQ(row, nullptr) << "a property without a value is not in use";
        else if (row)
            compareSingle(shown, *row, property.values.front());
        else
            ADD_FAILURE() << "no row for " << property.values.front().text;
        return;
    }
    ExpectedText const expected = expectedText(property);
    std::string const value = shown.getValue();
    EXPECT_TRUE(expected.matches(value)) << "shown: " << value << "\nin the file: " << expected.describe();
    // Bounded values and lists are edited in windows of their own and have no row.
    if (property.kind == Kind::Bounded || property.kind == Kind::List || expected.isEmpty()) {
        EXPECT_EQ(row, nullptr);
    } else {
        ASSERT_NE(row, nullptr);
        EXPECT_TRUE(expected.matches(row->record.value))
            << "shown: " << row->record.value << "\nin the file: " << expected.describe();
    }
}

void Agreement::compareAttributes(GridGroup const& group, std::uint64_t id)
{
    for (ReferenceAttribute const& attribute : reader.attributes(id)) {
        SCOPED_TRACE("attribute " + attribute.name);
        Row const* const row = findRow(&group, attribute.name);
        if (row)
            compareAttribute(*row, attribute);
        bool const isText = attribute.value && attribute.value->kind == StepArgument::Kind::Text;
        bool const isCommon = attribute.name == "GlobalId" || attribute.name == "Name" ||
                              attribute.name == "Description" || attribute.name == "ObjectType" ||
                              attribute.name == "Tag";
        if (isText && isCommon && !attribute.value->text.empty()) {
            EXPECT_NE(row, nullptr) << "no row for " << attribute.value->text;
        }
    }
}

void Agreement::compareAttribute(Row const& row, ReferenceAttribute const& attribute)
{
    if (attribute.written.kind == StepArgument::Kind::List)
        return;
    ++attributesCompared;
    if (!attribute.value) {
        // A row with a unit stands there in any case, and shows nought without a value.
        EXPECT_TRUE(row.record.value.empty() || row.record.number == 0.0) << row.record.value;
        return;
    }
    if (row.record.number) {
        ASSERT_TRUE(attribute.value->si());
        EXPECT_TRUE(isSameNumber(*row.record.number, *attribute.value->si()))
            << *row.record.number << " is not " << *attribute.value->si();
        return;
    }
    ExpectedText const expected = ExpectedText().add(*attribute.value);
    EXPECT_TRUE(expected.matches(row.record.value))
        << "shown: " << row.record.value << "\nin the file: " << expected.describe();
}

INSTANTIATE_TEST_SUITE_P(Samples, Agreement, testing::ValuesIn(wellFormedFiles()),
                         [](auto const& file) { return file.param.name; });

TEST_P(Agreement, OfEveryObjectWithTheReferenceReader)
{
    ASSERT_TRUE(opened.file);
    HeadlessGrid session(opened.file->data(), false);
    for (std::uint64_t const id : reader.objects()) {
        SCOPED_TRACE('#' + std::to_string(id) + " " + reader.keyword(id));
        std::vector<GridGroup> const groups = show(session, {id});
        compareSets(session, groups, id);
        for (GridGroup const& group : groups) {
            if (group.kind == "instance attributes")
                compareAttributes(group, id);
            else if (group.kind == "type attributes" && reader.typeOf(id))
                compareAttributes(group, *reader.typeOf(id));
        }
        reports.take('#' + std::to_string(id));
        release(session);
        if (HasFailure() && ++failedObjects > 100)
            break;
    }
    EXPECT_GT(attributesCompared, 0u);
    std::cout << "    " << reader.objects().size() << " objects, " << valuesCompared << " properties and "
              << attributesCompared << " attributes compared, " << withoutPlace
              << " without a place in the grid\n";
    reports.print();
}

} // namespace
