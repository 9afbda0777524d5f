#pragma once

#include "HostFoundationClassesExport.h"

namespace qev::fc {

/// How numbers of one measure in a file become SI: `si = number * factor / divisor + offset`.
///
/// The divisor keeps decimal prefixes exact: 1234 mm is 1234 / 1000 m, which is the double
/// nearest to 1.234; a product with 0.001 may miss it.
struct HOSTFOUNDATIONCLASSES_EXPORT UnitScale
{
    double factor = 1.0;
    double divisor = 1.0;
    double offset = 0.0;

    [[nodiscard]] double toSi(double number) const { return number * factor / divisor + offset; }
    /// The number of the file; the one with the fewest digits of those that become exactly \p si.
    [[nodiscard]] double fromSi(double si) const;
    [[nodiscard]] bool isIdentity() const { return factor == 1.0 && divisor == 1.0 && offset == 0.0; }

    friend bool operator==(UnitScale const&, UnitScale const&) = default;
};

} // namespace qev::fc
