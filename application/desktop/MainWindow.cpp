#include "MainWindow.h"

#include "ClassificationQuestion.h"
#include "EntityEditPane.h"
#include "FilePath.h"
#include "ListPane.h"
#include "MessagesPanel.h"
#include "PropertyPane.h"
#include "SearchPanel.h"
#include "StructureModel.h"
#include "Texts.h"
#include "Ui/Qt/QtBackend.h"
#include "Ui/Qt/QtText.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QHeaderView>
#include <QMenuBar>
#include <QMimeData>
#include <QSettings>
#include <QStatusBar>
#include <QUrl>

namespace qev::application {

namespace {

using ui::fromQString;
using ui::toQString;

constexpr int savedMilliseconds = 3000;

QString getDroppedFile(QMimeData const& data)
{
    auto const urls = data.urls();
    return urls.isEmpty() || !urls.front().isLocalFile() ? QString() : urls.front().toLocalFile();
}

} // namespace

MainWindow::MainWindow(std::shared_ptr<ui::QtBackend> backend)
    : m_backend(std::move(backend))
    , m_structureModel(new StructureModel(this))
    , m_structure(new QTreeView)
    , m_search(new SearchPanel(*m_structure))
    , m_properties(new PropertyPane(m_backend, m_session))
    , m_list(new ListPane(m_backend, m_session))
    , m_editor(new EntityEditPane(m_backend, m_session))
    , m_views(new QTabWidget)
    , m_messages(new MessagesPanel)
    , m_structureDock(new QDockWidget(this))
    , m_messagesDock(new QDockWidget(this))
    , m_note(new QLabel)
    , m_fileText(new QLabel)
    , m_fileActions(m_session, *this)
    , m_editActions(m_session, *m_search, *m_structureDock)
    , m_viewActions(*m_properties, [this] { return getVisibleGrid(); }, {m_structureDock, m_messagesDock})
    , m_settingsActions(*this)
{
    setAcceptDrops(true);
    createViews();
    createStructure();
    createMessages();
    createMenus();
    keepTexts();
    setQuestions(FileQuestions::asDialogs(*this));
    classification::ui::setClassificationDialog(std::make_shared<ClassificationQuestion>(*this));
    statusBar()->addWidget(m_note, 1);
    statusBar()->addPermanentWidget(m_fileText);
    connectSession();
    resize(fontMetrics().averageCharWidth() * 180, fontMetrics().height() * 45);
    showFile();
}

MainWindow::~MainWindow()
{
    classification::ui::setClassificationDialog(nullptr);
    // The structure's selection goes with the view, and must not be heard of any more.
    m_structure->selectionModel()->disconnect(this);
    m_structureModel->setData(nullptr);
    m_search->setData(nullptr);
}

void MainWindow::setQuestions(FileQuestions questions)
{
    m_settingsActions.setTellProblem(questions.tellProblem);
    m_fileActions.setQuestions(std::move(questions));
}

bool MainWindow::selectObject(QString const& globalId)
{
    auto const object = m_session.findObject(fromQString(globalId));
    if (!object)
        return false;
    select(object->getIndex());
    return true;
}

void MainWindow::restoreWindow()
{
    QSettings const settings;
    restoreGeometry(settings.value("window/geometry").toByteArray());
    restoreState(settings.value("window/state").toByteArray());
    m_properties->setGridLayout(settings.value("window/grid").toByteArray());
    m_editor->setPopupSizes(settings.value("window/popups").toMap());
    showList(settings.value("window/list").toBool());
    if (settings.value("window/editor").toBool())
        showEditor();
    m_viewActions.restore();
}

void MainWindow::storeWindow() const
{
    QSettings settings;
    settings.setValue("window/geometry", saveGeometry());
    settings.setValue("window/state", saveState());
    settings.setValue("window/grid", m_properties->getGridLayout());
    settings.setValue("window/popups", m_editor->getPopupSizes());
    settings.setValue("window/list", m_views->currentWidget() == m_list);
    settings.setValue("window/editor", m_views->currentWidget() == m_editor);
    m_viewActions.store();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!m_fileActions.mayLeave()) {
        event->ignore();
        return;
    }
    storeWindow();
    event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!getDroppedFile(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event)
{
    auto const path = getDroppedFile(*event->mimeData());
    if (path.isEmpty())
        return;
    event->acceptProposedAction();
    m_fileActions.open(path);
}

void MainWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        updateTexts();
    QMainWindow::changeEvent(event);
}

