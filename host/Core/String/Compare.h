#pragma once

#include "HostCoreExport.h"

#include <string>
#include <string_view>

namespace qev::str::details {

/// How much the case of letters counts.
enum class CaseLevel
{
    /// Letters that differ by their case alone count as the same.
    Ignored = 0,
    /// Case decides where nothing else does: "a" before "A".
    Counted = 1
};

/// Compares two texts in the order in which people look for them: letters with and without accents side by
/// side, whole numbers by their value ("Wall 2" before "Wall 10").
///
/// \returns -1, 0 or 1. With `CaseLevel::Counted` the order is total: 0 only for the same bytes. The order is
/// the same on every machine, whatever its language. May be called from several threads.
template <class Character>
int compare(std::basic_string_view<Character> left, std::basic_string_view<Character> right, CaseLevel level);

template <>
HOSTCORE_EXPORT int compare<char>(std::string_view left, std::string_view right, CaseLevel level);

/// Bytes that stand to the bytes of other texts as the texts do under `compare` with \p level, for sorting
/// many: the work on a text is done once. Texts that are equal under \p level have the same key.
HOSTCORE_EXPORT std::string sortKey(std::string_view text, CaseLevel level);

} // namespace qev::str::details
