#pragma once

#include "Core/Unit/QppBase.h"
#include "Core/Unit/QppSettings.h"
#include "Core/Unit/Quantity.h"
#include "HostCoreExport.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace qev::unit {

/// A value with its unit, and how the user wants it written.
///
/// The value is of the internal unit, mostly the SI unit. The settings are a private copy: a change of the
/// registered ones shows in presentations made after it.
class HOSTCORE_EXPORT QuantityPresentationBase
{
public:
    /// Takes the settings of \p context from \p qpp. Settings of another quantity than that of \p unit
    /// are reported; the presentation stays usable and writes its values in \p unit.
    QuantityPresentationBase(QppBase const& qpp, UnitBase const& unit, double value,
                             std::string const& context);
    QuantityPresentationBase& operator=(QuantityPresentationBase const&) = delete;
    virtual ~QuantityPresentationBase();

    [[nodiscard]] virtual std::unique_ptr<QuantityPresentationBase> clone() const;

    [[nodiscard]] double value() const { return m_value; }
    /// A negative zero is stored as zero.
    void setValue(double value);

    [[nodiscard]] UnitBase const& unit() const { return *m_unit; }
    [[nodiscard]] QppSettings const& settings() const { return *m_settings; }
    [[nodiscard]] QppSettings& settingsNonConst() { return *m_settings; }

    /// The text of the value for people.
    [[nodiscard]] std::string text() const { return m_settings->writeToString(m_value, *m_unit); }
    /// The text of the value for an editor, which reads back as exactly the same value.
    [[nodiscard]] std::string fullDigits() const { return m_settings->fullDigits(m_value, *m_unit); }
    /// What a user typed as a value of the internal unit; nothing when it is not understood.
    [[nodiscard]] std::optional<double> parse(std::string_view text) const
    {
        return m_settings->parse(text, *m_unit);
    }

protected:
    QuantityPresentationBase(QuantityPresentationBase const& other);

private:
    double m_value;
    UnitBase const* m_unit;
    std::unique_ptr<QppSettings> m_settings;
};

/// The presentation of a value of the unit class \p U.
template <class U>
class QuantityPresentation final : public QuantityPresentationBase
{
public:
    QuantityPresentation(QppBase const& qpp, U const& unit, double value, std::string const& context)
        : QuantityPresentationBase(qpp, unit, value, context)
    {
    }

    [[nodiscard]] std::unique_ptr<QuantityPresentationBase> clone() const override
    {
        return std::unique_ptr<QuantityPresentationBase>(new QuantityPresentation(*this));
    }

private:
    QuantityPresentation(QuantityPresentation const&) = default;
};

/// A new presentation of the unit class \p U with the default parameters of its quantity.
template <class U>
std::unique_ptr<QuantityPresentationBase> makeQuantityPresentation(double value = 0,
                                                                   std::string const& context = "")
{
    return std::make_unique<QuantityPresentation<U>>(U::get().quantity().qppDefault(), U::get(), value,
                                                     context);
}

/// A new presentation of a geographic latitude or longitude in degrees.
HOSTCORE_EXPORT std::unique_ptr<QuantityPresentationBase>
makeGeographicAnglePresentation(double value = 0, std::string const& context = "");

} // namespace qev::unit
