#pragma once

#include "UI/FoundationClasses/Controls/Formatters/PropertyGridControlPropertyFormatterInterface.h"

namespace qev::fc::ui {

/// One part of what a `PropertyGridControlPropertyFormatter` knows. No value means that the strategy has
/// no opinion.
class QEVFOUNDATIONCLASSESUI_EXPORT PropertyGridControlPropertyFormatterStrategyInterface
{
public:
    using Alignment = PropertyGridControlPropertyFormatterInterface::Alignment;
    using EmptyLineState = PropertyGridControlPropertyFormatterInterface::EmptyLineState;
    using HorizontalLineState = PropertyGridControlPropertyFormatterInterface::HorizontalLineState;

    virtual ~PropertyGridControlPropertyFormatterStrategyInterface();

    [[nodiscard]] virtual std::optional<bool> wantCustomButtonProperties() const = 0;
    [[nodiscard]] virtual std::optional<bool> wantButton(std::string const& setName,
                                                         std::string const& propertyName) const = 0;
    virtual void onButtonClicked(std::string const& setName, std::string const& propertyName) = 0;
    virtual void setObject(std::shared_ptr<Data> data, std::shared_ptr<FcBase> object) = 0;
    virtual void onPropertyCreated(std::string const& setName, std::string const& propertyName,
                                   qev::ui::PropertyGridProperty& property) = 0;
    [[nodiscard]] virtual std::optional<Alignment> getAlignment(std::string const& setName,
                                                                std::string const& propertyName) const = 0;
    [[nodiscard]] virtual std::optional<EmptyLineState>
    getEmptyLineState(std::string const& setName, std::string const& propertyName) const = 0;
    [[nodiscard]] virtual std::optional<HorizontalLineState>
    getHorizontalLineState(std::string const& setName, std::string const& propertyName) const = 0;
    [[nodiscard]] virtual std::optional<bool>
    wantBoldFontStyleForNameAndValue(std::string const& setName, std::string const& propertyName) const = 0;
    [[nodiscard]] virtual std::optional<unsigned int>
    getPropertyNameIndentationInCharacters(std::string const& setName,
                                           std::string const& propertyName) const = 0;
    [[nodiscard]] virtual std::optional<std::vector<std::string>> getPropertySetOrder() const = 0;
};

} // namespace qev::fc::ui
