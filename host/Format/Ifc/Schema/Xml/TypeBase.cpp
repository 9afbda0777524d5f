#include "Format/Ifc/Schema/Xml/TypeBase.h"

namespace qev::ifc::def::xml {

TypeBase::TypeBase() = default;

TypeBase::~TypeBase() = default;

} // namespace qev::ifc::def::xml
