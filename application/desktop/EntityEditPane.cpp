#include "EntityEditPane.h"

#include "FilePath.h"
#include "ObjectLabel.h"
#include "Texts.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGrid.h"
#include "Ui/Qt/QtBackend.h"
#include "Ui/Qt/QtDialog.h"
#include "Ui/Qt/QtText.h"
#include "Ui/Window/Controls/ListControl/ListControl.h"

#include <QDesktopServices>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace qev::application {

namespace {

using ui::toQString;

/// More objects than this take too long to compare while one waits.
constexpr std::size_t mostObjects = 200;

/// A dialog that its grid fills. Popups are below it too, and keep their size.
class GridDialog final : public ui::Dialog
{
public:
    void onSizeChanged(ui::Size const& size) override
    {
        if (auto const grid = getChildWindow(EntityEditSession::gridId))
            grid->setPlacement({0, 0, static_cast<int>(size.first), static_cast<int>(size.second)});
    }
};

} // namespace

EntityEditPane::EntityEditPane(std::shared_ptr<ui::QtBackend> backend, InspectorSession& session,
                               QWidget* parent)
    : QWidget(parent)
    , m_backend(std::move(backend))
    , m_session(session)
    , m_title(new QLabel)
    , m_openButton(new QPushButton)
    , m_pages(new QStackedWidget)
    , m_hint(new QLabel)
    , m_open([](QUrl const& address) { QDesktopServices::openUrl(address); })
{
    auto* const area = new ui::QtDialog;
    m_dialog = ui::Window::attachTo<GridDialog>(m_backend->addDialogWidget(*area));
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setWordWrap(true);
    m_hint->setForegroundRole(QPalette::PlaceholderText);
    m_title->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_title->setWordWrap(true);
    m_title->setMargin(fontMetrics().averageCharWidth());
    m_pages->addWidget(m_hint);
    m_pages->addWidget(area);
    connect(m_openButton, &QPushButton::clicked, this,
            [this] { m_editSession->getEditor().openSelectedReference(); });
    auto* const head = new QHBoxLayout;
    head->addWidget(m_title, 1);
    head->addWidget(m_openButton);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(head);
    layout->addWidget(m_pages);
    showFile();
}

EntityEditPane::~EntityEditPane() { leaveFile(); }

void EntityEditPane::showFile()
{
    if (m_session.isOpen() && !m_editSession)
        createSession();
    refresh();
}

void EntityEditPane::leaveFile()
{
    m_objects.clear();
    if (!m_editSession)
        return;
    m_gridLayout = getGrid()->saveLayout();
    auto const grid = m_editSession->getGrid();
    m_editSession.reset();
    grid->detach(true);
}

void EntityEditPane::setObjects(std::vector<fc::EntityIndex> objects)
{
    if (objects == m_objects)
        return;
    m_objects = std::move(objects);
    refresh();
}

void EntityEditPane::refresh()
{
    m_isStale = true;
    if (isVisible())
        showObjects();
}

QVariantMap EntityEditPane::getPopupSizes() const
{
    QVariantMap sizes;
    for (auto const& [id, settings] : m_dialog->getAllStoredSettings())
        if (settings.size)
            sizes[toQString(id)] =
                QSize(static_cast<int>(settings.size->first), static_cast<int>(settings.size->second));
    return sizes;
}

void EntityEditPane::setPopupSizes(QVariantMap const& sizes)
{
    for (auto const& [id, value] : sizes.asKeyValueRange()) {
        auto const size = value.toSize();
        if (!size.isEmpty())
            m_dialog->storeSettings(ui::fromQString(id), {ui::ListControl::getClassName(),
                                                          ui::Size(static_cast<unsigned int>(size.width()),
                                                                   static_cast<unsigned int>(size.height())),
                                                          std::nullopt});
    }
}

ui::QtPropertyGrid* EntityEditPane::getGrid() const
{
    return m_editSession ? m_backend->getPropertyGrid(*m_editSession->getGrid()) : nullptr;
}

QString EntityEditPane::getHint() const { return m_pages->currentIndex() == 0 ? m_hint->text() : QString(); }

void EntityEditPane::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (m_isStale)
        showObjects();
}

void EntityEditPane::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        refresh();
    QWidget::changeEvent(event);
}

void EntityEditPane::createSession()
{
    EntityEditSession::Requests requests;
    requests.openReference = [this](std::string const& reference) { open(reference); };
    requests.goToObject = [this](std::string const& globalId) { fireEvents(onGoTo, globalId); };
    requests.onReferenceChanged = [this] { updateReference(); };
    m_editSession = std::make_unique<EntityEditSession>(m_dialog, std::move(requests));
    m_dialog->onSizeChanged(m_dialog->getClientAreaSize());
    if (!m_gridLayout.isEmpty())
        getGrid()->restoreLayout(m_gridLayout);
}

void EntityEditPane::showObjects()
{
    m_isStale = false;
    m_openButton->setText(getText("Editor_Open"));
    m_title->hide();
    m_openButton->hide();
    if (!m_session.isOpen()) {
        showHint(getText("Hint_NoFile"));
        return;
    }
    auto const model = m_session.getData();
    std::vector<std::shared_ptr<fc::FcBase>> entities;
    if (m_objects.size() <= mostObjects)
        for (auto const index : m_objects)
            if (auto entity = model->entity(index))
                entities.push_back(std::move(entity));
    if (entities != m_editSession->getEntities())
        m_editSession->show(model, entities);
    else
        m_editSession->refresh();
    if (entities.empty()) {
        auto const count = QString::number(static_cast<qulonglong>(m_objects.size()));
        showHint(m_objects.size() > mostObjects
                     ? getText("Hint_TooManyToEdit", {count, QString::number(mostObjects)})
                     : getText("Hint_NoSelection"));
        return;
    }
    auto const label = ObjectLabel::of(*model, entities.front()->getIndex());
    m_title->setText(entities.size() == 1
                         ? "<b>" + toQString(label.getTitle()).toHtmlEscaped() + "</b>&nbsp;&nbsp; " +
                               toQString(label.className).toHtmlEscaped()
                         : "<b>" + getText("Editor_Objects", {QString::number(entities.size())}) + "</b>");
    m_title->show();
    updateReference();
    m_pages->setCurrentIndex(1);
}

void EntityEditPane::showHint(QString const& hint)
{
    m_hint->setText(hint);
    m_pages->setCurrentIndex(0);
}

void EntityEditPane::updateReference()
{
    auto const& editor = m_editSession->getEditor();
    m_openButton->setVisible(editor.getSelectedReference() && editor.isReferenceActionEnabled());
    m_openButton->setToolTip(toQString(editor.getSelectedReference().value_or("")).toHtmlEscaped());
}

void EntityEditPane::open(std::string const& reference)
{
    // Documents are often named by their place beside the model.
    auto const folder = QFileInfo(fromPath(m_session.getPath())).absolutePath();
    auto const address = QUrl::fromUserInput(toQString(reference), folder);
    if (address.isValid())
        m_open(address);
}

} // namespace qev::application
