#include "FoundationClasses/Attribute.h"

#include "Core/Utilities/ScopeGuard.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/FcBase.h"

namespace qev::fc {

AttributeBase::AttributeBase(FcBase* owner, unsigned int slot)
    : m_ownerOffset(static_cast<std::uint16_t>(reinterpret_cast<char const*>(this) -
                                               reinterpret_cast<char const*>(owner)))
    , m_slot(static_cast<std::uint16_t>(slot))
{
}

FcBase& AttributeBase::owner() const
{
    auto* const address = reinterpret_cast<char*>(const_cast<AttributeBase*>(this));
    return *reinterpret_cast<FcBase*>(address - m_ownerOffset);
}

void AttributeBase::change(std::function<void()> const& change)
{
    willChange();
    ScopeGuard const guard([this] { didChange(); });
    change();
}

void AttributeBase::willChange()
{
    FcBase& entity = owner();
    if (entity.m_data)
        entity.m_data->attributeWillChange(entity, m_slot);
}

void AttributeBase::didChange()
{
    FcBase& entity = owner();
    if (entity.m_data)
        entity.m_data->attributeDidChange(entity, m_slot);
}

} // namespace qev::fc
