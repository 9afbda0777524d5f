#include "ListPane.h"

#include "BusyCursor.h"
#include "Core/Localization/Dictionaries.h"
#include "FilePath.h"
#include "FilledDialog.h"
#include "Format/Ifc/Schema/SchemaLoader.h"
#include "IdentityColumns.h"
#include "ImportDialog.h"
#include "ListColumnsDialog.h"
#include "ListExport.h"
#include "ShowAllFilter.h"
#include "Texts.h"
#include "UI/FoundationClasses/Controls/Formatters/ListControlPropertyFormatter.h"
#include "UI/FoundationClasses/Controls/ListControl/PropertySetListControl.h"
#include "Ui/Qt/ListControl/QtListControl.h"
#include "Ui/Qt/QtBackend.h"
#include "Ui/Qt/QtDialog.h"
#include "Ui/Qt/QtText.h"
#include "UsedColumns.h"

#include <algorithm>
#include <QAbstractItemView>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QProgressDialog>
#include <QSettings>
#include <QSignalBlocker>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

namespace qev::application {

namespace {

using fc::ui::PropertySetListControl;
using ui::fromQString;
using ui::toQString;
using Formatters = fc::ui::PropertySetControlFormatters<fc::ui::ListControlPropertyFormatterInterface>;

constexpr int listId = 101;
constexpr int classNameLength = 12;
constexpr int identityLength = 32;
constexpr std::size_t progressSteps = 1000;
constexpr auto arrangementGroup = "list/arrangements/";

} // namespace

ListPane::ListPane(std::shared_ptr<ui::QtBackend> backend, InspectorSession& session, QWidget* parent)
    : QWidget(parent)
    , m_backend(std::move(backend))
    , m_session(session)
    , m_questions(ListQuestions::asDialogs(*this))
    , m_toolBar(new QToolBar)
    , m_scope(new QComboBox)
    , m_class(new QComboBox)
    , m_layoutMenu(new QMenu(this))
    , m_pages(new QStackedWidget)
{
    createToolBar();
    auto* const hint = new QLabel;
    m_texts.keep([hint] { hint->setText(getText("List_NoFile")); });
    hint->setAlignment(Qt::AlignCenter);
    hint->setForegroundRole(QPalette::PlaceholderText);
    auto* const area = new ui::QtDialog;
    m_dialog = ui::Window::attachTo<FilledDialog>(m_backend->addDialogWidget(*area));
    m_pages->addWidget(hint);
    m_pages->addWidget(area);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_toolBar);
    layout->addWidget(m_pages, 1);
    showFile();
}

ListPane::~ListPane() { leaveFile(); }

void ListPane::showFile()
{
    m_selection.clear();
    m_hits.clear();
    m_toolBar->setEnabled(m_session.isOpen());
    if (m_session.isOpen() && !m_control)
        createControl();
    m_pages->setCurrentIndex(m_session.isOpen() ? 1 : 0);
    noteChange();
}

void ListPane::leaveFile()
{
    if (!m_control)
        return;
    storeArrangement();
    m_arrangedClass.reset();
    m_objects.clear();
    auto const window = m_control->getListControl();
    m_control->reset();
    m_control.reset();
    window->detach(true);
}

void ListPane::setSelection(std::vector<fc::EntityIndex> objects)
{
    m_selection = std::move(objects);
    if (getScope() == Scope::Selection || getScope() == Scope::Contents)
        noteChange();
}

void ListPane::setSearchHits(std::vector<fc::EntityIndex> objects)
{
    m_hits = std::move(objects);
    if (getScope() == Scope::SearchHits)
        noteChange();
}

void ListPane::showValues()
{
    if (auto* const list = getList())
        list->getView().viewport()->update();
}

void ListPane::setScope(Scope scope) { m_scope->setCurrentIndex(m_scope->findData(static_cast<int>(scope))); }

ListPane::Scope ListPane::getScope() const { return static_cast<Scope>(m_scope->currentData().toInt()); }

void ListPane::setClass(std::string const& className)
{
    if (auto const index = m_class->findData(toQString(className)); index >= 0)
        m_class->setCurrentIndex(index);
}

