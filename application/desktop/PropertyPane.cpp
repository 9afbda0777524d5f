#include "PropertyPane.h"

#include "Core/Localization/Dictionaries.h"
#include "FilledDialog.h"
#include "Format/Ifc/Schema/SchemaLoader.h"
#include "FoundationClasses/Resource/Measure/FcValue.h"
#include "ObjectLabel.h"
#include "RowInputCheck.h"
#include "ShowAllFilter.h"
#include "Texts.h"
#include "UI/FoundationClasses/Controls/Formatters/PropertyGridControlPropertyFormatter.h"
#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertySetGridControl.h"
#include "UI/FoundationClasses/Property/Types/FcPropertyBooleanType.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGrid.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGridView.h"
#include "Ui/Qt/QtBackend.h"
#include "Ui/Qt/QtDialog.h"
#include "Ui/Qt/QtText.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridControl.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridProperty.h"
#include "UnsetHint.h"

#include <QTimer>
#include <QVBoxLayout>

namespace qev::application {

namespace {

using fc::ui::PropertyInterface;
using fc::ui::PropertySetGridControl;
using GridFormatters =
    fc::ui::PropertySetControlFormatters<fc::ui::PropertyGridControlPropertyFormatterInterface>;

/// Shows in \p row what \p property holds.
void showValue(ui::PropertyGridRow& row, PropertyInterface const& property)
{
    using ValueKind = ui::PropertyGridRowState::ValueKind;
    if (auto const* const truth = dynamic_cast<fc::ui::FcPropertyBooleanType const*>(&property))
        row.setCheckState(truth->getBooleanValue() == "1" ? ui::CheckState::Checked
                                                          : ui::CheckState::Unchecked);
    auto const* const single = dynamic_cast<fc::ui::FcPropertySingleValue const*>(&property);
    if (row.getState().valueKind == ValueKind::Text)
        row.setText(property.getValue());
    else if (row.getState().valueKind == ValueKind::Number && single)
        row.setNumber(single->getFcValue().valueAsDoubleGet());
}

} // namespace

PropertyPane::PropertyPane(std::shared_ptr<ui::QtBackend> backend, InspectorSession& session, QWidget* parent)
    : QWidget(parent)
    , m_backend(std::move(backend))
    , m_session(session)
    , m_title(new QLabel)
    , m_pages(new QStackedWidget)
    , m_hint(new QLabel)
{
    auto* const area = new ui::QtDialog;
    m_dialog = ui::Window::attachTo<FilledDialog>(m_backend->addDialogWidget(*area));
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setWordWrap(true);
    m_hint->setForegroundRole(QPalette::PlaceholderText);
    m_title->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_title->setWordWrap(true);
    m_title->setMargin(fontMetrics().averageCharWidth());
    m_pages->addWidget(m_hint);
    m_pages->addWidget(area);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_title);
    layout->addWidget(m_pages);
    showFile();
}

PropertyPane::~PropertyPane() { leaveFile(); }

void PropertyPane::showFile()
{
    if (m_session.isOpen() && !m_control)
        createControl();
    showSelection();
}

void PropertyPane::leaveFile()
{
    if (!m_control)
        return;
    m_gridLayout = getGridLayout();
    // The rows lead to what the control is about to forget, so they go first.
    auto const window = m_control->getPropertyGridControl();
    window->removeAllProperties();
    m_control->reset();
    m_control.reset();
    window->detach(true);
}

void PropertyPane::showSelection()
{
    auto const& object = m_session.getSelection();
    m_title->setVisible(object != nullptr);
    if (!m_session.isOpen()) {
        showHint(getText("Hint_NoFile"));
        return;
    }
    auto const model = m_session.getData();
    if (!object) {
        m_control->setObjects(model, {});
        showHint(getText("Hint_NoSelection"));
        return;
    }
    auto const label = ObjectLabel::of(*model, object->getIndex());
    m_title->setText("<b>" + ui::toQString(label.getTitle()).toHtmlEscaped() + "</b>&nbsp;&nbsp; " +
                     ui::toQString(label.className).toHtmlEscaped() + "&nbsp;&nbsp; " +
                     ui::toQString(label.globalId).toHtmlEscaped());
    if (m_control->getObjects() != std::vector{object}) {
        // Between two objects is the time to let go of what nobody looks at any more.
        m_control->setObjects(model, {});
        model->releaseUnused();
    }
    m_control->setObject(model, object);
    m_pages->setCurrentIndex(1);
}

