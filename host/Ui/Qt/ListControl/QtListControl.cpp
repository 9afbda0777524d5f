#include "Ui/Qt/ListControl/QtListControl.h"

#include "Core/Localization/Localize.h"
#include "Ui/Qt/ListControl/QtListHeaderPanel.h"
#include "Ui/Qt/QtCellDrawing.h"
#include "Ui/Qt/QtLocalize.h"
#include "Ui/Qt/QtText.h"
#include "Ui/Window/Details/WindowInterfaceFactory.h"

#include <algorithm>
#include <QApplication>
#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLocale>
#include <QPainter>
#include <QScrollBar>
#include <QSizeGrip>
#include <QToolButton>
#include <QVBoxLayout>
#include <utility>

namespace qev::ui {

namespace {

/// How long work may go on before the user gets a turn.
constexpr qint64 portionMilliseconds = 25;
constexpr std::size_t portionRows = 200;
constexpr std::size_t portionCells = 2000;
constexpr std::size_t mostRefusalsInNotice = 5;
constexpr std::size_t mostRefusalsInDetails = 50;
/// A popup of more rows than this has a filter from the start; in others it comes with the first letter.
constexpr std::size_t mostRowsWithoutFilter = 12;

QString getNumberText(std::size_t number) { return QLocale().toString(static_cast<qulonglong>(number)); }

char const* getReasonKey(ListRefusalReason reason)
{
    switch (reason) {
    case ListRefusalReason::NotEditable:
        return "List_NotEditable";
    case ListRefusalReason::NotAnEntry:
        return "List_NotAnEntry";
    case ListRefusalReason::NotTaken:
        return "List_NotTaken";
    }
    return "";
}

} // namespace

QtListControl::QtListControl(unsigned int style, QWidget* parent)
    : QWidget(parent)
    , m_style(style)
    , m_cells(new QtListItemModel(
          [this] {
              return std::dynamic_pointer_cast<ListControl>(
                  details::WindowInterfaceFactory::pWindowFromHandle_(WindowHandle(this)));
          },
          this))
    , m_view(new QtListView(*m_cells))
    , m_filterBox(new QLineEdit)
    , m_findBar(new QWidget)
    , m_findBox(new QLineEdit)
    , m_findState(new QLabel)
    , m_counts(new QLabel)
    , m_notice(new QLabel)
{
    if (isPopup())
        setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
    createLayout();
    connectView();
    updateBehaviour();
    setFocusProxy(m_view);
    setTexts();
    m_work.setInterval(0);
    connect(&m_work, &QTimer::timeout, this, &QtListControl::doWork);
}

QtListControl::~QtListControl() = default;

QString QtListControl::getNotice() const { return m_notice->isHidden() ? QString() : m_notice->text(); }

bool QtListControl::isUsingReportStyle() const
{
    return (m_style & (ListControl::ReportStyle | ListControl::PopupReportStyle)) != 0;
}

void QtListControl::setItemAndColumnCounts(std::size_t rows, std::size_t columns)
{
    auto const control = m_cells->getControl();
    std::vector<std::string> titles;
    for (std::size_t column = 0; control && column < columns; ++column)
        titles.push_back(fireEvent(control->onGetColumnHeaderText, column));

    m_cells->setCounts(rows, titles);
    m_view->arrangeColumns();
    if (!titles.empty())
        takeOrderAlong(titles);
    if (isPopup())
        arrangePopup();
    startWork();
}

void QtListControl::addStyleFlags(unsigned int flags)
{
    m_flags |= flags;
    updateBehaviour();
}

void QtListControl::setReadOnly(bool readOnly)
{
    auto behaviour = m_view->getBehaviour();
    behaviour.isReadOnly = readOnly;
    m_view->setBehaviour(behaviour);
}

ListControlSettings QtListControl::getSettings() const
{
    // Popups share what is kept of them, and each has other columns.
    if (isPopup())
        return {};
    auto settings = m_cells->getColumns().getSettings();
    settings.sorting = m_sortingForLater.value_or(m_cells->getOrder().getSorting());
    return settings;
}

void QtListControl::loadSettings(ListControlSettings const& settings)
{
    m_cells->getColumns().loadSettings(settings);
    if (m_cells->getColumns().getCount() == 0) {
        m_sortingForLater = settings.sorting;
        return;
    }
    m_view->arrangeColumns();
    auto sorting = settings.sorting;
    std::erase_if(sorting, [this](ListSortColumn const& column) {
        return column.column >= m_cells->getColumns().getCount();
    });
    setSorting(std::move(sorting));
}

void QtListControl::setSorting(std::vector<ListSortColumn> sorting)
{
    m_cells->changeOrder([&](ListRowOrder& order) { order.setSorting(std::move(sorting)); });
    m_view->getHeader().viewport()->update();
    startWork();
}

QString QtListControl::getColumnFilter(std::size_t column) const
{
    auto const& texts = m_cells->getOrder().getFilter().columnTexts;
    auto const found = texts.find(column);
    return found == texts.end() ? QString() : toQString(found->second);
}

void QtListControl::setColumnFilter(std::size_t column, QString const& text)
{
    auto filter = m_cells->getOrder().getFilter();
    if (text.trimmed().isEmpty())
        filter.columnTexts.erase(column);
    else
        filter.columnTexts[column] = fromQString(text);
    changeFilter(std::move(filter));
}

void QtListControl::setColumnHidden(std::size_t column, bool hidden)
{
    m_cells->getColumns().setHidden(column, hidden);
    m_view->arrangeColumns();
    changeFilter(m_cells->getOrder().getFilter());
}

bool QtListControl::mayHideColumn(std::size_t column) const
{
    auto const control = m_cells->getControl();
    return control && fireEvent(control->onQueryColumn, column);
}

void QtListControl::resetArrangement()
{
    m_cells->getColumns().resetArrangement();
    m_view->arrangeColumns();
    changeFilter(m_cells->getOrder().getFilter());
}

QString QtListControl::getTitle(int column) const
{
    return m_cells->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
}

void QtListControl::openFindBox()
{
    m_findBar->show();
    m_findBox->setFocus();
    m_findBox->selectAll();
}

void QtListControl::findNext(bool forwards)
{
    auto const columns = m_view->getHeader().getShownColumns();
    auto const rows = m_cells->getOrder().getShownCount();
    if (m_findBox->text().isEmpty() || columns.empty() || rows == 0)
        return;
    auto const current = m_view->currentIndex();
    auto const found = std::find(columns.begin(), columns.end(), current.column());
    // Without a current cell the first is the next one.
    ListFinder::Place start{rows - 1, columns.size() - 1};
    if (current.isValid() && found != columns.end())
        start = {static_cast<std::size_t>(current.row()), static_cast<std::size_t>(found - columns.begin())};
    m_finder.emplace(fromQString(m_findBox->text()), rows, columns.size(), start, forwards);
    m_findState->clear();
    startWork();
}

QtListHeaderPanel& QtListControl::openHeaderPanel(int column, QPoint const& position)
{
    auto* const panel = new QtListHeaderPanel(*this, column);
    panel->move(position);
    panel->show();
    return *panel;
}

void QtListControl::keyPressEvent(QKeyEvent* event)
{
    if (isPopup() && handleKeyOfPopup(*event)) {
        event->accept();
        return;
    }
    if (event->key() != Qt::Key_Escape) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (m_findBar->isVisible()) {
        m_findBar->hide();
        m_finder.reset();
        m_view->setFocus();
    } else if (isPopup()) {
        leavePopup();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void QtListControl::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        setTexts();
}

void QtListControl::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    if (!isPopup())
        return;
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void QtListControl::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (isPopup())
        stretchLastColumn();
}

void QtListControl::setTexts()
{
    m_filterBox->setPlaceholderText(getUiText("List_Filter"));
    m_findBox->setPlaceholderText(getUiText("List_Find"));
    m_nextButton->setToolTip(getUiText("List_FindNext"));
    m_previousButton->setToolTip(getUiText("List_FindPrevious"));
    updateCounts();
}

void QtListControl::createLayout()
{
    m_filterBox->setObjectName(QStringLiteral("listFilter"));
    m_filterBox->setClearButtonEnabled(true);
    m_findBox->setObjectName(QStringLiteral("listFind"));
    m_notice->setWordWrap(true);
    m_notice->setAutoFillBackground(true);
    m_notice->setForegroundRole(QPalette::ToolTipText);
    m_notice->setBackgroundRole(QPalette::ToolTipBase);
    m_notice->setMargin(fontMetrics().averageCharWidth() / 2);
    m_notice->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_notice->hide();

    auto const margin = fontMetrics().averageCharWidth() / 2;
    auto* const findLayout = new QHBoxLayout(m_findBar);
    findLayout->setContentsMargins(0, 0, 0, 0);
    findLayout->addWidget(m_findBox, 1);
    findLayout->addWidget(m_findState);
    for (bool const forwards : {false, true}) {
        auto* const button = new QToolButton;
        button->setArrowType(forwards ? Qt::DownArrow : Qt::UpArrow);
        (forwards ? m_nextButton : m_previousButton) = button;
        connect(button, &QToolButton::clicked, this, [this, forwards] { findNext(forwards); });
        findLayout->addWidget(button);
    }
    m_findBar->hide();

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(margin);
    layout->addWidget(m_filterBox);
    layout->addWidget(m_findBar);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_notice);
    layout->addWidget(m_counts);
    if (!isPopup())
        return;
    m_filterBox->hide();
    m_counts->hide();
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    auto& header = m_view->getHeader();
    header.setSectionsClickable(false);
    header.setSectionsMovable(false);
    header.setContextMenuPolicy(Qt::NoContextMenu);
    connect(&header, &QHeaderView::sectionResized, this, [this](int column) {
        auto const columns = m_view->getHeader().getShownColumns();
        if (!columns.empty() && column != columns.back())
            stretchLastColumn();
    });
    // Once the scroll bar has come or gone.
    connect(
        m_view->verticalScrollBar(), &QScrollBar::rangeChanged, this, [this] { stretchLastColumn(); },
        Qt::QueuedConnection);
    layout->addWidget(new QSizeGrip(this), 0, Qt::AlignRight);
    layout->setSpacing(0);
    layout->setContentsMargins(1, 1, 1, 1);
}

