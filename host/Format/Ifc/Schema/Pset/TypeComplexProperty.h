#pragma once

#include "Format/Ifc/Schema/Pset/PropertyType.h"

#include <memory>

namespace qev::ifc::def::pset {

class PropertyDef;

/// A property made of properties. The sets of IFC4X3 have none; older and a company's own sets do.
class HOSTIFCSCHEMA_EXPORT TypeComplexProperty final : public PropertyType
{
public:
    explicit TypeComplexProperty(std::string usage);
    ~TypeComplexProperty() override;

    [[nodiscard]] std::string sEntityName() const override;
    bool checkForErrors(schema::Schema const& schema, xml::XmlSetErrors& errors) const override;
    void vExport(qev::xml::Element& parent, xml::ExtraExportInfo* info) const override;

    std::string usageName;
    /// The members in definition order.
    std::vector<std::unique_ptr<PropertyDef>> members;
};

} // namespace qev::ifc::def::pset
