#pragma once

#include "Format/Ifc/Schema/Qto/QuantityType.h"

namespace qev::ifc::def::qto {

/// A quantity with one number.
class HOSTIFCSCHEMA_EXPORT QuantityTypeSimple : public QuantityType
{
public:
    ~QuantityTypeSimple() override;

    bool checkForErrors(schema::Schema const& schema, xml::XmlSetErrors& errors) const override;
};

} // namespace qev::ifc::def::qto
