#pragma once

#include "Measurement.h"

#include <filesystem>
#include <optional>
#include <string_view>

namespace qev::benchmarks {

/// What is measured, one work in a process of its own.
enum class Work
{
    Floor,     ///< Read the file into fresh memory, and pass over it once for the ends of records.
    Copy,      ///< Copy the file to the scratch file, and flush.
    Open,      ///< Open it, count its classes, walk its spatial structure. Memory: what the process has then.
    Read,      ///< Open it, and read every property and quantity of every object.
    Save,      ///< Open it, change one property in up to 10,000 objects, and save to the scratch file.
    Look,      ///< Look at 1,000 objects, one after the other. Memory: how much more than after opening.
    Tree,      ///< After opening, the generic tree of properties of one element.
    TreeAgain, ///< The same for the second time.
    Trees,     ///< The generic trees of all entities. Memory: how much more than after opening.
    First,     ///< Show an object of an open file for the first time.
    Next,      ///< Show 200 further objects, one after the other; the slowest of them.
    Common,    ///< Select all objects of an open file and find the sets they have in common.
    Change,    ///< Change one property in all of them.
};

[[nodiscard]] std::string_view nameOf(Work work);
[[nodiscard]] std::optional<Work> workFromName(std::string_view name);

/// Does a work once. No measurement when the file cannot be read or written; why is told on the error output.
[[nodiscard]] std::optional<Measurement> doWork(Work work, std::filesystem::path const& file,
                                                std::filesystem::path const& scratchFile);

} // namespace qev::benchmarks
