#pragma once

#include "ListImport.h"

#include <QDialog>
#include <QTreeWidget>

namespace qev::application {

/// Shows what the import of a table would change and what of it cannot be taken, before anything is changed.
class ImportDialog final : public QDialog
{
public:
    ImportDialog(ListTable const& table, ImportResult const& preview, QWidget* parent = nullptr);
    ~ImportDialog() override;

    /// One line for each cell that would change: object, column, the value there is and the new one.
    [[nodiscard]] QTreeWidget& getChanges() const { return *m_changes; }
    /// One line for each row or cell that cannot be taken, and why.
    [[nodiscard]] QTreeWidget& getRefusals() const { return *m_refusals; }

private:
    void fillChanges(ListTable const& table, ImportResult const& preview);
    void fillRefusals(ImportResult const& preview);

    QTreeWidget* m_changes;
    QTreeWidget* m_refusals;
};

} // namespace qev::application
