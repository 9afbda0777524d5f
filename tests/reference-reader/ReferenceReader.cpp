#include "reference-reader/ReferenceReader.h"

#include "reference-reader/StepNumber.h"

#include <utility>

namespace qev::test::reference {
namespace {

using Kind = ReferenceProperty::Kind;

// The positions of arguments, which all versions of the standard share.
constexpr std::size_t globalIdAt = 0;
constexpr std::size_t nameAt = 2;
constexpr std::size_t relatedAt = 4;
constexpr std::size_t relatingAt = 5;
constexpr std::size_t setsOfTypeAt = 5;
constexpr std::size_t propertiesAt = 4;
constexpr std::size_t quantitiesAt = 5;
constexpr std::size_t unitOfQuantityAt = 2;
constexpr std::size_t unitOfMeasureAt = 1;

constexpr int deepest = 50;

Kind kindOf(std::string const& keyword)
{
    static std::map<std::string, Kind> const kinds = {{"IFCPROPERTYSINGLEVALUE", Kind::Single},
                                                      {"IFCPROPERTYENUMERATEDVALUE", Kind::Enumerated},
                                                      {"IFCPROPERTYBOUNDEDVALUE", Kind::Bounded},
                                                      {"IFCPROPERTYLISTVALUE", Kind::List},
                                                      {"IFCPROPERTYTABLEVALUE", Kind::Table},
                                                      {"IFCPROPERTYREFERENCEVALUE", Kind::Reference},
                                                      {"IFCCOMPLEXPROPERTY", Kind::Complex},
                                                      {"IFCQUANTITYLENGTH", Kind::Length},
                                                      {"IFCQUANTITYAREA", Kind::Area},
                                                      {"IFCQUANTITYVOLUME", Kind::Volume},
                                                      {"IFCQUANTITYCOUNT", Kind::Count},
                                                      {"IFCQUANTITYWEIGHT", Kind::Weight},
                                                      {"IFCQUANTITYTIME", Kind::Time},
                                                      {"IFCQUANTITYNUMBER", Kind::Number},
                                                      {"IFCPHYSICALCOMPLEXQUANTITY", Kind::ComplexQuantity}};
    auto const found = kinds.find(keyword);
    return found == kinds.end() ? Kind::Other : found->second;
}

/// The measure of a quantity's value, which stands in the file without its type.
std::string measureOf(Kind quantity)
{
    switch (quantity) {
    case Kind::Length:
        return "IFCLENGTHMEASURE";
    case Kind::Area:
        return "IFCAREAMEASURE";
    case Kind::Volume:
        return "IFCVOLUMEMEASURE";
    case Kind::Count:
        return "IFCCOUNTMEASURE";
    case Kind::Weight:
        return "IFCMASSMEASURE";
    case Kind::Time:
        return "IFCTIMEMEASURE";
    case Kind::Number:
        return "IFCNUMERICMEASURE";
    default:
        return {};
    }
}

bool isSetRelation(std::string const& keyword)
{
    return keyword == "IFCRELDEFINESBYPROPERTIES" || keyword == "IFCRELOVERRIDESPROPERTIES";
}

/// The unit that a quantity may have of its own and that a measure with unit has; nothing for records of
/// other classes.
StepArgument ownUnit(StepRecord const& record)
{
    if (record.keyword == "IFCMEASUREWITHUNIT")
        return record.argument(unitOfMeasureAt);
    bool const isQuantity = !measureOf(kindOf(record.keyword)).empty();
    return isQuantity ? record.argument(unitOfQuantityAt) : StepArgument();
}

/// `IfcLengthMeasure` of `list[1:3] of IfcLengthMeasure`.
std::string itemType(std::string const& listType)
{
    constexpr std::string_view of = " of ";
    auto const position = listType.rfind(of);
    return position == std::string::npos ? listType : listType.substr(position + of.size());
}

std::optional<std::string> textOf(StepArgument const& argument)
{
    return argument.kind == StepArgument::Kind::Text ? std::optional(argument.text) : std::nullopt;
}

/// The records that a slot refers to: one, a list, or a list behind a type name.
std::vector<std::uint64_t> referencesOf(StepArgument const& argument)
{
    if (argument.kind == StepArgument::Kind::Reference)
        return {argument.reference};
    std::vector<std::uint64_t> all;
    for (StepArgument const& item : argument.items) {
        for (std::uint64_t const reference : referencesOf(item))
            all.push_back(reference);
    }
    return all;
}

} // namespace

ReferenceReader::ReferenceReader(StepDocument document, AttributeTable table)
    : m_document(std::move(document))
    , m_table(std::move(table))
    , m_units(m_document)
{
    collectObjects();
    collectRelations();
}

ReferenceReader ReferenceReader::fromFile(std::string const& path, std::string const& schemaFolder)
{
    StepDocument document = StepDocument::fromFile(path);
    AttributeTable table = AttributeTable::forSchema(document.schemaName(), schemaFolder);
    return ReferenceReader(std::move(document), std::move(table));
}

void ReferenceReader::collectObjects()
{
    for (StepRecord const& record : m_document.records()) {
        if (!m_table.isA(record.keyword, "IFCOBJECTDEFINITION"))
            continue;
        m_objects.push_back(record.id);
        m_objectOfGlobalId.emplace(record.argument(globalIdAt).text, record.id);
    }
}

void ReferenceReader::collectRelations()
{
    for (StepRecord const& record : m_document.records()) {
        if (isSetRelation(record.keyword))
            attach(record);
        if (record.keyword == "IFCRELDEFINESBYTYPE") {
            for (std::uint64_t const object : referencesOf(record.argument(relatedAt)))
                m_typeOfObject.emplace(object, record.argument(relatingAt).reference);
        }
    }
}

void ReferenceReader::attach(StepRecord const& relation)
{
    for (std::uint64_t const object : referencesOf(relation.argument(relatedAt))) {
        for (std::uint64_t const set : referencesOf(relation.argument(relatingAt)))
            m_setsOfObject[object].push_back(set);
    }
}

std::optional<std::uint64_t> ReferenceReader::find(std::string_view globalId) const
{
    auto const found = m_objectOfGlobalId.find(globalId);
    return found == m_objectOfGlobalId.end() ? std::nullopt : std::optional(found->second);
}

std::string ReferenceReader::globalId(std::uint64_t object) const
{
    StepRecord const* const record = m_document.find(object);
    return record == nullptr ? std::string() : record->argument(globalIdAt).text;
}

std::string ReferenceReader::keyword(std::uint64_t object) const
{
    StepRecord const* const record = m_document.find(object);
    return record == nullptr ? std::string() : record->keyword;
}

std::optional<std::uint64_t> ReferenceReader::typeOf(std::uint64_t object) const
{
    auto const found = m_typeOfObject.find(object);
    return found == m_typeOfObject.end() ? std::nullopt : std::optional(found->second);
}

std::vector<ReferenceSet> ReferenceReader::sets(std::uint64_t object) const
{
    std::vector<std::uint64_t> ids;
    if (m_table.isA(keyword(object), "IFCTYPEOBJECT"))
        ids = referencesOf(m_document.find(object)->argument(setsOfTypeAt));
    else if (auto const found = m_setsOfObject.find(object); found != m_setsOfObject.end())
        ids = found->second;
    std::vector<ReferenceSet> result;
    for (std::uint64_t const id : ids) {
        if (StepRecord const* const record = m_document.find(id))
            result.push_back(readSet(*record));
    }
    return result;
}

std::vector<ReferenceAttribute> ReferenceReader::attributes(std::uint64_t object) const
{
    std::vector<ReferenceAttribute> result;
    StepRecord const* const record = m_document.find(object);
    if (record == nullptr)
        return result;
    StepArgument const unit = ownUnit(*record);
    for (AttributeTable::Attribute const& declared : m_table.attributes(record->keyword)) {
        StepArgument const& written = record->argument(result.size());
        ReferenceAttribute attribute{declared.name, declared.type, written, std::nullopt, {}};
        bool const isSet =
            written.kind != StepArgument::Kind::Unset && written.kind != StepArgument::Kind::Derived;
        if (isSet && written.kind != StepArgument::Kind::List)
            attribute.value = readValue(written, unit, m_table.measureOf(declared.type));
        if (written.kind == StepArgument::Kind::List)
            attribute.itemScale = m_units.ofMeasure(m_table.measureOf(itemType(declared.type)));
        result.push_back(std::move(attribute));
    }
    return result;
}

std::optional<ReferenceAttribute> ReferenceReader::attribute(std::uint64_t object,
                                                             std::string_view name) const
{
    for (ReferenceAttribute& attribute : attributes(object)) {
        if (attribute.name == name)
            return std::move(attribute);
    }
    return std::nullopt;
}

ReferenceSet ReferenceReader::readSet(StepRecord const& record) const
{
    ReferenceSet set;
    set.id = record.id;
    set.keyword = record.keyword;
    set.globalId = record.argument(globalIdAt).text;
    set.name = textOf(record.argument(nameAt));
    if (record.keyword == "IFCPROPERTYSET") {
        set.properties = readProperties(record.argument(propertiesAt), 0);
    } else if (record.keyword == "IFCELEMENTQUANTITY") {
        set.kind = ReferenceSet::Kind::Quantities;
        set.properties = readProperties(record.argument(quantitiesAt), 0);
    } else {
        set.kind = ReferenceSet::Kind::Predefined;
    }
    return set;
}

std::vector<ReferenceProperty> ReferenceReader::readProperties(StepArgument const& list, int depth) const
{
    std::vector<ReferenceProperty> properties;
    if (depth > deepest)
        return properties;
    for (std::uint64_t const id : referencesOf(list)) {
        if (StepRecord const* const record = m_document.find(id))
            properties.push_back(readProperty(*record, depth));
    }
    return properties;
}

ReferenceProperty ReferenceReader::readProperty(StepRecord const& record, int depth) const
{
    ReferenceProperty property;
    property.id = record.id;
    property.kind = kindOf(record.keyword);
    property.name = record.argument(0).text;
    property.description = textOf(record.argument(1));
    auto const at = [&](std::size_t position) -> StepArgument const& { return record.argument(position); };
    switch (property.kind) {
    case Kind::Single:
        if (auto value = readOptional(at(2), at(3)))
            property.values.push_back(*std::move(value));
        break;
    case Kind::Enumerated: {
        StepRecord const* const enumeration = m_document.find(at(3).reference);
        property.values =
            readValues(at(2), enumeration == nullptr ? StepArgument{} : enumeration->argument(2));
        break;
    }
    case Kind::Bounded:
        property.upper = readOptional(at(2), at(4));
        property.lower = readOptional(at(3), at(4));
        property.setPoint = readOptional(at(5), at(4));
        break;
    case Kind::List:
        property.values = readValues(at(2), at(3));
        break;
    case Kind::Table:
        property.values = readValues(at(2), at(5));
        property.definedValues = readValues(at(3), at(6));
        break;
    case Kind::Reference:
        property.reference = at(3).reference;
        break;
    case Kind::Complex:
        property.parts = readProperties(at(3), depth + 1);
        break;
    case Kind::ComplexQuantity:
        property.parts = readProperties(at(2), depth + 1);
        break;
    case Kind::Other:
        break;
    default:
        readQuantity(record, property);
    }
    return property;
}

void ReferenceReader::readQuantity(StepRecord const& record, ReferenceProperty& property) const
{
    property.values.push_back(
        readValue(record.argument(3), record.argument(unitOfQuantityAt), measureOf(property.kind)));
}

ReferenceValue ReferenceReader::readValue(StepArgument const& written, StepArgument const& unit,
                                          std::string const& declared) const
{
    bool const typed = written.kind == StepArgument::Kind::Typed && written.items.size() == 1;
    StepArgument const& inner = typed ? written.items[0] : written;
    ReferenceValue value;
    value.kind = inner.kind;
    value.type = typed ? written.text : declared;
    value.text = inner.text;
    value.reference = inner.reference;
    value.number = numberOf(inner);
    if (value.number)
        value.scale = unit.reference != 0 ? m_units.ofUnit(unit) : m_units.ofMeasure(value.type);
    return value;
}

std::vector<ReferenceValue> ReferenceReader::readValues(StepArgument const& list,
                                                        StepArgument const& unit) const
{
    std::vector<ReferenceValue> values;
    for (StepArgument const& item : list.items)
        values.push_back(readValue(item, unit));
    return values;
}

std::optional<ReferenceValue> ReferenceReader::readOptional(StepArgument const& written,
                                                            StepArgument const& unit) const
{
    if (written.kind == StepArgument::Kind::Unset || written.kind == StepArgument::Kind::Derived)
        return std::nullopt;
    return readValue(written, unit);
}

} // namespace qev::test::reference
