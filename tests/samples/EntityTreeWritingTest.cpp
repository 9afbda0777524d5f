#include "Core/DateTime/DateTimeFormat.h"
#include "EntityTreeTest.h"
#include "ExpectedText.h"
#include "FoundationClasses/Core/ProductExtension/FcElementQuantity.h"
#include "FoundationClasses/Resource/Measure/FcDerivedUnit.h"
#include "FoundationClasses/Resource/Measure/FcDerivedUnitElement.h"
#include "FoundationClasses/Resource/Measure/FcDimensionalExponents.h"
#include "FoundationClasses/Resource/Measure/FcMeasureWithUnit.h"
#include "FoundationClasses/Resource/Measure/FcNamedUnit.h"
#include "FoundationClasses/Resource/Quantity/FcPhysicalComplexQuantity.h"
#include "FoundationClasses/Resource/Quantity/FcPhysicalQuantity.h"
#include "kit/TemporaryFolder.h"
#include "RecordChanges.h"
#include "ReportRecorder.h"
#include "UI/FoundationClasses/PropertyInterface/FcPropertyWrapper.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyAccess.h"

#include <algorithm>
#include <cmath>
#include <iostream>
#include <limits>
#include <map>
#include <numbers>
#include <set>

namespace {

using namespace qev::test::samples;
using qev::fc::entityCast;
using qev::fc::EntityIndex;
using qev::fc::FcBase;
using qev::fc::isOfClass;
using qev::fc::core::productextension::FcElementQuantity;
using qev::fc::resource::quantity::FcPhysicalComplexQuantity;
using qev::fc::resource::quantity::FcPhysicalQuantity;
using qev::fc::ui::propertyinterface::FcPropertyWrapper;
using qev::fc::ui::propertyinterface::getValue;
using qev::ifc::IfcFile;
using qev::object::PropertyId;
using qev::object::PropertyValue;
using qev::test::takeReports;

/// All entities of a small file, and of a large one every n-th of each class, so that its edits take seconds.
std::size_t mostOfAClass(std::string const& file)
{
    constexpr std::size_t smallFile = 500'000;
    constexpr std::size_t mostOfALargeFile = 60;
    return file.size() < smallFile ? file.size() : mostOfALargeFile;
}

class EntityEdit : public EntityTreeTest
{
protected:
    EntityEdit()
        : before(qev::test::readFile(GetParam().path))
    {
    }

    void undoAll()
    {
        while (data().changes().canUndo())
            data().changes().undo();
    }

    void redoAll()
    {
        while (data().changes().canRedo())
            data().changes().redo();
    }