void QtListControl::arrangePopup()
{
    updateBehaviour();
    auto const& titles = m_cells->getColumns().getTitles();
    bool const hasTitles =
        std::any_of(titles.begin(), titles.end(), [](std::string const& title) { return !title.empty(); });
    m_view->getHeader().setVisible(hasTitles && (m_style & ListControl::PopupReportStyle) != 0);
    m_filterBox->setVisible(m_view->getBehaviour().isMenuOfRows &&
                            m_cells->getOrder().getRowCount() > mostRowsWithoutFilter);
    // An editor that is opened now is to find the rows at their places.
    finishOrder();
    if (isVisible())
        fitPopupColumns();
}

void QtListControl::openPopup()
{
    auto* const focused = QApplication::focusWidget();
    if (focused && !isAncestorOf(focused))
        m_focusBefore = focused;
    fitPopupColumns();
    activateWindow();
    if (!m_view->isEditing()) {
        m_view->setFocus();
        makeFirstRowCurrent();
    }
}

void QtListControl::fitPopupColumns()
{
    auto& header = m_view->getHeader();
    // A menu is easier to read without a column that says nothing.
    for (int column = 1; column < header.count() && m_view->getBehaviour().isMenuOfRows; ++column)
        header.setSectionHidden(column, !hasTexts(column));
    auto const columns = header.getShownColumns();
    auto const most = 2 * m_view->viewport()->width() / 3;
    for (std::size_t place = 0; place + 1 < columns.size(); ++place) {
        m_view->fitColumn(columns[place]);
        if (header.sectionSize(columns[place]) > most)
            header.resizeSection(columns[place], most);
    }
    stretchLastColumn();
}

