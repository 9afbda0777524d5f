#include "SearchPanel.h"

#include "Texts.h"
#include "Ui/Qt/QtText.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QVBoxLayout>

namespace qev::application {

using ui::fromQString;
using ui::toQString;

namespace {

constexpr int delayMilliseconds = 150;
constexpr std::size_t objectsPerPortion = 500;
constexpr int objectRole = Qt::UserRole;

} // namespace

SearchPanel::SearchPanel(QWidget& whenEmpty, QWidget* parent)
    : QWidget(parent)
    , m_box(new QLineEdit)
    , m_count(new QLabel)
    , m_whenEmpty(&whenEmpty)
    , m_hits(new QTreeWidget)
{
    m_box->setClearButtonEnabled(true);
    m_box->installEventFilter(this);
    showTexts();
    m_hits->setRootIsDecorated(false);
    m_hits->setUniformRowHeights(true);
    m_hits->hide();
    m_count->hide();

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_box);
    layout->addWidget(m_count);
    layout->addWidget(m_whenEmpty);
    layout->addWidget(m_hits);

    m_delay.setSingleShot(true);
    m_delay.setInterval(delayMilliseconds);
    connect(m_box, &QLineEdit::textChanged, &m_delay, QOverload<>::of(&QTimer::start));
    connect(&m_delay, &QTimer::timeout, this, &SearchPanel::start);
    connect(&m_portions, &QTimer::timeout, this, &SearchPanel::advance);
    connect(m_hits, &QTreeWidget::itemActivated, this, &SearchPanel::choose);
    connect(m_hits, &QTreeWidget::itemClicked, this, &SearchPanel::choose);
}

SearchPanel::~SearchPanel() = default;

void SearchPanel::setData(std::shared_ptr<fc::Data> model)
{
    m_data = std::move(model);
    m_box->clear();
    m_box->setEnabled(m_data != nullptr);
    start();
}

void SearchPanel::focusBox()
{
    m_box->setFocus(Qt::ShortcutFocusReason);
    m_box->selectAll();
}

void SearchPanel::chooseNext()
{
    if (m_delay.isActive())
        start();
    while (m_search && m_hits->topLevelItemCount() == 0)
        advance();
    auto* const current = m_hits->currentItem();
    auto* const next = current ? m_hits->itemBelow(current) : m_hits->topLevelItem(0);
    if (!next)
        return;
    m_hits->setCurrentItem(next);
    choose(next);
}

std::vector<fc::EntityIndex> SearchPanel::getObjects() const
{
    std::vector<fc::EntityIndex> objects;
    for (int i = 0; i < m_hits->topLevelItemCount(); ++i)
        objects.push_back(m_hits->topLevelItem(i)->data(0, objectRole).value<quint32>());
    return objects;
}

bool SearchPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_box && event->type() == QEvent::KeyPress &&
        handleKey(static_cast<QKeyEvent*>(event)->key()))
        return true;
    return QWidget::eventFilter(watched, event);
}

void SearchPanel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        showTexts();
    QWidget::changeEvent(event);
}

void SearchPanel::showTexts()
{
    m_box->setPlaceholderText(getText("Search_Placeholder"));
    m_hits->setHeaderLabels({getText("Search_Name"), getText("Search_Class")});
}

void SearchPanel::start()
{
    m_delay.stop();
    m_portions.stop();
    m_search.reset();
    m_hits->clear();
    auto const text = m_box->text().trimmed();
    auto const isSearch = m_data && !text.isEmpty();
    m_hits->setVisible(isSearch);
    m_count->setVisible(isSearch);
    m_whenEmpty->setVisible(!isSearch);
    if (!isSearch) {
        fireEvents(onFinished);
        return;
    }
    m_search.emplace(m_data, fromQString(text));
    m_portions.start();
    advance();
}

void SearchPanel::advance()
{
    if (!m_search)
        return;
    for (auto const& hit : m_search->advance(objectsPerPortion))
        addHit(hit);
    showCount();
    if (!m_search->isFinished())
        return;
    m_portions.stop();
    m_search.reset();
    m_hits->header()->resizeSections(QHeaderView::ResizeToContents);
    fireEvents(onFinished);
}

void SearchPanel::addHit(ObjectSearch::Hit const& hit)
{
    auto* const item = new QTreeWidgetItem(m_hits);
    item->setText(0, toQString(hit.label.getTitle()));
    item->setText(1, toQString(hit.label.className));
    item->setToolTip(0, toQString(hit.label.globalId));
    item->setData(0, objectRole, QVariant::fromValue<quint32>(hit.object));
}

void SearchPanel::showCount()
{
    auto const count = m_hits->topLevelItemCount();
    auto const number = QString::number(count);
    if (m_search->isCutShort())
        m_count->setText(getText("Search_First", {number}));
    else if (!m_search->isFinished())
        m_count->setText(getText("Search_SoFar", {number}));
    else
        m_count->setText(count == 0 ? getText("Search_Nothing") : getText("Search_Found", {number}));
}

void SearchPanel::choose(QTreeWidgetItem* item)
{
    if (item)
        fireEvents(onChosen, item->data(0, objectRole).value<quint32>());
}

bool SearchPanel::handleKey(int key)
{
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        chooseNext();
        return true;
    case Qt::Key_Down:
        m_hits->setFocus();
        if (!m_hits->currentItem() && m_hits->topLevelItemCount() > 0)
            m_hits->setCurrentItem(m_hits->topLevelItem(0));
        return true;
    case Qt::Key_Escape:
        m_box->clear();
        start();
        return true;
    default:
        return false;
    }
}

} // namespace qev::application