void MainWindow::showList(bool shown)
{
    m_views->setCurrentWidget(shown ? static_cast<QWidget*>(m_list) : m_properties);
}

ui::QtPropertyGrid* MainWindow::getVisibleGrid() const
{
    if (m_views->currentWidget() == m_editor)
        return m_editor->getGrid();
    return m_views->currentWidget() == m_properties ? m_properties->getGrid() : nullptr;
}

void MainWindow::showEditor() { m_views->setCurrentWidget(m_editor); }

void MainWindow::createViews()
{
    m_views->setDocumentMode(true);
    m_views->addTab(m_properties, QString());
    m_views->addTab(m_editor, QString());
    m_views->addTab(m_list, QString());
    setCentralWidget(m_views);
    connect(m_views, &QTabWidget::currentChanged, this, [this] {
        // An edit in another view may have changed what stands here.
        if (m_views->currentWidget() == m_properties)
            m_properties->showSelection();
        m_viewActions.update();
    });
    m_editor->onGoTo.iHandlerAdd([this](std::string const& globalId) { selectObject(toQString(globalId)); });
    m_properties->onCurrentRowChanged.iHandlerAdd([this] { updateNote(); });
    m_list->onActivated.iHandlerAdd([this](fc::EntityIndex object) {
        select(object);
        showList(false);
    });
}

void MainWindow::createStructure()
{
    m_structure->setModel(m_structureModel);
    m_structure->setUniformRowHeights(true);
    m_structure->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_structure->header()->setStretchLastSection(false);
    m_structure->header()->setSectionResizeMode(StructureModel::nameColumn, QHeaderView::Stretch);
    m_structure->header()->setSectionResizeMode(StructureModel::classColumn, QHeaderView::ResizeToContents);
    connect(m_structure->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](QModelIndex const& current) {
                if (current.isValid())
                    select(StructureModel::getObject(current));
            });
    connect(m_structure->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { listSelection(); });
    m_search->onFinished.iHandlerAdd([this] { m_list->setSearchHits(m_search->getObjects()); });
    m_search->onChosen.iHandlerAdd([this](fc::EntityIndex object) { select(object); });
    m_structureDock->setObjectName("structure");
    m_structureDock->setWidget(m_search);
    addDockWidget(Qt::LeftDockWidgetArea, m_structureDock);
    resizeDocks({m_structureDock}, {fontMetrics().averageCharWidth() * 64}, Qt::Horizontal);
}

void MainWindow::createMessages()
{
    m_messagesDock->setObjectName("messages");
    m_messagesDock->setWidget(m_messages);
    addDockWidget(Qt::BottomDockWidgetArea, m_messagesDock);
    resizeDocks({m_messagesDock}, {fontMetrics().height() * 6}, Qt::Vertical);
}

void MainWindow::createMenus()
{
    auto const addMenu = [this](std::string key) -> QMenu& {
        auto* const menu = menuBar()->addMenu(QString());
        m_texts.keep(*menu->menuAction(), std::move(key));
        return *menu;
    };
    m_fileActions.fill(addMenu("Menu_File"), m_texts);
    m_editActions.fill(addMenu("Menu_Edit"), m_texts);
    m_viewActions.fill(addMenu("Menu_View"), m_texts);
    m_settingsActions.fill(addMenu("Menu_Settings"), m_texts);
}

void MainWindow::keepTexts()
{
    m_texts.keep([this] { m_views->setTabText(m_views->indexOf(m_properties), getText("View_Properties")); });
    m_texts.keep([this] { m_views->setTabText(m_views->indexOf(m_editor), getText("View_Editor")); });
    m_texts.keep([this] { m_views->setTabText(m_views->indexOf(m_list), getText("View_List")); });
    m_texts.keep([this] { m_structureDock->setWindowTitle(getText("Panel_Structure")); });
    m_texts.keep([this] { m_messagesDock->setWindowTitle(getText("Panel_Messages")); });
    m_texts.keep([this] {
        emit m_structureModel->headerDataChanged(Qt::Horizontal, StructureModel::nameColumn,
                                                 StructureModel::classColumn);
    });
}