void PropertyPane::setUnusedShown(bool shown)
{
    m_isUnusedShown = shown;
    if (!m_control)
        return;
    if (shown)
        m_control->showUnusedProperties();
    else
        m_control->hideUnusedProperties();
}

ui::QtPropertyGrid* PropertyPane::getGrid() const
{
    return m_control ? m_backend->getPropertyGrid(*m_control->getPropertyGridControl()) : nullptr;
}

QString PropertyPane::getHint() const { return m_pages->currentIndex() == 0 ? m_hint->text() : QString(); }

std::string PropertyPane::getCurrentSetName() const
{
    auto const* const grid = getGrid();
    auto const* const row =
        grid ? ui::QtPropertyGridItemModel::getRow(grid->getView().currentIndex()) : nullptr;
    if (!row || row->getState().kind == ui::PropertyGridRowState::Kind::Group || !row->getUserData())
        return {};
    return static_cast<fc::ui::PropertyInterface const*>(row->getUserData())->getPropertySetName();
}

QByteArray PropertyPane::getGridLayout() const
{
    auto const* const grid = getGrid();
    return grid ? grid->saveLayout() : m_gridLayout;
}

void PropertyPane::setGridLayout(QByteArray const& layout)
{
    m_gridLayout = layout;
    if (auto* const grid = getGrid())
        grid->restoreLayout(layout);
}

void PropertyPane::showHint(QString const& hint)
{
    m_hint->setText(hint);
    m_pages->setCurrentIndex(0);
}

void PropertyPane::createControl()
{
    auto const formatter = std::make_shared<fc::ui::PropertyGridControlPropertyFormatter>();
    formatter->addStrategy(std::make_shared<UnsetHint>(ui::fromQString(getText("Row_NotSet"))));
    formatter->addStrategy(std::make_shared<RowInputCheck>());
    m_control = std::make_shared<PropertySetGridControl>(
        ifc::SchemaLoader::curr().pSchemaFromName(ifc::SchemaLoader::modelVersion), m_session.getData(),
        m_dialog, std::make_shared<ShowAllFilter>(), GridFormatters{nullptr, formatter},
        localization::Dictionaries::getContexts("IFC"), nullptr);
    m_control->init(0, std::nullopt, true);
    setUnusedShown(m_isUnusedShown);
    m_dialog->onSizeChanged(m_dialog->getClientAreaSize());
    keepRowsTrue();
    auto* const grid = getGrid();
    if (!m_gridLayout.isEmpty())
        grid->restoreLayout(m_gridLayout);
    grid->getView().onCurrentRowChanged.iHandlerAdd(
        [this](QModelIndex const&) { fireEvents(onCurrentRowChanged); });
}

void PropertyPane::keepRowsTrue()
{
    // Sets of an object may share one property, which then stands in more rows than the edited one.
    m_control->propertyChangedHandlers.iHandlerAdd(
        [this](std::string const&, std::string const& propertyName, std::set<std::size_t> const&) {
            showValues(propertyName);
        });
    m_control->getPropertyGridControl()->onPropertyChanged.iHandlerAdd(
        [this](auto& event, ui::PropertyGridProperty& row) {
            // Attributes let their items be chosen, and the choice does not reach the model: their rows
            // belong to no property.
            if (!row.getUserData())
                QTimer::singleShot(0, this, [this] { showSelection(); });
            qev::forwardEvent(event, row);
        });
}

void PropertyPane::showValues(std::string const& propertyName)
{
    for (auto const& group : getGrid()->getModel()->getRows()) {
        for (auto const& row : group->getChildren()) {
            auto const* const property = static_cast<PropertyInterface const*>(row->getUserData());
            if (property && property->getName() == propertyName)
                showValue(*row, *property);
        }
    }
}

} // namespace qev::application
