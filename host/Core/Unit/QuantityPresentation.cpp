#include "Core/Unit/QuantityPresentation.h"

#include "Core/Assert/Assert.h"

#include <typeinfo>

namespace qev::unit {

namespace {

/// The sum of the two zeros is the positive one.
double withoutNegativeZero(double value) { return value + 0.0; }

} // namespace

QuantityPresentationBase::QuantityPresentationBase(QppBase const& qpp, UnitBase const& unit, double value,
                                                   std::string const& context)
    : m_value(withoutNegativeZero(value))
    , m_unit(&unit)
    , m_settings(std::make_unique<QppSettings>(qpp.settingsFromContext(context)))
{
    if (&m_settings->quantity() != &unit.quantity())
        assert::report("QuantityPresentation: QppSetting and internal unit are incompatible.",
                       "qev::unit::QuantityPresentationBase::QuantityPresentationBase",
                       "Core/Unit/QuantityPresentation");
}

QuantityPresentationBase::QuantityPresentationBase(QuantityPresentationBase const& other)
    : m_value(other.m_value)
    , m_unit(other.m_unit)
    , m_settings(std::make_unique<QppSettings>(*other.m_settings))
{
}

QuantityPresentationBase::~QuantityPresentationBase() = default;

std::unique_ptr<QuantityPresentationBase> QuantityPresentationBase::clone() const
{
    return std::unique_ptr<QuantityPresentationBase>(new QuantityPresentationBase(*this));
}

void QuantityPresentationBase::setValue(double value) { m_value = withoutNegativeZero(value); }

std::unique_ptr<QuantityPresentationBase> makeGeographicAnglePresentation(double value,
                                                                          std::string const& context)
{
    auto const& degree = DegreeUnit::get();
    QppBase const* parameters = &degree.quantity().qppDefault();
    for (auto const& candidate : QppBase::registration()) {
        QppBase const& entry = *candidate;
        if (typeid(entry) == typeid(GeographicAngleQpp)) {
            parameters = &entry;
            break;
        }
    }
    return std::make_unique<QuantityPresentation<DegreeUnit>>(*parameters, degree, value, context);
}

} // namespace qev::unit
