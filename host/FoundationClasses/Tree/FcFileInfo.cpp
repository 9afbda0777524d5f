#include "FoundationClasses/Tree/FcFileInfo.h"

#include <utility>

namespace qev::fc::tree {

FcFileInfo::FcFileInfo(Data const* data, std::shared_ptr<Property> property)
    : m_fileData(data)
    , m_property(std::move(property))
{
}

FcFileInfo::~FcFileInfo() = default;

} // namespace qev::fc::tree
