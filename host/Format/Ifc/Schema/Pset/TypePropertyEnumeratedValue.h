#pragma once

#include "Format/Ifc/Schema/Pset/EnumerationItem.h"
#include "Format/Ifc/Schema/Pset/PropertyType.h"

#include <map>

namespace qev::ifc::def::pset {

/// A property with values from a list.
class HOSTIFCSCHEMA_EXPORT TypePropertyEnumeratedValue final : public PropertyType
{
public:
    TypePropertyEnumeratedValue();
    TypePropertyEnumeratedValue(std::string name, std::vector<std::string> valueList);
    ~TypePropertyEnumeratedValue() override;

    [[nodiscard]] std::string sEntityName() const override;
    bool checkForErrors(schema::Schema const& schema, xml::XmlSetErrors& errors) const override;
    void vExport(qev::xml::Element& parent, xml::ExtraExportInfo* info) const override;

    /// For example "PEnum_ElementStatus"; empty where a definition carries none.
    std::string enumerationName;
    std::vector<std::string> values;
    /// Names of values in other languages, for the values that have any.
    std::vector<EnumerationItemAliases> valueAliases;
    /// What is published about the values, by value.
    std::map<std::string, EnumerationItem> items;
    /// The type of the values.
    std::string valueType = "IfcLabel";
};

} // namespace qev::ifc::def::pset
