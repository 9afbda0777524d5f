#include "FoundationClasses/Select.h"

#include "Core/Exception.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/FcBase.h"

namespace qev::fc {

namespace {

bool holdsClass(SelectDescriptor const& select, unsigned int number);

bool holdsClass(SelectMember const& member, unsigned int number)
{
    if (member.select)
        return holdsClass(*member.select, number);
    return member.first != 0 && member.first <= number && number <= member.last;
}

bool holdsClass(SelectDescriptor const& select, unsigned int number)
{
    for (SelectMember const& member : select.members) {
        if (holdsClass(member, number))
            return true;
    }
    return false;
}

/// The member of the defined type, looked for in nested selects too.
SelectMember const* memberOfType(SelectMember const& member, std::string_view typeName)
{
    if (!member.select)
        return member.first == 0 && member.name == typeName ? &member : nullptr;
    for (SelectMember const& nested : member.select->members) {
        if (SelectMember const* const found = memberOfType(nested, typeName))
            return found;
    }
    return nullptr;
}

unsigned int classOf(ReferenceBase const& reference)
{
    auto const entity = reference.entity();
    return entity ? entity->getIdFirst() : 0;
}

} // namespace

SelectBase::SelectBase(SelectDescriptor const& descriptor)
    : m_descriptor(&descriptor)
    , m_tag(static_cast<unsigned int>(descriptor.members.size()))
{
}

SelectBase::SelectBase(SelectDescriptor const& descriptor, unsigned int tag, std::shared_ptr<FcBase> entity)
    : SelectBase(descriptor)
{
    if (!entity)
        return;
    m_tag = tag;
    m_reference = ReferenceBase(std::move(entity));
}

bool SelectBase::isSet() const
{
    if (m_tag >= m_descriptor->members.size())
        return false;
    return !m_typeName.empty() || m_reference.isSet();
}

bool SelectBase::setReference(ReferenceBase reference)
{
    unsigned int const number = classOf(reference);
    return setReference(std::move(reference), number);
}

bool SelectBase::setReference(Data& data, EntityIndex index)
{
    return setReference(ReferenceBase(data, index), data.classNumber(index));
}

bool SelectBase::setReference(ReferenceBase reference, unsigned int classNumber)
{
    reset();
    for (unsigned int tag = 0; tag < m_descriptor->members.size(); ++tag) {
        if (classNumber != 0 && holdsClass(m_descriptor->members[tag], classNumber)) {
            m_tag = tag;
            m_reference = std::move(reference);
            return true;
        }
    }
    return false;
}

bool SelectBase::setValue(std::string_view typeName, Payload payload)
{
    reset();
    for (unsigned int tag = 0; tag < m_descriptor->members.size(); ++tag) {
        if (SelectMember const* const member = memberOfType(m_descriptor->members[tag], typeName)) {
            m_tag = tag;
            m_typeName = member->name;
            m_payload = std::move(payload);
            return true;
        }
    }
    return false;
}

bool SelectBase::setReferences(std::string_view typeName, std::vector<ReferenceBase> references)
{
    bool const isMember = setValue(typeName, {});
    if (isMember)
        m_references = std::move(references);
    return isMember;
}

void SelectBase::leaveModel()
{
    m_reference.leaveModel();
    for (ReferenceBase& reference : m_references)
        reference.leaveModel();
}

void SelectBase::reset()
{
    m_references.clear();
    m_tag = static_cast<unsigned int>(m_descriptor->members.size());
    m_reference = {};
    m_typeName = {};
    m_payload = {};
}

std::shared_ptr<FcBase> SelectBase::entityOfTag(unsigned int tag) const
{
    if (m_tag != tag)
        throw exception("Not of correct type");
    return m_reference.entity();
}

Payload const& SelectBase::payloadOfTag(unsigned int tag) const
{
    if (m_tag != tag)
        throw exception("Not of correct type");
    return m_payload;
}

} // namespace qev::fc
