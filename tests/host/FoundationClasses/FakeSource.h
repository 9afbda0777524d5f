#pragma once

#include "Format/Ifc/Step/StepValue.h"
#include "FoundationClasses/EntitySource.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace qev::test {

/// Made-up records, the first of which has the id 1.
class FakeSource final : public fc::EntitySource
{
public:
    struct Record
    {
        unsigned int classNumber = 0;
        /// By the name of the attribute; what is not named is unset.
        std::map<std::string, step::StepValue> values;
    };

    explicit FakeSource(std::vector<Record> records);

    [[nodiscard]] std::size_t count() const override { return m_records.size(); }
    [[nodiscard]] std::uint16_t classNumber(fc::EntityIndex index) const override;
    void read(fc::EntityIndex index, fc::Data& data, fc::FcBase& entity) override;
    void forEachReference(fc::EntityIndex index, unsigned int slot,
                          std::function<void(fc::EntityIndex)> const& visit) const override;
    bool readText(fc::EntityIndex index, unsigned int slot, std::optional<std::string>& text) const override;

    /// How often each record became an object.
    [[nodiscard]] std::vector<unsigned int> const& reads() const { return m_reads; }
    /// What was found where something else belongs, as "attribute: expectation".
    [[nodiscard]] std::vector<std::string> const& mismatches() const { return m_mismatches; }

private:
    /// The value at a slot; null when it is unset.
    [[nodiscard]] step::StepValue const* find(fc::EntityIndex index, unsigned int slot) const;

    std::vector<Record> m_records;
    std::vector<unsigned int> m_reads;
    std::vector<std::string> m_mismatches;
};

} // namespace qev::test
