#include "RecordReferences.h"

namespace qev::test::samples {

namespace {

void collect(reference::StepArgument const& argument, std::set<std::uint64_t>& ids)
{
    if (argument.kind == reference::StepArgument::Kind::Reference)
        ids.insert(argument.reference);
    for (reference::StepArgument const& item : argument.items)
        collect(item, ids);
}

} // namespace

std::set<std::uint64_t> referencesOf(reference::StepRecord const& record)
{
    std::set<std::uint64_t> ids;
    for (reference::StepArgument const& argument : record.arguments)
        collect(argument, ids);
    return ids;
}

} // namespace qev::test::samples
