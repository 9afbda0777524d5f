#pragma once

#include "Core/Unit/UnitFacts.h"
#include "HostCoreExport.h"

#include <optional>
#include <string_view>
#include <vector>

namespace qev::unit {

class QuantityBase;

/// A unit of a quantity. Owned by its quantity; units are compared by their address.
class HOSTCORE_EXPORT UnitBase
{
public:
    UnitBase(UnitBase const&) = delete;
    UnitBase& operator=(UnitBase const&) = delete;
    virtual ~UnitBase();

    [[nodiscard]] int id() const { return m_facts.id; }
    [[nodiscard]] QuantityBase const& quantity() const { return m_quantity; }
    /// As written behind a number; empty for plain numbers.
    [[nodiscard]] std::string_view symbol() const { return m_facts.symbol; }
    [[nodiscard]] std::string_view name() const { return m_facts.name; }
    /// All texts by which a user may mean this unit, the symbol first.
    [[nodiscard]] std::vector<std::string_view> spellings() const;

    /// The SI value of \p value of this unit, and back.
    [[nodiscard]] double toSi(double value) const;
    [[nodiscard]] double fromSi(double value) const;
    /// Whether its zero is another one than that of the SI unit, as with degrees Celsius.
    [[nodiscard]] bool hasOffset() const { return m_facts.offset != 0; }
    [[nodiscard]] double offset() const { return m_facts.offset; }
    /// The power of ten that the unit is of the SI unit; nothing for any other unit.
    [[nodiscard]] std::optional<int> decimalExponent() const;

protected:
    UnitBase(UnitFacts const& facts, QuantityBase const& quantity);

private:
    UnitFacts m_facts;
    QuantityBase const& m_quantity;
};

/// \p value of the unit \p from in the unit \p to. Both are of the same quantity.
HOSTCORE_EXPORT double convert(double value, UnitBase const& from, UnitBase const& to);

} // namespace qev::unit
