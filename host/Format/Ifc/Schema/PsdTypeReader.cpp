#include "Format/Ifc/Schema/PsdTypeReader.h"

#include "Format/Ifc/Schema/Pset/TypeComplexProperty.h"
#include "Format/Ifc/Schema/Pset/TypePropertyBoundedValue.h"
#include "Format/Ifc/Schema/Pset/TypePropertyEnumeratedValue.h"
#include "Format/Ifc/Schema/Pset/TypePropertyListValue.h"
#include "Format/Ifc/Schema/Pset/TypePropertyTableValue.h"
#include "Format/Ifc/Schema/SchemaLoader.h"

#include <algorithm>

namespace qev::ifc::def {

namespace {

using Document = PsdDocument;

// Complex properties of complex properties: published ones have one level.
constexpr unsigned int maximumDepth = 16;

std::string dataTypeOf(pugi::xml_node node)
{
    return Document::attributeOf(Document::child(node, "DataType"), "type");
}

std::string unitOf(pugi::xml_node node)
{
    return Document::attributeOf(Document::child(node, "UnitType"), "type");
}

std::vector<std::string> listedValues(pugi::xml_node node)
{
    std::vector<std::string> values;
    for (pugi::xml_node const item : Document::children(Document::child(node, "Values"), "ValueItem"))
        values.push_back(Document::textOf(item));
    return values;
}

std::unique_ptr<pset::PropertyType> readSingle(pugi::xml_node node)
{
    return std::make_unique<pset::TypePropertySingleValue>(dataTypeOf(node), unitOf(node));
}

std::unique_ptr<pset::PropertyType> readReference(pugi::xml_node node)
{
    return std::make_unique<pset::TypePropertyReferenceValue>(Document::attributeOf(node, "reftype"));
}

std::unique_ptr<pset::PropertyType> readBounded(pugi::xml_node node)
{
    auto type = std::make_unique<pset::TypePropertyBoundedValue>(dataTypeOf(node), unitOf(node));
    pugi::xml_node const range = Document::child(node, "ValueRangeDef");
    type->lowerBound = Document::attributeOf(Document::child(range, "LowerBoundValue"), "value");
    type->upperBound = Document::attributeOf(Document::child(range, "UpperBoundValue"), "value");
    return type;
}

void addValue(pset::TypePropertyEnumeratedValue& type, std::string value)
{
    if (!value.empty() && std::find(type.values.begin(), type.values.end(), value) == type.values.end())
        type.values.push_back(std::move(value));
}

void readConstant(pugi::xml_node node, pset::TypePropertyEnumeratedValue& type)
{
    std::string const value = Document::childText(node, "Name");
    addValue(type, value);
    pset::EnumerationItem item;
    item.description = Document::childText(node, "Definition");
    item.definitionAliases = readAliases(Document::child(node, "DefinitionAliases"), "DefinitionAlias");
    if (!item.description.empty() || !item.definitionAliases.empty())
        type.items.insert_or_assign(value, std::move(item));
    xml::Aliases names = readAliases(Document::child(node, "NameAliases"), "NameAlias");
    if (!names.empty())
        type.valueAliases.push_back({value, std::move(names)});
}

std::unique_ptr<pset::PropertyType> readEnumerated(pugi::xml_node node)
{
    auto type = std::make_unique<pset::TypePropertyEnumeratedValue>();
    pugi::xml_node const list = Document::child(node, "EnumList");
    type->enumerationName = Document::attributeOf(list, "name");
    // Where there are constants, they are the values: the plain items beside them are not always complete.
    for (pugi::xml_node const constant :
         Document::children(Document::child(node, "ConstantList"), "ConstantDef"))
        readConstant(constant, *type);
    if (!type->values.empty())
        return type;
    for (pugi::xml_node const item : Document::children(list, "EnumItem"))
        addValue(*type, Document::textOf(item));
    return type;
}

std::unique_ptr<pset::PropertyType> readList(pugi::xml_node node)
{
    pugi::xml_node const list = Document::child(node, "ListValue");
    auto type = std::make_unique<pset::TypePropertyListValue>(dataTypeOf(list));
    type->unit = unitOf(list);
    type->values = listedValues(list);
    return type;
}

std::unique_ptr<pset::PropertyType> readTable(pugi::xml_node node)
{
    pugi::xml_node const defining = Document::child(node, "DefiningValue");
    pugi::xml_node const defined = Document::child(node, "DefinedValue");
    auto type = std::make_unique<pset::TypePropertyTableValue>(dataTypeOf(defining), dataTypeOf(defined));
    type->expression = Document::childText(node, "Expression");
    type->definingUnit = unitOf(defining);
    type->definedUnit = unitOf(defined);
    type->definingValues = listedValues(defining);
    type->definedValues = listedValues(defined);
    return type;
}

// An old form for two things: a reference when its type is a class, else a single value.
std::unique_ptr<pset::PropertyType> readSimple(pugi::xml_node node)
{
    std::string type = dataTypeOf(node);
    schema::Schema const* const classes = SchemaLoader::curr().classesFromName("IFC2X3");
    if (classes && classes->findEntityByName(type))
        return std::make_unique<pset::TypePropertyReferenceValue>(std::move(type));
    return readSingle(node);
}

struct TypeElement
{
    std::string_view name;
    std::unique_ptr<pset::PropertyType> (*read)(pugi::xml_node);
};

constexpr TypeElement typeElements[] = {
    {"TypePropertySingleValue", readSingle},   {"TypePropertyReferenceValue", readReference},
    {"TypePropertyBoundedValue", readBounded}, {"TypePropertyEnumeratedValue", readEnumerated},
    {"TypePropertyListValue", readList},       {"TypePropertyTableValue", readTable},
    {"TypeSimpleProperty", readSimple}};

} // namespace

xml::Aliases readAliases(pugi::xml_node list, std::string_view itemName)
{
    xml::Aliases aliases;
    for (pugi::xml_node const item : PsdDocument::children(list, itemName)) {
        auto const locale = locale::Locale::fromCode(PsdDocument::attributeOf(item, "lang"));
        std::string const text = PsdDocument::textOf(item);
        if (locale && !text.empty())
            aliases.set(*locale, text);
    }
    return aliases;
}

void readEntryTexts(pugi::xml_node node, xml::Def& entry)
{
    entry.description = PsdDocument::childText(node, "Definition");
    entry.nameAliases = readAliases(PsdDocument::child(node, "NameAliases"), "NameAlias");
    entry.definitionAliases = readAliases(PsdDocument::child(node, "DefinitionAliases"), "DefinitionAlias");
}

PsdTypeReader::PsdTypeReader(PsdDocument& document, pset::PropertySetDef& set)
    : m_document(document)
    , m_set(set)
{
}

void PsdTypeReader::readProperties(pugi::xml_node list,
                                   std::vector<std::unique_ptr<pset::PropertyDef>>& properties,
                                   unsigned int depth)
{
    for (pugi::xml_node const node : PsdDocument::children(list, "PropertyDef")) {
        std::unique_ptr<pset::PropertyDef> property = readProperty(node, depth);
        if (!property)
            continue;
        bool const isKnown =
            std::any_of(properties.begin(), properties.end(),
                        [&property](auto const& known) { return known->name == property->name; });
        if (isKnown)
            m_document.fail(node, "The property " + property->name + " stands in the set twice.");
        else
            properties.push_back(std::move(property));
    }
}

std::unique_ptr<pset::PropertyDef> PsdTypeReader::readProperty(pugi::xml_node node, unsigned int depth)
{
    std::string const name = PsdDocument::childText(node, "Name");
    if (name.empty()) {
        m_document.fail(node, "A Name is expected in PropertyDef.");
        return nullptr;
    }
    std::unique_ptr<pset::PropertyType> type = readType(node, depth);
    if (!type)
        return nullptr;
    auto property = std::make_unique<pset::PropertyDef>(m_set, name, std::move(type));
    readEntryTexts(node, *property);
    return property;
}

std::unique_ptr<pset::PropertyType> PsdTypeReader::readType(pugi::xml_node property, unsigned int depth)
{
    pugi::xml_node const node = PsdDocument::child(property, "PropertyType");
    for (pugi::xml_node const candidate : node) {
        std::string_view const name = PsdDocument::nameOf(candidate);
        if (name == "TypeComplexProperty")
            return readComplex(candidate, depth);
        for (TypeElement const& element : typeElements) {
            if (element.name == name)
                return element.read(candidate);
        }
    }
    m_document.fail(node ? node : property,
                    "The type of the property is expected, TypePropertySingleValue for example.");
    return nullptr;
}

std::unique_ptr<pset::PropertyType> PsdTypeReader::readComplex(pugi::xml_node node, unsigned int depth)
{
    if (depth >= maximumDepth) {
        m_document.fail(node, "Complex properties stand too deep in each other.");
        return nullptr;
    }
    auto type = std::make_unique<pset::TypeComplexProperty>(PsdDocument::attributeOf(node, "name"));
    readProperties(node, type->members, depth + 1);
    return type;
}

} // namespace qev::ifc::def
