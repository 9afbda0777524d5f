#include "Format/Ifc/Schema/Xml/DefBase.h"

namespace qev::ifc::def::xml {

DefBase::DefBase(std::string_view definitionName)
    : name(definitionName)
{
}

DefBase::~DefBase() = default;

} // namespace qev::ifc::def::xml
