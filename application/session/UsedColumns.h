#pragma once

#include "FoundationClasses/Data.h"
#include "UI/FoundationClasses/Controls/Formatters/ListControlPropertyFormatterStrategyInterface.h"

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace qev::application {

/// Hides, until the user wants them, the columns of properties that none of the objects has: the standard
/// knows hundreds for a wall.
class UsedColumns final : public fc::ui::ListControlPropertyFormatterStrategyInterface
{
public:
    /// Takes what some of \p objects have for what all of them have, as reading each would take long.
    void lookAt(std::vector<std::shared_ptr<fc::FcBase>> const& objects);

    void setObject(std::shared_ptr<fc::Data>, std::shared_ptr<fc::FcBase>) override {}
    void setListControl(std::shared_ptr<ui::ListControl> const&) override {}
    void onItemAndColumnCountUpdated() override {}
    [[nodiscard]] std::optional<bool> doesItemContainLocalValue(std::string const&,
                                                                std::string const&) const override
    {
        return std::nullopt;
    }
    void onResetItemToGlobalValue(std::string const&, std::string const&) override {}
    [[nodiscard]] std::optional<bool>
    isPropertyToBeHiddenByDefault(std::string const& setName, std::string const& propertyName) const override;
    [[nodiscard]] std::optional<std::vector<CustomColumn>> getCustomColumns() const override
    {
        return std::nullopt;
    }
    [[nodiscard]] std::optional<std::string> getCustomColumnItemString(std::string const&) const override
    {
        return std::nullopt;
    }

private:
    void add(fc::FcBase const& object);

    std::set<std::pair<std::string, std::string>> m_used;
};

} // namespace qev::application
