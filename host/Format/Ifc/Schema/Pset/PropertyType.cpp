#include "Format/Ifc/Schema/Pset/PropertyType.h"

namespace qev::ifc::def::pset {

PropertyType::~PropertyType() = default;

} // namespace qev::ifc::def::pset
