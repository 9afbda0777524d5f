#pragma once

#include "HostStepExport.h"

#include <string>
#include <string_view>
#include <vector>

namespace qev::step {

/// Turns the bytes between the apostrophes of a STEP string into UTF-8 and back.
class HOSTSTEP_EXPORT StepText
{
public:
    /// Decodes \p encoded into \p text, replacing its content.
    ///
    /// Understood are `''`, `\\`, `\S\`, `\P?\` (the parts of ISO 8859), `\X\`, `\X2\` (surrogate
    /// pairs too) and `\X4\`. A backslash that begins none of these stands for itself. Bytes that
    /// are valid UTF-8 are taken as they are, otherwise all of them as Latin-1.
    /// An escape that is begun but not kept up stays in the text letter for letter.
    /// \returns false when there was such an escape.
    static bool decode(std::string_view encoded, std::string& text);
    [[nodiscard]] static std::string decode(std::string_view encoded);

    /// Appends UTF-8 to \p out with printable ASCII only: `'` and `\` doubled, everything else in `\X2\` or
    /// `\X4\`. A byte that is no UTF-8 counts as Latin-1. Without the apostrophes around it.
    static void appendEncoded(std::string& out, std::string_view text);
};

} // namespace qev::step
