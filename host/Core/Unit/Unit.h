#pragma once

#include "Core/Assert/Assert.h"
#include "Core/Exception.h"
#include "Core/Unit/QuantityBase.h"
#include "Core/Unit/UnitBase.h"

#include <memory>
#include <string>
#include <string_view>
#include <typeinfo>

namespace qev::unit {

namespace details {

/// "Length<1,1,...>" and the like as part of the name of a unit's class.
template <class Q>
std::string quantityTypeName()
{
    if constexpr (requires { Q::typeName(); })
        return Q::typeName();
    else
        return typeid(Q).name();
}

/// The unit of class \p U of the quantity \p Q, which is registered when it is not yet known.
///
/// \throws qev::exception when the quantity has no such unit; that is reported too, since it is
/// a fault of the program.
template <class U, class Q>
UnitBase const* registeredUnit(std::string_view className, std::string_view reportText)
{
    auto const* quantity = QuantityBase::registered().get(typeid(Q));
    if (!quantity) {
        quantity = &QuantityBase::registeredNonConst().registerQuantity(std::make_unique<Q>());
        // Code that walks the registered parameters has to find those of a quantity in use.
        static_cast<void>(quantity->qppDefault());
    }
    auto const* const unit = quantity->unitFromTypeInfo(typeid(U));
    if (!unit) {
        assert::report(reportText,
                       "qev::unit::" + std::string(className) + "<" + std::to_string(U::unitId) + ",class " +
                           quantityTypeName<Q>() + " >::get",
                       "Core/Unit/Unit");
        throw exception("unit not registered");
    }
    return unit;
}

} // namespace details

/// The coherent SI unit with the number \p Id of the quantity \p Q, in which values are kept.
template <int Id, class Q>
class SiUnit final : public UnitBase
{
public:
    using Quantity = Q;
    static constexpr int unitId = Id;

    /// The one instance. Registers the quantity on first use.
    /// \throws qev::exception with "unit not registered" when \p Q has no such unit.
    static SiUnit const& get()
    {
        static UnitBase const* const unit =
            details::registeredUnit<SiUnit, Q>("SiUnit", "Si unit not registered");
        return static_cast<SiUnit const&>(*unit);
    }

private:
    friend Q;

    explicit SiUnit(QuantityBase const& quantity)
        : UnitBase(factsOfUnit(Id), quantity)
    {
    }
};

/// A further unit with the number \p Id of the quantity \p Q.
template <int Id, class Q>
class Unit final : public UnitBase
{
public:
    using Quantity = Q;
    static constexpr int unitId = Id;

    /// The one instance. Registers the quantity on first use.
    /// \throws qev::exception with "unit not registered" when \p Q has no such unit.
    static Unit const& get()
    {
        static UnitBase const* const unit = details::registeredUnit<Unit, Q>("Unit", "Unit not registered");
        return static_cast<Unit const&>(*unit);
    }

private:
    friend Q;

    explicit Unit(QuantityBase const& quantity)
        : UnitBase(factsOfUnit(Id), quantity)
    {
    }
};

} // namespace qev::unit
