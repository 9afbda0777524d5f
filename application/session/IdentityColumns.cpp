#include "IdentityColumns.h"

#include "FoundationClasses/FcBase.h"
#include "UI/FoundationClasses/Controls/ListControl/PropertySetListControl.h"

namespace qev::application {

namespace {

/// The names of the first column that is there already.
std::optional<fc::ui::ColumnPropertyNames> firstColumnOf(fc::ui::PropertySetListControl const* control)
{
    if (!control || control->getColumns().getColumnCount() == 0)
        return std::nullopt;
    return control->getColumns().getColumnNames(0);
}

} // namespace

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
    auto const first = firstColumnOf(m_control);
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
