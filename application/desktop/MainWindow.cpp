#include "MainWindow.h"

#include "BuildingStructure.h"
#include "MessagesPanel.h"
#include "PropertyPane.h"
#include "RecentFiles.h"
#include "SearchPanel.h"
#include "StructureModel.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGrid.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGridView.h"
#include "Ui/Qt/QtBackend.h"
#include "Ui/Qt/QtText.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QProgressDialog>
#include <QPushButton>
#include <QSettings>
#include <QStatusBar>

namespace qev::application {

namespace {

using step::StepPatch;
using step::StepSaveResult;
using ui::fromQString;
using ui::toQString;

constexpr auto filters = "IFC files (*.ifc *.IFC *.stp *.step);;All files (*)";

std::filesystem::path toPath(QString const& path) { return {path.toStdU16String()}; }

QString fromPath(std::filesystem::path const& path) { return QString::fromStdU16String(path.u16string()); }

QString getDroppedFile(QMimeData const& data)
{
    auto const urls = data.urls();
    return urls.isEmpty() || !urls.front().isLocalFile() ? QString() : urls.front().toLocalFile();
}

QString getLines(std::vector<std::string> const& lines)
{
    QString text;
    for (auto const& line : lines)
        text += toQString(line) + '\n';
    return text;
}

/// Shows how far a long work is, once it takes long enough for anybody to wonder.
class Progress
{
public:
    Progress(QString const& text, QWidget* parent)
        : m_dialog(text, QCoreApplication::translate("Progress", "Cancel"), 0, steps, parent)
    {
        m_dialog.setWindowModality(Qt::WindowModal);
        m_dialog.setMinimumDuration(500);
    }

