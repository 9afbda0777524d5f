#include "ListColumnsDialog.h"

#include "DialogButtons.h"
#include "Texts.h"
#include "Ui/Qt/QtText.h"

#include <map>
#include <QVBoxLayout>

namespace qev::application {

ListColumnsDialog::ListColumnsDialog(std::vector<ListColumn> const& columns,
                                     std::vector<std::string> const& setNames,
                                     std::set<std::size_t> const& shown, QWidget* parent)
    : QDialog(parent)
    , m_search(new QLineEdit)
    , m_tree(new QTreeWidget)
{
    setWindowTitle(getText("Columns_Title"));
    m_search->setPlaceholderText(getText("Columns_Search"));
    m_search->setClearButtonEnabled(true);
    m_tree->setHeaderHidden(true);
    m_tree->setUniformRowHeights(true);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(m_search);
    layout->addWidget(m_tree);
    layout->addWidget(makeButtons(*this));
    connect(m_search, &QLineEdit::textChanged, this, &ListColumnsDialog::search);
    fill(columns, setNames, shown);
    resize(fontMetrics().averageCharWidth() * 60, fontMetrics().height() * 32);
}

ListColumnsDialog::~ListColumnsDialog() = default;

std::set<std::size_t> ListColumnsDialog::getChosen() const
{
    std::set<std::size_t> chosen;
    for (int set = 0; set < m_tree->topLevelItemCount(); ++set) {
        auto const* const branch = m_tree->topLevelItem(set);
        for (int i = 0; i < branch->childCount(); ++i)
            if (branch->child(i)->checkState(0) == Qt::Checked)
                chosen.insert(branch->child(i)->data(0, Qt::UserRole).value<std::size_t>());
    }
    return chosen;
}

void ListColumnsDialog::fill(std::vector<ListColumn> const& columns, std::vector<std::string> const& setNames,
                             std::set<std::size_t> const& shown)
{
    std::map<std::string, QTreeWidgetItem*> branches;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        auto*& branch = branches[setNames[i]];
        if (!branch) {
            auto const title = setNames[i].empty() ? getText("Columns_Object") : ui::toQString(setNames[i]);
            branch = new QTreeWidgetItem(m_tree, {title});
            branch->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable |
                             Qt::ItemIsAutoTristate);
        }
        auto* const item = new QTreeWidgetItem(branch, {ui::toQString(columns[i].title)});
        item->setData(0, Qt::UserRole, QVariant::fromValue(columns[i].index));
        item->setCheckState(0, shown.contains(columns[i].index) ? Qt::Checked : Qt::Unchecked);
    }
    for (auto const& [name, branch] : branches)
        branch->setExpanded(branch->checkState(0) != Qt::Unchecked);
}

void ListColumnsDialog::search(QString const& text)
{
    auto const wanted = text.trimmed();
    for (int set = 0; set < m_tree->topLevelItemCount(); ++set) {
        auto* const branch = m_tree->topLevelItem(set);
        bool const isSetFound = branch->text(0).contains(wanted, Qt::CaseInsensitive);
        bool isAnyFound = isSetFound;
        for (int i = 0; i < branch->childCount(); ++i) {
            bool const isFound =
                isSetFound || branch->child(i)->text(0).contains(wanted, Qt::CaseInsensitive);
            branch->child(i)->setHidden(!isFound);
            isAnyFound = isAnyFound || isFound;
        }
        branch->setHidden(!isAnyFound);
        if (!wanted.isEmpty() && !isSetFound)
            branch->setExpanded(isAnyFound);
    }
}

} // namespace qev::application
