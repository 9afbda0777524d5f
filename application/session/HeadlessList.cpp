#include "HeadlessList.h"

#include "Core/Localization/Dictionaries.h"
#include "Core/Unit/QuantityPresentation.h"
#include "Core/Utilities/ScopeGuard.h"
#include "Format/Ifc/Schema/SchemaLoader.h"
#include "IdentityColumns.h"
#include "ListColumnFilter.h"
#include "UI/FoundationClasses/Controls/Formatters/ListControlPropertyFormatter.h"
#include "UI/FoundationClasses/Property/Types/FcPropertySingleValue.h"
#include "Ui/Window/Details/WindowInterfaceFactory.h"

namespace qev::application {

namespace {

using fc::ui::FcPropertySingleValue;
using fc::ui::PropertySetListControl;
using Factory = ui::details::WindowInterfaceFactory;
using Formatters = fc::ui::PropertySetControlFormatters<fc::ui::ListControlPropertyFormatterInterface>;

constexpr int listId = 101;

std::string unitOf(fc::ui::PropertyInterface const* property)
{
    auto const* const single = dynamic_cast<FcPropertySingleValue const*>(property);
    auto const presentation = single ? single->quantityPresentation() : nullptr;
    return presentation ? std::string(presentation->settings().displayUnit().symbol()) : std::string();
}

} // namespace

std::vector<ListColumn> listColumnsOf(PropertySetListControl const& control)
{
    std::vector<ListColumn> result;
    for (auto const& column : control.getColumns().getColumns()) {
        auto const& [setName, propertyName] = column->getNames();
        bool const isCustom = column->isCustom();
        result.push_back({result.size(), isCustom ? propertyName : setName + "." + propertyName,
                          column->getTitle(), isCustom ? std::string() : unitOf(column->getProperty()),
                          isCustom});
    }
    return result;
}

HeadlessList::HeadlessList(std::shared_ptr<fc::Data> data, std::vector<std::string> columns)
    : m_data(std::move(data))
{
    auto const previous = Factory::getBackend();
    m_backend = ui::HeadlessBackend::install();
    ScopeGuard const restored([&previous] { Factory::setBackend(previous); });
    m_dialog = m_backend->createDialog({800, 600});
    m_backend->addPlaceholder(m_dialog, listId, {0, 0, 800, 600});
    auto const identity = std::make_shared<IdentityColumns>();
    auto const formatter = std::make_shared<fc::ui::ListControlPropertyFormatter>();
    formatter->addStrategy(identity);
    m_control = std::make_shared<PropertySetListControl>(
        ifc::SchemaLoader::curr().pSchemaFromName(ifc::SchemaLoader::modelVersion), m_data, m_dialog, listId,
        std::make_shared<ListColumnFilter>(std::move(columns)), Formatters{nullptr, formatter},
        localization::Dictionaries::getContexts("IFC"), nullptr);
    identity->standBefore(*m_control);
}

HeadlessList::~HeadlessList() = default;

void HeadlessList::show(std::vector<std::shared_ptr<fc::FcBase>> const& objects)
{
    m_control->setObjects(m_data, objects);
}

ui::HeadlessListControl& HeadlessList::list() const
{
    return *m_backend->getListControl(*m_control->getListControl());
}

} // namespace qev::application