void QtListControl::stretchLastColumn()
{
    // A header that is not shown does not stretch a column by itself.
    auto& header = m_view->getHeader();
    auto const columns = header.getShownColumns();
    if (columns.empty())
        return;
    auto const others = header.length() - header.sectionSize(columns.back());
    header.resizeSection(columns.back(),
                         std::max(header.minimumSectionSize(), m_view->viewport()->width() - others));
}

bool QtListControl::hasTexts(int column) const
{
    for (std::size_t row = 0; row < m_cells->getOrder().getRowCount(); ++row)
        if (!m_cells->getPlainText(row, static_cast<std::size_t>(column)).empty())
            return true;
    return false;
}

void QtListControl::makeFirstRowCurrent()
{
    auto const columns = m_view->getHeader().getShownColumns();
    if (!m_view->currentIndex().isValid() && !columns.empty())
        m_view->setCurrentIndex(m_cells->index(0, columns.front()));
}

bool QtListControl::handleKeyOfPopup(QKeyEvent const& event)
{
    if (!m_filterBox->hasFocus())
        return false;
    if (event.key() == Qt::Key_Escape && !m_filterBox->text().isEmpty()) {
        m_filterBox->clear();
        m_view->setFocus();
        return true;
    }
    bool const isMove = event.key() == Qt::Key_Down || event.key() == Qt::Key_Up ||
                        event.key() == Qt::Key_PageDown || event.key() == Qt::Key_PageUp;
    if (!isMove)
        return false;
    finishOrder();
    m_view->setFocus();
    makeFirstRowCurrent();
    return true;
}

