#pragma once

#include "UI/FoundationClasses/Controls/Formatters/PropertyFormatterInterface.h"
#include "UI/FoundationClasses/Controls/Formatters/PropertyFormatterStrategyInterface.h"

#include <vector>

namespace qev::fc::ui {

/// Answers by asking strategies, in the order in which they were added: the first answer counts.
///
/// Without an answer a property is enabled, not read-only, without a colour and without a related one.
class QEVFOUNDATIONCLASSESUI_EXPORT PropertyFormatter : public PropertyFormatterInterface
{
public:
    PropertyFormatter();
    ~PropertyFormatter() override;

    /// \p strategy must not be null.
    void addStrategy(std::shared_ptr<PropertyFormatterStrategyInterface> const& strategy);

    void setObject(std::shared_ptr<Data> data, std::shared_ptr<FcBase> object) override;
    void onPropertySetPropertyChanged(std::shared_ptr<core::kernel::FcPropertySet const> const& set,
                                      std::string const& propertyName) override;
    void onPropertyCustomButtonClicked(std::string const& setName, std::string const& propertyName) override;
    [[nodiscard]] std::optional<std::string>
    getRelatedValueProperty(std::string const& setName, std::string const& propertyName) const override;
    [[nodiscard]] bool isEnabled(std::string const& setName, std::string const& propertyName) const override;
    [[nodiscard]] bool isReadOnly(std::string const& setName, std::string const& propertyName) const override;
    [[nodiscard]] std::optional<attr::Colour>
    getBackgroundColour(std::string const& setName, std::string const& propertyName) const override;

private:
    std::vector<std::shared_ptr<PropertyFormatterStrategyInterface>> m_strategies;
};

} // namespace qev::fc::ui
