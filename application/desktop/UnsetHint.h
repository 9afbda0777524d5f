#pragma once

#include "UI/FoundationClasses/Controls/Formatters/PropertyGridControlPropertyFormatterStrategyInterface.h"

#include <string>

namespace qev::application {

/// Lets the rows of properties without a value say so.
class UnsetHint final : public fc::ui::PropertyGridControlPropertyFormatterStrategyInterface
{
public:
    /// \p text is what stands in place of a value.
    explicit UnsetHint(std::string text);
    ~UnsetHint() override;

    [[nodiscard]] std::optional<bool> wantCustomButtonProperties() const override { return std::nullopt; }
    [[nodiscard]] std::optional<bool> wantButton(std::string const&, std::string const&) const override
    {
        return std::nullopt;
    }
    void onButtonClicked(std::string const&, std::string const&) override {}
    void setObject(std::shared_ptr<fc::Data>, std::shared_ptr<fc::FcBase>) override {}
    void onPropertyCreated(std::string const& setName, std::string const& propertyName,
                           ui::PropertyGridProperty& property) override;
    [[nodiscard]] std::optional<Alignment> getAlignment(std::string const&, std::string const&) const override
    {
        return std::nullopt;
    }
    [[nodiscard]] std::optional<EmptyLineState> getEmptyLineState(std::string const&,
                                                                  std::string const&) const override
    {
        return std::nullopt;
    }
    [[nodiscard]] std::optional<HorizontalLineState> getHorizontalLineState(std::string const&,
                                                                            std::string const&) const override
    {
        return std::nullopt;
    }
    [[nodiscard]] std::optional<bool> wantBoldFontStyleForNameAndValue(std::string const&,
                                                                       std::string const&) const override
    {
        return std::nullopt;
    }
    [[nodiscard]] std::optional<unsigned int>
    getPropertyNameIndentationInCharacters(std::string const&, std::string const&) const override
    {
        return std::nullopt;
    }
    [[nodiscard]] std::optional<std::vector<std::string>> getPropertySetOrder() const override
    {
        return std::nullopt;
    }

private:
    std::string m_text;
};

} // namespace qev::application
