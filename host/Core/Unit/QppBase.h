#pragma once

#include "Core/Unit/QppSettings.h"
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

    /// The parameters known to the program.
    static QppRegistration const& registration();
    static QppRegistration& registrationNonConst();

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
};

/// A list of parameters of presentation. The program has one; a test may make its own.
class HOSTCORE_EXPORT QppRegistration
{
public:
    QppRegistration();
    ~QppRegistration();
    QppRegistration(QppRegistration const&) = delete;
    QppRegistration& operator=(QppRegistration const&) = delete;

    QppBase& add(std::unique_ptr<QppBase> parameters);

    /// The default parameters of \p quantity, made when it has none. For plane angles the parameters
    /// of geographic angles are made as well.
    QppBase& defaultOf(QuantityBase const& quantity);

    [[nodiscard]] auto begin() const { return m_parameters.begin(); }
    [[nodiscard]] auto end() const { return m_parameters.end(); }

private:
    std::vector<std::unique_ptr<QppBase>> m_parameters;
};

} // namespace qev::unit