void QtListControl::leavePopup()
{
    // A popup goes when it loses the focus.
    auto* const target = m_focusBefore ? m_focusBefore.data() : parentWidget();
    if (!target)
        return;
    target->activateWindow();
    target->setFocus();
}

void QtListControl::finishOrder()
{
    while (m_cells->getOrder().isPending())
        m_cells->advanceOrder(portionRows);
}

void QtListControl::connectView()
{
    m_view->onInputDone.iHandlerAdd([this](ListEditResult const& result) { tell(result); });
    m_view->onMessage.iHandlerAdd([this](QString const& text) { showNotice(text, {}); });
    m_view->onSelectionChanged.iHandlerAdd([this] { updateCounts(); });
    m_view->onTextTyped.iHandlerAdd([this](QString const& text) {
        m_filterBox->show();
        m_filterBox->setFocus();
        m_filterBox->setText(m_filterBox->text() + text);
    });
    m_view->onFind.iHandlerAdd([this] { openFindBox(); });
    m_view->onFindNext.iHandlerAdd([this](bool forwards) { findNext(forwards); });
    connect(m_cells, &QAbstractItemModel::modelAboutToBeReset, this, &QtListControl::keepPlace);
    connect(m_cells, &QAbstractItemModel::modelReset, this, &QtListControl::restorePlace);
    connect(m_filterBox, &QLineEdit::textChanged, this, [this](QString const& text) {
        auto filter = m_cells->getOrder().getFilter();
        filter.text = fromQString(text);
        changeFilter(std::move(filter));
    });
    connect(m_filterBox, &QLineEdit::returnPressed, m_view, [this] {
        m_view->setFocus();
        if (!isPopup())
            return;
        finishOrder();
        makeFirstRowCurrent();
        m_view->activateCurrent();
    });
    connect(m_findBox, &QLineEdit::returnPressed, this,
            [this] { findNext(!QApplication::keyboardModifiers().testFlag(Qt::ShiftModifier)); });
    auto& header = m_view->getHeader();
    connect(&header, &QHeaderView::sectionClicked, this, &QtListControl::clickHeader);
    connect(&header, &QWidget::customContextMenuRequested, this, [this](QPoint const& position) {
        auto& shown = m_view->getHeader();
        openHeaderPanel(shown.logicalIndexAt(position), shown.viewport()->mapToGlobal(position));
    });
}

