#include "Core/Unit/QppBase.h"

#include "Core/Unit/UnitIds.h"

#include <utility>

namespace qev::unit {

namespace {

constexpr int decimalsOfSeconds = 3;

QppSettings geographicSettings(QuantityBase const& planeAngle)
{
    QppSettings settings(planeAngle);
    if (auto const* const degree = planeAngle.unitFromId(degreeId))
        settings.setDisplayUnit(*degree);
    settings.setStyle(QppSettings::Style::DegreesMinutesSeconds);
    settings.setDecimals(decimalsOfSeconds);
    return settings;
}

} // namespace

QppBase::QppBase(QppSettings const& defaults)
    : m_defaults(defaults)
{
}

QppBase::~QppBase() = default;

QppSettings const& QppBase::settingsFromContext(std::string const& context) const
{
    auto const entry = m_settings.find(context);
    return entry == m_settings.end() ? m_defaults : entry->second;
}

bool QppBase::setSettings(std::string const& context, QppSettings const& settings)
{
    if (&settings.quantity() != &quantity())
        return false;
    if (context.empty())
        m_defaults = settings;
    else
        m_settings.insert_or_assign(context, settings);
    return true;
}

void QppBase::setPreferences(UnitPreferences const& preferences)
{
    preferences.apply(m_defaults);
    setNumberFormat(preferences.numberFormat());
}

void QppBase::setNumberFormat(NumberFormat const& format)
{
    m_defaults.setNumberFormat(format);
    for (auto& [context, settings] : m_settings)
        settings.setNumberFormat(format);
}

QppRegistration const& QppBase::registration() { return registrationNonConst(); }

QppRegistration& QppBase::registrationNonConst()
{
    static QppRegistration registration;
    return registration;
}

QuantityQpp::~QuantityQpp() = default;

GeographicAngleQpp::GeographicAngleQpp(QuantityBase const& planeAngle)
    : QppBase(geographicSettings(planeAngle))
{
}

GeographicAngleQpp::~GeographicAngleQpp() = default;

void GeographicAngleQpp::setPreferences(UnitPreferences const& preferences)
{
    setNumberFormat(preferences.numberFormat());
}

QppRegistration::QppRegistration() = default;

QppRegistration::~QppRegistration() = default;

QppBase& QppRegistration::add(std::unique_ptr<QppBase> parameters)
{
    parameters->setPreferences(m_preferences);
    m_parameters.push_back(std::move(parameters));
    return *m_parameters.back();
}

QppBase& QppRegistration::defaultOf(QuantityBase const& quantity)
{
    for (auto const& parameters : m_parameters) {
        if (&parameters->quantity() == &quantity && dynamic_cast<QuantityQpp const*>(parameters.get()))
            return *parameters;
    }
    QppBase& result = add(std::make_unique<QuantityQpp>(QppSettings(quantity)));
    if (quantity.id() == QuantityId::PlaneAngle)
        add(std::make_unique<GeographicAngleQpp>(quantity));
    return result;
}

void QppRegistration::setPreferences(UnitPreferences const& preferences)
{
    m_preferences = preferences;
    for (auto const& parameters : m_parameters)
        parameters->setPreferences(preferences);
}

} // namespace qev::unit