std::string ListPane::getClass() const { return fromQString(m_class->currentData().toString()); }

ui::QtListControl* ListPane::getList() const
{
    return m_control ? m_backend->getListControl(*m_control->getListControl()) : nullptr;
}

ListLayout ListPane::getLayout() const
{
    return m_control ? ListLayout::of(listColumnsOf(*m_control), m_control->getListControl()->getSettings())
                     : ListLayout();
}

void ListPane::setLayout(ListLayout const& layout)
{
    if (m_control)
        m_control->getListControl()->loadSettings(layout.settingsFor(listColumnsOf(*m_control)));
}

void ListPane::chooseColumns()
{
    auto* const list = getList();
    if (!list)
        return;
    auto const columns = listColumnsOf(*m_control);
    std::vector<std::string> setNames;
    std::set<std::size_t> shown;
    for (auto const& column : columns) {
        setNames.push_back(m_control->getColumns().getColumnNames(column.index).setName);
        if (!list->getCells().getColumns().isHidden(column.index))
            shown.insert(column.index);
    }
    ListColumnsDialog dialog(columns, setNames, shown, this);
    if (!m_questions.chooseColumns(dialog))
        return;
    auto const chosen = dialog.getChosen();
    auto settings = m_control->getListControl()->getSettings();
    settings.hiddenColumns.clear();
    for (auto const& column : columns)
        if (!chosen.contains(column.index))
            settings.hiddenColumns.insert(column.index);
    m_control->getListControl()->loadSettings(settings);
}

bool ListPane::exportTo(QString const& path)
{
    if (!m_control || path.isEmpty())
        return false;
    update();
    auto const columns = listColumnsOf(*m_control);
    std::vector<ListColumn> shown;
    for (auto const column : getList()->getView().getHeader().getShownColumns())
        shown.push_back(columns.at(static_cast<std::size_t>(column)));
    // A table without the GlobalId could not be brought back.
    auto const isGlobalId = [](ListColumn const& column) { return column.id == IdentityColumns::globalId; };
    if (std::none_of(shown.begin(), shown.end(), isGlobalId))
        if (auto const found = std::find_if(columns.begin(), columns.end(), isGlobalId);
            found != columns.end())
            shown.insert(shown.begin(), *found);
    ListExport const listExport(*m_control->getListControl(), shown, getShownRows());
    // A progress bar of the toolkit would keep the list from reading its cells.
    QProgressDialog progress(getText("List_Exporting"), getText("List_StopExport"), 0,
                             static_cast<int>(progressSteps), this);
    progress.setWindowModality(Qt::WindowModal);
    auto const advance = [&](std::size_t done, std::size_t total) {
        progress.setValue(static_cast<int>(done * progressSteps / total));
        return !progress.wasCanceled();
    };
    auto const problem = path.endsWith(".xlsx", Qt::CaseInsensitive)
                             ? listExport.writeWorkbook(toPath(path), getClass(), advance)
                             : listExport.writeCsv(toPath(path), advance);
    if (problem)
        m_questions.tell(getText("List_NotExported", {toQString(*problem)}));
    return !problem;
}

bool ListPane::importFrom(QString const& path)
{
    QFile file(path);
    if (!m_control || path.isEmpty())
        return false;
    if (!file.open(QIODevice::ReadOnly)) {
        m_questions.tell(getText("List_CannotRead", {path, file.errorString()}));
        return false;
    }
    auto const table = ListTable::fromCsv(file.readAll().toStdString());
    if (!table) {
        m_questions.tell(getText("List_NoGlobalId", {path}));
        return false;
    }
    ListImport const import(*m_session.getFile(), *table);
    auto preview = import.preview();
    ImportDialog dialog(*table, preview, this);
    if (!m_questions.agreeToImport(dialog) || preview.changes.empty())
        return false;
    auto const refusedBefore = preview.refusals.size();
    auto const result = import.apply(std::move(preview));
    showValues();
    if (result.refusals.size() > refusedBefore)
        m_questions.tell(getText("List_NotTaken", {QString::number(result.refusals.size() - refusedBefore)}));
    return !result.changes.empty();
}

