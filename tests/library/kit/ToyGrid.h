#pragma once

#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertySetGridControlInterface.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridProperty.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace qev::test {

/// What factories of rows see of a control, with a log of what they tell it.
class ToyGrid : public fc::ui::PropertySetGridControlInterface
{
public:
    std::vector<std::string> log;
    std::shared_ptr<fc::ui::PropertyGridControlPropertyFormatterInterface> formatter;
    /// Runs when the control hears of a click on a check box.
    std::function<void()> onClick;
    /// Disables the rows that the control hears of.
    bool disablesRows = false;

    void showUnusedProperties() override {}
    void hideUnusedProperties() override {}
    std::shared_ptr<ui::PropertyGridControl> getPropertyGridControl() override { return nullptr; }
    std::shared_ptr<fc::ui::PropertyGridControlPropertyFormatterInterface>
    getGridControlPropertyFormatter() override
    {
        return formatter;
    }
    void onPropertyCreated(std::string const& set, ui::PropertyGridProperty& parent, std::string const& name,
                           ui::PropertyGridProperty& row) override
    {
        log.push_back("created " + set + " " + name + " " + std::to_string(parent.getSubPropertyCount()));
        if (disablesRows)
            row.enable(false);
    }
    void onPropertyCreatedAfter(std::string const& set, ui::PropertyGridProperty& parent,
                                std::string const& name, bool wasEnabled) override
    {
        log.push_back("after " + set + " " + name + " " + std::to_string(parent.getSubPropertyCount()) +
                      (wasEnabled ? " enabled" : " disabled"));
    }
    void onCheckBoxPropertyClicked(std::string const& set, std::string const& name, bool checked) override
    {
        log.push_back("clicked " + set + " " + name + (checked ? " on" : " off"));
        if (onClick)
            onClick();
    }
};

} // namespace qev::test
