#include "Format/Ifc/Schema/Attribute.h"

#include "Format/Ifc/Schema/DataTypeEnum.h"

namespace qev::ifc::def::schema {

DataTypeEnum const* Attribute::enumeration() const
{
    return dynamic_cast<DataTypeEnum const*>(m_declaredTypes.front().dataType);
}

} // namespace qev::ifc::def::schema
