#include "Ui/Qt/PropertyGrid/QtPropertyGrid.h"

#include "Ui/Qt/PropertyGrid/QtPropertyGridView.h"
#include "Ui/Qt/QtCellDrawing.h"
#include "Ui/Qt/QtText.h"

#include <QDataStream>
#include <QEvent>
#include <QList>
#include <QSplitter>
#include <QStringList>
#include <QTextBrowser>
#include <QVBoxLayout>
#include <set>
#include <utility>
#include <vector>

namespace qev::ui {

namespace {

constexpr quint32 layoutMark = 0x51475232;

using Folded = std::set<std::vector<std::string>>;

QList<QStringList> toLists(Folded const& folded)
{
    QList<QStringList> lists;
    for (auto const& path : folded) {
        QStringList names;
        for (auto const& name : path)
            names.append(toQString(name));
        lists.append(names);
    }
    return lists;
}

Folded fromLists(QList<QStringList> const& lists)
{
    Folded folded;
    for (auto const& names : lists) {
        std::vector<std::string> path;
        for (auto const& name : names)
            path.push_back(fromQString(name));
        folded.insert(std::move(path));
    }
    return folded;
}

QString getDescriptionHtml(PropertyGridRow const& row)
{
    auto const& state = row.getState();
    auto const description = QtCellDrawing::getToolTip(toQString(state.description));
    return "<b>" + toQString(state.name).toHtmlEscaped() + "</b><br>" + description;
}

} // namespace

QtPropertyGrid::QtPropertyGrid(QWidget* parent)
    : QWidget(parent)
    , m_rows(std::make_shared<PropertyGridModel>())
    , m_itemModel(new QtPropertyGridItemModel(m_rows, this))
    , m_view(new QtPropertyGridView(*m_itemModel))
    , m_description(new QTextBrowser)
    , m_splitter(new QSplitter(Qt::Vertical))
{
    m_description->setOpenLinks(false);
    m_description->setFocusPolicy(Qt::ClickFocus);
    m_splitter->addWidget(m_view);
    m_splitter->addWidget(m_description);
    m_splitter->setStretchFactor(0, 1);
    m_splitter->setStretchFactor(1, 0);
    m_splitter->setCollapsible(0, false);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_splitter);
    setFocusProxy(m_view);
    setFocusPolicy(Qt::StrongFocus);
    applyFontMeasures();
    m_view->onCurrentRowChanged.iHandlerAdd([this](QModelIndex const& index) {
        updateDescription();
        m_rows->notifyRowSelected(QtPropertyGridItemModel::getRow(index));
    });
    connect(m_itemModel, &QAbstractItemModel::dataChanged, this, &QtPropertyGrid::updateDescription);
    connect(m_itemModel, &QAbstractItemModel::modelReset, this, &QtPropertyGrid::updateDescription);
}

QtPropertyGrid::~QtPropertyGrid() = default;

void QtPropertyGrid::adjustLayout()
{
    m_view->restorePlace();
    updateDescription();
}

void QtPropertyGrid::showRow(PropertyGridRow const& row)
{
    auto const index = m_itemModel->getIndex(row);
    if (!index.isValid())
        return;
    m_view->setCurrentIndex(index);
    m_view->scrollTo(index);
}

std::shared_ptr<PropertyGridRow> QtPropertyGrid::getCurrentRow() const
{
    auto* const row = QtPropertyGridItemModel::getRow(m_view->currentIndex());
    return row ? row->getShared() : nullptr;
}

QString QtPropertyGrid::getDescriptionText() const { return m_description->toPlainText(); }

QByteArray QtPropertyGrid::saveLayout() const
{
    QByteArray layout;
    QDataStream stream(&layout, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_0);
    stream << layoutMark << m_view->getSplit() << m_splitter->saveState() << toLists(m_view->getFolded());
    return layout;
}

bool QtPropertyGrid::restoreLayout(QByteArray const& layout)
{
    QDataStream stream(layout);
    stream.setVersion(QDataStream::Qt_6_0);
    quint32 mark = 0;
    double split = 0;
    QByteArray splitterState;
    QList<QStringList> folded;
    stream >> mark;
    if (mark != layoutMark)
        return false;
    stream >> split >> splitterState >> folded;
    if (stream.status() != QDataStream::Ok)
        return false;
    m_view->setSplit(split);
    m_view->setFolded(fromLists(folded));
    return m_splitter->restoreState(splitterState);
}

void QtPropertyGrid::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        applyFontMeasures();
}

void QtPropertyGrid::updateDescription()
{
    auto const* const row = QtPropertyGridItemModel::getRow(m_view->currentIndex());
    auto const html = row ? getDescriptionHtml(*row) : QString();
    if (m_description->property("shownHtml").toString() == html)
        return;
    m_description->setProperty("shownHtml", html);
    m_description->setHtml(html);
}

void QtPropertyGrid::applyFontMeasures()
{
    auto const line = fontMetrics().lineSpacing();
    m_description->setMinimumHeight(2 * line);
    m_splitter->setSizes({20 * line, 4 * line});
}

} // namespace qev::ui
