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

std::optional<int> UnitBase::decimalExponent() const
{
    constexpr int largestExponent = 12;
    if (hasOffset())
        return std::nullopt;
    double power = 1;
    for (int exponent = 0; exponent <= largestExponent; ++exponent, power *= 10) {
        if (m_facts.numerator == m_facts.denominator * power)
            return exponent;
        if (m_facts.numerator * power == m_facts.denominator)
            return -exponent;
    }
    return std::nullopt;
}

double convert(double value, UnitBase const& from, UnitBase const& to)
{
    return &from == &to ? value : to.fromSi(from.toSi(value));
}

} // namespace qev::unit
