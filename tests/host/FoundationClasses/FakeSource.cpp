#include "host/FoundationClasses/FakeSource.h"

#include "FoundationClasses/AttributeReader.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/FcBase.h"

#include <utility>

namespace qev::test {

namespace {

class FakeReader final : public fc::AttributeReader
{
public:
    FakeReader(fc::Data& data, std::size_t count, std::vector<std::string>& mismatches)
        : m_data(data)
        , m_count(count)
        , m_mismatches(mismatches)
    {
    }

    [[nodiscard]] fc::Data& data() const override { return m_data; }
    [[nodiscard]] fc::EntityIndex indexFromId(step::InstanceId id) const override
    {
        return id >= 1 && id <= m_count ? static_cast<fc::EntityIndex>(id - 1) : fc::noEntity;
    }
    [[nodiscard]] fc::UnitScale scaleOf(std::string_view) const override { return {}; }
    void mismatch(fc::AttributeDescriptor const& attribute, std::string_view expected,
                  step::StepValue const&) override
    {
        m_mismatches.push_back(std::string(attribute.name) + ": " + std::string(expected));
    }

private:
    fc::Data& m_data;
    std::size_t m_count;
    std::vector<std::string>& m_mismatches;
};

void visitReferences(step::StepValue const& value, std::function<void(fc::EntityIndex)> const& visit)
{
    if (value.kind() == step::StepValue::Kind::Reference)
        visit(static_cast<fc::EntityIndex>(value.referenceId() - 1));
    for (step::StepValue const& item : value.items())
        visitReferences(item, visit);
}

} // namespace

FakeSource::FakeSource(std::vector<Record> records)
    : m_records(std::move(records))
    , m_reads(m_records.size())
{
}

std::uint16_t FakeSource::classNumber(fc::EntityIndex index) const
{
    return static_cast<std::uint16_t>(m_records[index].classNumber);
}

void FakeSource::read(fc::EntityIndex index, fc::Data& data, fc::FcBase& entity)
{
    ++m_reads[index];
    FakeReader reader(data, m_records.size(), m_mismatches);
    auto const attributes = entity.getEntityClass().attributes;
    for (auto const& [name, value] : m_records[index].values) {
        unsigned int const slot = fc::slotFromName(entity.getEntityClass(), name);
        attributes[slot]->operations->read(entity.attribute(slot), *attributes[slot], value, reader);
    }
}

void FakeSource::forEachReference(fc::EntityIndex index, unsigned int slot,
                                  std::function<void(fc::EntityIndex)> const& visit) const
{
    if (auto const* const value = find(index, slot))
        visitReferences(*value, visit);
}

bool FakeSource::readText(fc::EntityIndex index, unsigned int slot, std::optional<std::string>& text) const
{
    auto const* const value = find(index, slot);
    bool const isKnown = !value || value->kind() == step::StepValue::Kind::Text;
    if (isKnown)
        text = value ? std::optional(value->textValue()) : std::nullopt;
    return isKnown;
}

step::StepValue const* FakeSource::find(fc::EntityIndex index, unsigned int slot) const
{
    auto const* const entityClass = fc::entityClassFromNumber(m_records[index].classNumber);
    auto const& values = m_records[index].values;
    auto const found = values.find(std::string(entityClass->attributes[slot]->name));
    return found == values.end() ? nullptr : &found->second;
}

} // namespace qev::test
