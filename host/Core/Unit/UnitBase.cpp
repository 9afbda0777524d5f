#include "Core/Unit/UnitBase.h"

#include <algorithm>

namespace qev::unit {

UnitBase::UnitBase(UnitFacts const& facts, QuantityBase const& quantity)
    : m_facts(facts)
    , m_quantity(quantity)
{
}

UnitBase::~UnitBase() = default;

std::vector<std::string_view> UnitBase::spellings() const
{
    std::vector<std::string_view> result;
    if (!symbol().empty())
        result.push_back(symbol());
    std::string_view rest = m_facts.spellings;
    while (!rest.empty()) {
        auto const end = std::min(rest.find(' '), rest.size());
        result.push_back(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return result;
}

double UnitBase::toSi(double value) const
{
    return (value + m_facts.offset) * m_facts.numerator / m_facts.denominator;
}

double UnitBase::fromSi(double value) const
{
    return value * m_facts.denominator / m_facts.numerator - m_facts.offset;
}

double convert(double value, UnitBase const& from, UnitBase const& to)
{
    return &from == &to ? value : to.fromSi(from.toSi(value));
}

} // namespace qev::unit
