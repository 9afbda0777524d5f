#include "Selection.h"

#include "Format/Ifc/Schema/SchemaLoader.h"
#include "FoundationClasses/Core/Kernel/FcObject.h"
#include "FoundationClasses/Data.h"
#include "HeadlessGrid.h"
#include "ShowAllFilter.h"
#include "StopWatch.h"
#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertySetGridControl.h"
#include "UI/FoundationClasses/Property/PropertyInterface.h"
#include "UI/FoundationClasses/PropertyOrQuantityValue.h"
#include "UI/FoundationClasses/Set/PropertySetDefinition.h"
#include "Ui/Headless/HeadlessBackend.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace qev::benchmarks {

namespace {

using fc::core::kernel::FcObject;
using Objects = std::vector<std::shared_ptr<fc::FcBase>>;

Objects allObjects(fc::Data& data)
{
    Objects objects;
    for (fc::EntityIndex const index : data.indicesFromId(FcObject::idFirst, FcObject::idLast))
        objects.push_back(data.entity(index));
    return objects;
}

/// A control that has no window: it knows sets and writes values, and shows nothing.
class SetsOfSelection
{
public:
    explicit SetsOfSelection(std::shared_ptr<fc::Data> const& data)
        : m_data(data)
        , m_backend(ui::HeadlessBackend::install())
    {
        using Formatters =
            fc::ui::PropertySetControlFormatters<fc::ui::PropertyGridControlPropertyFormatterInterface>;
        m_control = std::make_shared<fc::ui::PropertySetGridControl>(
            ifc::SchemaLoader::curr().pSchemaFromName(ifc::SchemaLoader::modelVersion), data,
            m_backend->createDialog({800, 600}), std::make_shared<application::ShowAllFilter>(),
            Formatters{nullptr, nullptr}, std::vector<std::string>(), nullptr);
    }

    void select(Objects const& objects) { m_control->setObjects(m_data, objects); }

    [[nodiscard]] fc::ui::PropertyInterface* find(std::string_view set, std::string_view property) const
    {
        for (auto const& definition : m_control->getDefinitions()) {
            if (!definition || definition->getName() != set)
                continue;
            for (auto const& candidate : definition->getProperties()) {
                if (candidate->getName() == property)
                    return candidate.get();
            }
        }
        return nullptr;
    }

private:
    std::shared_ptr<fc::Data> m_data;
    std::shared_ptr<ui::HeadlessBackend> m_backend;
    std::shared_ptr<fc::ui::PropertySetGridControl> m_control;
};

} // namespace

Measurement slowestChangeOfSelection(std::shared_ptr<fc::Data> const& data, std::size_t count)
{
    auto const objects = data->indicesFromId(FcObject::idFirst, FcObject::idLast);
    std::size_t const step = std::max<std::size_t>(1, objects.size() / (count + 1));
    application::HeadlessGrid session(data, true);
    Measurement slowest;
    for (std::size_t i = 0; i < objects.size() && i / step <= count; i += step) {
        StopWatch const watch;
        session.show({data->entity(objects[i])});
        Measurement const change = watch.read();
        if (i > 0 && change.seconds > slowest.seconds)
            slowest = change;
    }
    return slowest;
}

Measurement firstSelection(std::shared_ptr<fc::Data> const& data)
{
    auto const objects = data->indicesFromId(FcObject::idFirst, FcObject::idLast);
    application::HeadlessGrid session(data, true);
    StopWatch const watch;
    session.show({data->entity(objects[objects.size() / 2])});
    return watch.read();
}

Measurement commonSetsOfAll(std::shared_ptr<fc::Data> const& data)
{
    SetsOfSelection sets(data);
    Objects const objects = allObjects(*data);
    StopWatch const watch;
    sets.select(objects);
    return watch.read();
}

std::optional<Measurement> changeAll(std::shared_ptr<fc::Data> const& data)
{
    SetsOfSelection sets(data);
    sets.select(allObjects(*data));
    auto* const property = sets.find("Pset_WallCommon", "Reference");
    StopWatch const watch;
    if (!property || !property->updateValue(*data, fc::ui::PropertyOrQuantityValue::fromText("W-0")))
        return std::nullopt;
    return watch.read();
}

} // namespace qev::benchmarks
