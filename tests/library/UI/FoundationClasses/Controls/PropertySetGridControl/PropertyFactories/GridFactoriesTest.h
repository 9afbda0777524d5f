#pragma once

#include "FoundationClasses/AllEntities.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "library/kit/SetBuilder.h"
#include "library/kit/ShownSet.h"
#include "library/kit/ToyGrid.h"
#include "library/kit/ToyGridFormatter.h"
#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/GridControlPropertyFactories.h"
#include "Ui/Headless/HeadlessBackend.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridProperty.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace qev::test {

/// Rows made by the factories of the program for the sets and attributes of a wall.
class GridFactoriesTest : public testing::Test
{
protected:
    using Row = std::shared_ptr<ui::PropertyGridRow>;
    using Kind = ui::PropertyGridRowState::Kind;

    /// The group of a set, made into a row that stands alone.
    Row groupOf(ShownSet& shown, bool showUnused)
    {
        return rowOf(fc::ui::GridControlPropertyFactories::instance().createProperty(
            grid, shown.set(), *model.data(), showUnused));
    }
    /// The group of an object's attributes.
    Row groupOf(fc::FcBase const& object, bool showUnused, std::string const& label = {},
                std::vector<std::string> const& contexts = {})
    {
        return rowOf(fc::ui::GridControlPropertyFactories::instance().createProperty(
            grid, object, label, *model.data(), showUnused, contexts));
    }
    /// The one row of a set.
    Row onlyRowOf(ShownSet& shown, bool showUnused)
    {
        auto const group = groupOf(shown, showUnused);
        EXPECT_EQ(group->getChildren().size(), 1u);
        return group->getChildren().empty() ? nullptr : group->getChildren().front();
    }
    static Row rowOf(std::unique_ptr<ui::PropertyGridProperty> const& handle)
    {
        return std::dynamic_pointer_cast<ui::PropertyGridRow>(handle->takeCreated());
    }

    static std::vector<std::string> namesOf(Row const& group)
    {
        std::vector<std::string> names;
        for (auto const& child : group->getChildren())
            names.push_back(child->getName());
        return names;
    }
    /// The texts of the drop list; all of them can be chosen.
    static std::vector<std::string> optionsOf(Row const& row)
    {
        std::vector<std::string> options;
        for (auto const& option : row->getState().options) {
            EXPECT_TRUE(option.enabled) << option.text;
            options.push_back(option.text);
        }
        return options;
    }
    static Row named(Row const& group, std::string const& name)
    {
        for (auto const& child : group->getChildren()) {
            if (child->getName() == name)
                return child;
        }
        return nullptr;
    }
    static fc::ui::PropertyInterface* propertyOf(Row const& row)
    {
        return static_cast<fc::ui::PropertyInterface*>(row->getUserData());
    }

    /// Has rows made with a button of their own.
    void wantCustomButtons()
    {
        auto const formatter = std::make_shared<ToyGridFormatter>();
        formatter->customButtons = true;
        grid.formatter = formatter;
    }
    static void expectCustomButton(Row const& row)
    {
        EXPECT_TRUE(row->getState().hasCustomButton);
        EXPECT_EQ(row->getState().buttonVisibleState, ui::propertygridcontrol::button::VisibleState::Visible);
        EXPECT_EQ(row->getState().buttonImage, nullptr);
    }

    std::shared_ptr<ui::HeadlessBackend> backend = ui::HeadlessBackend::install();
    Model model;
    std::shared_ptr<fc::core::kernel::FcObjectDefinition> wall = model.wall("W1");
    ToyGrid grid;
};

} // namespace qev::test
