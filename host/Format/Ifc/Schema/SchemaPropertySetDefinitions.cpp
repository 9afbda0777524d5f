#include "Format/Ifc/Schema/SchemaPropertySetDefinitions.h"

#include <utility>

namespace qev::ifc::def {

SchemaPropertySetDefinitions::SchemaPropertySetDefinitions() = default;

SchemaPropertySetDefinitions::~SchemaPropertySetDefinitions() = default;

SchemaPropertySetDefinitions::SchemaPropertySetDefinitions(SchemaPropertySetDefinitions&&) noexcept = default;

SchemaPropertySetDefinitions&
SchemaPropertySetDefinitions::operator=(SchemaPropertySetDefinitions&&) noexcept = default;

bool SchemaPropertySetDefinitions::add(std::unique_ptr<xml::SetDef> set)
{
    // The keys of the indexes are views of the definition's own texts, which do not move with the pointer.
    if (!m_positionByName.emplace(set->name, m_sets.size()).second)
        return false;
    m_sets.push_back(std::move(set));
    indexClasses(m_sets.size() - 1);
    return true;
}

std::vector<std::unique_ptr<xml::SetDef>> SchemaPropertySetDefinitions::takeSets()
{
    m_positionByName.clear();
    m_positionsByClass.clear();
    m_unrestricted.clear();
    return std::exchange(m_sets, {});
}

xml::SetDef const* SchemaPropertySetDefinitions::find(std::string_view setName) const
{
    auto const found = m_positionByName.find(setName);
    return found == m_positionByName.end() ? nullptr : m_sets[found->second].get();
}

xml::SetDef* SchemaPropertySetDefinitions::find(std::string_view setName)
{
    auto const found = m_positionByName.find(setName);
    return found == m_positionByName.end() ? nullptr : m_sets[found->second].get();
}

std::vector<std::size_t> const&
SchemaPropertySetDefinitions::positionsOfClass(std::string_view className) const
{
    static std::vector<std::size_t> const none;
    auto const found = m_positionsByClass.find(className);
    return found == m_positionsByClass.end() ? none : found->second;
}

void SchemaPropertySetDefinitions::indexClasses(std::size_t position)
{
    std::vector<xml::ApplicableClass> const& classes = m_sets[position]->applicableClasses;
    if (classes.empty())
        m_unrestricted.push_back(position);
    for (xml::ApplicableClass const& applicable : classes) {
        std::vector<std::size_t>& positions = m_positionsByClass[applicable.className];
        if (positions.empty() || positions.back() != position)
            positions.push_back(position);
    }
}

} // namespace qev::ifc::def
