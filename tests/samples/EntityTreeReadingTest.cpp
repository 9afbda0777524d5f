#include "ComparisonTest.h"
#include "Core/DateTime/DateTimeFormat.h"
#include "Core/Localization/Localize.h"
#include "Core/Unit/QuantityPresentation.h"
#include "EntityTreeTest.h"
#include "ExpectedText.h"
#include "FoundationClasses/Resource/ExternalReference/FcClassificationReference.h"
#include "FoundationClasses/Resource/Measure/FcMeasureWithUnit.h"
#include "FoundationClasses/Resource/Measure/FcNamedUnit.h"
#include "FoundationClasses/Resource/Property/FcProperty.h"
#include "Object/Property.h"
#include "reference-reader/ReferenceReader.h"
#include "reference-reader/StepNumber.h"
#include "UI/FoundationClasses/PropertyInterface/FcPropertyWrapper.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyAccess.h"

#include <algorithm>
#include <iostream>
#include <map>
#include <set>

namespace {

using namespace qev::test::samples;
using namespace qev::test::reference;
using qev::fc::FcBase;
using qev::fc::resource::externalreference::FcClassificationReference;
using qev::fc::resource::measure::FcMeasureWithUnit;
using qev::fc::resource::measure::FcNamedUnit;
using qev::fc::resource::property::FcProperty;
using qev::fc::ui::propertyinterface::FcPropertyWrapper;
using qev::fc::ui::propertyinterface::getEnumeratedValues;
using qev::fc::ui::propertyinterface::getValue;
using qev::object::PropertyId;
using qev::object::PropertyValue;

// --- Everything answers -----------------------------------------------------------------------------

class EveryEntity : public EntityTreeTest
{
protected:
    /// Asks everything of every node; the answers have to be there, not to be right.
    void readAll(FcPropertyWrapper const& wrapper,
                 std::vector<std::shared_ptr<qev::fc::Property>> const& nodes,
                 std::set<PropertyId> const& leaves);
    void readLeaf(FcPropertyWrapper const& wrapper, PropertyId const& path);

    std::size_t nodeCount = 0;
};

// Broken files too: what could be opened of them has to answer.
INSTANTIATE_TEST_SUITE_P(Samples, EveryEntity, testing::ValuesIn(allFiles()),
                         [](auto const& file) { return file.param.name; });

void EveryEntity::readAll(FcPropertyWrapper const& wrapper,
                          std::vector<std::shared_ptr<qev::fc::Property>> const& nodes,
                          std::set<PropertyId> const& leaves)
{
    for (auto const& node : nodes) {
        PropertyId const& path = node->id;
        ++nodeCount;
        // Codes go by the name of their classification, which not every file gives.
        auto const owner = std::get<Entity>(wrapper.getMappedProperty(path));
        bool const isCode = qev::fc::entityCast<FcClassificationReference>(owner) != nullptr;
        bool const isNamed = isCode || GetParam().isMalformed;
        EXPECT_TRUE(isNamed || !wrapper.getPropertyName(path).empty()) << path.text();
        static_cast<void>(wrapper.getPropertyDescription(path));
        auto const reference = wrapper.getReference(path);
        if (auto const* const entity = std::get_if<std::shared_ptr<FcBase const>>(&reference)) {
            EXPECT_TRUE(*entity) << path.text();
        }
        if (leaves.contains(path))
            readLeaf(wrapper, path);
        readAll(wrapper, node->children, leaves);
    }
}

void EveryEntity::readLeaf(FcPropertyWrapper const& wrapper, PropertyId const& path)
{
    auto const value = wrapper.getValue(path);
    static_cast<void>(wrapper.isValueAllowed(path, value));
    auto const choices = wrapper.getEnumeratedValues(path);
    EXPECT_TRUE(choices.empty() || wrapper.hasEnumeratedValues(path)) << path.text();
    if (wrapper.createQuantityPresentation(path)) {
        EXPECT_TRUE(wrapper.hasQuantityPresentation(path)) << path.text();
    }
}

TEST_P(EveryEntity, ReadsAsATreeOfProperties)
{
    if (!opened.file) {
        EXPECT_TRUE(GetParam().isMalformed);
        return;
    }
    std::size_t entityCount = 0;
    forEachEntity([&](Entity const& entity) {
        FcPropertyWrapper const wrapper(opened.file->data(), entity);
        auto const leaves = wrapper.getAllProperties();
        readAll(wrapper, wrapper.getProperties(), leaves);
        ++entityCount;
    });
    EXPECT_GT(nodeCount, 0u);
    std::cout << "    " << entityCount << " entities, " << nodeCount << " nodes\n";
    reports.print();
}

// --- The answers are right --------------------------------------------------------------------------

class EntityAgreement : public EntityTreeTest
{
protected:
    EntityAgreement()
        : reader(ReferenceReader::fromFile(GetParam().path.string(), SCHEMA_DIRECTORY))
    {
    }

