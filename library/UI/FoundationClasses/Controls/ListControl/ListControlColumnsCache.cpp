#include "UI/FoundationClasses/Controls/ListControl/ListControlColumnsCache.h"

#include "Core/Assert/Assert.h"
#include "UI/FoundationClasses/Controls/Formatters/ListControlPropertyFormatterInterface.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace qev::fc::ui {

namespace {

void reportFrom(std::string_view operation, std::string_view text)
{
    assert::report(text, "qev::fc::ui::ListControlColumnsCache::" + std::string(operation),
                   "UI/FoundationClasses/Controls/ListControl/ListControlColumnsCache");
}

void reportCustomColumn(std::string_view operation)
{
    reportFrom("CustomColumnElement::" + std::string(operation),
               "Should never be called for custom columns.");
}

} // namespace

ListControlColumnsCache::ColumnElement::ColumnElement(ColumnPropertyNames names)
    : m_names(std::move(names))
{
}

ListControlColumnsCache::ColumnElement::~ColumnElement() = default;

ListControlColumnsCache::PsetPropertyColumnElement::PsetPropertyColumnElement(ColumnPropertyNames names,
                                                                              std::string title,
                                                                              PropertyInterface* property)
    : ColumnElement(std::move(names))
    , m_title(std::move(title))
    , m_property(property)
{
}

ListControlColumnsCache::CustomColumnElement::CustomColumnElement(
    std::string id, std::string title, std::optional<ColumnPropertyNames> insertBefore)
    : ColumnElement({std::string(), std::move(id)})
    , m_title(std::move(title))
    , m_insertBefore(std::move(insertBefore))
{
}

PropertyInterface* ListControlColumnsCache::CustomColumnElement::getProperty() const
{
    reportCustomColumn("getProperty");
    return nullptr;
}

void ListControlColumnsCache::CustomColumnElement::setProperty(PropertyInterface* /*property*/)
{
    reportCustomColumn("setProperty");
}

void ListControlColumnsCache::CustomColumnElement::resetProperty() { reportCustomColumn("resetProperty"); }

ListControlColumnsCache::ListControlColumnsCache(
    std::shared_ptr<ListControlPropertyFormatterInterface> formatter)
    : m_formatter(std::move(formatter))
{
}

ListControlColumnsCache::~ListControlColumnsCache() = default;

void ListControlColumnsCache::addPropertyColumn(std::string const& title, std::string const& setName,
                                                std::string const& propertyName, PropertyInterface* property)
{
    m_columns.push_back(std::make_unique<PsetPropertyColumnElement>(
        ColumnPropertyNames{setName, propertyName}, title, property));
}

void ListControlColumnsCache::addCustomColumn(std::string const& id, std::string const& title,
                                              std::optional<ColumnPropertyNames> const& insertBefore)
{
    auto const place = insertBefore ? findPlaceBefore(*insertBefore) : m_columns.size();
    m_columns.insert(m_columns.begin() + static_cast<std::ptrdiff_t>(place),
                     std::make_unique<CustomColumnElement>(id, title, insertBefore));
}

std::size_t ListControlColumnsCache::findPlaceBefore(ColumnPropertyNames const& names) const
{
    auto const found = std::find_if(m_columns.begin(), m_columns.end(),
                                    [&names](auto const& column) { return column->getNames() == names; });
    auto place = static_cast<std::size_t>(found - m_columns.begin());
    if (found == m_columns.end())
        return place;
    auto const wasPutThere = [&names](ColumnElement const& column) {
        auto const* const custom = dynamic_cast<CustomColumnElement const*>(&column);
        return custom && custom->getInsertBefore() == names;
    };
    while (place > 0 && wasPutThere(*m_columns[place - 1]))
        --place;
    return place;
}

bool ListControlColumnsCache::isColumnIndexOutOfRange(std::size_t index) const
{
    if (index < m_columns.size())
        return false;
    reportFrom("isColumnIndexOutOfRange", "Column index out of range.");
    return true;
}

ColumnPropertyNames const& ListControlColumnsCache::getColumnNames(std::size_t index) const
{
    static ColumnPropertyNames const none;
    return isColumnIndexOutOfRange(index) ? none : m_columns[index]->getNames();
}

std::string const& ListControlColumnsCache::getColumnTitle(std::size_t index) const
{
    static std::string const none;
    return isColumnIndexOutOfRange(index) ? none : m_columns[index]->getTitle();
}

bool ListControlColumnsCache::isCustomColumn(std::size_t index) const
{
    return !isColumnIndexOutOfRange(index) && m_columns[index]->isCustom();
}

PropertyInterface* ListControlColumnsCache::getProperty(std::size_t index) const
{
    return isColumnIndexOutOfRange(index) ? nullptr : m_columns[index]->getProperty();
}

std::string ListControlColumnsCache::getCustomColumnItemString(std::size_t index) const
{
    if (isColumnIndexOutOfRange(index))
        return {};
    if (m_formatter)
        return m_formatter->getCustomColumnItemString(m_columns[index]->getNames().propertyName);
    reportFrom("getCustomColumnItemString", "Need list control property formatter to provide item strings.");
    return {};
}

void ListControlColumnsCache::clear() { m_columns.clear(); }

} // namespace qev::fc::ui
