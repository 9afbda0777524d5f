#pragma once

#include "UI/FoundationClasses/Controls/Formatters/PropertyGridControlPropertyFormatterInterface.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace qev::test {

/// A grid formatter with fixed answers, which keeps what it is told, in order.
class ToyGridFormatter : public fc::ui::PropertyGridControlPropertyFormatterInterface
{
public:
    bool customButtons = false;
    bool buttons = false;
    bool bold = false;
    unsigned int indentation = 0;
    Alignment alignment = Alignment::Alignment0;
    EmptyLineState emptyLine = EmptyLineState::None;
    HorizontalLineState line = HorizontalLineState::None;
    std::optional<std::vector<std::string>> order;
    std::vector<std::string> log;

    void setObject(std::shared_ptr<fc::Data> /*data*/, std::shared_ptr<fc::FcBase> /*object*/) override
    {
        log.emplace_back("setObject");
    }
    [[nodiscard]] bool wantCustomButtonProperties() const override { return customButtons; }
    [[nodiscard]] bool wantButton(std::string const& /*set*/, std::string const& /*name*/) const override
    {
        return buttons;
    }
    void onButtonClicked(std::string const& set, std::string const& name) override
    {
        log.push_back("clicked " + set + " " + name);
    }
    void onPropertyCreated(std::string const& set, std::string const& name,
                           ui::PropertyGridProperty& /*property*/) override
    {
        log.push_back("created " + set + " " + name);
    }
    [[nodiscard]] Alignment getAlignment(std::string const& /*set*/,
                                         std::string const& /*name*/) const override
    {
        return alignment;
    }
    [[nodiscard]] EmptyLineState getEmptyLineState(std::string const& /*set*/,
                                                   std::string const& /*name*/) const override
    {
        return emptyLine;
    }
    [[nodiscard]] HorizontalLineState getHorizontalLineState(std::string const& /*set*/,
                                                             std::string const& /*name*/) const override
    {
        return line;
    }
    [[nodiscard]] bool wantBoldFontStyleForNameAndValue(std::string const& /*set*/,
                                                        std::string const& /*name*/) const override
    {
        return bold;
    }
    [[nodiscard]] unsigned int
    getPropertyNameIndentationInCharacters(std::string const& /*set*/,
                                           std::string const& /*name*/) const override
    {
        return indentation;
    }
    [[nodiscard]] std::optional<std::vector<std::string>> getPropertySetOrder() const override
    {
        return order;
    }
};
} // namespace qev::test
