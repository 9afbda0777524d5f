#pragma once

#include "Format/Ifc/Schema/Attribute.h"
#include "Format/Ifc/Schema/InverseAttribute.h"
#include "Format/Ifc/Schema/ObjectBase.h"

#include <atomic>
#include <mutex>
#include <vector>

namespace qev::ifc::def::schema {

/// A class of a schema.
class HOSTIFCSCHEMA_EXPORT Entity final : public ObjectBase
{
public:
    ~Entity() override;

    /// Null for a root.
    [[nodiscard]] Entity const* supertype() const { return m_supertype; }
    [[nodiscard]] bool isAbstract() const { return m_isAbstract; }
    /// True when this is \p other or a subclass of it.
    [[nodiscard]] bool isA(Entity const& other) const;

    /// The attributes that this class itself declares.
    [[nodiscard]] std::vector<Attribute> const& ownAttributes() const { return m_ownAttributes; }
    /// All attributes, those of the supertype first: the parameters of an instance in their order.
    ///
    /// Formed on first use and kept; any thread may ask.
    [[nodiscard]] std::vector<Attribute const*> const& attributes() const;
    /// The attribute of that name, inherited ones included; null when there is none.
    [[nodiscard]] Attribute const* findAttribute(std::string_view attributeName) const;
    /// True when this class or a supertype redeclares \p attribute as derived: its slot is then written `*`.
    [[nodiscard]] bool isDerived(Attribute const& attribute) const;
    /// The inherited attributes that this class itself redeclares as derived.
    [[nodiscard]] std::vector<Attribute const*> const& derivedAttributes() const
    {
        return m_derivedAttributes;
    }
    /// The inverse attributes that this class itself declares.
    [[nodiscard]] std::vector<InverseAttribute> const& inverseAttributes() const
    {
        return m_inverseAttributes;
    }

    /// The position of the class in a depth-first walk, siblings by character code, counted from 1.
    /// The classes from `firstNumber` to `lastNumber`, both included, are this class and its subclasses.
    [[nodiscard]] unsigned int firstNumber() const { return m_firstNumber; }
    [[nodiscard]] unsigned int lastNumber() const { return m_lastNumber; }

private:
    friend class Schema;
    friend class SchemaTextReader;
    explicit Entity(std::string_view name);

    Entity const* m_supertype = nullptr;
    std::vector<Entity const*> m_subtypes;
    bool m_isAbstract = false;
    std::vector<Attribute> m_ownAttributes;
    std::vector<Attribute const*> m_derivedAttributes;
    std::vector<InverseAttribute> m_inverseAttributes;
    unsigned int m_firstNumber = 0;
    unsigned int m_lastNumber = 0;

    mutable std::mutex m_attributesMutex;
    mutable std::atomic<bool> m_attributesFormed = false;
    mutable std::vector<Attribute const*> m_attributes;
};

} // namespace qev::ifc::def::schema
