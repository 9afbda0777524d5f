#pragma once

#include "Format/Ifc/Step/StepFile.h"
#include "Format/Ifc/Step/StepValue.h"
#include "HostStepExport.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace qev::step {

/// Finds out which records hold a text somewhere in their bytes.
///
/// A record that is taken apart tells more, but that takes many times longer: whoever looks for one thing in
/// many records takes apart only those that are found here. That is needed: what stands between a record and
/// the next one is searched with it, comments above all. Must not outlive its file.
class HOSTSTEP_EXPORT RecordSearch
{
public:
    /// Looks for \p bytes, at least one, as they stand in \p file.
    static RecordSearch forBytes(StepFile const& file, std::string_view bytes);
    /// Looks for `#` and the number, with leading zeros or none. Texts and comments may have it too.
    static RecordSearch forReferencesTo(StepFile const& file, InstanceId id);

    /// The place in \p records of the first one from \p place on that is found; the size of \p records
    /// without one.
    [[nodiscard]] std::size_t next(std::span<RecordIndex const> records, std::size_t place) const;

private:
    RecordSearch(StepFile const& file, std::string wanted, bool isReference);

    [[nodiscard]] std::size_t find(std::string_view bytes) const;
    [[nodiscard]] std::size_t endOf(RecordIndex record) const;

    StepFile const* m_file;
    std::string m_wanted;
    bool m_isReference;
};

} // namespace qev::step
