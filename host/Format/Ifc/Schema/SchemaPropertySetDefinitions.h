#pragma once

#include "Format/Ifc/Schema/Xml/SetDef.h"

#include <memory>
#include <unordered_map>

namespace qev::ifc::def {

/// The definitions of one context, in order, with the look-ups that the system needs.
///
/// Definitions stay where they are for as long as this object lives.
class HOSTIFCSCHEMA_EXPORT SchemaPropertySetDefinitions
{
public:
    SchemaPropertySetDefinitions();
    ~SchemaPropertySetDefinitions();
    SchemaPropertySetDefinitions(SchemaPropertySetDefinitions&&) noexcept;
    SchemaPropertySetDefinitions& operator=(SchemaPropertySetDefinitions&&) noexcept;

    /// Appends a definition with its final name and applicable classes.
    /// \returns false when there is one of that name already; \p set is then dropped.
    bool add(std::unique_ptr<xml::SetDef> set);

    /// Hands over all definitions; none are left.
    [[nodiscard]] std::vector<std::unique_ptr<xml::SetDef>> takeSets();

    /// In schema order.
    [[nodiscard]] std::vector<std::unique_ptr<xml::SetDef>> const& sets() const { return m_sets; }
    /// Null when there is none of that name.
    [[nodiscard]] xml::SetDef const* find(std::string_view setName) const;
    [[nodiscard]] xml::SetDef* find(std::string_view setName);
    /// The positions in `sets` of those that name \p className among their applicable classes, ascending.
    [[nodiscard]] std::vector<std::size_t> const& positionsOfClass(std::string_view className) const;
    /// The positions of the sets without an applicable class, which apply to everything.
    [[nodiscard]] std::vector<std::size_t> const& positionsOfUnrestricted() const { return m_unrestricted; }

private:
    void indexClasses(std::size_t position);

    std::vector<std::unique_ptr<xml::SetDef>> m_sets;
    std::unordered_map<std::string_view, std::size_t> m_positionByName;
    std::unordered_map<std::string_view, std::vector<std::size_t>> m_positionsByClass;
    std::vector<std::size_t> m_unrestricted;
};

} // namespace qev::ifc::def
