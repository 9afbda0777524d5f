#pragma once

namespace qev::unit {

/// How plain numbers are written.
struct NumberFormat
{
    char decimalSign = '.';

    friend bool operator==(NumberFormat const&, NumberFormat const&) = default;
};

} // namespace qev::unit
