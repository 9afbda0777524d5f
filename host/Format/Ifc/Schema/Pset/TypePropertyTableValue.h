#pragma once

#include "Format/Ifc/Schema/Pset/PropertyType.h"

namespace qev::ifc::def::pset {

/// A property that assigns defined values to defining ones.
class HOSTIFCSCHEMA_EXPORT TypePropertyTableValue final : public PropertyType
{
public:
    TypePropertyTableValue();
    TypePropertyTableValue(std::string definingType, std::string definedType);
    ~TypePropertyTableValue() override;

    [[nodiscard]] std::string sEntityName() const override;
    bool checkForErrors(schema::Schema const& schema, xml::XmlSetErrors& errors) const override;
    void vExport(qev::xml::Element& parent, xml::ExtraExportInfo* info) const override;

    /// How the defined values follow from the defining ones, in words; mostly empty.
    std::string expression;
    std::string definingValueType;
    std::string definedValueType;
    /// Rows that the definition itself lists.
    std::vector<std::string> definingValues;
    std::vector<std::string> definedValues;
    /// The units as published; mostly empty.
    std::string definingUnit;
    std::string definedUnit;
};

} // namespace qev::ifc::def::pset
