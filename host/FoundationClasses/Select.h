#pragma once

#include "FoundationClasses/EntityClass.h"
#include "FoundationClasses/Payload.h"
#include "FoundationClasses/Reference.h"
#include "FoundationClasses/Resource/Measure/FcValue.h"
#include "HostFoundationClassesExport.h"

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

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
    /// The entities of a member that is an aggregate of entities; empty for all others.
    [[nodiscard]] std::vector<ReferenceBase> const& references() const { return m_references; }
    /// The schema name of the defined type held, empty for an entity.
    [[nodiscard]] std::string_view typeName() const { return m_typeName; }
    [[nodiscard]] Payload const& payload() const { return m_payload; }
    [[nodiscard]] SelectDescriptor const& descriptor() const { return *m_descriptor; }

    /// Sets the member that fits the class of \p reference; false, and unset, when none does.
    bool setReference(ReferenceBase reference);
    /// The same for an entity of a model that need not become an object for it.
    bool setReference(Data& data, EntityIndex index);
    /// Sets the member of the defined type \p typeName; false, and unset, when there is none.
    bool setValue(std::string_view typeName, Payload payload);
    /// Sets the member of the defined type \p typeName, an aggregate of entities; false, and unset, when
    /// there is none.
    bool setReferences(std::string_view typeName, std::vector<ReferenceBase> references);
    void reset();
    void leaveModel();

    friend bool operator==(SelectBase const& a, SelectBase const& b)
    {
        return a.m_tag == b.m_tag && a.m_reference == b.m_reference && a.m_references == b.m_references &&
               a.m_typeName == b.m_typeName && a.m_payload == b.m_payload;
    }

protected:
    explicit SelectBase(SelectDescriptor const& descriptor);
    SelectBase(SelectDescriptor const& descriptor, unsigned int tag, std::shared_ptr<FcBase> entity);

    /// The entity, when the tag is \p tag. Otherwise raises "Not of correct type".
    [[nodiscard]] std::shared_ptr<FcBase> entityOfTag(unsigned int tag) const;
    [[nodiscard]] Payload const& payloadOfTag(unsigned int tag) const;

private:
    bool setReference(ReferenceBase reference, unsigned int classNumber);

    SelectDescriptor const* m_descriptor;
    unsigned int m_tag;
    ReferenceBase m_reference;
    std::vector<ReferenceBase> m_references;
    std::string_view m_typeName;
    Payload m_payload;
};

} // namespace qev::fc
