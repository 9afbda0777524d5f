#include "IdentityColumns.h"

#include "FoundationClasses/FcBase.h"

namespace qev::application {

void IdentityColumns::setObject(std::shared_ptr<fc::Data>, std::shared_ptr<fc::FcBase> object)
{
    m_object = std::move(object);
}

std::optional<bool> IdentityColumns::doesItemContainLocalValue(std::string const&, std::string const&) const
{
    return std::nullopt;
}

std::optional<bool> IdentityColumns::isPropertyToBeHiddenByDefault(std::string const&,
                                                                   std::string const&) const
{
    return std::nullopt;
}

std::optional<std::vector<IdentityColumns::CustomColumn>> IdentityColumns::getCustomColumns() const
{
    auto const first = m_firstColumn ? m_firstColumn() : std::nullopt;
    CustomColumn const globalIdColumn{globalId, globalId, first};
    CustomColumn const nameColumn{name, name, first};
    // Columns without a place come out in reverse.
    return first ? std::vector{globalIdColumn, nameColumn} : std::vector{nameColumn, globalIdColumn};
}

std::optional<std::string> IdentityColumns::getCustomColumnItemString(std::string const& columnId) const
{
    if (!m_object || (columnId != globalId && columnId != name))
        return std::nullopt;
    return m_object->getAttributeAsString(columnId);
}

} // namespace qev::application
