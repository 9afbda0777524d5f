#include "EditTarget.h"

#include "UI/FoundationClasses/Property/Types/FcPropertyBooleanType.h"
#include "UI/FoundationClasses/Property/Types/FcPropertyEnumeratedValue.h"
#include "UI/FoundationClasses/Property/Types/FcPropertySingleValue.h"
#include "UI/FoundationClasses/Quantity/FcQuantityArea.h"
#include "UI/FoundationClasses/Quantity/FcQuantityCount.h"
#include "UI/FoundationClasses/Quantity/FcQuantityLength.h"
#include "UI/FoundationClasses/Quantity/FcQuantityTime.h"
#include "UI/FoundationClasses/Quantity/FcQuantityVolume.h"
#include "UI/FoundationClasses/Quantity/FcQuantityWeight.h"

#include <algorithm>
#include <sstream>

namespace qev::test::samples {

using application::GridGroup;
using application::HeadlessGrid;
using fc::ui::PropertyInterface;
using reference::ReferenceProperty;
using reference::ReferenceReader;
using reference::ReferenceSet;
using reference::ReferenceValue;
using reference::StepArgument;
using Kind = EditTarget::Kind;
using Row = GridGroup::Row;

namespace {

constexpr char changedLabel[] = "Changed; (in the 'grid'), \xC3\xA4\xC3\xB6";

template <class T>
bool isA(PropertyInterface const* shown)
{
    return dynamic_cast<T const*>(shown) != nullptr;
}

std::optional<Kind> kindOfQuantity(PropertyInterface const* shown)
{
    if (isA<fc::ui::FcQuantityLength>(shown))
        return Kind::Length;
    if (isA<fc::ui::FcQuantityArea>(shown))
        return Kind::Area;
    if (isA<fc::ui::FcQuantityVolume>(shown))
        return Kind::Volume;
    if (isA<fc::ui::FcQuantityCount>(shown))
        return Kind::Count;
    if (isA<fc::ui::FcQuantityWeight>(shown))
        return Kind::Weight;
    if (isA<fc::ui::FcQuantityTime>(shown))
        return Kind::Time;
    return std::nullopt;
}

/// What a row is for, as the grid has it.
std::optional<Kind> kindOf(Row const& row)
{
    auto const* const shown = static_cast<PropertyInterface const*>(row.row->getUserData());
    if (auto const quantity = kindOfQuantity(shown))
        return row.record.editor == "text" ? quantity : std::nullopt;
    if (isA<fc::ui::FcPropertyEnumeratedValue>(shown))
        return Kind::Enumeration;
    if (isA<fc::ui::FcPropertyBooleanType>(shown))
        return row.record.editor == "check box" ? std::optional(Kind::Boolean) : std::nullopt;
    if (!isA<fc::ui::FcPropertySingleValue>(shown))
        return std::nullopt;
    if (row.record.editor == "choice")
        return Kind::Logical;
    if (row.record.editor == "number")
        return Kind::Number;
    return row.record.editor == "text" ? std::optional(Kind::Label) : std::nullopt;
}

/// What a property is, as the file has it; nothing for those that the grid does not change.
std::optional<Kind> kindOf(ReferenceProperty const& property)
{
    if (property.values.size() != 1)
        return std::nullopt;
    ReferenceValue const& value = property.values.front();
    switch (property.kind) {
    case ReferenceProperty::Kind::Single:
        if (value.number)
            return Kind::Number;
        if (value.type == "IFCBOOLEAN")
            return Kind::Boolean;
        if (value.type == "IFCLOGICAL")
            return Kind::Logical;
        return value.type == "IFCLABEL" && !value.text.empty() ? std::optional(Kind::Label) : std::nullopt;
    case ReferenceProperty::Kind::Enumerated:
        // The values of other enumerations stay as they are.
        return value.type == "IFCLABEL" ? std::optional(Kind::Enumeration) : std::nullopt;
    case ReferenceProperty::Kind::Length:
        return Kind::Length;
    case ReferenceProperty::Kind::Area:
        return Kind::Area;
    case ReferenceProperty::Kind::Volume:
        return Kind::Volume;
    case ReferenceProperty::Kind::Count:
        return Kind::Count;
    case ReferenceProperty::Kind::Weight:
        return Kind::Weight;
    case ReferenceProperty::Kind::Time:
        return Kind::Time;
    default:
        return std::nullopt;
    }
}

/// Numbers without a unit are typed as text.
bool isRowOf(std::optional<Kind> row, Kind inFile)
{
    return row == inFile || (row == Kind::Label && inFile == Kind::Number);
}

/// A text for a row that is not \p present.
std::string otherText(Row const& row, Kind kind, std::string const& present, std::optional<double> number)
{
    switch (kind) {
    case Kind::Label:
        return present == changedLabel ? "Changed" : changedLabel;
    case Kind::Boolean:
    case Kind::Logical:
        return present == "T" ? "false" : "true";
    case Kind::Enumeration: {
        auto const& choices = row.record.choices;
        auto const found = std::find_if(choices.begin(), choices.end(), [&](std::string const& choice) {
            return !choice.empty() && choice != present && choice != row.record.value;
        });
        return found == choices.end() ? std::string() : *found;
    }
    default:
        return number == 7.0 ? "8" : "7";
    }
}

GridGroup const* findGroup(std::vector<GridGroup> const& groups, ReferenceSet const& set)
{
    bool const isQuantitySet = set.kind == ReferenceSet::Kind::Quantities;
    auto const found = std::find_if(groups.begin(), groups.end(), [&](GridGroup const& group) {
        return group.name == set.name && group.kind == (isQuantitySet ? "quantity set" : "property set");
    });
    return found == groups.end() ? nullptr : &*found;
}

std::optional<EditTarget> targetOf(GridGroup const& group, ReferenceSet const& set,
                                   ReferenceProperty const& property, std::uint64_t object)
{
    auto const kind = kindOf(property);
    auto const row = std::find_if(group.rows.begin(), group.rows.end(),
                                  [&](Row const& candidate) { return candidate.name == property.name; });
    if (row == group.rows.end() || !isRowOf(kindOf(*row), *kind))
        return std::nullopt;
    ReferenceValue const& value = property.values.front();
    std::string newText = otherText(*row, *kind, value.text, value.si());
    if (newText.empty())
        return std::nullopt;
    return EditTarget{*kind, object, *set.name, property.name, set.id, property.id, std::move(newText)};
}

} // namespace

std::string EditTarget::describe() const
{
    return '#' + std::to_string(object) + " " + setName + "." + propertyName + " becomes " + newText;
}

std::optional<Row> findRow(HeadlessGrid const& session, EditTarget const& target)
{
    for (GridGroup const& group : session.groups()) {
        if (group.kind != (target.isQuantity() ? "quantity set" : "property set") ||
            group.name != target.setName)
            continue;
        for (Row const& row : group.rows) {
            if (row.name == target.propertyName)
                return row;
        }
    }
    return std::nullopt;
}

std::vector<EditTarget> findTargets(HeadlessGrid& session, ReferenceReader const& reader,
                                    std::shared_ptr<fc::FcBase> const& entity, std::uint64_t object,
                                    std::set<Kind> const& done)
{
    std::vector<EditTarget> targets;
    auto found = done;
    std::optional<std::vector<GridGroup>> groups;
    std::set<std::string> names;
    for (ReferenceSet const& set : reader.sets(object)) {
        // Of sets with one name the first counts, and so for the properties in it.
        if (!set.name || !names.insert(*set.name).second)
            continue;
        std::set<std::string> propertyNames;
        for (ReferenceProperty const& property : set.properties) {
            auto const kind = kindOf(property);
            if (!propertyNames.insert(property.name).second || !kind || found.contains(*kind))
                continue;
            if (!groups) {
                session.show({entity});
                groups = session.groups();
            }
            auto const* const group = findGroup(*groups, set);
            auto target = group ? targetOf(*group, set, property, object) : std::nullopt;
            if (!target)
                continue;
            targets.push_back(*std::move(target));
            found.insert(*kind);
            break;
        }
    }
    return targets;
}

std::vector<EditTarget> findMissing(HeadlessGrid const& session, ReferenceReader const& reader,
                                    std::uint64_t object, std::set<Kind> const& done)
{
    std::set<std::string> present;
    for (ReferenceSet const& set : reader.sets(object))
        present.insert(set.name.value_or(""));
    std::vector<EditTarget> targets;
    auto found = done;
    for (GridGroup const& group : session.groups()) {
        bool const isSet = group.kind == "property set" || group.kind == "quantity set";
        if (!isSet || present.contains(group.name))
            continue;
        for (Row const& row : group.rows) {
            auto const kind = kindOf(row);
            if (!kind || found.contains(*kind))
                continue;
            // Rows of any text take a digit, those of whole numbers included.
            std::string newText = *kind == Kind::Label ? "7" : otherText(row, *kind, {}, {});
            if (newText.empty())
                continue;
            targets.push_back({*kind, object, group.name, row.name, 0, 0, std::move(newText)});
            found.insert(*kind);
            break;
        }
    }
    return targets;
}

std::string describe(HeadlessGrid const& session)
{
    std::ostringstream text;
    for (GridGroup const& group : session.groups()) {
        text << group.kind << ' ' << group.name << '\n';
        for (Row const& row : group.rows) {
            text << "  " << row.name << ": " << row.record.value;
            if (row.record.checked)
                text << (*row.record.checked == ui::CheckState::Checked ? "[x]" : "[ ]");
            text << '\n';
        }
    }
    return text.str();
}

} // namespace qev::test::samples
