#include "Format/Ifc/Schema/Pset/TypePropertyEnumeratedValue.h"

#include "Format/Ifc/Schema/Pset/ValueTypeCheck.h"
#include "Format/Ifc/Schema/Xml/AliasExport.h"

#include <set>

namespace qev::ifc::def::pset {

TypePropertyEnumeratedValue::TypePropertyEnumeratedValue() = default;

TypePropertyEnumeratedValue::TypePropertyEnumeratedValue(std::string name, std::vector<std::string> valueList)
    : enumerationName(std::move(name))
    , values(std::move(valueList))
{
}

TypePropertyEnumeratedValue::~TypePropertyEnumeratedValue() = default;

std::string TypePropertyEnumeratedValue::sEntityName() const { return "IfcPropertyEnumeratedValue"; }

bool TypePropertyEnumeratedValue::checkForErrors(schema::Schema const& schema,
                                                 xml::XmlSetErrors& errors) const
{
    bool isValid = checkValueType(valueType, schema, errors);
    std::set<std::string_view> known;
    for (std::string const& value : values) {
        if (known.insert(value).second)
            continue;
        errors.add("The value " + value + " stands in the list twice.");
        isValid = false;
    }
    return isValid;
}

void TypePropertyEnumeratedValue::vExport(qev::xml::Element& parent, xml::ExtraExportInfo* /*info*/) const
{
    qev::xml::Element element = parent.addChild("TypePropertyEnumeratedValue");
    qev::xml::Element list = element.addChild("EnumList");
    list.setAttribute("name", enumerationName);
    for (std::string const& value : values)
        list.addChild("EnumItem", value);
    if (valueAliases.empty() && items.empty())
        return;
    qev::xml::Element constants = element.addChild("ConstantList");
    for (std::string const& value : values) {
        qev::xml::Element constant = constants.addChild("ConstantDef");
        constant.addChild("Name", value);
        auto const item = items.find(value);
        if (item != items.end())
            constant.addChild("Definition", item->second.description);
        for (EnumerationItemAliases const& aliases : valueAliases) {
            if (aliases.value == value)
                xml::exportAliases(aliases.nameAliases, constant, "NameAliases", "NameAlias");
        }
        if (item != items.end())
            xml::exportAliases(item->second.definitionAliases, constant, "DefinitionAliases",
                               "DefinitionAlias");
    }
}

} // namespace qev::ifc::def::pset
