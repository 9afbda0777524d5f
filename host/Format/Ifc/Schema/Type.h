#pragma once

#include "Format/Ifc/Schema/DeclaredType.h"
#include "Format/Ifc/Schema/ObjectBase.h"

namespace qev::ifc::def::schema {

/// A defined type such as IfcLabel, or one of the base types of the language itself.
class HOSTIFCSCHEMA_EXPORT Type final : public ObjectBase
{
public:
    enum class BaseKind : std::uint8_t
    {
        Real = 0,
        Boolean = 1,
        Integer = 2,
        Number = 3,
        String = 4,
        Binary = 5,
        Logical = 6
    };

    ~Type() override;

    /// What values are made of in the end, through all defined types; of an aggregate its elements.
    [[nodiscard]] BaseKind baseKind() const;
    /// True when the type, or one it is defined by, is an aggregate.
    [[nodiscard]] bool isAggregate() const;
    /// The levels of the definition; empty for a base type.
    [[nodiscard]] DeclaredTypes const& definition() const { return m_definition; }
    /// True for STRING, REAL and their like, which have no name of their own.
    [[nodiscard]] bool isBaseType() const { return m_definition.empty(); }
    /// The width that a base type STRING(22) or BINARY(32) carries.
    [[nodiscard]] std::optional<std::uint32_t> width() const { return m_width; }
    /// True when values have exactly `width` characters.
    [[nodiscard]] bool isFixedWidth() const { return m_isFixedWidth; }

private:
    friend class SchemaTextReader;
    explicit Type(std::string_view name);

    /// The type that the definition's last level refers to; null for a base type.
    [[nodiscard]] Type const* underlying() const;

    DeclaredTypes m_definition;
    BaseKind m_baseKind = BaseKind::String;
    std::optional<std::uint32_t> m_width;
    bool m_isFixedWidth = false;
};

} // namespace qev::ifc::def::schema
