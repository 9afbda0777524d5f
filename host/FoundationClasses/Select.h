#pragma once

#include "FoundationClasses/EntityClass.h"
#include "FoundationClasses/Payload.h"
#include "FoundationClasses/Reference.h"
#include "FoundationClasses/Resource/Measure/FcValue.h"
#include "HostFoundationClassesExport.h"

#include <functional>
#include <memory>
#include <string_view>

namespace qev::fc {

/// A value that is one of several types: the tag tells which, by its position among the
/// alphabetically ordered members; the number of members is the tag of an unset select.
///
/// A member that is a select itself is held as what it stands for in turn.
/// The typed accessors of the derived classes raise `qev::exception` "Not of correct type".
class HOSTFOUNDATIONCLASSES_EXPORT SelectBase
{
public:
    [[nodiscard]] unsigned int tag() const { return m_tag; }
    [[nodiscard]] bool isSet() const;
    /// The entity held; null when the select holds a value or nothing.
    [[nodiscard]] std::shared_ptr<FcBase> entity() const { return m_reference.entity(); }
    [[nodiscard]] ReferenceBase const& reference() const { return m_reference; }
    /// The schema name of the defined type held, empty for an entity.
    [[nodiscard]] std::string_view typeName() const { return m_typeName; }
    [[nodiscard]] Payload const& payload() const { return m_payload; }
    [[nodiscard]] SelectDescriptor const& descriptor() const { return *m_descriptor; }

    /// Sets the member that fits the class of \p reference; false, and unset, when none does.
    bool setReference(ReferenceBase reference);
    /// Sets the member of the defined type \p typeName; false, and unset, when there is none.
    bool setValue(std::string_view typeName, Payload payload);
    void reset();
    void leaveModel() { m_reference.leaveModel(); }

    friend bool operator==(SelectBase const& a, SelectBase const& b)
    {
        return a.m_tag == b.m_tag && a.m_reference == b.m_reference && a.m_typeName == b.m_typeName &&
               a.m_payload == b.m_payload;
    }

protected:
    explicit SelectBase(SelectDescriptor const& descriptor);
    SelectBase(SelectDescriptor const& descriptor, unsigned int tag, std::shared_ptr<FcBase> entity);

    /// The entity, when the tag is \p tag. Otherwise raises "Not of correct type".
    [[nodiscard]] std::shared_ptr<FcBase> entityOfTag(unsigned int tag) const;
    [[nodiscard]] Payload const& payloadOfTag(unsigned int tag) const;

private:
    SelectDescriptor const* m_descriptor;
    unsigned int m_tag;
    ReferenceBase m_reference;
    std::string_view m_typeName;
    Payload m_payload;
};

} // namespace qev::fc
