#pragma once

#include "UI/FoundationClasses/Controls/Formatters/PropertyGridControlPropertyFormatterInterface.h"
#include "UI/FoundationClasses/Controls/Formatters/PropertyGridControlPropertyFormatterStrategyInterface.h"

namespace qev::fc::ui {

/// Answers by asking strategies, in the order in which they were added: the first answer counts.
///
/// Without an answer rows look as the toolkit makes them, without buttons, and sets stand in their own order.
class QEVFOUNDATIONCLASSESUI_EXPORT PropertyGridControlPropertyFormatter
    : public PropertyGridControlPropertyFormatterInterface
{
public:
    PropertyGridControlPropertyFormatter();
    ~PropertyGridControlPropertyFormatter() override;

    /// \p strategy must not be null.
    void addStrategy(std::shared_ptr<PropertyGridControlPropertyFormatterStrategyInterface> const& strategy);

    void setObject(std::shared_ptr<Data> data, std::shared_ptr<FcBase> object) override;
    [[nodiscard]] bool wantCustomButtonProperties() const override;
    [[nodiscard]] bool wantButton(std::string const& setName, std::string const& propertyName) const override;
    void onButtonClicked(std::string const& setName, std::string const& propertyName) override;
    void onPropertyCreated(std::string const& setName, std::string const& propertyName,
                           qev::ui::PropertyGridProperty& property) override;
    [[nodiscard]] Alignment getAlignment(std::string const& setName,
                                         std::string const& propertyName) const override;
    [[nodiscard]] EmptyLineState getEmptyLineState(std::string const& setName,
                                                   std::string const& propertyName) const override;
    [[nodiscard]] HorizontalLineState getHorizontalLineState(std::string const& setName,
                                                             std::string const& propertyName) const override;
    [[nodiscard]] bool wantBoldFontStyleForNameAndValue(std::string const& setName,
                                                        std::string const& propertyName) const override;
    [[nodiscard]] unsigned int
    getPropertyNameIndentationInCharacters(std::string const& setName,
                                           std::string const& propertyName) const override;
    [[nodiscard]] std::optional<std::vector<std::string>> getPropertySetOrder() const override;

private:
    std::vector<std::shared_ptr<PropertyGridControlPropertyFormatterStrategyInterface>> m_strategies;
};

} // namespace qev::fc::ui
