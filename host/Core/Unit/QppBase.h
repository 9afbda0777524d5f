#pragma once

#include "Core/Unit/QppSettings.h"
#include "Core/Unit/UnitPreferences.h"
#include "HostCoreExport.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace qev::unit {

class QppRegistration;

/// The parameters of presentation of a quantity: settings for each context, and default ones.
class HOSTCORE_EXPORT QppBase
{
public:
    explicit QppBase(QppSettings const& defaults);
    QppBase(QppBase const&) = delete;
    QppBase& operator=(QppBase const&) = delete;
    virtual ~QppBase();

    [[nodiscard]] QuantityBase const& quantity() const { return m_defaults.quantity(); }

    /// The settings of \p context; those of the empty context, the default, when it has none.
    [[nodiscard]] QppSettings const& settingsFromContext(std::string const& context) const;

    /// Sets the settings of \p context; those of the empty one are the default.
    /// Settings of another quantity are refused. Presentations made before keep what they have.
    bool setSettings(std::string const& context, QppSettings const& settings);

    /// Takes the user's choices over into the default settings, and the decimal sign into those of all
    /// contexts.
    virtual void setPreferences(UnitPreferences const& preferences);

    /// The parameters known to the program.
    static QppRegistration const& registration();
    static QppRegistration& registrationNonConst();

protected:
    void setNumberFormat(NumberFormat const& format);

private:
    QppSettings m_defaults;
    std::map<std::string, QppSettings> m_settings;
};

/// The parameters of a quantity that hold unless others are asked for.
class HOSTCORE_EXPORT QuantityQpp final : public QppBase
{
public:
    using QppBase::QppBase;
    ~QuantityQpp() override;
};

/// The parameters of geographic latitudes and longitudes: degrees, minutes and seconds.
class HOSTCORE_EXPORT GeographicAngleQpp final : public QppBase
{
public:
    explicit GeographicAngleQpp(QuantityBase const& planeAngle);
    ~GeographicAngleQpp() override;

    /// Takes the decimal sign alone: the choice for plane angles is not meant for these.
    void setPreferences(UnitPreferences const& preferences) override;
};

/// A list of parameters of presentation. The program has one; a test may make its own.
class HOSTCORE_EXPORT QppRegistration
{
public:
    QppRegistration();
    ~QppRegistration();
    QppRegistration(QppRegistration const&) = delete;
    QppRegistration& operator=(QppRegistration const&) = delete;

    /// Takes \p parameters over, with the user's choices in them.
    QppBase& add(std::unique_ptr<QppBase> parameters);

    /// The default parameters of \p quantity, made when it has none. For plane angles the parameters
    /// of geographic angles are made as well.
    QppBase& defaultOf(QuantityBase const& quantity);

    /// The user's choices. They go into the parameters that are there and into those that come later;
    /// presentations made before keep what they have.
    void setPreferences(UnitPreferences const& preferences);
    [[nodiscard]] UnitPreferences const& preferences() const { return m_preferences; }

    [[nodiscard]] auto begin() const { return m_parameters.begin(); }
    [[nodiscard]] auto end() const { return m_parameters.end(); }

private:
    std::vector<std::unique_ptr<QppBase>> m_parameters;
    UnitPreferences m_preferences;
};

} // namespace qev::unit