void QtListControl::keepPlace()
{
    auto const& selection = m_view->selectionModel()->selection();
    Place place;
    place.rowCount = m_cells->getOrder().getRowCount();
    place.current = m_cells->getItem(m_view->currentIndex());
    // Rows that are selected in parts are not selected again: other cells would be among them.
    place.isBlock = !selection.isEmpty();
    for (auto const& range : selection)
        place.isBlock = place.isBlock && range.left() == selection.front().left() &&
                        range.right() == selection.front().right();
    if (place.isBlock) {
        place.rows = m_view->getSelectedRows();
        place.left = selection.front().left();
        place.right = selection.front().right();
    }
    m_place = std::move(place);
}

void QtListControl::restorePlace()
{
    auto const place = std::exchange(m_place, std::nullopt);
    auto const rowCount = m_cells->getOrder().getRowCount();
    // Rows that an editor below the last one has appended leave the others where they are.
    bool const hasGrown = place && m_view->getBehaviour().appendsRows && rowCount > place->rowCount;
    if (place && (hasGrown || place->rowCount == rowCount)) {
        m_view->setAutoScroll(false);
        m_view->selectRows(place->rows, place->left, place->right, place->current);
        m_view->setAutoScroll(true);
    }
    m_view->updateView();
    updateCounts();
}

void QtListControl::changeFilter(ListFilter filter)
{
    filter.searchedColumns = getShownColumns();
    m_cells->changeOrder([&](ListRowOrder& order) { order.setFilter(std::move(filter)); });
    m_view->getHeader().viewport()->update();
    startWork();
}

std::vector<std::size_t> QtListControl::getShownColumns() const
{
    std::vector<std::size_t> columns;
    for (auto const column : m_view->getHeader().getShownColumns())
        columns.push_back(static_cast<std::size_t>(column));
    return columns;
}

void QtListControl::takeOrderAlong(std::vector<std::string> const& titles)
{
    auto const& columns = m_cells->getColumns();
    auto const later = std::exchange(m_sortingForLater, std::nullopt);
    std::vector<ListSortColumn> sorting;
    for (auto const& sorted : later ? *later : m_cells->getOrder().getSorting())
        if (auto const column = columns.findColumn(later ? titles : m_titles, sorted.column))
            sorting.push_back({*column, sorted.isDescending});
    auto filter = m_cells->getOrder().getFilter();
    for (auto const& [oldColumn, text] : std::exchange(filter.columnTexts, {}))
        if (auto const column = columns.findColumn(m_titles, oldColumn))
            filter.columnTexts.emplace(*column, text);
    filter.searchedColumns = getShownColumns();
    m_titles = titles;
    m_cells->changeOrder([&](ListRowOrder& order) {
        order.setSorting(std::move(sorting));
        order.setFilter(std::move(filter));
    });
}

void QtListControl::clickHeader(int column)
{
    auto const clicked = static_cast<std::size_t>(column);
    auto sorting = m_cells->getOrder().getSorting();
    auto const found = std::find_if(sorting.begin(), sorting.end(),
                                    [=](ListSortColumn const& sorted) { return sorted.column == clicked; });
    bool const isDescending = found != sorting.end() && found->isDescending;
    bool const isAscending = found != sorting.end() && !found->isDescending;
    auto const modifiers = QApplication::keyboardModifiers();
    bool const addsColumn = modifiers.testFlag(Qt::ShiftModifier) || modifiers.testFlag(Qt::ControlModifier);
    if (!addsColumn)
        sorting.clear();
    std::erase_if(sorting,
                  [=](ListSortColumn const& sorted) { return isDescending && sorted.column == clicked; });
    if (addsColumn && isAscending)
        std::find_if(sorting.begin(), sorting.end(), [=](auto const& sorted) {
            return sorted.column == clicked;
        })->isDescending = true;
    else if (!isDescending)
        sorting.push_back({clicked, isAscending});
    setSorting(std::move(sorting));
}

void QtListControl::startWork()
{
    m_work.start();
    updateCounts();
}

void QtListControl::doWork()
{
    QElapsedTimer timer;
    timer.start();
    bool isBusy = true;
    while (isBusy && timer.elapsed() < portionMilliseconds) {
        if (m_cells->getOrder().isPending())
            m_cells->advanceOrder(portionRows);
        else
            isBusy = advanceFinder();
    }
    if (!isBusy)
        m_work.stop();
    if (!isBusy && isPopup() && isVisible())
        makeFirstRowCurrent();
    updateCounts();
}

