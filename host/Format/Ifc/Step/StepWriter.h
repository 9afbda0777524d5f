#pragma once

#include "Format/Ifc/Step/StepValue.h"
#include "HostStepExport.h"

#include <span>
#include <string>
#include <string_view>

namespace qev::step {

/// Writes values the way a STEP file spells them.
class HOSTSTEP_EXPORT StepWriter
{
public:
    /// The shortest text that reads back as the same number, with the point that STEP demands:
    /// "2.", "0.1", "1.E-05". Numbers that are not finite have no such text and become `$`.
    [[nodiscard]] static std::string real(double number);
    [[nodiscard]] static std::string value(StepValue const& value);
    /// Values with commas between them, without parentheses.
    [[nodiscard]] static std::string arguments(std::span<StepValue const> values);
    /// A whole record: `#7=IFCLABELX('a',$);`.
    [[nodiscard]] static std::string record(InstanceId id, std::string_view keyword,
                                            std::span<StepValue const> values);

    static void append(std::string& out, StepValue const& value);
};

} // namespace qev::step
