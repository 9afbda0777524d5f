#include "ClassificationDialog.h"

#include "DialogButtons.h"
#include "Texts.h"
#include "Ui/Qt/QtText.h"

#include <algorithm>
#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QVBoxLayout>

namespace qev::application {

using ui::fromQString;
using ui::toQString;

ClassificationDialog::ClassificationDialog(classification::ClassificationSystem const& system,
                                           std::string const& selectedCode, QWidget* parent)
    : QDialog(parent)
    , m_system(system)
    , m_search(new QLineEdit)
    , m_tree(new QTreeWidget)
    , m_description(new QLabel)
{
    setWindowTitle(getText("Classification_Title", {toQString(system.getKey())}));
    m_search->setPlaceholderText(getText("Classification_Search"));
    m_search->setClearButtonEnabled(true);
    m_search->installEventFilter(this);
    m_tree->setHeaderLabels({getText("Classification_Code"), getText("Classification_CodeTitle")});
    m_tree->setUniformRowHeights(true);
    m_description->setWordWrap(true);
    m_description->setMinimumHeight(2 * fontMetrics().lineSpacing());
    m_description->setAlignment(Qt::AlignTop | Qt::AlignLeft);

    auto* const buttons = makeButtons(*this);
    m_ok = buttons->button(QDialogButtonBox::Ok);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(m_search);
    layout->addWidget(m_tree);
    layout->addWidget(m_description);
    layout->addWidget(buttons);

    fill(m_tree->invisibleRootItem(), {});
    connect(m_search, &QLineEdit::textChanged, this, &ClassificationDialog::search);
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &ClassificationDialog::showChosen);
    connect(m_tree, &QTreeWidget::itemActivated, this, &QDialog::accept);

    resize(fontMetrics().averageCharWidth() * 80, fontMetrics().height() * 32);
    m_tree->expandAll();
    m_tree->header()->resizeSections(QHeaderView::ResizeToContents);
    m_tree->collapseAll();
    select(selectedCode);
    showChosen();
}

ClassificationDialog::~ClassificationDialog() = default;

std::vector<std::string> ClassificationDialog::getChosenPath() const
{
    auto const* const item = m_tree->currentItem();
    return item && !item->isHidden() ? m_system.getPath(fromQString(item->text(0)))
                                     : std::vector<std::string>();
}

bool ClassificationDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_search && event->type() == QEvent::KeyPress) {
        auto const key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown)
            return QCoreApplication::sendEvent(m_tree, event);
    }
    return QDialog::eventFilter(watched, event);
}

void ClassificationDialog::fill(QTreeWidgetItem* parent, std::string const& code)
{
    for (auto const& child : m_system.getChildren(code)) {
        auto const* const known = m_system.find(child);
        auto* const item = new QTreeWidgetItem(parent, {toQString(known->code), toQString(known->title)});
        item->setToolTip(1, toQString(known->description.empty() ? known->title : known->description));
        m_items[child] = item;
        fill(item, child);
    }
}

void ClassificationDialog::search(QString const& text)
{
    bool const isEverything = text.trimmed().isEmpty();
    for (auto const& [code, item] : m_items) {
        item->setHidden(!isEverything);
        item->setExpanded(false);
    }
    auto const found = m_system.search(fromQString(text));
    for (auto const& code : isEverything ? std::vector<std::string>() : found) {
        auto* const item = m_items.at(code);
        item->setHidden(false);
        for (auto* above = item->parent(); above; above = above->parent()) {
            above->setHidden(false);
            above->setExpanded(true);
        }
    }
    auto const chosen = m_tree->currentItem() ? fromQString(m_tree->currentItem()->text(0)) : std::string();
    bool const isChosenFound = std::find(found.begin(), found.end(), chosen) != found.end();
    select(isChosenFound || found.empty() || isEverything ? chosen : found.front());
    showChosen();
}

void ClassificationDialog::select(std::string const& code)
{
    auto const item = m_items.find(code);
    if (item == m_items.end())
        return;
    m_tree->setCurrentItem(item->second);
    m_tree->scrollToItem(item->second);
}

void ClassificationDialog::showChosen()
{
    auto const path = getChosenPath();
    m_ok->setEnabled(!path.empty());
    QStringList titles;
    for (auto const& code : path) {
        auto const title = toQString(m_system.getTitle(code));
        titles.push_back(title.isEmpty() ? toQString(code) : title);
    }
    auto text = titles.join(QStringLiteral(" › "));
    if (auto const* const chosen = path.empty() ? nullptr : m_system.find(path.back());
        chosen && !chosen->description.empty())
        text += '\n' + toQString(chosen->description);
    m_description->setText(text);
}

} // namespace qev::application
