#pragma once

#include "UI/FoundationClasses/Controls/Formatters/PropertyGridControlPropertyFormatterStrategyInterface.h"

namespace qev::application {

/// Looks at each row of a property grid as it comes into being, and has no opinion on its looks.
class RowStrategy : public fc::ui::PropertyGridControlPropertyFormatterStrategyInterface
{
public:
    [[nodiscard]] std::optional<bool> wantCustomButtonProperties() const final { return std::nullopt; }
    [[nodiscard]] std::optional<bool> wantButton(std::string const&, std::string const&) const final
    {
        return std::nullopt;
    }
    void onButtonClicked(std::string const&, std::string const&) final {}
    void setObject(std::shared_ptr<fc::Data>, std::shared_ptr<fc::FcBase>) final {}
    [[nodiscard]] std::optional<Alignment> getAlignment(std::string const&, std::string const&) const final
    {
        return std::nullopt;
    }
    [[nodiscard]] std::optional<EmptyLineState> getEmptyLineState(std::string const&,
                                                                  std::string const&) const final
    {
        return std::nullopt;
    }
    [[nodiscard]] std::optional<HorizontalLineState> getHorizontalLineState(std::string const&,
                                                                            std::string const&) const final
    {
        return std::nullopt;
    }
    [[nodiscard]] std::optional<bool> wantBoldFontStyleForNameAndValue(std::string const&,
                                                                       std::string const&) const final
    {
        return std::nullopt;
    }
    [[nodiscard]] std::optional<unsigned int>
    getPropertyNameIndentationInCharacters(std::string const&, std::string const&) const final
    {
        return std::nullopt;
    }
    [[nodiscard]] std::optional<std::vector<std::string>> getPropertySetOrder() const final
    {
        return std::nullopt;
    }
};

} // namespace qev::application
