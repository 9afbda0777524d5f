#pragma once

#include "Format/Ifc/Schema/Pset/TypePropertyReferenceValue.h"

namespace qev::ifc::def::pset {

/// A property with one value.
class HOSTIFCSCHEMA_EXPORT TypePropertySingleValue : public TypePropertyReferenceValue
{
public:
    TypePropertySingleValue();
    explicit TypePropertySingleValue(std::string type, std::string unitText = {});
    ~TypePropertySingleValue() override;

    [[nodiscard]] std::string sEntityName() const override;
    bool checkForErrors(schema::Schema const& schema, xml::XmlSetErrors& errors) const override;
    void vExport(qev::xml::Element& parent, xml::ExtraExportInfo* info) const override;

    /// The unit as published, for example "LENGTHUNIT"; empty where the value type says it all.
    std::string unit;
};

} // namespace qev::ifc::def::pset
