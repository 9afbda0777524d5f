#pragma once

#include "UI/FoundationClasses/Controls/Formatters/ListControlPropertyFormatterStrategyInterface.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace qev::fc::ui {
class PropertySetListControl;
}

namespace qev::application {

/// Puts columns that tell which object a row is, its GlobalId and its name, in front of all others.
class IdentityColumns final : public fc::ui::ListControlPropertyFormatterStrategyInterface
{
public:
    static constexpr char globalId[] = "GlobalId";
    static constexpr char name[] = "Name";

    /// The list whose columns these stand before; it has them among its strategies, and so outlives them.
    void standBefore(fc::ui::PropertySetListControl const& control) { m_control = &control; }

    void setObject(std::shared_ptr<fc::Data>, std::shared_ptr<fc::FcBase> object) override;
    void setListControl(std::shared_ptr<ui::ListControl> const&) override {}
    void onItemAndColumnCountUpdated() override {}
    [[nodiscard]] std::optional<bool> doesItemContainLocalValue(std::string const&,
                                                                std::string const&) const override;
    void onResetItemToGlobalValue(std::string const&, std::string const&) override {}
    [[nodiscard]] std::optional<bool> isPropertyToBeHiddenByDefault(std::string const&,
                                                                    std::string const&) const override;
    [[nodiscard]] std::optional<std::vector<CustomColumn>> getCustomColumns() const override;
    [[nodiscard]] std::optional<std::string>
    getCustomColumnItemString(std::string const& columnId) const override;

private:
    fc::ui::PropertySetListControl const* m_control = nullptr;
    std::shared_ptr<fc::FcBase> m_object;
};

} // namespace qev::application
