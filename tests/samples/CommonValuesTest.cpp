#include "ComparisonTest.h"
#include "Core/Unit/QuantityPresentation.h"
#include "ExpectedText.h"
#include "UI/FoundationClasses/Property/Types/FcPropertySingleValue.h"
#include "UI/FoundationClasses/Set/PropertySetDefinition.h"

#include <algorithm>
#include <iostream>
#include <map>
#include <set>

namespace {

using namespace qev::test::samples;
using namespace qev::test::reference;
using namespace qev::fc::ui;
using qev::application::GridGroup;
using qev::application::HeadlessGrid;
using Kind = ReferenceProperty::Kind;

/// Objects that are shown together.
using Selection = std::vector<std::uint64_t>;
/// The sets of each of them, as the file has them.
using SetsOfAll = std::vector<std::vector<ReferenceSet>>;

/// What a row should show for several objects.
struct CommonProperty
{
    /// The property of the first object, when all of them have the same; null when a row has nothing to show.
    ReferenceProperty const* property = nullptr;
    /// Two values are too near to each other to tell whether their texts are the same.
    bool isUnclear = false;
};

/// Tells whether two values are equal; nothing where that depends on more than what is compared.
std::optional<bool> isSameValue(ReferenceValue const& a, ReferenceValue const& b)
{
    if (a.type != b.type || a.kind != b.kind)
        return std::nullopt;
    if (!a.number)
        return a.text == b.text;
    if (*a.number == *b.number && a.scale == b.scale)
        return true;
    return isSameNumber(*a.si(), *b.si()) ? std::nullopt : std::optional(false);
}

std::optional<bool> isSameProperty(ReferenceProperty const& a, ReferenceProperty const& b)
{
    if (a.kind != Kind::Single)
        return expectedText(a).isSame(expectedText(b));
    if (a.values.empty() || b.values.empty())
        return a.values.empty() == b.values.empty();
    return isSameValue(a.values.front(), b.values.front());
}

ReferenceProperty const* findProperty(std::vector<ReferenceSet> const& sets, ReferenceSet::Kind kind,
                                      std::string const& setName, std::string const& name)
{
    auto const set = std::find_if(sets.begin(), sets.end(), [&](ReferenceSet const& candidate) {
        return candidate.kind == kind && candidate.name == setName;
    });
    if (set == sets.end())
        return nullptr;
    auto const found =
        std::find_if(set->properties.begin(), set->properties.end(),
                     [&](ReferenceProperty const& candidate) { return candidate.name == name; });
    return found == set->properties.end() ? nullptr : &*found;
}

ReferenceSet::Kind kindOf(PropertySetDefinition const& definition)
{
    return definition.getType() == PropertySetDefinitionType::QuantitySet ? ReferenceSet::Kind::Quantities
                                                                          : ReferenceSet::Kind::Properties;
}

CommonProperty findCommon(SetsOfAll const& sets, PropertySetDefinition const& definition,
                          PropertyInterface const& shown)
{
    CommonProperty common;
    for (auto const& setsOfObject : sets) {
        auto const* const property =
            findProperty(setsOfObject, kindOf(definition), definition.getName(), shown.getName());
        if (!property || !canShow(shown, property->kind))
            return {};
        auto const isSame = common.property ? isSameProperty(*common.property, *property) : true;
        if (isSame == false)
            return {};
        common.isUnclear = common.isUnclear || !isSame || !isComparable(*property);
        if (!common.property)
            common.property = property;
    }
    return common;
}

/// Not more than \p most of them, evenly spread.
template <class T>
std::vector<T> sampleOf(std::vector<T> const& all, std::size_t most)
{
    std::size_t const step = (all.size() + most - 1) / most;
    std::vector<T> sample;
    for (std::size_t i = 0; i < all.size(); i += step)
        sample.push_back(all[i]);
    return sample;
}

class CommonValues : public ComparisonTest
{
protected:
    /// The objects of each class in the order of the file, twenty at a time.
    [[nodiscard]] std::vector<Selection> twentyOfEachClass() const;
    [[nodiscard]] std::vector<Selection> eachAlone() const;

