#pragma once

#include "UI/FoundationClasses/Controls/PropertySetDefinitionFilterInterface.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace qev::application {

/// Shows chosen columns, or all when none are chosen.
class ListColumnFilter final : public fc::ui::PropertySetDefinitionFilterInterface
{
public:
    /// \p columns are set names and property names with a dot between them. As both may hold dots, they are
    /// put together and never taken apart.
    explicit ListColumnFilter(std::vector<std::string> columns)
        : m_columns(std::move(columns))
    {
    }

    void setObject(std::shared_ptr<fc::FcBase>) override {}
    [[nodiscard]] bool isSetIncluded(std::string const& setName) const override
    {
        return m_columns.empty() ||
               std::any_of(m_columns.begin(), m_columns.end(),
                           [&](std::string const& column) { return column.starts_with(setName + "."); });
    }
    [[nodiscard]] bool isPropertyIncluded(std::string const& setName,
                                          std::string const& propertyName) const override
    {
        return m_columns.empty() ||
               std::find(m_columns.begin(), m_columns.end(), setName + "." + propertyName) != m_columns.end();
    }

private:
    std::vector<std::string> m_columns;
};

} // namespace qev::application
