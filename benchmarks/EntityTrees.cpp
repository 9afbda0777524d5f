#include "EntityTrees.h"

#include "Format/Ifc/Schema/SchemaLoader.h"
#include "FoundationClasses/Core/ProductExtension/FcElement.h"
#include "FoundationClasses/Data.h"
#include "Objects.h"
#include "StopWatch.h"
#include "UI/FoundationClasses/PropertyInterface/FcPropertyWrapper.h"

namespace qev::benchmarks {

namespace {

using fc::ui::propertyinterface::FcPropertyWrapper;

void readTree(FcPropertyWrapper const& wrapper)
{
    for (auto const& path : wrapper.getAllProperties())
        static_cast<void>(wrapper.getValue(path));
}

std::optional<fc::EntityIndex> someElement(fc::Data const& data)
{
    using fc::core::productextension::FcElement;
    auto const elements = data.indicesFromId(FcElement::idFirst, FcElement::idLast);
    return elements.empty() ? std::nullopt : std::optional(elements[elements.size() / 2]);
}

/// The schema is read once in the life of a program, not once for a file.
void loadSchema() { ifc::SchemaLoader::curr().pSchemaFromName(ifc::SchemaLoader::modelVersion); }

} // namespace

std::optional<Measurement> readTreeOfElement(std::shared_ptr<fc::Data> const& data)
{
    auto const element = someElement(*data);
    if (!element)
        return std::nullopt;
    loadSchema();
    StopWatch const watch;
    auto const entity = data->entity(*element);
    readTree(FcPropertyWrapper(data, entity));
    return watch.read();
}

std::optional<Measurement> readTreeOfElementAgain(std::shared_ptr<fc::Data> const& data)
{
    auto const element = someElement(*data);
    if (!element)
        return std::nullopt;
    loadSchema();
    auto const entity = data->entity(*element);
    FcPropertyWrapper wrapper(data, entity);
    readTree(wrapper);
    wrapper.clearCache();
    StopWatch const watch;
    readTree(wrapper);
    return watch.read();
}

void readAllTrees(std::shared_ptr<fc::Data> const& data)
{
    for (fc::EntityIndex index = 0; index < data->entityCount(); ++index) {
        if (auto const entity = data->entity(index)) {
            FcPropertyWrapper wrapper(data, entity);
            readTree(wrapper);
            wrapper.clearCache();
        }
        application::releaseIfMany(*data);
    }
    data->releaseUnused();
}

} // namespace qev::benchmarks
