#include "Ui/Qt/ListControl/QtListHeaderPanel.h"

#include "Ui/Qt/ListControl/QtListControl.h"
#include "Ui/Qt/QtLocalize.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace qev::ui {

namespace {

} // namespace

QtListHeaderPanel::QtListHeaderPanel(QtListControl& list, int column)
    : QFrame(&list, Qt::Popup)
    , m_list(list)
    , m_column(column)
    , m_filter(new QLineEdit)
    , m_search(new QLineEdit)
    , m_columnList(new QListWidget)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setFrameShape(QFrame::StyledPanel);
    auto* const layout = new QVBoxLayout(this);
    if (column >= 0) {
        auto* const title = new QLabel("<b>" + m_list.getTitle(column).toHtmlEscaped() + "</b>");
        title->setWordWrap(true);
        layout->addWidget(title);
        addSortButtons(*layout);
        addFilter(*layout);
    }
    addColumns(*layout);
    setMinimumWidth(40 * fontMetrics().averageCharWidth());
}

QtListHeaderPanel::~QtListHeaderPanel() = default;

void QtListHeaderPanel::addSortButtons(QVBoxLayout& layout)
{
    auto* const row = new QHBoxLayout;
    auto const addButton = [&](char const* key, auto action) {
        auto* const button = new QPushButton(getUiText(key));
        connect(button, &QPushButton::clicked, this, [this, action] {
            action();
            close();
        });
        row->addWidget(button);
    };
    auto const column = static_cast<std::size_t>(m_column);
    addButton("List_SortUp", [this, column] { m_list.setSorting({{column, false}}); });
    addButton("List_SortDown", [this, column] { m_list.setSorting({{column, true}}); });
    addButton("List_DoNotSort", [this] { m_list.setSorting({}); });
    addButton("List_FitWidth", [this] { m_list.getView().fitColumn(m_column); });
    layout.addLayout(row);
}

void QtListHeaderPanel::addFilter(QVBoxLayout& layout)
{
    m_filter->setObjectName(QStringLiteral("columnFilter"));
    m_filter->setPlaceholderText(getUiText("List_ColumnFilter"));
    m_filter->setClearButtonEnabled(true);
    m_filter->setText(m_list.getColumnFilter(static_cast<std::size_t>(m_column)));
    connect(m_filter, &QLineEdit::textChanged, this, [this](QString const& text) {
        m_list.setColumnFilter(static_cast<std::size_t>(m_column), text);
    });
    connect(m_filter, &QLineEdit::returnPressed, this, &QWidget::close);
    layout.addWidget(m_filter);
}

void QtListHeaderPanel::addColumns(QVBoxLayout& layout)
{
    m_search->setPlaceholderText(getUiText("List_SearchColumns"));
    m_search->setClearButtonEnabled(true);
    connect(m_search, &QLineEdit::textChanged, this, [this](QString const& text) { searchColumns(text); });
    layout.addWidget(m_search);
    connect(m_columnList, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) {
        if (!m_isFilling)
            m_list.setColumnHidden(item->data(Qt::UserRole).value<std::size_t>(),
                                   item->checkState() != Qt::Checked);
    });
    layout.addWidget(m_columnList);
    auto* const resetButton = new QPushButton(getUiText("List_ResetColumns"));
    connect(resetButton, &QPushButton::clicked, this, [this] {
        m_list.resetArrangement();
        fillColumnList();
        searchColumns(m_search->text());
    });
    layout.addWidget(resetButton);
    fillColumnList();
}

void QtListHeaderPanel::fillColumnList()
{
    m_isFilling = true;
    m_columnList->clear();
    auto const& columns = m_list.getCells().getColumns();
    for (auto const column : columns.getOrder()) {
        if (!m_list.mayHideColumn(column))
            continue;
        auto* const item = new QListWidgetItem(m_list.getTitle(static_cast<int>(column)), m_columnList);
        item->setData(Qt::UserRole, QVariant::fromValue(column));
        item->setCheckState(columns.isHidden(column) ? Qt::Unchecked : Qt::Checked);
    }
    m_isFilling = false;
}

void QtListHeaderPanel::searchColumns(QString const& text)
{
    for (int row = 0; row < m_columnList->count(); ++row) {
        auto* const item = m_columnList->item(row);
        item->setHidden(!item->text().contains(text.trimmed(), Qt::CaseInsensitive));
    }
}

} // namespace qev::ui
