#include "ImportDialog.h"

#include "DialogButtons.h"
#include "Texts.h"
#include "Ui/Qt/QtText.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace qev::application {

using ui::toQString;

namespace {

QTreeWidget* makeTable(QStringList const& headers)
{
    auto* const table = new QTreeWidget;
    table->setHeaderLabels(headers);
    table->setRootIsDecorated(false);
    table->setUniformRowHeights(true);
    table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    return table;
}

char const* getKey(ImportRefusal::Reason reason)
{
    switch (reason) {
    case ImportRefusal::Reason::NoSuchObject:
        return "Import_NoSuchObject";
    case ImportRefusal::Reason::NoSuchProperty:
        return "Import_NoSuchProperty";
    case ImportRefusal::Reason::NotEditable:
        return "Import_NotEditable";
    case ImportRefusal::Reason::NotAnEntry:
        return "Import_NotAnEntry";
    case ImportRefusal::Reason::NotTaken:
        break;
    }
    return "Import_NotTaken";
}

void fitColumns(QTreeWidget& table) { table.header()->resizeSections(QHeaderView::ResizeToContents); }

} // namespace

ImportDialog::ImportDialog(ListTable const& table, ImportResult const& preview, QWidget* parent)
    : QDialog(parent)
    , m_changes(makeTable({getText("Import_GlobalId"), getText("Import_Property"), getText("Import_Now"),
                           getText("Import_After")}))
    , m_refusals(makeTable({getText("Import_Line"), getText("Import_GlobalId"), getText("Import_Column"),
                            getText("Import_Value"), getText("Import_Reason")}))
{
    setWindowTitle(getText("List_ImportTitle"));
    fillChanges(table, preview);
    fillRefusals(preview);
    auto* const buttons = makeButtons(*this, getText("Import_Import"));
    buttons->button(QDialogButtonBox::Ok)->setEnabled(!preview.changes.empty());

    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(preview.changes.empty()
                                     ? getText("Import_Nothing")
                                     : getText("Import_Changes", {QString::number(preview.changes.size())})));
    layout->addWidget(m_changes, 3);
    auto* const refusalLabel =
        new QLabel(getText("Import_Refusals", {QString::number(preview.refusals.size())}));
    layout->addWidget(refusalLabel);
    layout->addWidget(m_refusals, 1);
    refusalLabel->setVisible(!preview.refusals.empty());
    m_refusals->setVisible(!preview.refusals.empty());
    layout->addWidget(buttons);
    resize(fontMetrics().averageCharWidth() * 120, fontMetrics().height() * 32);
}

ImportDialog::~ImportDialog() = default;

void ImportDialog::fillChanges(ListTable const& table, ImportResult const& preview)
{
    QList<QTreeWidgetItem*> items;
    for (auto const& change : preview.changes)
        items.push_back(new QTreeWidgetItem({toQString(table.rows.at(change.row).globalId),
                                             toQString(table.columns.at(change.column)),
                                             toQString(change.oldText), toQString(change.newText)}));
    m_changes->addTopLevelItems(items);
    fitColumns(*m_changes);
}

void ImportDialog::fillRefusals(ImportResult const& preview)
{
    QList<QTreeWidgetItem*> items;
    for (auto const& refusal : preview.refusals)
        items.push_back(new QTreeWidgetItem({QString::number(refusal.line), toQString(refusal.globalId),
                                             toQString(refusal.column), toQString(refusal.text),
                                             getText(getKey(refusal.reason))}));
    m_refusals->addTopLevelItems(items);
    fitColumns(*m_refusals);
}

} // namespace qev::application
