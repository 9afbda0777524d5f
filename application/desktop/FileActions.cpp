#include "FileActions.h"

#include "ActionMenu.h"
#include "BusyCursor.h"
#include "FilePath.h"
#include "RecentFiles.h"
#include "Texts.h"
#include "Ui/Qt/QtText.h"
#include "Ui/Window/ProgressBarInterface.h"

#include <functional>
#include <memory>
#include <QFileInfo>
#include <string>

namespace qev::application {

namespace {

using step::StepPatch;
using step::StepSaveResult;
using ui::fromQString;
using ui::toQString;

QString getFileName(InspectorSession const& session) { return fromPath(session.getPath().filename()); }

/// A progress bar over a work that tells how many bytes it has done.
class ByteProgress
{
public:
    explicit ByteProgress(QString const& title)
        : m_title(fromQString(title))
        , m_bar(ui::ProgressBarInterface::create(m_title))
    {
    }

    /// Tells the bar of the work; false once the user has asked to stop.
    bool operator()(std::uint64_t done, std::uint64_t total) const
    {
        if (total > 0)
            m_bar->setProgress(static_cast<double>(done) / static_cast<double>(total), m_title);
        return !m_bar->isCancelled();
    }

private:
    std::string m_title;
    std::unique_ptr<ui::ProgressBarInterface> m_bar;
};

} // namespace

FileActions::FileActions(InspectorSession& session, QWidget& window)
    : m_session(session)
    , m_window(window)
{
}

FileActions::~FileActions() = default;

void FileActions::fill(QMenu& menu, LiveTexts& texts)
{
    appendAction(menu, texts, "File_Open", QKeySequence::Open, [this] { choose(); });
    m_recentMenu = menu.addMenu(QString());
    texts.keep(*m_recentMenu->menuAction(), "File_OpenRecent");
    connect(m_recentMenu, &QMenu::aboutToShow, this, &FileActions::fillRecentMenu);
    menu.addSeparator();
    m_save = appendAction(menu, texts, "File_Save", QKeySequence::Save, [this] { save(); });
    m_saveAs = appendAction(menu, texts, "File_SaveAs", QKeySequence("Ctrl+Shift+S"), [this] { saveAs(); });
    menu.addSeparator();
    m_close = appendAction(menu, texts, "File_Close", QKeySequence("Ctrl+W"), [this] { close(); });
    appendAction(menu, texts, "File_Quit", QKeySequence("Ctrl+Q"), [this] { m_window.close(); });
}

bool FileActions::open(QString const& path)
{
    if (!mayLeave())
        return false;
    fireEvents(onLeaving);
    auto const isOpen = openWithProgress(path);
    fireEvents(onShown);
    if (isOpen)
        RecentFiles::add(path);
    else
        tellOpeningFailed(path);
    return isOpen;
}

bool FileActions::openWithProgress(QString const& path)
{
    BusyCursor const busy;
    ByteProgress const progress(getText("File_Opening", {QFileInfo(path).fileName()}));
    return m_session.open(toPath(path), std::cref(progress));
}

ifc::SaveResult FileActions::saveWithProgress(StepPatch::IfChanged ifChanged)
{
    BusyCursor const busy;
    ByteProgress const progress(getText("File_Saving", {getFileName(m_session)}));
    return m_session.save(ifChanged, std::cref(progress));
}

ifc::SaveResult FileActions::saveWithProgress(QString const& path)
{
    BusyCursor const busy;
    ByteProgress const progress(getText("File_Saving", {QFileInfo(path).fileName()}));
    return m_session.saveAs(toPath(path), std::cref(progress));
}

bool FileActions::close()
{
    if (!mayLeave())
        return false;
    fireEvents(onLeaving);
    m_session.close();
    fireEvents(onShown);
    return true;
}

bool FileActions::save()
{
    if (!m_session.isOpen())
        return false;
    auto result = saveWithProgress(StepPatch::IfChanged::Refuse);
    if (result.status == StepSaveResult::Status::ChangedMeanwhile) {
        if (!m_questions.overwriteChanged(getFileName(m_session)))
            return false;
        result = saveWithProgress(StepPatch::IfChanged::Overwrite);
    }
    return finishSave(result);
}

bool FileActions::saveAs()
{
    if (!m_session.isOpen())
        return false;
    auto const path = m_questions.pathToSave(fromPath(m_session.getPath()));
    if (path.isEmpty() || !finishSave(saveWithProgress(path)))
        return false;
    RecentFiles::add(path);
    return true;
}

bool FileActions::mayLeave()
{
    if (!m_session.isModified())
        return true;
    switch (m_questions.leaveChanges(getFileName(m_session))) {
    case FileQuestions::Leave::Save:
        return save();
    case FileQuestions::Leave::Discard:
        return true;
    case FileQuestions::Leave::Stay:
        return false;
    }
    return false;
}

void FileActions::update()
{
    for (auto* const action : {m_save, m_saveAs, m_close})
        action->setEnabled(m_session.isOpen());
}

void FileActions::fillRecentMenu()
{
    m_recentMenu->clear();
    for (auto const& path : RecentFiles::get())
        appendAction(*m_recentMenu, QString(path).replace('&', "&&"), QKeySequence(),
                     [this, path] { open(path); });
    if (m_recentMenu->isEmpty())
        m_recentMenu->addAction(getText("File_NoRecent"))->setEnabled(false);
}

void FileActions::choose()
{
    auto const path = m_questions.pathToOpen(QFileInfo(fromPath(m_session.getPath())).path());
    if (!path.isEmpty())
        open(path);
}

bool FileActions::finishSave(ifc::SaveResult const& result)
{
    if (result.status == StepSaveResult::Status::Cancelled)
        return false;
    if (!result.saved())
        m_questions.tellProblem(getText("File_NotSaved"), toQString(result.text));
    else if (!result.notStored.empty())
        m_questions.tellProblem(getText("File_SavedExcept"), getLines(result.notStored));
    if (result.saved())
        fireEvents(onSaved, getText("File_Saved"));
    return result.saved();
}

void FileActions::tellOpeningFailed(QString const& path)
{
    auto const messages = m_session.getMessages();
    if (messages.empty())
        return;
    RecentFiles::remove(path);
    m_questions.tellProblem(getText("File_CannotOpen", {path}), toQString(messages.back().toString()));
}

} // namespace qev::application
