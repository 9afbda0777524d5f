#pragma once

#include "HostCoreExport.h"

#include <optional>
#include <string>
#include <string_view>

namespace qev::unit {

/// How numbers are written, and how they are read.
///
/// Point and comma are read as decimal signs both. Where both stand, or one of them more than once, they
/// group thousands as well. One that is not the decimal sign of the format, with three digits behind it, may
/// do either ("1,234" is a thousand in half of the world, and little more than one in the other half): such a
/// number is not understood.
struct HOSTCORE_EXPORT NumberFormat
{
    char decimalSign = '.';

    /// The format that the user has chosen.
    static NumberFormat const& current();

    /// The shortest text that reads back as exactly \p number.
    [[nodiscard]] std::string write(double number) const;
    /// \p text with the decimal sign of the format in place of points.
    [[nodiscard]] std::string withDecimalSign(std::string text) const;

    /// Reads the whole of \p text but for blanks around it; nothing when it is no finite number.
    [[nodiscard]] std::optional<double> read(std::string_view text) const;
    /// The digits of the number \p text with a point alone, such as `str::parseDouble` reads them.
    [[nodiscard]] std::optional<std::string> plainDigits(std::string_view text) const;
    /// Whether \p text, which has no sign, is a number that means different things to different people.
    [[nodiscard]] bool isAmbiguous(std::string_view text) const;

    /// For the user, in the current language: what would have been understood in place of \p text, which is
    /// not.
    [[nodiscard]] std::string describeExpected(std::string_view text) const;

    friend bool operator==(NumberFormat const&, NumberFormat const&) = default;
};

} // namespace qev::unit