void ListPane::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    update();
}

void ListPane::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        m_texts.renew();
}

void ListPane::createToolBar()
{
    std::pair<Scope, char const*> const scopes[] = {{Scope::Selection, "List_ScopeSelection"},
                                                    {Scope::Contents, "List_ScopeContents"},
                                                    {Scope::File, "List_ScopeFile"},
                                                    {Scope::SearchHits, "List_ScopeHits"}};
    for (auto const& [scope, key] : scopes) {
        m_scope->addItem(QString(), static_cast<int>(scope));
        m_texts.keep([this, place = m_scope->count() - 1, name = std::string(key)] {
            m_scope->setItemText(place, getText(name));
        });
    }
    m_scope->setCurrentIndex(static_cast<int>(Scope::Contents));
    // The tool bar stays as it is whatever classes there are.
    m_class->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_class->setMinimumContentsLength(classNameLength);
    connect(m_scope, &QComboBox::currentIndexChanged, this, [this] { noteChange(); });
    connect(m_class, &QComboBox::currentIndexChanged, this, [this] { noteChange(); });
    m_toolBar->addWidget(m_scope);
    m_toolBar->addWidget(m_class);
    m_toolBar->addSeparator();
    m_texts.keep(*m_toolBar->addAction(QString(), this, [this] { chooseColumns(); }), "List_Columns");
    auto* const layoutButton = new QToolButton;
    m_texts.keep([layoutButton] { layoutButton->setText(getText("List_Layouts")); });
    layoutButton->setMenu(m_layoutMenu);
    layoutButton->setPopupMode(QToolButton::InstantPopup);
    connect(m_layoutMenu, &QMenu::aboutToShow, this, &ListPane::fillLayoutMenu);
    m_toolBar->addWidget(layoutButton);
    m_texts.keep(*m_toolBar->addAction(QString(), this, [this] { exportTo(m_questions.pathToExport()); }),
                 "List_Export");
    m_texts.keep(*m_toolBar->addAction(QString(), this, [this] { importFrom(m_questions.pathToImport()); }),
                 "List_Import");
}

void ListPane::createControl()
{
    m_backend->addPlaceholder(m_dialog, listId, {0, 0, 100, 100});
    m_identity = std::make_shared<IdentityColumns>();
    m_used = std::make_shared<UsedColumns>();
    auto const formatter = std::make_shared<fc::ui::ListControlPropertyFormatter>();
    formatter->addStrategy(m_identity);
    formatter->addStrategy(m_used);
    m_control = std::make_shared<PropertySetListControl>(
        ifc::SchemaLoader::curr().pSchemaFromName(ifc::SchemaLoader::modelVersion), m_session.getData(),
        m_dialog, listId, std::make_shared<ShowAllFilter>(), Formatters{nullptr, formatter},
        localization::Dictionaries::getContexts("IFC"), nullptr);
    m_identity->standBefore(*m_control);
    m_control->itemActivatedHandlers.iHandlerAdd(
        [this](fc::FcBase& object) { fireEvents(onActivated, object.getIndex()); });
    m_dialog->onSizeChanged(m_dialog->getClientAreaSize());
}

void ListPane::fillLayoutMenu()
{
    m_layoutMenu->clear();
    auto const names = ListLayout::names();
    for (auto const& name : names)
        m_layoutMenu->addAction(name, this, [this, name] { setLayout(ListLayout::load(name)); });
    m_layoutMenu->addSeparator();
    m_layoutMenu->addAction(getText("List_KeepLayout"), this, [this] { askForLayoutName(); });
    m_layoutMenu->addAction(getText("List_FirstLayout"), this, [this] {
        if (getList())
            arrangeAsAtFirst();
    });
    if (names.isEmpty())
        return;
    auto* const removeMenu = m_layoutMenu->addMenu(getText("List_RemoveLayout"));
    for (auto const& name : names)
        removeMenu->addAction(name, this, [name] { ListLayout::remove(name); });
}

void ListPane::askForLayoutName()
{
    auto const name = m_questions.nameOfLayout();
    if (!name.isEmpty())
        getLayout().store(name);
}

