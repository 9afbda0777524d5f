#include "FoundationClasses/UnitScale.h"

#include "Core/String/NumberText.h"

namespace qev::fc {

double UnitScale::fromSi(double si) const
{
    double const exact = (si - offset) * divisor / factor;
    if (isIdentity())
        return si;
    // The conversion may leave dust behind the last digit that matters; fewer digits that lead to
    // the same SI number are what a person would have written.
    for (int const digits : {12, 15, 16}) {
        auto const candidate = str::parseDouble(str::significantText(exact, digits));
        if (candidate && toSi(*candidate) == si)
            return *candidate;
    }
    return exact;
}

} // namespace qev::fc
