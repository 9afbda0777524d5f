#pragma once

#include "QevFoundationClassesUiExport.h"
#include "UI/FoundationClasses/Controls/ListControl/ColumnPropertyNames.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace qev::fc::ui {

class ListControlPropertyFormatterInterface;
class PropertyInterface;

/// The columns of a list of objects, from left to right: one for each property, and columns of the host's
/// own, whose texts the list formatter gives.
///
/// A question about a column that is not there is reported, and answered with an empty value.
class QEVFOUNDATIONCLASSESUI_EXPORT ListControlColumnsCache
{
public:
    /// One column.
    class QEVFOUNDATIONCLASSESUI_EXPORT ColumnElement
    {
    public:
        virtual ~ColumnElement();
        ColumnElement(ColumnElement const&) = delete;
        ColumnElement& operator=(ColumnElement const&) = delete;

        [[nodiscard]] virtual std::string const& getTitle() const = 0;
        /// True for a column of the host's own. It has no property, and each question for one is reported.
        [[nodiscard]] virtual bool isCustom() const = 0;
        /// Null once the property has been taken away.
        [[nodiscard]] virtual PropertyInterface* getProperty() const = 0;
        virtual void setProperty(PropertyInterface* property) = 0;
        virtual void resetProperty() = 0;

        [[nodiscard]] ColumnPropertyNames const& getNames() const { return m_names; }

    protected:
        explicit ColumnElement(ColumnPropertyNames names);

    private:
        ColumnPropertyNames m_names;
    };

    /// The column of a property. The property is not owned.
    class QEVFOUNDATIONCLASSESUI_EXPORT PsetPropertyColumnElement final : public ColumnElement
    {
    public:
        PsetPropertyColumnElement(ColumnPropertyNames names, std::string title, PropertyInterface* property);

        [[nodiscard]] std::string const& getTitle() const override { return m_title; }
        [[nodiscard]] bool isCustom() const override { return false; }
        [[nodiscard]] PropertyInterface* getProperty() const override { return m_property; }
        void setProperty(PropertyInterface* property) override { m_property = property; }
        void resetProperty() override { m_property = nullptr; }

    private:
        std::string m_title;
        PropertyInterface* m_property;
    };

    /// A column of the host's own: no set, and the id in place of the property's name.
    class QEVFOUNDATIONCLASSESUI_EXPORT CustomColumnElement final : public ColumnElement
    {
    public:
        CustomColumnElement(std::string id, std::string title,
                            std::optional<ColumnPropertyNames> insertBefore);

        [[nodiscard]] std::string const& getTitle() const override { return m_title; }
        [[nodiscard]] bool isCustom() const override { return true; }
        [[nodiscard]] PropertyInterface* getProperty() const override;
        void setProperty(PropertyInterface* property) override;
        void resetProperty() override;

        /// The names of the column in front of which this one was to go.
        [[nodiscard]] std::optional<ColumnPropertyNames> const& getInsertBefore() const
        {
            return m_insertBefore;
        }

    private:
        std::string m_title;
        std::optional<ColumnPropertyNames> m_insertBefore;
    };

    /// \p formatter may be null as long as no text of a column of the host's own is asked for.
    explicit ListControlColumnsCache(std::shared_ptr<ListControlPropertyFormatterInterface> formatter);
    ~ListControlColumnsCache();

    /// Appends the column of a property, which is valid for as long as it is not reset.
    void addPropertyColumn(std::string const& title, std::string const& setName,
                           std::string const& propertyName, PropertyInterface* property);
    /// Puts a column of the host's own in front of the first column of these names, and of those that were
    /// put there before; at the end when there is none, or no names are given. Columns that are to stand in
    /// front of one column in a certain order are thus added from the last to the first.
    void addCustomColumn(std::string const& id, std::string const& title,
                         std::optional<ColumnPropertyNames> const& insertBefore);

    [[nodiscard]] std::size_t getColumnCount() const { return m_columns.size(); }
    [[nodiscard]] std::vector<std::unique_ptr<ColumnElement>> const& getColumns() const { return m_columns; }
    /// True, with a report, for an index that is not below the number of columns.
    [[nodiscard]] bool isColumnIndexOutOfRange(std::size_t index) const;
    [[nodiscard]] ColumnPropertyNames const& getColumnNames(std::size_t index) const;
    [[nodiscard]] std::string const& getColumnTitle(std::size_t index) const;
    [[nodiscard]] bool isCustomColumn(std::size_t index) const;
    /// The property of a column; null for none. Reported for a column of the host's own.
    [[nodiscard]] PropertyInterface* getProperty(std::size_t index) const;
    /// The formatter's text for a column, by its id. Without a formatter that is reported, and the text
    /// empty.
    [[nodiscard]] std::string getCustomColumnItemString(std::size_t index) const;

    void clear();

private:
    [[nodiscard]] std::size_t findPlaceBefore(ColumnPropertyNames const& names) const;

    std::vector<std::unique_ptr<ColumnElement>> m_columns;
    std::shared_ptr<ListControlPropertyFormatterInterface> m_formatter;
};

} // namespace qev::fc::ui
