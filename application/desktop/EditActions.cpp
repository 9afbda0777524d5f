#include "EditActions.h"

#include "ActionMenu.h"
#include "Texts.h"
#include "Ui/Qt/QtText.h"

#include <QApplication>
#include <QKeyEvent>

namespace qev::application {

namespace {

QString withName(QString const& text, std::string const& name)
{
    return name.empty() ? text : text + ": " + ui::toQString(name);
}

} // namespace

EditActions::EditActions(InspectorSession& session, SearchPanel& search, QDockWidget& searchDock)
    : m_session(session)
    , m_search(search)
    , m_searchDock(searchDock)
{
}

EditActions::~EditActions() = default;

void EditActions::fill(QMenu& menu, LiveTexts& texts)
{
    m_undo = appendAction(menu, texts, "Edit_Undo", QKeySequence("Ctrl+Z"), [this] { travel(true); });
    m_redo = appendAction(menu, texts, "Edit_Redo", QKeySequence("Ctrl+Y"), [this] { travel(false); });
    m_redo->setShortcuts({QKeySequence("Ctrl+Y"), QKeySequence("Ctrl+Shift+Z")});
    menu.addSeparator();
    auto* const copy = appendAction(menu, QString(), QKeySequence(), [] { copyFromFocus(); });
    // The key is only shown: the views copy by it themselves.
    texts.keep([copy] { copy->setText(getText("Edit_Copy") + "\tCtrl+C"); });
    menu.addSeparator();
    m_find = appendAction(menu, texts, "Edit_Find", QKeySequence("Ctrl+F"), [this] {
        m_searchDock.show();
        m_search.focusBox();
    });
    m_findNext =
        appendAction(menu, texts, "Edit_FindNext", QKeySequence("F3"), [this] { m_search.chooseNext(); });
}

void EditActions::update()
{
    for (auto* const action : {m_find, m_findNext})
        action->setEnabled(m_session.isOpen());
    m_undo->setEnabled(m_session.canUndo());
    m_redo->setEnabled(m_session.canRedo());
    auto const model = m_session.getData();
    m_undo->setText(withName(getText("Edit_Undo"), model ? model->changes().undoName() : ""));
    m_redo->setText(withName(getText("Edit_Redo"), model ? model->changes().redoName() : ""));
}

void EditActions::travel(bool back)
{
    if (back)
        m_session.undo();
    else
        m_session.redo();
    fireEvents(onTravelled);
}

void EditActions::copyFromFocus()
{
    // The menu passes the key on to where the user is.
    auto* const target = QApplication::focusWidget();
    if (!target)
        return;
    QKeyEvent press(QEvent::KeyPress, Qt::Key_C, Qt::ControlModifier);
    QApplication::sendEvent(target, &press);
}

} // namespace qev::application
