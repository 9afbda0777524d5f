#pragma once

#include "FoundationClasses/AttributeReader.h"
#include "FoundationClasses/AttributeWriter.h"

namespace qev::fc {

/// Reads plain values that are in SI units already and refer to no record: what text fields and the
/// generic editor give.
class PlainReader final : public AttributeReader
{
public:
    explicit PlainReader(Data* data = nullptr)
        : m_data(data)
    {
    }

    [[nodiscard]] Data& data() const override { return *m_data; }
    [[nodiscard]] EntityIndex indexFromId(step::InstanceId) const override { return noEntity; }
    [[nodiscard]] UnitScale scaleOf(std::string_view) const override { return {}; }
    void mismatch(AttributeDescriptor const&, std::string_view, step::StepValue const&) override
    {
        m_fits = false;
    }

    [[nodiscard]] bool fits() const { return m_fits; }

private:
    Data* m_data;
    bool m_fits = true;
};

/// Writes plain values in SI units.
class PlainWriter final : public AttributeWriter
{
public:
    [[nodiscard]] step::InstanceId idOf(ReferenceBase const&) const override { return 0; }
    [[nodiscard]] UnitScale scaleOf(std::string_view) const override { return {}; }
};

} // namespace qev::fc
