#pragma once

#include "Format/Ifc/Schema/Pset/PropertyType.h"

namespace qev::ifc::def::pset {

/// A property that refers to an object.
class HOSTIFCSCHEMA_EXPORT TypePropertyReferenceValue : public PropertyType
{
public:
    TypePropertyReferenceValue();
    explicit TypePropertyReferenceValue(std::string referencedClass);
    ~TypePropertyReferenceValue() override;

    [[nodiscard]] std::string sEntityName() const override;
    bool checkForErrors(schema::Schema const& schema, xml::XmlSetErrors& errors) const override;
    void vExport(qev::xml::Element& parent, xml::ExtraExportInfo* info) const override;

    /// The class of the object referred to; in the derived classes the type of the value, "IfcBoolean".
    std::string valueType;
};

} // namespace qev::ifc::def::pset
