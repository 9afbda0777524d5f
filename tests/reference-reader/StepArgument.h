#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace qev::test::reference {

/// One argument of a record, as it was written.
struct StepArgument
{
    enum class Kind
    {
        Unset,
        Derived,
        Integer,
        Real,
        Text,
        Enumeration,
        Binary,
        Reference,
        List,
        Typed
    };

    Kind kind = Kind::Unset;

    /// Numbers: their spelling. Texts: decoded, in UTF-8. Enumerations: the item without its points.
    /// Binaries: the digits. Typed values: the type in capitals.
    std::string text;

    /// References: the number of the record.
    std::uint64_t reference = 0;

    /// Lists: the elements. Typed values: what stands in the parentheses.
    std::vector<StepArgument> items;

    [[nodiscard]] bool isNumber() const { return kind == Kind::Integer || kind == Kind::Real; }
};

} // namespace qev::test::reference