bool QtListControl::advanceFinder()
{
    if (!m_finder)
        return false;
    auto const columns = m_view->getHeader().getShownColumns();
    auto const state = m_finder->advance(portionCells, [&](ListFinder::Place const& place) {
        auto const item =
            m_cells->getItem(static_cast<int>(place.row), static_cast<std::size_t>(columns[place.column]));
        return m_cells->getPlainText(*item.item, *item.column);
    });
    if (state == ListFinder::State::Searching)
        return true;
    if (state == ListFinder::State::Found) {
        auto const place = m_finder->getPlace();
        auto const index = m_cells->index(static_cast<int>(place.row), columns[place.column]);
        m_view->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
        m_view->scrollTo(index);
    } else {
        m_findState->setText(getUiText("List_NotFound"));
    }
    m_finder.reset();
    return false;
}

void QtListControl::updateCounts()
{
    auto const& order = m_cells->getOrder();
    auto const all = getNumberText(order.getRowCount());
    auto text = order.getShownCount() == order.getRowCount()
                    ? getUiText("List_Rows").arg(all)
                    : getUiText("List_RowsShown").arg(getNumberText(order.getShownCount()), all);
    if (auto const selected = m_view->countSelectedRows(); selected > 0)
        text += ", " + getUiText("List_Selected").arg(getNumberText(selected));
    if (order.isPending() && order.getRowCount() > 0)
        text += " – " + getUiText("List_Working").arg(100 * order.getProgress() / order.getRowCount());
    else if (m_finder)
        text += " – " + getUiText("List_Searching");
    m_counts->setText(text);
}

void QtListControl::updateBehaviour()
{
    auto behaviour = m_view->getBehaviour();
    auto const control = m_cells->getControl();
    bool const isEditable = (m_flags & ListControl::EditLabels) != 0;
    behaviour.isMenuOfRows =
        isPopup() && !isEditable && control && control->onItemActivated.handlerCount() > 0;
    behaviour.appendsRows = isPopup() && isEditable;
    behaviour.hasOwnMenu = !isPopup();
    behaviour.editsNextByTab = (m_flags & ListControl::EditNextByTab) != 0;
    m_view->setBehaviour(behaviour);
}

void QtListControl::tell(ListEditResult const& result)
{
    m_notice->hide();
    updateCounts();
    auto const count = result.refusals.size();
    if (count == 0)
        return;
    QStringList lines;
    for (std::size_t i = 0; i < std::min(count, mostRefusalsInDetails); ++i)
        lines.push_back(describe(result.refusals[i]));
    auto text = getUiText("List_Refused").arg(getNumberText(result.takenCells), getNumberText(count)) + ' ';
    text += lines.mid(0, static_cast<qsizetype>(mostRefusalsInNotice)).join(QLatin1String("; "));
    if (count > mostRefusalsInNotice)
        text += "; " + getUiText("List_MoreRefused").arg(getNumberText(count - mostRefusalsInNotice));
    showNotice(text, lines.join(QLatin1Char('\n')));
}

void QtListControl::showNotice(QString const& text, QString const& details)
{
    m_notice->setText(text);
    m_notice->setToolTip(QtCellDrawing::getToolTip(details));
    m_notice->show();
}

QString QtListControl::describe(ListRefusal const& refusal) const
{
    auto const positions = m_cells->getOrder().getPositions({refusal.item.item.value_or(0)});
    // People count rows from one, as they see them.
    auto const place = positions.empty() ? refusal.item.item.value_or(0) : positions.front();
    auto title = fromQString(getTitle(static_cast<int>(refusal.item.column.value_or(0))));
    // Where columns have no titles the rows have.
    if (title.empty())
        title = m_cells->getPlainText(refusal.item.item.value_or(0), 0);
    return toQString(localize(getReasonKey(refusal.reason), "Ui",
                              {title, fromQString(getNumberText(place + 1)), refusal.text}));
}

} // namespace qev::ui