    void compareAttributes(FcBase const& entity);
    void compareAttribute(PropertyValue const& value, ReferenceAttribute const& attribute);
    void compareSet(ReferenceSet const& set);
    void compareProperty(ReferenceProperty const& property);
    /// Holds the value of one id against what stands in the file; nothing for what is unset there.
    void compareValue(PropertyValue const& value, ReferenceValue const* expected,
                      std::string const& expectedText);
    void compareValue(PropertyValue const& value, ReferenceValue const& expected);
    /// A list as it is shown, "(1.000000, 2.000000)".
    [[nodiscard]] ExpectedText textOfList(StepArgument const& list, UnitScale const& declared) const;
    /// The elements of a list or a table answer to their positions.
    void compareElements(FcBase const& property, std::vector<ReferenceValue> const& expected);

    [[nodiscard]] PropertyValue valueOf(FcBase const& entity, std::string const& id) const
    {
        return getValue(data(), entity, PropertyId(id), std::nullopt);
    }

    ReferenceReader reader;
    std::size_t attributesCompared = 0;
    std::size_t valuesCompared = 0;

private:
    /// The attributes that a class shows; the same for all of its entities.
    std::set<std::string> const& shownAttributes(FcBase const& entity);

    std::map<std::string, std::set<std::string>> m_shownAttributes;
    std::set<std::uint64_t> m_comparedProperties;
};

INSTANTIATE_TEST_SUITE_P(Samples, EntityAgreement, testing::ValuesIn(wellFormedFiles()),
                         [](auto const& file) { return file.param.name; });

std::set<std::string> const& EntityAgreement::shownAttributes(FcBase const& entity)
{
    auto const [position, isNew] = m_shownAttributes.try_emplace(entity.getEntityName());
    if (isNew) {
        for (auto const& attribute : entity.getLocalProperties())
            position->second.insert(attribute->id.text());
    }
    return position->second;
}

/// The word of a logical, as it is shown.
std::string logicalText(std::string const& item)
{
    char const* const key = item == "T"   ? "LogicalValue_True"
                            : item == "F" ? "LogicalValue_False"
                                          : "LogicalValue_Unknown";
    return qev::localize(key, "FoundationClassesUi");
}

/// A point of time is written as such; a logical as a word; all else as it stands in the file.
std::string textOfAttribute(ReferenceValue const& value)
{
    if (value.type == "IFCTIMESTAMP") {
        auto const seconds = std::chrono::seconds(static_cast<std::int64_t>(*value.number));
        return qev::datetime::DateTimeFormat(2, 3).toString(std::chrono::sys_seconds(seconds));
    }
    return value.type == "IFCLOGICAL" || value.type == "LOGICAL" ? logicalText(value.text) : value.text;
}

/// Logicals of properties are chosen by their words, which no language changes.
std::string textOfProperty(ReferenceValue const& value)
{
    if (value.kind != StepArgument::Kind::Enumeration)
        return value.text;
    return value.text == "T"   ? "true"
           : value.text == "F" ? "false"
           : value.text == "U" ? "unknown"
                               : value.text;
}

void EntityAgreement::compareValue(PropertyValue const& value, ReferenceValue const& expected)
{
    compareValue(value, &expected, textOfProperty(expected));
}

void EntityAgreement::compareValue(PropertyValue const& value, ReferenceValue const* expected,
                                   std::string const& expectedText)
{
    auto const plain = value.getUnwrappedOptionalValue();
    bool const isUnset = !plain || plain->kind() == PropertyValue::Kind::Nothing;
    ASSERT_EQ(isUnset, expected == nullptr) << (expected ? expected->text : "unset in the file");
    if (isUnset)
        return;
    switch (plain->kind()) {
    case PropertyValue::Kind::Double:
        ASSERT_TRUE(expected->si()) << expected->text;
        EXPECT_TRUE(isSameNumber(plain->get<double>(), *expected->si()))
            << plain->get<double>() << " is not " << *expected->si();
        break;
    case PropertyValue::Kind::Integer:
        EXPECT_EQ(std::get<int>(plain->variant()), expected->number);
        break;
    case PropertyValue::Kind::Boolean:
        EXPECT_EQ(std::get<bool>(plain->variant()), expected->text == "T");
        break;
    default:
        EXPECT_EQ(plain->get<std::string>(), expectedText);
    }
}

ExpectedText EntityAgreement::textOfList(StepArgument const& list, UnitScale const& declared) const
{
    ExpectedText text;
    text.add("(");
    for (std::size_t i = 0; i < list.items.size(); ++i) {
        bool const isTyped = list.items[i].kind == StepArgument::Kind::Typed && !list.items[i].items.empty();
        StepArgument const& item = isTyped ? list.items[i].items.front() : list.items[i];
        UnitScale const scale = isTyped ? reader.units().ofMeasure(list.items[i].text) : declared;
        text.add(i == 0 ? "" : ", ");
        if (item.kind == StepArgument::Kind::List)
            text.add(textOfList(item, scale));
        else if (auto const number = numberOf(item))
            text.add(*number * scale.factor + scale.offset);
        else
            text.add(item.text);
    }
    return text.add(")");
}

/// Degrees, minutes, seconds and millionths of a second as degrees.
double degreesOf(StepArgument const& list)
{
    double angle = 0;
    double unit = 1;
    for (std::size_t i = 0; i < list.items.size(); ++i) {
        angle += numberOf(list.items[i]).value_or(0) * unit;
        unit /= i < 2 ? 60 : 1e6;
    }
    return angle;
}

/// What the model has in another form than the file: records of older versions that became plain values, and
/// what the version of the model computes.
bool hasOtherForm(ReferenceAttribute const& attribute)
{
    using Kind = StepArgument::Kind;
    return attribute.written.kind == Kind::Reference || attribute.written.kind == Kind::Derived;
}

/// An item that the version of the model does not have.
bool isUnknownItem(FcBase const& entity, ReferenceAttribute const& attribute)
{
    if (!attribute.value || attribute.value->kind != StepArgument::Kind::Enumeration)
        return false;
    auto const items = getEnumeratedValues(entity, PropertyId(attribute.name));
    return !items.empty() && std::none_of(items.begin(), items.end(), [&attribute](auto const& item) {
        return item.text == attribute.value->text;
    });
}

/// The factor of a unit that is given as a measure of another kind than its unit: a length in radians. The
/// two readings differ in whose unit counts.
bool isOfForeignUnit(FcBase const& entity, ReferenceAttribute const& attribute)
{
    auto const* const factor = dynamic_cast<FcMeasureWithUnit const*>(&entity);
    if (!factor || !attribute.value)
        return false;
    auto const unit = qev::fc::entityCast<FcNamedUnit>(factor->UnitComponent->entity());
    bool const isLengthUnit = unit && unit->getAttributeAsString("UnitType") == "LENGTHUNIT";
    std::string const& measure = attribute.value->type;
    return measure == "IFCRATIOMEASURE" || (measure == "IFCLENGTHMEASURE" && !isLengthUnit);
}

void EntityAgreement::compareAttribute(PropertyValue const& value, ReferenceAttribute const& attribute)
{
    ++attributesCompared;
    if (attribute.written.kind != StepArgument::Kind::List) {
        if (attribute.value)
            compareValue(value, &*attribute.value, textOfAttribute(*attribute.value));
        else
            compareValue(value, nullptr, {});
        return;
    }
    auto const plain = value.getUnwrappedOptionalValue();
    ASSERT_TRUE(plain);
    if (plain->is<double>()) {
        EXPECT_NEAR(plain->get<double>(), degreesOf(attribute.written), 1e-9);
        return;
    }
    auto const expected = textOfList(attribute.written, attribute.itemScale);
    ASSERT_TRUE(plain->is<std::string>()) << "not " << expected.describe();
    EXPECT_TRUE(expected.matches(plain->get<std::string>()))
        << plain->get<std::string>() << " is not " << expected.describe();
}

void EntityAgreement::compareAttributes(FcBase const& entity)
{
    // A property is one row and answers for its value, not for its attributes.
    if (qev::fc::isOfClass<FcProperty>(entity))
        return;
    auto const& shown = shownAttributes(entity);
    for (ReferenceAttribute const& attribute : reader.attributes(opened.file->idOf(entity.getIndex()))) {
        if (!shown.contains(attribute.name) || hasOtherForm(attribute) || isUnknownItem(entity, attribute) ||
            isOfForeignUnit(entity, attribute))
            continue;
        SCOPED_TRACE(attribute.name);
        compareAttribute(valueOf(entity, attribute.name), attribute);
    }
}

void EntityAgreement::compareElements(FcBase const& property, std::vector<ReferenceValue> const& expected)
{
    for (std::size_t i = 0; i < expected.size(); ++i) {
        SCOPED_TRACE(i);
        compareValue(valueOf(property, std::to_string(i)), expected[i]);
        ++valuesCompared;
    }
}

void EntityAgreement::compareProperty(ReferenceProperty const& property)
{
    using Kind = ReferenceProperty::Kind;
    auto const entity = opened.file->entityFromId(property.id);
    if (!entity || !isComparable(property) || !m_comparedProperties.insert(property.id).second)
        return;
    SCOPED_TRACE("property #" + std::to_string(property.id) + " " + property.name);
    switch (property.kind) {
    case Kind::Single:
        // A measure is shown as a number, also where it is a text.
        if (property.values.empty() || property.values.front().type == "IFCDESCRIPTIVEMEASURE")
            compareValue(valueOf(*entity, "Name"), nullptr, {});
        else
            compareValue(valueOf(*entity, "Name"), property.values.front());
        ++valuesCompared;
        break;
    case Kind::Enumerated: {
        // A cell without values is not empty, so that it can be chosen from.
        ExpectedText text;
        text.add(property.values.empty() ? " " : "");
        for (std::size_t i = 0; i < property.values.size(); ++i)
            text.add(i == 0 ? "" : ", ").add(property.values[i].text);
        auto const shown = valueOf(*entity, "EnumeratedValue").get<std::string>();
        EXPECT_TRUE(text.matches(shown)) << shown << " is not " << text.describe();
        ++valuesCompared;
        break;
    }
    case Kind::List:
        compareElements(*entity, property.values);
        break;
    case Kind::Table:
        if (property.values.size() == property.definedValues.size())
            compareElements(*entity, property.definedValues);
        break;
    case Kind::Complex:
        for (ReferenceProperty const& part : property.parts)
            compareProperty(part);
        break;
    default:
        break;
    }
}

void EntityAgreement::compareSet(ReferenceSet const& set)
{
    auto const entity = opened.file->entityFromId(set.id);
    if (!entity || set.kind == ReferenceSet::Kind::Predefined)
        return;
    SCOPED_TRACE("set #" + std::to_string(set.id));
    std::set<std::string> names;
    for (ReferenceProperty const& property : set.properties) {
        if (set.kind == ReferenceSet::Kind::Properties) {
            compareProperty(property);
            continue;
        }
        // The set answers for its quantities by their names: the first of that name.
        bool const isSimple = property.kind != ReferenceProperty::Kind::ComplexQuantity &&
                              property.kind != ReferenceProperty::Kind::Other;
        if (!names.insert(property.name).second || !isSimple)
            continue;
        SCOPED_TRACE(property.name);
        compareValue(valueOf(*entity, property.name), property.values.front());
        ++valuesCompared;
    }
}

TEST_P(EntityAgreement, OfAttributesWithTheReferenceReader)
{
    ASSERT_TRUE(opened.file);
    forEachEntity([this](Entity const& entity) { compareAttributes(*entity); });
    EXPECT_GT(attributesCompared, 0u);
    std::cout << "    " << attributesCompared << " attributes compared\n";
}

TEST_P(EntityAgreement, OfPropertiesAndQuantitiesWithTheReferenceReader)
{
    ASSERT_TRUE(opened.file);
    std::set<std::uint64_t> sets;
    for (std::uint64_t const object : reader.objects()) {
        for (ReferenceSet const& set : reader.sets(object)) {
            if (sets.insert(set.id).second)
                compareSet(set);
        }
        reports.take('#' + std::to_string(object));
    }
    std::cout << "    " << valuesCompared << " values compared\n";
}

} // namespace
