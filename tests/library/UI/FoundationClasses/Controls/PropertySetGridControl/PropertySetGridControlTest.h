#pragma once

#include "FoundationClasses/Resource/Property/FcPropertySingleValue.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "library/kit/SetBuilder.h"
#include "library/kit/ShownSet.h"
#include "library/kit/ToyGridFormatter.h"
#include "library/kit/ToySchema.h"
#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertySetGridControl.h"
#include "Ui/Headless/HeadlessBackend.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridControl.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace qev::test {

/// A property set grid over a small model and the sets "Pset_A" and "Pset_B", in a dialog with a place for
/// it.
///
/// Attributes are left out unless a test clears `filter->excludedSets`.
class PropertySetGridControlTest : public testing::Test
{
protected:
    using Row = ui::HeadlessPropertyGrid::Row;
    using Kind = ui::PropertyGridRowState::Kind;
    using GridFormatter = fc::ui::PropertyGridControlPropertyFormatterInterface;
    using Formatters = fc::ui::PropertySetControlFormatters<GridFormatter>;

    static constexpr int gridId = 101;

    PropertySetGridControlTest()
    {
        filter->excludedSets = {"Instance Attributes", "Type Attributes"};
        dialog = backend->createDialog({800, 600});
        backend->addPlaceholder(dialog, gridId, placeholderPlacement);
    }

    /// A schema with the sets "Pset_A" and "Pset_B" for all products.
    static std::unique_ptr<ifc::def::SchemaPset> twoSets()
    {
        return toySchemaWith(
            SetBuilder("Pset_A")
                .single("Code", "IfcLabel")
                .single("Length", "IfcLengthMeasure")
                .single("IsExternal", "IfcBoolean")
                .single("Checked", "IfcLogical")
                .enumerated("Status", {"NEW", "OLD"})
                .applicableTo("IfcProduct")
                .take(),
            SetBuilder("Pset_B").single("Count", "IfcInteger").applicableTo("IfcProduct").take());
    }

    static void expectControlReport(std::string const& text, std::string const& operation)
    {
        expectReport(text, "qev::fc::ui::PropertySetGridControl::" + operation,
                     "UI/FoundationClasses/Controls/PropertySetGridControl/PropertySetGridControl");
    }

    /// The value of a single property of an object; empty when it has none.
    static FcValue valueOfProperty(Model::Object const& object, std::string const& set,
                                   std::string const& name)
    {
        auto const pset = object->getPropertySetDefinitionNonConst<fc::core::kernel::FcPropertySet>(set);
        if (!pset)
            return {};
        for (auto const& property : pset->HasProperties.getProperties()) {
            std::shared_ptr<fc::FcBase> const entity(property);
            auto const single = fc::entityCast<fc::resource::property::FcPropertySingleValue>(entity);
            if (single && single->Name.get() == name)
                return single->NominalValue.get();
        }
        return {};
    }

    std::shared_ptr<fc::ui::PropertySetGridControl> make()
    {
        control = std::make_shared<fc::ui::PropertySetGridControl>(schema.get(), model.data(), dialog, filter,
                                                                   Formatters{formatter, gridFormatter},
                                                                   std::vector<std::string>(), nullptr);
        control->propertyChangedHandlers.iHandlerAdd([this](std::string const& set,
                                                            std::string const& property,
                                                            std::set<std::size_t> const& indices) {
            handled.push_back(set + " " + property + " " + testing::PrintToString(indices));
        });
        return control;
    }

    void show(std::vector<std::shared_ptr<fc::FcBase>> const& objects)
    {
        make()->init(gridId, std::nullopt, true);
        control->setObjects(model.data(), objects);
    }

    [[nodiscard]] ui::HeadlessPropertyGrid& grid() const
    {
        return *backend->getPropertyGrid(*control->getPropertyGridControl());
    }

    /// The row of a property. Its label is the key of its texts, there being no dictionary.
    [[nodiscard]] Row row(std::string const& set, std::string const& name) const
    {
        auto const found = grid().findRow({set, set + "." + name});
        EXPECT_NE(found, nullptr) << set << "." << name << " is not in\n" << grid().dump();
        return found;
    }

    [[nodiscard]] std::vector<std::string> groups() const
    {
        std::vector<std::string> names;
        for (auto const& group : grid().getModel()->getRows())
            names.push_back(group->getName());
        return names;
    }

    [[nodiscard]] std::vector<Kind> kindsBelow(std::string const& group) const
    {
        std::vector<Kind> kinds;
        for (auto const& child : grid().findRow({group})->getChildren())
            kinds.push_back(child->getState().kind);
        return kinds;
    }

    ui::WindowPlacement const placeholderPlacement{20, 30, 320, 430};
    std::shared_ptr<ui::HeadlessBackend> backend = ui::HeadlessBackend::install();
    std::shared_ptr<ui::Dialog> dialog;
    Model model;
    std::unique_ptr<ifc::def::SchemaPset> schema = twoSets();
    std::shared_ptr<ToyFilter> filter = std::make_shared<ToyFilter>();
    std::shared_ptr<fc::ui::PropertyFormatterInterface> formatter;
    std::shared_ptr<GridFormatter> gridFormatter;
    std::shared_ptr<fc::ui::PropertySetGridControl> control;
    /// What the handlers of changed properties heard, in order.
    std::vector<std::string> handled;
};

} // namespace qev::test
