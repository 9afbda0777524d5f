#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/GridControlPropertyFactories.h"

#include "Format/Ifc/Schema/SchemaLoader.h"
#include "FoundationClasses/Data.h"
#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/EnumeratedValueGridControlPropertyFactory.h"
#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/GridControlValueFactory.h"
#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/LogicalValueGridControlPropertyFactory.h"
#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/QuantityFactory.h"
#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/SingleValueWithBooleanToggleGridControlPropertyFactory.h"
#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertySetGridControlInterface.h"
#include "UI/FoundationClasses/LocalizedText.h"
#include "UI/FoundationClasses/Property/FcValueBase.h"
#include "UI/FoundationClasses/Set/PropertySetDefinition.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridProperty.h"

#include <utility>

namespace qev::fc::ui {

using qev::ui::PropertyGridProperty;

namespace {

std::string attributeGroupLabel(FcBase const& object, std::string const& label,
                                std::vector<std::string> const& contexts)
{
    if (!label.empty())
        return label;
    std::string const entityName = object.getEntityName();
    auto text = localizedText(contexts, entityName);
    return text.empty() ? entityName : text;
}

bool isRowEnabled(PropertyGridProperty const& row) { return row.getActiveInterface() && row.isEnabled(); }

} // namespace

GridControlPropertyFactories::GridControlPropertyFactories(ifc::def::SchemaPset const& schema)
    : m_schema(&schema)
{
    // A toggle is a boolean, and a boolean a single value: each comes before what it is a kind of.
    m_factories.push_back(std::make_unique<SingleValueWithBooleanToggleGridControlPropertyFactory>());
    m_factories.push_back(std::make_unique<BooleanValueGridControlPropertyFactory>());
    m_factories.push_back(std::make_unique<LogicalValueGridControlPropertyFactory>());
    m_factories.push_back(std::make_unique<SingleValueGridControlPropertyFactory>());
    m_factories.push_back(std::make_unique<EnumeratedValueGridControlPropertyFactory>());
    m_factories.push_back(std::make_unique<QuantityFactory>());
    m_factories.push_back(std::make_unique<GridControlValueFactory>());
}

GridControlPropertyFactories::~GridControlPropertyFactories() = default;

GridControlPropertyFactories& GridControlPropertyFactories::instance()
{
    static GridControlPropertyFactories factories(*ifc::SchemaLoader::curr().pSchemaFromName("IFC4X1"));
    return factories;
}

std::unique_ptr<PropertyGridProperty>
GridControlPropertyFactories::createProperty(PropertySetGridControlInterface& control,
                                             PropertySetDefinition const& definition, Data& data,
                                             bool showUnused) const
{
    auto group = createSetProperty(definition);
    for (auto const& property : definition.getProperties()) {
        auto const row = createRow(control, *property, data, showUnused);
        if (!row)
            continue;
        auto const name = property->getName();
        control.onPropertyCreated(definition.getName(), *group, name, *row);
        bool const wasEnabled = isRowEnabled(*row);
        group->addSubProperty(*row);
        control.onPropertyCreatedAfter(definition.getName(), *group, name, wasEnabled);
    }
    return group;
}

std::unique_ptr<PropertyGridProperty>
GridControlPropertyFactories::createProperty(PropertySetGridControlInterface& control, FcBase const& object,
                                             std::string const& label, Data& data, bool showUnused,
                                             std::vector<std::string> const& contexts) const
{
    auto const groupLabel = attributeGroupLabel(object, label, contexts);
    auto group = std::make_unique<PropertyGridProperty>(groupLabel);
    group->setUserData(nullptr);
    auto const* const entity = m_schema->schema().findEntity(object.getEntityNameUpper());
    if (!entity)
        return group;
    for (auto const* const attribute : entity->attributes()) {
        FcValueBase value(*attribute, object, contexts);
        auto const row = createRow(control, value, data, showUnused);
        if (!row)
            continue;
        control.onPropertyCreated(groupLabel, *group, attribute->name(), *row);
        group->addSubProperty(*row);
    }
    return group;
}

std::unique_ptr<PropertyGridProperty>
GridControlPropertyFactories::createSetProperty(PropertySetDefinition const& definition) const
{
    auto const label = definition.getLocalizedName([&definition] {
        auto const description = definition.getLocalizedDescription({});
        return description.empty() ? definition.getName() : description;
    });
    auto group = std::make_unique<PropertyGridProperty>(label);
    group->setDescription(definition.getLocalizedDescription({}));
    // The slot of a row is not typed: a group's leads to the set, and whoever reads it takes it as that.
    group->setUserData(const_cast<PropertySetDefinition*>(&definition));
    return group;
}

std::unique_ptr<PropertyGridProperty>
GridControlPropertyFactories::createRow(PropertySetGridControlInterface& control, PropertyInterface& property,
                                        Data& data, bool showUnused) const
{
    GridControlPropertyFactory::CreatePropertyParams const params{control, &property, &data, showUnused};
    for (auto const& factory : m_factories) {
        if (auto row = factory->createProperty(params))
            return row;
    }
    return nullptr;
}

} // namespace qev::fc::ui
