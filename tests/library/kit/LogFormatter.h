#pragma once

#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "UI/FoundationClasses/Controls/Formatters/PropertyFormatterInterface.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace qev::test {

/// A formatter with fixed answers, which keeps what it is told, in order.
class LogFormatter : public fc::ui::PropertyFormatterInterface
{
public:
    std::vector<std::string> log;
    std::vector<std::shared_ptr<fc::FcBase>> objects;
    /// From a toggle to its value.
    std::map<std::string, std::string> related;
    bool enabled = true;
    bool readOnly = false;
    std::optional<attr::Colour> colour;

    void setObject(std::shared_ptr<fc::Data> /*data*/, std::shared_ptr<fc::FcBase> object) override
    {
        log.emplace_back("setObject");
        objects.push_back(std::move(object));
    }
    void onPropertySetPropertyChanged(std::shared_ptr<fc::core::kernel::FcPropertySet const> const& set,
                                      std::string const& propertyName) override
    {
        log.push_back("changed " + set->Name.get().value_or("") + " " + propertyName);
    }
    void onPropertyCustomButtonClicked(std::string const& setName, std::string const& propertyName) override
    {
        log.push_back("button " + setName + " " + propertyName);
    }
    [[nodiscard]] std::optional<std::string>
    getRelatedValueProperty(std::string const& /*setName*/, std::string const& propertyName) const override
    {
        auto const found = related.find(propertyName);
        return found == related.end() ? std::nullopt : std::optional(found->second);
    }
    [[nodiscard]] bool isEnabled(std::string const& /*setName*/, std::string const& /*name*/) const override
    {
        return enabled;
    }
    [[nodiscard]] bool isReadOnly(std::string const& /*setName*/, std::string const& /*name*/) const override
    {
        return readOnly;
    }
    [[nodiscard]] std::optional<attr::Colour> getBackgroundColour(std::string const& /*setName*/,
                                                                  std::string const& /*name*/) const override
    {
        return colour;
    }
};

} // namespace qev::test
