#pragma once

#include "Format/Ifc/Model/IfcFile.h"
#include "ListTable.h"

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace qev::application {

/// A cell of a table that says something else than the model.
struct ImportChange
{
    /// The row and the column of the table.
    std::size_t row = 0;
    std::size_t column = 0;
    /// The set that the property is in.
    std::string setName;
    /// What the model says.
    std::string oldText;
    /// What the table says, in the unit of the list.
    std::string newText;
};

/// A row or a cell of a table that was not taken.
struct ImportRefusal
{
    enum class Reason
    {
        /// No object has the GlobalId of the row.
        NoSuchObject,
        /// The object has no such property, and may not have it.
        NoSuchProperty,
        /// The cell cannot be edited in a list.
        NotEditable,
        /// The text is none of the values to choose from.
        NotAnEntry,
        /// The text is no value for the property.
        NotTaken,
    };

    /// Where the row stands in the file.
    std::size_t line = 0;
    std::string globalId;
    /// Empty for a whole row.
    std::string column;
    std::string text;
    Reason reason = Reason::NotTaken;
};

/// What becomes, or became, of a table.
struct ImportResult
{
    std::vector<ImportChange> changes;
    /// By line.
    std::vector<ImportRefusal> refusals;
};

/// Brings a table back into the model that it came from. A cell is an input like one typed into the list of
/// the objects; cells that say what the model says already are left alone, so that a value which several
/// objects share is not put back by the rows that did not change it.
class ListImport
{
public:
    /// \p file outlives the import.
    ListImport(ifc::IfcFile& file, ListTable const& table);

    /// What would change, and what of the table would be refused and why. Writes nothing.
    [[nodiscard]] ImportResult preview() const;
    /// Writes the changes of \p preview, as one step that can be undone. \returns those that were taken, and
    /// all refusals.
    ImportResult apply(ImportResult preview) const;

private:
    /// Rows of the table whose objects are of one class, and so shown in one list.
    struct Group
    {
        std::vector<std::size_t> rows;
        std::vector<std::shared_ptr<fc::FcBase>> objects;
    };

    [[nodiscard]] std::vector<Group> makeGroups(ImportResult& result) const;
    /// Looks for what differs in the columns of the table at \p tableColumns.
    /// \returns those that the list of the group does not have.
    std::vector<std::size_t> findChanges(HeadlessList& list, Group const& group,
                                         std::vector<std::size_t> const& tableColumns,
                                         ImportResult& result) const;
    /// Notes a cell that says something else than the model: as a change, or as a refusal where the model
    /// would not take it.
    void addChange(HeadlessList const& list, ui::ListControl::ItemInfo const& item, ImportChange change,
                   ImportResult& result) const;
    void findChangesOfSingleObjects(HeadlessList& list, Group const& group,
                                    std::vector<std::size_t> const& tableColumns, ImportResult& result) const;
    void write(HeadlessList& list, ImportResult& result) const;
    [[nodiscard]] ImportRefusal refusalOf(ImportChange const& change, ui::ListRefusalReason reason) const;
    [[nodiscard]] std::vector<std::string> columnIds() const;

    ifc::IfcFile& m_file;
    ListTable const& m_table;
};

} // namespace qev::application