    std::string before;
};

INSTANTIATE_TEST_SUITE_P(Samples, EntityEdit, testing::ValuesIn(wellFormedFiles()),
                         [](auto const& file) { return file.param.name; });

/// "IfcWall.Tag"
std::string placeOf(FcBase const& owner, PropertyId const& localId)
{
    return std::string(owner.getEntityName()) + "." + localId.text();
}

/// The member of a set of quantities or of a complex quantity that answers to a name.
std::shared_ptr<FcBase> memberOf(std::shared_ptr<FcBase> const& owner, PropertyId const& localId)
{
    auto const find = [&localId](auto const& members) -> std::shared_ptr<FcBase> {
        auto const found = std::find_if(members.begin(), members.end(), [&localId](auto const& member) {
            return member && member->Name.get() == localId.text();
        });
        return found == members.end() ? nullptr : *found;
    };
    if (auto const set = entityCast<FcElementQuantity>(owner))
        return find(set->Quantities->get());
    if (auto const quantity = entityCast<FcPhysicalComplexQuantity>(owner))
        return find(quantity->HasQuantities->get());
    return nullptr;
}

// --- The own value ----------------------------------------------------------------------------------

/// Places whose value is written in another form than it is shown in: a point becomes spatial, the
/// coordinates of a placement are shown in the frame of its storey and written in that of the placement
/// around it, an address gets its list of lines, and the items of an enumeration become labels.
bool changesItsForm(std::string const& place)
{
    return place.starts_with("IfcCartesianPoint.") || place.starts_with("IfcLocalPlacement.") ||
           place.starts_with("IfcPostalAddress.Address") ||
           place == "IfcPropertyEnumeratedValue.EnumeratedValue";
}

TEST_P(EntityEdit, KeepsTheFileWhereALeafIsSetToItsOwnValue)
{
    ASSERT_TRUE(opened.file);
    std::map<std::string, std::size_t> changedForms;
    forSample(mostOfAClass(before), [&](Entity const& entity) {
        FcPropertyWrapper wrapper(opened.file->data(), entity);
        wrapper.setReadOnly(false);
        for (PropertyId const& path : wrapper.getAllProperties()) {
            auto const [owner, other, localId] = wrapper.getMappedProperty(path);
            if (!owner || wrapper.isPropertyReadOnly(path))
                continue;
            wrapper.setValue(path, wrapper.getValue(path));
            // What cannot be written is told by the tests of the classes.
            takeReports();
            if (!data().changes().canUndo())
                continue;
            ++changedForms[placeOf(*owner, localId)];
            undoAll();
            wrapper.clearCache();
        }
    });
    EXPECT_TRUE(opened.file->toText() == before);
    for (auto const& [place, count] : changedForms) {
        EXPECT_TRUE(changesItsForm(place)) << place;
        std::cout << "    " << count << " x changed: " << place << '\n';
    }
}

// --- Another value ----------------------------------------------------------------------------------

/// A value of the kind of \p value, of which it is no other form.
PropertyValue otherOfKind(PropertyValue const& value, PropertyId const& localId)
{
    using Kind = PropertyValue::Kind;
    auto const plain = value.getUnwrappedOptionalValue();
    switch (plain ? plain->kind() : value.kind()) {
    case Kind::Double:
        return plain->get<double>() + 1.0;
    case Kind::Integer:
        return std::get<int>(plain->variant()) + 1;
    case Kind::Boolean:
        return !std::get<bool>(plain->variant());
    case Kind::String:
        break;
    case Kind::OptionalDouble:
        return 1.5;
    case Kind::OptionalInteger:
        return 7;
    case Kind::OptionalBoolean:
        return true;
    case Kind::OptionalString:
        return "New \xC3\xA4'";
    default:
        return {};
    }
    std::string text = plain->get<std::string>();
    if (localId.text() == "GlobalId" && !text.empty()) {
        text.back() = text.back() == '0' ? '1' : '0';
        return text;
    }
    if (localId.text() == "CreationDate" || localId.text() == "LastModifiedDate")
        return qev::datetime::DateTimeFormat(2, 3).toString(
            std::chrono::sys_seconds(std::chrono::hours(300'000)));
    return text + " \xC3\xA4'";
}

/// Another value of the same kind; nothing where there is none to think of.
std::optional<PropertyValue> otherValue(FcPropertyWrapper const& wrapper, PropertyId const& path,
                                        PropertyId const& localId)
{
    auto const value = wrapper.getValue(path);
    if (value.kind() == PropertyValue::Kind::Nothing)
        return std::nullopt;
    auto const plain = value.getUnwrappedOptionalValue();
    PropertyValue other = otherOfKind(value, localId);
    auto const choices = wrapper.getEnumeratedValues(path);
    auto const choice = std::find_if(choices.begin(), choices.end(), [&plain](auto const& candidate) {
        return !plain || candidate.value.value_or(candidate.text).getUnwrappedOptionalValue() != plain;
    });
    // Only what can be chosen is taken.
    if (choice == choices.end() && !choices.empty())
        return std::nullopt;
    if (choice != choices.end())
        other = *choice->value.value_or(choice->text).getUnwrappedOptionalValue();
    // An optional stays one.
    return value == plain ? other : value.getWrappedOptionalValue(other);
}

/// Equal, numbers within the rounding of a conversion of units.
bool isSameValue(PropertyValue const& a, PropertyValue const& b)
{
    auto const plainA = a.getUnwrappedOptionalValue();
    auto const plainB = b.getUnwrappedOptionalValue();
    // An attribute that has to have a value is read as an optional one as long as it has none.
    if (!plainA || !plainB || !plainA->is<double>() || !plainB->is<double>())
        return plainA == plainB;
    double const numberA = plainA->get<double>();
    double const numberB = plainB->get<double>();
    // A number that comes from a sum or an angle is as exact as its parts.
    return isSameNumber(numberA, numberB) || std::abs(numberA - numberB) < 1e-9;
}

/// Units tell how the numbers of other records are to be read.
bool isUnit(FcBase const& entity)
{
    using namespace qev::fc::resource::measure;
    return isOfClass<FcNamedUnit>(entity) || isOfClass<FcDerivedUnit>(entity) ||
           isOfClass<FcDerivedUnitElement>(entity) || isOfClass<FcMeasureWithUnit>(entity) ||
           isOfClass<FcDimensionalExponents>(entity);
}

double numberOf(PropertyValue const& value)
{
    auto const plain = value.getUnwrappedOptionalValue();
    return plain ? plain->get<double>() : std::numeric_limits<double>::quiet_NaN();
}

constexpr double fullTurn = 2 * std::numbers::pi;

/// What is written in the frame of another placement than it is shown in.
bool isShownInAnotherFrame(FcBase const& owner)
{
    return std::string(owner.getEntityName()) == "IfcLocalPlacement";
}

/// These come with new points and directions.
bool makesRecords(std::string const& place)
{
    return place.starts_with("IfcLocalPlacement.") || place == "IfcGeometricRepresentationContext.TrueNorth";
}

/// One edit that the model took.
struct Edited
{
    std::shared_ptr<FcBase> owner;
    PropertyId localId;
    /// The entity whose record changes: the owner, or the member that it answers for.
    std::shared_ptr<FcBase> changed;
    PropertyValue before;
};

class OneRecord : public EntityEdit
{
protected:
    /// Sets one leaf of each place to another value, of units alone or of everything else.
    void edit(bool ofUnits);
    void editLeaf(FcPropertyWrapper& wrapper, PropertyId const& path);
    /// All that differs in the saved file are the records of the edits; each reads back as it is shown.
    void check();

    /// The changes that did not get into the file are told of when it is saved: older versions have numbers,
    /// items or records of their own where the model has a text, and every version has items of its own.
    void checkSaving();

    std::vector<Edited> edits;
    /// By the number of the record.
    std::map<std::uint64_t, std::set<std::string>> withoutPlace;

private:
    /// The entities of the model that an edit changed, without those that it made.
    std::set<EntityIndex> m_changed;
    std::map<std::string, int> m_done;
    std::set<std::pair<EntityIndex, PropertyId>> m_tried;
    bool m_areRecordsMade = false;
};

INSTANTIATE_TEST_SUITE_P(Samples, OneRecord, testing::ValuesIn(wellFormedFiles()),
                         [](auto const& file) { return file.param.name; });

void OneRecord::editLeaf(FcPropertyWrapper& wrapper, PropertyId const& path)
{
    constexpr int mostOfAPlace = 2;
    auto const [owner, other, localId] = wrapper.getMappedProperty(path);
    auto const member = memberOf(owner, localId);
    auto const value = wrapper.getValue(path);
    // The names of quantities are without number; what matters is their class.
    std::string const place = member ? std::string(member->getEntityName()) : placeOf(*owner, localId);
    int& done = m_done[place + '/' + std::to_string(static_cast<int>(value.kind()))];
    auto const newValue = done < mostOfAPlace ? otherValue(wrapper, path, localId) : std::nullopt;
    // A row stands in the trees of several entities.
    if (!newValue || !m_tried.insert({owner->getIndex(), localId}).second)
        return;
    m_changed.clear();
    auto const countBefore = data().entityCount();
    wrapper.setValue(path, *newValue);
    takeReports();
    if (m_changed.empty())
        return;
    ++done;
    SCOPED_TRACE(path.text() + ", " + place);
    Entity const changed = member ? member : owner;
    EXPECT_EQ(m_changed, std::set<EntityIndex>{changed->getIndex()}) << "other entities changed";
    if (data().entityCount() != countBefore) {
        EXPECT_TRUE(makesRecords(place));
        m_areRecordsMade = true;
    }
    auto const shown = wrapper.getValue(path);
    if (localId.text() == "TrueNorth")
        EXPECT_NEAR(std::remainder(numberOf(shown) - numberOf(*newValue), fullTurn), 0, 1e-9);
    else
        EXPECT_TRUE(isShownInAnotherFrame(*owner) || isSameValue(shown, *newValue))
            << testing::PrintToString(shown.variant()) << " is not "
            << testing::PrintToString(newValue->variant());
    edits.push_back({owner, localId, changed, value});
}

void OneRecord::edit(bool ofUnits)
{
    auto const countBefore = data().entityCount();
    data().changed.iHandlerAdd([this, countBefore](std::vector<EntityIndex> const& indices) {
        for (EntityIndex const index : indices) {
            if (index < countBefore)
                m_changed.insert(index);
        }
    });
    forSample(mostOfAClass(before), [&](Entity const& entity) {
        FcPropertyWrapper wrapper(opened.file->data(), entity);
        wrapper.setReadOnly(false);
        for (PropertyId const& path : wrapper.getAllProperties()) {
            auto const owner = std::get<Entity>(wrapper.getMappedProperty(path));
            if (owner && isUnit(*owner) == ofUnits && !wrapper.isPropertyReadOnly(path))
                editLeaf(wrapper, path);
        }
    });
}

void OneRecord::check()
{
    std::string const after = opened.file->toText();
    auto const again = IfcFile::fromText(after);
    ASSERT_TRUE(again.file);
    std::set<std::uint64_t> expected;
    for (Edited const& edited : edits) {
        auto const id = opened.file->idOf(edited.owner->getIndex());
        auto const place = placeOf(*edited.owner, edited.localId);
        SCOPED_TRACE('#' + std::to_string(id) + " " + place);
        auto const reread = again.file->entityFromId(id);
        ASSERT_TRUE(reread);
        auto const shown = getValue(data(), *edited.owner, edited.localId, std::nullopt);
        auto const found = getValue(*again.file->data(), *reread, edited.localId, std::nullopt);
        if (!isSameValue(shown, found) && isSameValue(found, edited.before)) {
            withoutPlace[id].insert(place);
            continue;
        }
        EXPECT_TRUE(isSameValue(shown, found));
        expected.insert(opened.file->idOf(edited.changed->getIndex()));
    }
    auto const changes = RecordChanges::between(before, after);
    EXPECT_EQ(changes.changed, expected);
    EXPECT_TRUE(changes.removed.empty());
    EXPECT_TRUE(changes.added.empty() || m_areRecordsMade);
    EXPECT_TRUE(changes.isRestSame);
    std::cout << "    " << edits.size() << " edits of " << expected.size() << " records, "
              << changes.added.size() << " new records\n";
}

void OneRecord::checkSaving()
{
    qev::test::TemporaryFolder const folder;
    auto const saved = opened.file->save(folder.path() / "saved.ifc");
    ASSERT_TRUE(saved.saved()) << saved.text;
    for (auto const& [id, places] : withoutPlace) {
        std::string const record = '#' + std::to_string(id);
        auto const told =
            std::count_if(saved.notStored.begin(), saved.notStored.end(),
                          [&](auto const& text) { return text.find(record + '.') != std::string::npos; });
        EXPECT_EQ(static_cast<std::size_t>(told), places.size()) << record << ' ' << *places.begin();
    }
    std::cout << "    " << saved.notStored.size() << " changes without a place in the file\n";
}

TEST_P(OneRecord, ChangesWhereALeafIsSetToAnotherValue)
{
    ASSERT_TRUE(opened.file);
    edit(false);
    check();
    undoAll();
    EXPECT_TRUE(opened.file->toText() == before);
    redoAll();
    checkSaving();
}

TEST_P(OneRecord, ChangesWhereAUnitIsSetToAnotherValue)
{
    ASSERT_TRUE(opened.file);
    edit(true);
    check();
    undoAll();
    EXPECT_TRUE(opened.file->toText() == before);
    redoAll();
    checkSaving();
}

} // namespace
