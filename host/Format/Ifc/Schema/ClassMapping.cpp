#include "Format/Ifc/Schema/ClassMapping.h"

namespace qev::ifc {

int ClassMapping::fileSlot(std::size_t modelSlot) const
{
    return modelSlot < m_fileSlots.size() ? m_fileSlots[modelSlot] : noSlot;
}

int ClassMapping::modelSlot(std::size_t fileSlot) const
{
    return fileSlot < m_modelSlots.size() ? m_modelSlots[fileSlot] : noSlot;
}

def::schema::Attribute const* ClassMapping::fileAttribute(std::size_t modelSlot) const
{
    int const slot = fileSlot(modelSlot);
    return slot == noSlot ? nullptr : m_fileEntity->attributes()[static_cast<std::size_t>(slot)];
}

def::schema::Attribute const* ClassMapping::modelAttribute(std::size_t modelSlot) const
{
    return modelSlot < m_fileSlots.size() ? m_modelEntity->attributes()[modelSlot] : nullptr;
}

bool ClassMapping::changesValueForm(std::size_t modelSlot) const
{
    def::schema::Attribute const* const inFile = fileAttribute(modelSlot);
    return inFile && valueFormOf(*inFile) != valueFormOf(*modelAttribute(modelSlot));
}

} // namespace qev::ifc
