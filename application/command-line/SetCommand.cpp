#include "Commands.h"
#include "FileAccess.h"
#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "HeadlessGrid.h"
#include "ObjectLabel.h"
#include "SharedSets.h"

#include <iostream>

namespace qev::application {

namespace {

using fc::core::kernel::FcObjectDefinition;

/// The row that an edit is for, and its set.
struct Place
{
    GridGroup const* group = nullptr;
    GridGroup::Row const* row = nullptr;
};

/// The property wanted; none when the object does not offer it. The rows are looked through by name even
/// where the grid was asked for one property, for it shows all quantities in any case. Names may hold dots
/// themselves, so the two are put together and never taken apart.
Place findPlace(std::vector<GridGroup> const& groups, std::string const& property)
{
    for (GridGroup const& group : groups) {
        for (GridGroup::Row const& row : group.rows) {
            if (group.name + "." + row.name == property)
                return {&group, &row};
        }
    }
    return {};
}

/// What came of the edit over all objects.
struct Outcome
{
    std::size_t offered = 0;
    std::size_t refused = 0;
};

void setIn(std::shared_ptr<fc::FcBase> const& object, HeadlessGrid& grid, SetOptions const& options,
           Outcome& outcome)
{
    grid.show({object});
    auto const groups = grid.groups();
    auto const [group, row] = findPlace(groups, options.property);
    if (!row)
        return;
    ++outcome.offered;
    auto const definition = fc::entityCast<FcObjectDefinition>(object);
    if (std::size_t const others = countOthersWithSet(*definition, group->name); others > 0)
        std::cerr << "qev-ifc: the set is shared: " << others << " further objects change with "
                  << ObjectLabel::of(*object).getDescription() << '\n';
    if (grid.type(*row, options.value))
        return;
    ++outcome.refused;
    std::cout << "refused: " << ObjectLabel::of(*object).getDescription() << ": " << grid.message() << '\n';
}

} // namespace

ExitCode runSet(SetOptions const& options)
{
    auto const file = openFileAndSchemas(options.file);
    if (!file)
        return ExitCode::UnreadableFile;
    auto const places = findObjects(*file, options.objects);
    HeadlessGrid grid(file->data(), true,
                      [&options](std::string const& setName, std::string const& propertyName) {
                          return setName + "." + propertyName == options.property;
                      });
    Outcome outcome;
    for (fc::EntityIndex const place : places) {
        if (auto const object = file->data()->entity(place))
            setIn(object, grid, options, outcome);
    }
    if (outcome.offered == 0) {
        std::cerr << "qev-ifc: none of the objects has or may have the property " << options.property << '\n';
        return ExitCode::NothingFound;
    }
    ExitCode const saved = saveFile(*file, options.output);
    return saved != ExitCode::Success ? saved
           : outcome.refused > 0      ? ExitCode::RefusedEdit
                                      : ExitCode::Success;
}

} // namespace qev::application
