#pragma once

#include "Format/Ifc/Schema/ObjectBase.h"

#include <vector>

namespace qev::ifc::def::schema {

/// A choice between types; a member may itself be a select.
class HOSTIFCSCHEMA_EXPORT Select final : public ObjectBase
{
public:
    ~Select() override;

    /// The members in the order of the schema.
    [[nodiscard]] std::vector<ObjectBase const*> const& members() const { return m_members; }
    /// The members that are no selects, with those of nested selects in their place; each once.
    [[nodiscard]] std::vector<ObjectBase const*> flattenedMembers() const;

private:
    friend class SchemaTextReader;
    explicit Select(std::string_view name);

    std::vector<ObjectBase const*> m_members;
};

} // namespace qev::ifc::def::schema
