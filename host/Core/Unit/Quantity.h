#pragma once

#include "Core/Unit/QuantityBase.h"
#include "Core/Unit/Unit.h"

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <utility>

namespace qev::unit {

namespace details {

template <QuantityId Id>
constexpr std::size_t unitCount()
{
    std::size_t count = 0;
    for (auto const& facts : unitFacts)
        count += facts.quantity == Id ? 1 : 0;
    return count;
}

template <QuantityId Id>
constexpr std::array<int, unitCount<Id>()> unitIds()
{
    std::array<int, unitCount<Id>()> ids{};
    std::size_t position = 0;
    for (auto const& facts : unitFacts) {
        if (facts.quantity == Id)
            ids[position++] = facts.id;
    }
    return ids;
}

} // namespace details

/// The quantity with the number \p Id, whose dimension is given by the exponents of length, mass, time,
/// electric current, temperature, amount of substance and luminous intensity.
///
/// It brings all units of `unitFacts` that belong to the number: the SI unit as `SiUnit`, others as `Unit`.
template <int Id, int L, int M, int T, int I, int K, int N, int J>
class Quantity final : public QuantityBase
{
public:
    static constexpr QuantityId quantityId = static_cast<QuantityId>(Id);

    Quantity()
        : QuantityBase(quantityId)
    {
        constexpr auto ids = details::unitIds<quantityId>();
        addUnits<ids>(std::make_index_sequence<ids.size()>());
    }

    std::string sXmlName() const override { return sXmlNameFromId(quantityId); }
    std::string sName() const override { return sNameFromId(quantityId); }
    std::string sDescription() const override { return sDescriptionFromId(quantityId); }

    /// The name of this class as it stands in reports.
    static std::string typeName()
    {
        std::string name = "qev::unit::Quantity<" + std::to_string(Id);
        for (int const exponent : {L, M, T, I, K, N, J})
            name += "," + std::to_string(exponent);
        return name + ">";
    }

private:
    template <auto Ids, std::size_t... Positions>
    void addUnits(std::index_sequence<Positions...>)
    {
        (addUnitWithId<Ids[Positions]>(), ...);
    }

    template <int UnitId>
    void addUnitWithId()
    {
        if constexpr (UnitId == factsOfQuantity(quantityId).siUnit)
            addUnit(std::unique_ptr<UnitBase>(new SiUnit<UnitId, Quantity>(*this)));
        else
            addUnit(std::unique_ptr<UnitBase>(new Unit<UnitId, Quantity>(*this)));
    }
};

namespace details {

template <QuantityId Id, std::size_t Base>
constexpr int exponent()
{
    return factsOfQuantity(Id).exponents[Base];
}

} // namespace details

/// The class of the quantity \p Id, with the exponents of `quantityFacts`.
template <QuantityId Id>
using QuantityOf =
    Quantity<static_cast<int>(Id), details::exponent<Id, 0>(), details::exponent<Id, 1>(),
             details::exponent<Id, 2>(), details::exponent<Id, 3>(), details::exponent<Id, 4>(),
             details::exponent<Id, 5>(), details::exponent<Id, 6>()>;

/// The class of the SI unit of the quantity \p Id.
template <QuantityId Id>
using SiUnitOf = SiUnit<factsOfQuantity(Id).siUnit, QuantityOf<Id>>;

using TimeUnit = SiUnitOf<QuantityId::Time>;
using LengthUnit = SiUnitOf<QuantityId::Length>;
using AreaUnit = SiUnitOf<QuantityId::Area>;
using VolumeUnit = SiUnitOf<QuantityId::Volume>;
using PlaneAngleUnit = SiUnitOf<QuantityId::PlaneAngle>;
using DegreeUnit = Unit<18, QuantityOf<QuantityId::PlaneAngle>>;
using CountUnit = SiUnitOf<QuantityId::Count>;
using RatioUnit = SiUnitOf<QuantityId::Ratio>;
using TemperatureUnit = SiUnitOf<QuantityId::Temperature>;
using PowerUnit = SiUnitOf<QuantityId::Power>;
using ThermalTransmittanceUnit = SiUnitOf<QuantityId::ThermalTransmittance>;
using VolumeFlowUnit = SiUnitOf<QuantityId::VolumeFlow>;
using MassUnit = SiUnitOf<QuantityId::Mass>;

} // namespace qev::unit
