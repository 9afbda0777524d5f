#include "HeadlessGrid.h"

#include "Core/Localization/Dictionaries.h"
#include "Format/Ifc/Schema/SchemaLoader.h"
#include "FoundationClasses/Core/Kernel/FcObject.h"
#include "FoundationClasses/Core/Kernel/FcTypeObject.h"
#include "RowInputCheck.h"
#include "UI/FoundationClasses/Controls/Formatters/PropertyGridControlPropertyFormatter.h"
#include "UI/FoundationClasses/Property/PropertyInterface.h"
#include "UI/FoundationClasses/Set/PropertySetDefinition.h"

#include <algorithm>

namespace qev::application {

namespace {

using fc::ui::PropertySetDefinition;
using fc::ui::PropertySetDefinitionType;

constexpr int gridId = 101;

} // namespace

/// Listens while the control builds its rows: rows of attributes carry no hint of their own of what they
/// show.
class HeadlessGrid::Recorder final : public fc::ui::PropertySetDefinitionFilterInterface, public RowStrategy
{
public:
    /// The attributes of one object or type, as their rows come into being.
    struct AttributeGroup
    {
        std::string kind;
        std::vector<std::string> names;
    };

    explicit Recorder(RowFilter filter)
        : m_filter(std::move(filter))
    {
    }

    void clear() { m_groups.clear(); }
    [[nodiscard]] std::vector<AttributeGroup> const& attributeGroups() const { return m_groups; }

    using RowStrategy::setObject;
    void setObject(std::shared_ptr<fc::FcBase>) override {}
    bool isSetIncluded(std::string const& setName) const override
    {
        m_isAttributeGroup = setName == "Instance Attributes" || setName == "Type Attributes";
        if (m_isAttributeGroup && !m_filter)
            m_groups.push_back(
                {setName == "Instance Attributes" ? "instance attributes" : "type attributes", {}});
        return !m_isAttributeGroup || !m_filter;
    }
    bool isPropertyIncluded(std::string const& setName, std::string const& propertyName) const override
    {
        return !m_filter || m_filter(setName, propertyName);
    }

    void onPropertyCreated(std::string const&, std::string const& propertyName,
                           ui::PropertyGridProperty&) override
    {
        if (m_isAttributeGroup)
            m_groups.back().names.push_back(propertyName);
    }

private:
    RowFilter m_filter;
    // The control asks for a group just before it builds it, through a const interface.
    mutable bool m_isAttributeGroup = false;
    mutable std::vector<AttributeGroup> m_groups;
};

HeadlessGrid::HeadlessGrid(std::shared_ptr<fc::Data> data, bool showUnused, RowFilter filter)
    : m_data(std::move(data))
    , m_backend(ui::HeadlessBackend::install())
    , m_dialog(m_backend->createDialog({800, 600}))
    , m_recorder(std::make_shared<Recorder>(std::move(filter)))
{
    auto const formatter = std::make_shared<fc::ui::PropertyGridControlPropertyFormatter>();
    formatter->addStrategy(m_recorder);
    formatter->addStrategy(std::make_shared<RowInputCheck>());
    m_control = std::make_shared<fc::ui::PropertySetGridControl>(
        ifc::SchemaLoader::curr().pSchemaFromName(ifc::SchemaLoader::modelVersion), m_data, m_dialog,
        m_recorder,
        fc::ui::PropertySetControlFormatters<fc::ui::PropertyGridControlPropertyFormatterInterface>{
            nullptr, formatter},
        localization::Dictionaries::getContexts("IFC"), nullptr);
    if (!showUnused)
        m_control->hideUnusedProperties();
    m_control->init(gridId, std::nullopt, true);
}

HeadlessGrid::~HeadlessGrid() = default;

void HeadlessGrid::show(std::vector<std::shared_ptr<fc::FcBase>> const& objects)
{
    m_recorder->clear();
    m_control->setObjects(m_data, objects);
}

ui::HeadlessPropertyGrid& HeadlessGrid::grid() const
{
    return *m_backend->getPropertyGrid(*m_control->getPropertyGridControl());
}

std::vector<std::unique_ptr<PropertySetDefinition>> const& HeadlessGrid::definitions() const
{
    return m_control->getDefinitions();
}

std::vector<GridGroup> HeadlessGrid::groups() const
{
    std::vector<GridGroup> groups;
    std::size_t attributeGroup = 0;
    for (auto const& top : grid().getModel()->getRows())
        groups.push_back(groupOf(*top, attributeGroup));
    return groups;
}

GridGroup HeadlessGrid::groupOf(ui::PropertyGridRow const& top, std::size_t& attributeGroup) const
{
    GridGroup group;
    group.label = top.getName();
    Recorder::AttributeGroup const* attributes = nullptr;
    if (auto const* const definition = static_cast<PropertySetDefinition const*>(top.getUserData())) {
        bool const isQuantitySet = definition->getType() == PropertySetDefinitionType::QuantitySet;
        group.kind = isQuantitySet ? "quantity set" : "property set";
        group.name = definition->getName();
    } else {
        auto const& recorded = m_recorder->attributeGroups();
        while (recorded[attributeGroup].names.size() != top.getChildren().size())
            ++attributeGroup;
        attributes = &recorded[attributeGroup++];
        group.kind = attributes->kind;
        group.name = group.label;
    }
    for (std::size_t i = 0; i < top.getChildren().size(); ++i) {
        auto const& row = top.getChildren()[i];
        auto* const property = static_cast<fc::ui::PropertyInterface*>(row->getUserData());
        std::string name = attributes ? attributes->names[i]
                           : property ? property->getName()
                                      : row->getName();
        group.rows.push_back({std::move(name), row->getName(), row, ui::PropertyGridRowRecord::of(*row)});
    }
    return group;
}

bool HeadlessGrid::type(GridGroup::Row const& row, std::string const& text)
{
    ui::HeadlessPropertyGrid& window = grid();
    bool isAccepted = false;
    if (row.record.editor == "none")
        m_message = "it cannot be edited";
    else if (text.empty())
        isAccepted = window.clear(row.row);
    else if (row.record.editor == "check box")
        return setCheckBox(row, text);
    else if (row.record.editor == "choice")
        isAccepted = window.choose(row.row, text) || window.type(row.row, text);
    else
        isAccepted = window.type(row.row, text);
    // The control blanks a row whose value the model refused.
    bool const isBlanked =
        isAccepted && !text.empty() && ui::PropertyGridEditing::getDisplayedText(*row.row).empty();
    if (isBlanked || (!isAccepted && row.record.editor != "none"))
        m_message = window.getMessage().empty() ? "it does not take this value" : window.getMessage();
    return isAccepted && !isBlanked;
}

bool HeadlessGrid::setCheckBox(GridGroup::Row const& row, std::string const& text)
{
    bool const isTrue = text == "true" || text == "1";
    if (!isTrue && text != "false" && text != "0") {
        m_message = "expected true or false";
        return false;
    }
    bool const isChecked = row.row->getCheckState() == ui::CheckState::Checked;
    bool isAccepted = grid().clickCheckBox(row.row);
    // A box that shows what is wanted may stand for a value that is not there yet; a second click stores it.
    if (isAccepted && isChecked == isTrue)
        isAccepted = grid().clickCheckBox(row.row);
    m_message = isAccepted ? std::string() : "it cannot be edited";
    return isAccepted;
}

} // namespace qev::application
