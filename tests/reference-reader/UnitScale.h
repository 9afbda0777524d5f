#pragma once

namespace qev::test::reference {

/// How a number of a unit becomes one of the SI unit: number * factor + offset.
struct UnitScale
{
    double factor = 1.0;
    double offset = 0.0;

    friend bool operator==(UnitScale const&, UnitScale const&) = default;
};

} // namespace qev::test::reference