void MainWindow::connectSession()
{
    m_session.onModelChanged.iHandlerAdd(
        [this](std::vector<fc::EntityIndex> const& touched) { onModelChanged(touched); });
    m_fileActions.onLeaving.iHandlerAdd([this] { leaveFile(); });
    m_fileActions.onShown.iHandlerAdd([this] { showFile(); });
    m_fileActions.onSaved.iHandlerAdd([this](QString const& text) {
        updateTitle();
        statusBar()->showMessage(text, savedMilliseconds);
    });
    m_settingsActions.onChanging.iHandlerAdd([this] {
        m_properties->leaveFile();
        m_editor->leaveFile();
        m_list->leaveFile();
    });
    m_settingsActions.onChanged.iHandlerAdd([this] {
        m_properties->showFile();
        m_editor->showFile();
        m_list->showFile();
        listSelection();
        m_list->setSearchHits(m_search->getObjects());
        updateActions();
        updateNote();
    });
    m_editActions.onTravelled.iHandlerAdd([this] {
        m_properties->showSelection();
        updateNote();
    });
}

void MainWindow::leaveFile()
{
    m_structureModel->setData(nullptr);
    m_search->setData(nullptr);
    m_properties->leaveFile();
    m_editor->leaveFile();
    m_list->leaveFile();
}

void MainWindow::showFile()
{
    auto const model = m_session.getData();
    m_structureModel->setData(model);
    m_search->setData(model);
    m_properties->showFile();
    m_editor->showFile();
    m_list->showFile();
    m_structure->expandToDepth(2);
    m_structure->setFocus();
    m_shownMessages = 0;
    m_messages->setMessages({}, 0);
    updateMessages();
    m_messagesDock->setVisible(m_messages->count() > 0);
    updateFileText();
    updateActions();
    updateTitle();
    updateNote();
}

void MainWindow::select(fc::EntityIndex object)
{
    auto const model = m_session.getData();
    if (!model || object == fc::noEntity)
        return;
    auto entity = model->entity(object);
    if (entity && entity != m_session.getSelection()) {
        m_session.select(std::move(entity));
        m_properties->showSelection();
    }
    auto const place = m_structureModel->findObject(object);
    if (!place.isValid())
        m_editor->setObjects({object});
    if (place.isValid() && StructureModel::getObject(m_structure->currentIndex()) != object) {
        // Whatever keys are held down: what was gone to is selected alone.
        m_structure->selectionModel()->setCurrentIndex(place, QItemSelectionModel::ClearAndSelect |
                                                                  QItemSelectionModel::Rows);
        m_structure->scrollTo(place);
    }
    updateNote();
    updateMessages();
}

void MainWindow::listSelection()
{
    std::vector<fc::EntityIndex> objects;
    for (auto const& place : m_structure->selectionModel()->selectedRows())
        objects.push_back(StructureModel::getObject(place));
    m_editor->setObjects(objects);
    m_list->setSelection(std::move(objects));
}

void MainWindow::onModelChanged(std::vector<fc::EntityIndex> const& touched)
{
    m_structureModel->refresh(touched);
    m_list->showValues();
    m_editor->refresh();
    updateActions();
    updateTitle();
    updateNote();
}

void MainWindow::updateActions()
{
    m_fileActions.update();
    m_editActions.update();
    m_viewActions.update();
}

void MainWindow::updateTitle()
{
    auto const program = QApplication::applicationDisplayName();
    setWindowTitle(m_session.isOpen() ? fromPath(m_session.getPath().filename()) + "[*] - " + program
                                      : program);
    setWindowModified(m_session.isModified());
}

void MainWindow::updateFileText()
{
    if (!m_session.isOpen()) {
        m_fileText->clear();
        return;
    }
    auto const count = m_session.getObjectCount();
    auto const objects =
        count == 1 ? getText("Status_OneObject") : getText("Status_Objects", {QString::number(count)});
    m_fileText->setText(fromPath(m_session.getPath().filename()) + "   " +
                        toQString(m_session.getFile()->schemaName()) + "   " + objects);
}

void MainWindow::updateTexts()
{
    m_texts.renew();
    m_editActions.update();
    updateFileText();
    updateNote();
}

void MainWindow::updateNote()
{
    auto const set = m_properties->getCurrentSetName();
    auto const others = set.empty() ? 0 : static_cast<int>(m_session.countOthersWithSet(set));
    if (others == 0)
        m_note->clear();
    else if (others == 1)
        m_note->setText(getText("Status_SharedWithOne", {toQString(set)}));
    else
        m_note->setText(getText("Status_SharedWithMany", {toQString(set), QString::number(others)}));
}

void MainWindow::updateMessages()
{
    auto const messages = m_session.getMessages();
    if (messages.size() == m_shownMessages)
        return;
    m_shownMessages = messages.size();
    m_messages->setMessages(messages, m_session.isOpen() ? m_session.getFile()->droppedMessages() : 0);
}

} // namespace qev::application
