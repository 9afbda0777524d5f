#pragma once

#include "Core/Unit/QuantityId.h"
#include "Core/Unit/UnitBase.h"
#include "HostCoreExport.h"

#include <memory>
#include <string>
#include <string_view>
#include <typeinfo>
#include <vector>

namespace qev::unit {

class QppBase;

/// A physical quantity with its units. There is one object for each class of quantity.
class HOSTCORE_EXPORT QuantityBase
{
public:
    class Registration;

    QuantityBase(QuantityBase const&) = delete;
    QuantityBase& operator=(QuantityBase const&) = delete;
    virtual ~QuantityBase();

    /// A name for files, which never changes.
    virtual std::string sXmlName() const = 0;
    virtual std::string sName() const = 0;
    virtual std::string sDescription() const = 0;

    /// The texts of a quantity, of which the name and the description are in the current language; empty for
    /// an unknown id.
    static std::string sXmlNameFromId(QuantityId id);
    static std::string sNameFromId(QuantityId id);
    static std::string sDescriptionFromId(QuantityId id);

    [[nodiscard]] QuantityId id() const { return m_id; }
    /// All units, the SI unit first.
    [[nodiscard]] std::vector<std::unique_ptr<UnitBase>> const& units() const { return m_units; }
    /// The unit object of a class of units, or null.
    [[nodiscard]] UnitBase const* unitFromTypeInfo(std::type_info const& type) const;
    [[nodiscard]] UnitBase const* unitFromId(int id) const;
    /// The unit with this symbol or other spelling, or null.
    [[nodiscard]] UnitBase const* unitFromText(std::string_view text) const;

    /// The parameters of presentation that hold unless others are asked for.
    [[nodiscard]] QppBase const& qppDefault() const;

    /// The quantities known to the program. A quantity comes in when one of its units is first used.
    static Registration const& registered();
    static Registration& registeredNonConst();

protected:
    explicit QuantityBase(QuantityId id);

    void addUnit(std::unique_ptr<UnitBase> unit);

private:
    QuantityId m_id;
    std::vector<std::unique_ptr<UnitBase>> m_units;
    mutable QppBase const* m_qppDefault = nullptr;
};

/// Quantities by their class.
class HOSTCORE_EXPORT QuantityBase::Registration
{
public:
    Registration();
    ~Registration();
    Registration(Registration const&) = delete;
    Registration& operator=(Registration const&) = delete;

    /// The quantity of exactly this class, or null.
    [[nodiscard]] QuantityBase const* get(std::type_info const& type) const;
    /// The first quantity with this id, or null.
    [[nodiscard]] QuantityBase const* get(QuantityId id) const;

    /// Takes \p quantity over; when its class is there already, the older one stays.
    /// \returns the quantity of that class.
    QuantityBase const& registerQuantity(std::unique_ptr<QuantityBase>&& quantity);

private:
    std::vector<std::unique_ptr<QuantityBase>> m_quantities;
};

} // namespace qev::unit