void ListPane::noteChange()
{
    m_isStale = true;
    if (isVisible())
        update();
}

void ListPane::update()
{
    if (!m_isStale || !m_control)
        return;
    m_isStale = false;
    BusyCursor const busy;
    storeArrangement();
    auto const model = m_session.getData();
    auto const inScope = findObjects();
    fillClasses(inScope);
    m_objects = ObjectScope(*model).filterByClass(inScope, getClass());
    std::vector<std::shared_ptr<fc::FcBase>> entities;
    entities.reserve(m_objects.size());
    for (auto const object : m_objects)
        entities.push_back(model->entity(object));
    m_used->lookAt(entities);
    m_control->setObjects(model, entities);
    restoreArrangement();
}

void ListPane::fillClasses(std::vector<fc::EntityIndex> const& objects)
{
    auto const present = m_class->currentData();
    auto const counts = ObjectScope(*m_session.getData()).countClasses(objects);
    QSignalBlocker const blocker(m_class);
    m_class->clear();
    m_class->addItem(getText("List_AllClasses"), QString());
    for (auto const& [className, count] : counts)
        m_class->addItem(toQString(className) + " (" + QLocale().toString(static_cast<qulonglong>(count)) +
                             ')',
                         toQString(className));
    // The box is narrow, for the tool bar; the list below it need not be.
    m_class->view()->setMinimumWidth(m_class->view()->sizeHintForColumn(0) +
                                     style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    auto const index = m_class->findData(present);
    m_class->setCurrentIndex(index >= 0 ? index : counts.size() == 1 ? 1 : 0);
}

std::vector<fc::EntityIndex> ListPane::findObjects() const
{
    ObjectScope const scope(*m_session.getData());
    switch (getScope()) {
    case Scope::Selection:
        return m_selection;
    case Scope::Contents: {
        std::vector<fc::EntityIndex> contents;
        for (auto const object : m_selection)
            for (auto const inside : scope.getContents(object))
                if (std::find(m_selection.begin(), m_selection.end(), inside) == m_selection.end())
                    contents.push_back(inside);
        std::sort(contents.begin(), contents.end());
        contents.erase(std::unique(contents.begin(), contents.end()), contents.end());
        return contents;
    }
    case Scope::File:
        return scope.getAll();
    case Scope::SearchHits:
        return m_hits;
    }
    return {};
}

void ListPane::storeArrangement()
{
    if (!m_arrangedClass)
        return;
    auto const layout = getLayout();
    m_isArrangedByUser = layout != m_firstLayout;
    if (m_isArrangedByUser)
        QSettings().setValue(getArrangementKey(), layout.toJson());
}

void ListPane::restoreArrangement()
{
    auto const className = getClass();
    if (m_arrangedClass == className) {
        // Other objects of the class may use other columns; that is nothing the user has chosen.
        if (!m_isArrangedByUser)
            m_firstLayout = getLayout();
        return;
    }
    m_arrangedClass = className;
    arrangeAsAtFirst();
    m_firstLayout = getLayout();
    QSettings const settings;
    if (settings.contains(getArrangementKey()))
        setLayout(ListLayout::fromJson(settings.value(getArrangementKey()).toByteArray()));
}

void ListPane::arrangeAsAtFirst()
{
    auto& list = *getList();
    list.resetArrangement();
    // The titles of these columns are far shorter than what stands in them.
    for (auto const& column : listColumnsOf(*m_control))
        if (column.isCustom)
            list.getView().getHeader().resizeSection(static_cast<int>(column.index),
                                                     identityLength * fontMetrics().averageCharWidth());
}

QString ListPane::getArrangementKey() const
{
    auto const className = m_arrangedClass.value_or("");
    return arrangementGroup + (className.empty() ? QStringLiteral("all") : toQString(className));
}

std::vector<std::size_t> ListPane::getShownRows() const
{
    std::vector<std::size_t> rows;
    auto const& order = getList()->getCells().getOrder();
    for (std::size_t position = 0; position < order.getShownCount(); ++position)
        rows.push_back(order.getRow(position));
    return rows;
}

} // namespace qev::application