    void compareAll(std::vector<Selection> const& selections, bool showUnused);
    void compare(HeadlessGrid const& session, std::vector<GridGroup> const& groups, Selection const& objects);
    void compareSetNames(HeadlessGrid const& session, SetsOfAll const& sets, bool hasContext);
    void compareProperty(PropertyInterface const& shown, Row const* row, CommonProperty const& common);
    void compareText(PropertyInterface const& shown, Row const* row, ReferenceProperty const& property);
    void expectEmpty(PropertyInterface const& shown, Row const* row);

    bool showsUnused = false;
    std::size_t valuesCompared = 0;
    std::size_t emptyCompared = 0;
    std::size_t unclear = 0;
};

std::vector<Selection> CommonValues::twentyOfEachClass() const
{
    constexpr std::size_t twenty = 20;
    std::map<std::string, std::vector<Selection>> ofClass;
    for (std::uint64_t const id : reader.objects()) {
        auto& selections = ofClass[reader.keyword(id)];
        if (selections.empty() || selections.back().size() == twenty)
            selections.emplace_back();
        selections.back().push_back(id);
    }
    std::vector<Selection> all;
    for (auto const& [keyword, selections] : ofClass)
        all.insert(all.end(), selections.begin(), selections.end());
    return all;
}

std::vector<Selection> CommonValues::eachAlone() const
{
    std::vector<Selection> all;
    for (std::uint64_t const id : reader.objects())
        all.push_back({id});
    return all;
}

void CommonValues::compareAll(std::vector<Selection> const& selections, bool showUnused)
{
    ASSERT_TRUE(opened.file);
    showsUnused = showUnused;
    HeadlessGrid session(opened.file->data(), showUnused);
    for (Selection const& selection : selections) {
        SCOPED_TRACE('#' + std::to_string(selection.front()) + " " + reader.keyword(selection.front()) +
                     ", " + std::to_string(selection.size()) + " objects");
        std::vector<GridGroup> const groups = show(session, selection);
        compare(session, groups, selection);
        reports.take('#' + std::to_string(selection.front()));
        release(session);
        if (HasFailure())
            break;
    }
    std::cout << "    " << selections.size() << " selections, " << valuesCompared << " values and "
              << emptyCompared << " rows without one compared, " << unclear << " unclear\n";
    reports.print();
}

void CommonValues::compare(HeadlessGrid const& session, std::vector<GridGroup> const& groups,
                           Selection const& objects)
{
    SetsOfAll sets;
    bool hasContext = false;
    for (std::uint64_t const id : objects) {
        sets.push_back(reader.sets(id));
        hasContext =
            hasContext || reader.keyword(id) == "IFCPROJECT" || reader.keyword(id) == "IFCPROJECTLIBRARY";
    }
    compareSetNames(session, sets, hasContext);
    for (auto const& definition : session.definitions()) {
        if (!definition)
            continue;
        SCOPED_TRACE("set " + definition->getName());
        bool const isQuantitySet = kindOf(*definition) == ReferenceSet::Kind::Quantities;
        GridGroup const* const group =
            findGroup(groups, isQuantitySet ? "quantity set" : "property set", definition->getName());
        EXPECT_TRUE(group || !showsUnused);
        for (auto const& shown : definition->getProperties()) {
            SCOPED_TRACE("property " + shown->getName());
            compareProperty(*shown, findRow(group, shown->getName()), findCommon(sets, *definition, *shown));
        }
    }
}

void CommonValues::compareSetNames(HeadlessGrid const& session, SetsOfAll const& sets, bool hasContext)
{
    std::map<std::string, std::size_t> counts;
    for (auto const& setsOfObject : sets) {
        std::set<std::string> names;
        for (ReferenceSet const& set : setsOfObject) {
            if (set.name)
                names.insert(*set.name);
        }
        for (std::string const& name : names)
            ++counts[name];
    }
    std::set<std::string> shownNames;
    for (auto const& definition : session.definitions()) {
        if (!definition)
            continue;
        shownNames.insert(definition->getName());
        if (!definition->getDefinition()) {
            EXPECT_EQ(counts[definition->getName()], sets.size())
                << "a set that the schema does not have, " << definition->getName();
        }
    }
    // The control lists the own sets of objects and types; a project is neither.
    if (hasContext)
        return;
    std::set<std::string> predefined;
    for (ReferenceSet const& set : sets.front()) {
        if (set.kind == ReferenceSet::Kind::Predefined && set.name)
            predefined.insert(*set.name);
    }
    for (auto const& [name, count] : counts) {
        if (count == sets.size() && !predefined.contains(name)) {
            EXPECT_TRUE(shownNames.contains(name)) << "all have the set " << name;
        }
    }
}

void CommonValues::compareProperty(PropertyInterface const& shown, Row const* row,
                                   CommonProperty const& common)
{
    if (common.isUnclear) {
        ++unclear;
        return;
    }
    bool const isSingle = common.property && common.property->kind == Kind::Single;
    if (!common.property || (isSingle && common.property->values.empty())) {
        expectEmpty(shown, row);
        return;
    }
    ++valuesCompared;
    if (!isSingle)
        compareText(shown, row, *common.property);
    else if (row)
        compareSingle(shown, *row, common.property->values.front());
    else
        ADD_FAILURE() << "no row for " << common.property->values.front().text;
}

void CommonValues::compareText(PropertyInterface const& shown, Row const* row,
                               ReferenceProperty const& property)
{
    ExpectedText const expected = expectedText(property);
    std::string const value = shown.getValue();
    EXPECT_TRUE(expected.matches(value)) << "shown: " << value << "\nin the file: " << expected.describe();
    // Bounded values and lists are edited in windows of their own and have no row.
    bool const hasRow =
        property.kind != Kind::Bounded && property.kind != Kind::List && (showsUnused || !expected.isEmpty());
    ASSERT_EQ(row != nullptr, hasRow);
    if (row) {
        EXPECT_TRUE(expected.matches(row->record.value))
            << "shown: " << row->record.value << "\nin the file: " << expected.describe();
    }
}

void CommonValues::expectEmpty(PropertyInterface const& shown, Row const* row)
{
    ++emptyCompared;
    auto const* const single = dynamic_cast<FcPropertySingleValue const*>(&shown);
    // A number with a unit shows nought for no value.
    if (!single || !single->quantityPresentation()) {
        EXPECT_EQ(shown.getValue(), "");
    }
    bool const hasRow = showsUnused && !canShow(shown, Kind::Bounded) && !canShow(shown, Kind::List);
    ASSERT_EQ(row != nullptr, hasRow);
    if (!row)
        return;
    EXPECT_TRUE(row->record.value.empty() || row->record.number == 0.0) << row->record.value;
    EXPECT_NE(row->record.checked, qev::ui::CheckState::Checked);
}

INSTANTIATE_TEST_SUITE_P(Samples, CommonValues, testing::ValuesIn(wellFormedFiles()),
                         [](auto const& file) { return file.param.name; });

// Every object with its used properties is the matter of another test. Unused properties make long grids:
// of the objects of a large file, two hundred are shown with them, evenly spread over the file.
TEST_P(CommonValues, OfEachObjectAloneWithUnusedProperties)
{
    constexpr std::size_t most = 200;
    compareAll(sampleOf(eachAlone(), most), true);
}

TEST_P(CommonValues, OfTwentyObjectsOfAClassAreThoseThatAllAgreeOn)
{
    // A set that only objects have is made from the first of them, and the others are not asked.
    reports.add("Not implemented: Need to merge with existing values.");
    compareAll(twentyOfEachClass(), false);
}

// Of the objects of a large file, one thousand are shown in this way.
TEST_P(CommonValues, OfTwentyObjectsOfAClassWithUnusedProperties)
{
    reports.add("Not implemented: Need to merge with existing values.");
    constexpr std::size_t most = 50;
    compareAll(sampleOf(twentyOfEachClass(), most), true);
}

} // namespace
