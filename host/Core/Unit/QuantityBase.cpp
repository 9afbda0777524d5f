#include "Core/Unit/QuantityBase.h"

#include "Core/Localization/Localize.h"
#include "Core/Unit/QppBase.h"

#include <algorithm>

namespace qev::unit {

namespace {

/// The empty key has the empty text.
std::string textOf(std::string const& key) { return localize(key, "Units"); }

} // namespace

QuantityBase::QuantityBase(QuantityId id)
    : m_id(id)
{
}

QuantityBase::~QuantityBase() = default;

std::string QuantityBase::sXmlNameFromId(QuantityId id) { return factsOfQuantity(id).xmlName; }

std::string QuantityBase::sNameFromId(QuantityId id) { return textOf(sXmlNameFromId(id)); }

std::string QuantityBase::sDescriptionFromId(QuantityId id)
{
    auto const name = sXmlNameFromId(id);
    return textOf(name.empty() ? name : name + "_Description");
}

UnitBase const* QuantityBase::unitFromTypeInfo(std::type_info const& type) const
{
    for (auto const& unit : m_units) {
        UnitBase const& candidate = *unit;
        if (typeid(candidate) == type)
            return unit.get();
    }
    return nullptr;
}

UnitBase const* QuantityBase::unitFromId(int id) const
{
    for (auto const& unit : m_units) {
        if (unit->id() == id)
            return unit.get();
    }
    return nullptr;
}

UnitBase const* QuantityBase::unitFromText(std::string_view text) const
{
    for (auto const& unit : m_units) {
        auto const spellings = unit->spellings();
        if (std::find(spellings.begin(), spellings.end(), text) != spellings.end())
            return unit.get();
    }
    return nullptr;
}

QppBase const& QuantityBase::qppDefault() const
{
    if (!m_qppDefault)
        m_qppDefault = &QppBase::registrationNonConst().defaultOf(*this);
    return *m_qppDefault;
}

QuantityBase::Registration const& QuantityBase::registered() { return registeredNonConst(); }

QuantityBase::Registration& QuantityBase::registeredNonConst()
{
    static Registration registration;
    return registration;
}

void QuantityBase::addUnit(std::unique_ptr<UnitBase> unit) { m_units.push_back(std::move(unit)); }

QuantityBase::Registration::Registration() = default;

QuantityBase::Registration::~Registration() = default;

QuantityBase const* QuantityBase::Registration::get(std::type_info const& type) const
{
    for (auto const& quantity : m_quantities) {
        QuantityBase const& candidate = *quantity;
        if (typeid(candidate) == type)
            return quantity.get();
    }
    return nullptr;
}

QuantityBase const* QuantityBase::Registration::get(QuantityId id) const
{
    for (auto const& quantity : m_quantities) {
        if (quantity->id() == id)
            return quantity.get();
    }
    return nullptr;
}

QuantityBase const& QuantityBase::Registration::registerQuantity(std::unique_ptr<QuantityBase>&& quantity)
{
    QuantityBase const& candidate = *quantity;
    if (auto const* const known = get(typeid(candidate)))
        return *known;
    m_quantities.push_back(std::move(quantity));
    return *m_quantities.back();
}

} // namespace qev::unit