    bool operator()(std::uint64_t done, std::uint64_t total)
    {
        if (total > 0)
            m_dialog.setValue(
                static_cast<int>(static_cast<double>(done) / static_cast<double>(total) * steps));
        return !m_dialog.wasCanceled();
    }

private:
    static constexpr int steps = 1000;
    QProgressDialog m_dialog;
};

} // namespace

MainWindow::MainWindow(std::shared_ptr<ui::QtBackend> backend)
    : m_backend(std::move(backend))
    , m_questions(createQuestions(*this))
    , m_structureModel(new StructureModel(this))
    , m_structure(new QTreeView)
    , m_note(new QLabel)
    , m_fileText(new QLabel)
{
    setAcceptDrops(true);
    createPanels();
    createFileMenu();
    createEditMenu();
    createViewMenu();
    statusBar()->addWidget(m_note, 1);
    statusBar()->addPermanentWidget(m_fileText);
    m_session.onModelChanged.iHandlerAdd(
        [this](std::vector<fc::EntityIndex> const& touched) { onModelChanged(touched); });
    resize(fontMetrics().averageCharWidth() * 180, fontMetrics().height() * 45);
    showFile();
}

MainWindow::~MainWindow()
{
    // The structure's selection goes with the view, and must not be heard of any more.
    m_structure->selectionModel()->disconnect(this);
    m_structureModel->setData(nullptr);
    m_search->setData(nullptr);
}

bool MainWindow::openFile(QString const& path)
{
    if (!mayLeaveFile())
        return false;
    Progress progress(tr("Opening %1…").arg(QFileInfo(path).fileName()), this);
    QApplication::setOverrideCursor(Qt::WaitCursor);
    m_structureModel->setData(nullptr);
    m_search->setData(nullptr);
    m_properties->leaveFile();
    auto const isOpen = m_session.open(toPath(path), std::ref(progress));
    QApplication::restoreOverrideCursor();
    showFile();
    if (isOpen)
        RecentFiles::add(path);
    else
        tellOpeningFailed(path);
    return isOpen;
}

bool MainWindow::closeFile()
{
    if (!mayLeaveFile())
        return false;
    m_structureModel->setData(nullptr);
    m_search->setData(nullptr);
    m_properties->leaveFile();
    m_session.close();
    showFile();
    return true;
}

bool MainWindow::save()
{
    if (!m_session.isOpen())
        return false;
    auto result = m_session.save();
    if (result.status == StepSaveResult::Status::ChangedMeanwhile) {
        if (!m_questions.overwriteChanged(QFileInfo(fromPath(m_session.getPath())).fileName()))
            return false;
        result = m_session.save(StepPatch::IfChanged::Overwrite);
    }
    return finishSave(result);
}

bool MainWindow::saveAs()
{
    if (!m_session.isOpen())
        return false;
    auto const path = m_questions.pathToSave(fromPath(m_session.getPath()));
    if (path.isEmpty() || !finishSave(m_session.saveAs(toPath(path))))
        return false;
    RecentFiles::add(path);
    return true;
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
    m_showUnused->setChecked(settings.value("view/showUnused", true).toBool());
}

void MainWindow::storeWindow() const
{
    QSettings settings;
    settings.setValue("window/geometry", saveGeometry());
    settings.setValue("window/state", saveState());
    settings.setValue("window/grid", m_properties->getGridLayout());
    settings.setValue("view/showUnused", m_showUnused->isChecked());
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!mayLeaveFile()) {
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
    openFile(path);
}

MainWindow::Questions MainWindow::createQuestions(MainWindow& window)
{
    Questions questions;
    questions.leaveChanges = [&window](QString const& fileName) {
        auto const answer = QMessageBox::warning(
            &window, tr("Unsaved changes"), tr("%1 has changes that are not saved. Save them?").arg(fileName),
            QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
        if (answer == QMessageBox::Save)
            return Leave::Save;
        return answer == QMessageBox::Discard ? Leave::Discard : Leave::Stay;
    };
    questions.overwriteChanged = [&window](QString const& fileName) {
        QMessageBox box(QMessageBox::Warning, tr("The file has changed"),
                        tr("Another program has changed %1 since it was opened. "
                           "Saving replaces those changes by yours.")
                            .arg(fileName),
                        QMessageBox::Cancel, &window);
        auto* const overwrite = box.addButton(tr("Overwrite"), QMessageBox::DestructiveRole);
        box.setDefaultButton(QMessageBox::Cancel);
        box.exec();
        return box.clickedButton() == overwrite;
    };
    questions.tellProblem = [&window](QString const& text, QString const& details) {
        QMessageBox box(QMessageBox::Warning, QApplication::applicationDisplayName(), text, QMessageBox::Ok,
                        &window);
        box.setInformativeText(details);
        box.exec();
    };
    questions.pathToSave = [&window](QString const& path) {
        return QFileDialog::getSaveFileName(&window, tr("Save as"), path, tr(filters));
    };
    return questions;
}

void MainWindow::createPanels()
{
    m_properties = new PropertyPane(m_backend, m_session);
    setCentralWidget(m_properties);
    m_properties->onCurrentRowChanged.iHandlerAdd([this] { updateNote(); });

    m_structure->setModel(m_structureModel);
    m_structure->setUniformRowHeights(true);
    m_structure->header()->setStretchLastSection(false);
    m_structure->header()->setSectionResizeMode(StructureModel::nameColumn, QHeaderView::Stretch);
    m_structure->header()->setSectionResizeMode(StructureModel::classColumn, QHeaderView::ResizeToContents);
    connect(m_structure->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](QModelIndex const& current) {
                if (current.isValid())
                    select(StructureModel::getObject(current));
            });
    m_search = new SearchPanel(*m_structure);
    m_search->onChosen.iHandlerAdd([this](fc::EntityIndex object) { select(object); });
    m_structureDock = new QDockWidget(tr("Structure"), this);
    m_structureDock->setObjectName("structure");
    m_structureDock->setWidget(m_search);
    addDockWidget(Qt::LeftDockWidgetArea, m_structureDock);
    resizeDocks({m_structureDock}, {fontMetrics().averageCharWidth() * 64}, Qt::Horizontal);

    m_messages = new MessagesPanel;
    m_messagesDock = new QDockWidget(tr("Messages"), this);
    m_messagesDock->setObjectName("messages");
    m_messagesDock->setWidget(m_messages);
    addDockWidget(Qt::BottomDockWidgetArea, m_messagesDock);
    resizeDocks({m_messagesDock}, {fontMetrics().height() * 6}, Qt::Vertical);
}

void MainWindow::createFileMenu()
{
    auto& menu = *menuBar()->addMenu(tr("&File"));
    addAction(menu, tr("&Open…"), QKeySequence::Open, [this] { chooseFile(); });
    m_recentMenu = menu.addMenu(tr("Open &recent"));
    connect(m_recentMenu, &QMenu::aboutToShow, this, &MainWindow::fillRecentMenu);
    menu.addSeparator();
    m_save = addAction(menu, tr("&Save"), QKeySequence::Save, [this] { save(); });
    m_saveAs = addAction(menu, tr("Save &as…"), QKeySequence("Ctrl+Shift+S"), [this] { saveAs(); });
    menu.addSeparator();
    m_close = addAction(menu, tr("&Close"), QKeySequence("Ctrl+W"), [this] { closeFile(); });
    addAction(menu, tr("&Quit"), QKeySequence("Ctrl+Q"), [this] { QWidget::close(); });
}

void MainWindow::createEditMenu()
{
    auto& menu = *menuBar()->addMenu(tr("&Edit"));
    m_undo = addAction(menu, tr("&Undo"), QKeySequence("Ctrl+Z"), [this] { travel(true); });
    m_redo = addAction(menu, tr("&Redo"), QKeySequence("Ctrl+Y"), [this] { travel(false); });
    m_redo->setShortcuts({QKeySequence("Ctrl+Y"), QKeySequence("Ctrl+Shift+Z")});
    menu.addSeparator();
    addAction(menu, tr("&Copy\tCtrl+C"), QKeySequence(), [this] { copyFromFocus(); });
    menu.addSeparator();
    m_find = addAction(menu, tr("&Find object"), QKeySequence("Ctrl+F"), [this] {
        m_structureDock->show();
        m_search->focusBox();
    });
    m_findNext = addAction(menu, tr("Find &next"), QKeySequence("F3"), [this] { m_search->chooseNext(); });
}

void MainWindow::createViewMenu()
{
    auto& menu = *menuBar()->addMenu(tr("&View"));
    m_showUnused = menu.addAction(tr("Show &unused properties"));
    m_showUnused->setShortcut(QKeySequence("Ctrl+U"));
    m_showUnused->setCheckable(true);
    m_showUnused->setChecked(true);
    connect(m_showUnused, &QAction::toggled, this,
            [this](bool shown) { m_properties->setUnusedShown(shown); });
    menu.addSeparator();
    m_expandAll = addAction(menu, tr("&Expand all groups"), QKeySequence("Ctrl+Shift+E"), [this] {
        if (auto* const grid = m_properties->getGrid())
            grid->getView().setAllFolded(false);
    });
    m_collapseAll = addAction(menu, tr("&Collapse all groups"), QKeySequence("Ctrl+Shift+C"), [this] {
        if (auto* const grid = m_properties->getGrid())
            grid->getView().setAllFolded(true);
    });
    menu.addSeparator();
    menu.addAction(m_structureDock->toggleViewAction());
    menu.addAction(m_messagesDock->toggleViewAction());
}

void MainWindow::fillRecentMenu()
{
    m_recentMenu->clear();
    for (auto const& path : RecentFiles::get())
        addAction(*m_recentMenu, QString(path).replace('&', "&&"), QKeySequence(),
                  [this, path] { openFile(path); });
    if (m_recentMenu->isEmpty())
        m_recentMenu->addAction(tr("No file yet"))->setEnabled(false);
}

QAction* MainWindow::addAction(QMenu& menu, QString const& text, QKeySequence const& shortcut,
                               std::function<void()> action)
{
    auto* const entry = menu.addAction(text);
    entry->setShortcut(shortcut);
    connect(entry, &QAction::triggered, this, [action = std::move(action)] { action(); });
    return entry;
}

void MainWindow::chooseFile()
{
    auto const folder = QFileInfo(fromPath(m_session.getPath())).path();
    auto const path = QFileDialog::getOpenFileName(this, tr("Open an IFC file"), folder, tr(filters));
    if (!path.isEmpty())
        openFile(path);
}

bool MainWindow::mayLeaveFile()
{
    if (!m_session.isModified())
        return true;
    switch (m_questions.leaveChanges(QFileInfo(fromPath(m_session.getPath())).fileName())) {
    case Leave::Save:
        return save();
    case Leave::Discard:
        return true;
    case Leave::Stay:
        return false;
    }
    return false;
}

bool MainWindow::finishSave(ifc::SaveResult const& result)
{
    updateTitle();
    if (result.status == StepSaveResult::Status::Cancelled)
        return false;
    if (!result.saved())
        m_questions.tellProblem(tr("The file was not saved."), toQString(result.text));
    else if (!result.notStored.empty())
        m_questions.tellProblem(tr("The file was saved, except for changes that its version of the "
                                   "standard has no place for."),
                                getLines(result.notStored));
    else
        statusBar()->showMessage(tr("Saved."), 3000);
    return result.saved();
}

void MainWindow::tellOpeningFailed(QString const& path)
{
    auto const messages = m_session.getMessages();
    if (messages.empty())
        return;
    RecentFiles::remove(path);
    m_questions.tellProblem(tr("%1 cannot be opened.").arg(path), toQString(messages.back().toString()));
}

void MainWindow::showFile()
{
    auto const model = m_session.getData();
    m_structureModel->setData(model);
    m_search->setData(model);
    m_properties->showFile();
    m_structure->expandToDepth(2);
    m_structure->setFocus();
    m_shownMessages = 0;
    m_messages->setMessages({}, 0);
    updateMessages();
    m_messagesDock->setVisible(m_messages->count() > 0);
    if (m_session.isOpen()) {
        auto const count = m_session.getObjectCount();
        auto const objects = count == 1 ? tr("1 object") : tr("%1 objects").arg(count);
        m_fileText->setText(fromPath(m_session.getPath().filename()) + "   " +
                            toQString(m_session.getFile()->schemaName()) + "   " + objects);
    } else {
        m_fileText->clear();
    }
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
    if (place.isValid() && StructureModel::getObject(m_structure->currentIndex()) != object) {
        m_structure->setCurrentIndex(place);
        m_structure->scrollTo(place);
    }
    updateNote();
    updateMessages();
}

void MainWindow::travel(bool back)
{
    if (back)
        m_session.undo();
    else
        m_session.redo();
    m_properties->showSelection();
    updateNote();
}

void MainWindow::copyFromFocus()
{
    // Each view copies by the same key; the menu only passes it on to where the user is.
    auto* const target = QApplication::focusWidget();
    if (!target)
        return;
    QKeyEvent press(QEvent::KeyPress, Qt::Key_C, Qt::ControlModifier);
    QApplication::sendEvent(target, &press);
}

void MainWindow::onModelChanged(std::vector<fc::EntityIndex> const& touched)
{
    m_structureModel->refresh(touched);
    updateActions();
    updateTitle();
    updateNote();
}

void MainWindow::updateActions()
{
    auto const isOpen = m_session.isOpen();
    for (auto* const action : {m_save, m_saveAs, m_close, m_find, m_findNext, m_expandAll, m_collapseAll})
        action->setEnabled(isOpen);
    m_undo->setEnabled(m_session.canUndo());
    m_redo->setEnabled(m_session.canRedo());
    auto const withName = [](QString const& text, std::string const& name) {
        return name.empty() ? text : text + ": " + toQString(name);
    };
    auto const model = m_session.getData();
    m_undo->setText(withName(tr("&Undo"), model ? model->changes().undoName() : ""));
    m_redo->setText(withName(tr("&Redo"), model ? model->changes().redoName() : ""));
}

void MainWindow::updateTitle()
{
    auto const program = QApplication::applicationDisplayName();
    setWindowTitle(m_session.isOpen() ? fromPath(m_session.getPath().filename()) + "[*] - " + program
                                      : program);
    setWindowModified(m_session.isModified());
}

void MainWindow::updateNote()
{
    auto const set = m_properties->getCurrentSetName();
    auto const others = set.empty() ? 0 : static_cast<int>(m_session.countOthersWithSet(set));
    if (others == 0)
        m_note->clear();
    else if (others == 1)
        m_note->setText(
            tr("%1 is shared with another object: an edit changes that one too.").arg(toQString(set)));
    else
        m_note->setText(tr("%1 is shared with %2 other objects: an edit changes them all.")
                            .arg(toQString(set))
                            .arg(others));
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
