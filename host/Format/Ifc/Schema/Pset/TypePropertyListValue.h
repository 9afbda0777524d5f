#pragma once

#include "Format/Ifc/Schema/Pset/PropertyType.h"

namespace qev::ifc::def::pset {

/// A property with any number of values of one type.
class HOSTIFCSCHEMA_EXPORT TypePropertyListValue final : public PropertyType
{
public:
    TypePropertyListValue();
    explicit TypePropertyListValue(std::string type);
    ~TypePropertyListValue() override;

    [[nodiscard]] std::string sEntityName() const override;
    bool checkForErrors(schema::Schema const& schema, xml::XmlSetErrors& errors) const override;
    void vExport(qev::xml::Element& parent, xml::ExtraExportInfo* info) const override;

    std::string valueType;
    /// Values that the definition itself lists.
    std::vector<std::string> values;
    /// The unit as published; mostly empty.
    std::string unit;
};

} // namespace qev::ifc::def::pset
