#pragma once

#include "UI/FoundationClasses/Controls/ListControl/PropertySetListControl.h"

#include "FoundationClasses/AllEntities.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "library/kit/LogFormatter.h"
#include "library/kit/SetBuilder.h"
#include "library/kit/ShownSet.h"
#include "library/kit/ToySchema.h"
#include "UI/FoundationClasses/Controls/Formatters/ListControlPropertyFormatterInterface.h"
#include "Ui/Headless/HeadlessBackend.h"
#include "Ui/Window/ProgressBarInterface.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace qev::test {

/// A formatter that treats single objects in its own way.
class RowFormatter : public LogFormatter
{
public:
    std::set<fc::FcBase const*> disabledObjects;
    std::set<fc::FcBase const*> readOnlyObjects;
    std::set<std::string> disabledProperties;
    std::set<std::string> readOnlyProperties;

    [[nodiscard]] bool isEnabled(std::string const& /*setName*/, std::string const& name) const override
    {
        return !disabledProperties.contains(name) && !disabledObjects.contains(present());
    }
    [[nodiscard]] bool isReadOnly(std::string const& /*setName*/, std::string const& name) const override
    {
        return readOnlyProperties.contains(name) || readOnlyObjects.contains(present());
    }
    [[nodiscard]] fc::FcBase const* present() const
    {
        return objects.empty() ? nullptr : objects.back().get();
    }
};

/// A list formatter with fixed answers, which keeps what it is told, in order.
class ToyListFormatter : public fc::ui::ListControlPropertyFormatterInterface
{
public:
    std::vector<CustomColumn> customColumns;
    std::set<std::string> hiddenProperties;
    std::set<fc::FcBase const*> localObjects;
    std::vector<std::string> log;
    std::vector<std::shared_ptr<fc::FcBase>> objects;
    std::shared_ptr<qev::ui::ListControl> list;

    void setObject(std::shared_ptr<fc::Data> /*data*/, std::shared_ptr<fc::FcBase> object) override
    {
        log.emplace_back("setObject");
        objects.push_back(std::move(object));
    }
    void setListControl(std::shared_ptr<qev::ui::ListControl> const& listControl) override
    {
        log.emplace_back("setListControl");
        list = listControl;
    }
    void onItemAndColumnCountUpdated() override
    {
        log.push_back("counts " + std::to_string(list ? list->getItemCount() : 0) + " " +
                      std::to_string(list ? list->getColumnCount() : 0));
    }
    [[nodiscard]] bool doesItemContainLocalValue(std::string const& /*setName*/,
                                                 std::string const& /*name*/) const override
    {
        return localObjects.contains(objects.back().get());
    }
    void onResetItemToGlobalValue(std::string const& setName, std::string const& propertyName) override
    {
        log.push_back("reset " + setName + " " + propertyName);
    }
    [[nodiscard]] bool isPropertyToBeHiddenByDefault(std::string const& /*setName*/,
                                                     std::string const& name) const override
    {
        return hiddenProperties.contains(name);
    }
    [[nodiscard]] std::vector<CustomColumn> getCustomColumns() const override { return customColumns; }
    [[nodiscard]] std::string getCustomColumnItemString(std::string const& columnId) const override
    {
        auto const name = objects.empty() ? std::nullopt : objects.back()->getAttributeAsString("Name");
        return columnId + " of " + name.value_or("nothing");
    }
};

/// A progress bar that runs for as long as it lives.
class RunningProgress : public qev::ui::ProgressBarInterface
{
public:
    void setProgress(double /*fraction*/, std::string const& /*text*/) override {}
    [[nodiscard]] bool isCancelled() const override { return false; }
};

/// A list of objects on the headless back end, over a schema with two sets for all products.
class ListControlFixture : public testing::Test
{
protected:
    using Control = fc::ui::PropertySetListControl;
    using Formatters = fc::ui::PropertySetControlFormatters<fc::ui::ListControlPropertyFormatterInterface>;

    static constexpr int listId = 101;
    static constexpr char path[] = "UI/FoundationClasses/Controls/ListControl/PropertySetListControl";

    ListControlFixture()
    {
        dialog = backend->createDialog({800, 600});
        backend->addPlaceholder(dialog, listId, placeholderPlacement);
    }

    static std::unique_ptr<ifc::def::SchemaPset> twoSets()
    {
        return toySchemaWith(
            SetBuilder("Pset_A")
                .single("Code", "IfcLabel")
                .single("Length", "IfcLengthMeasure")
                .single("IsExternal", "IfcBoolean")
                .single("Checked", "IfcLogical")
                .enumerated("Status", {"NEW", "OLD"})
                .list("Codes", "IfcLabel")
                .applicableTo("IfcProduct")
                .take(),
            SetBuilder("Pset_B").single("Count", "IfcInteger").applicableTo("IfcProduct").take());
    }

    std::shared_ptr<Control> make(int controlId = listId)
    {
        control = std::make_shared<Control>(schema.get(), model.data(), dialog, controlId, filter,
                                            Formatters{formatter, listFormatter}, contexts, nullptr);
        control->propertyChangedHandlers.iHandlerAdd(
            [this](std::string const& set, std::string const& property, std::set<std::size_t> const& rows) {
                handled.push_back(set + " " + property + " " + testing::PrintToString(rows));
            });
        return control;
    }
    void show(std::vector<std::shared_ptr<fc::FcBase>> const& objects)
    {
        if (!control)
            make();
        control->setObjects(model.data(), objects);
    }
    /// Shows walls "W1", "W2" and so on, each with a code "C1", "C2" and so on.
    void showWalls(std::size_t count)
    {
        for (std::size_t index = 1; index <= count; ++index) {
            auto const wall = model.wall("W" + std::to_string(index));
            model.addSet(wall, "Pset_A", {{"Code", label("C" + std::to_string(index))}});
            walls.push_back(wall);
        }
        show({walls.begin(), walls.end()});
    }

    qev::ui::HeadlessListControl& list() const
    {
        return *backend->getListControl(*control->getListControl());
    }
    qev::ui::ListControl& toolkitList() const { return *control->getListControl(); }
    std::size_t column(std::string const& name) const
    {
        for (std::size_t index = 0; index < control->getColumns().getColumnCount(); ++index) {
            if (control->getColumns().getColumnNames(index).propertyName == name)
                return index;
        }
        ADD_FAILURE() << "no column " << name;
        return 0;
    }
    std::vector<std::string> columnNames() const
    {
        std::vector<std::string> names;
        for (auto const& column : control->getColumns().getColumns())
            names.push_back(column->getNames().propertyName);
        return names;
    }
    std::string text(std::size_t row, std::string const& name) const
    {
        return list().getText(row, column(name));
    }
    bool type(std::size_t row, std::string const& name, std::string const& text)
    {
        return list().type(row, column(name), text);
    }
    qev::ui::ListControl::LabelEditEndParams
    end(std::string const& name, std::vector<std::size_t> const& rows, std::string const& text) const
    {
        qev::ui::ListControl::LabelEditEndParams params;
        params.accepted = true;
        params.editType = qev::ui::ListControl::EditBox;
        params.text = text;
        for (auto const row : rows)
            params.items.push_back({row, column(name)});
        return params;
    }
    static void expectControlReport(std::string const& text, std::string const& operation)
    {
        expectReport(text, "qev::fc::ui::PropertySetListControl::" + operation, path);
    }
    /// The stored value of a property of Pset_A.
    static FcValue stored(Model::Object const& object, std::string const& name)
    {
        auto const set = object->getPropertySetDefinitionNonConst<fc::core::kernel::FcPropertySet>("Pset_A");
        if (!set)
            return {};
        for (auto const& property : set->HasProperties.getProperties()) {
            if (property->Name.get() == name)
                return fc::entityCast<fc::resource::property::FcPropertySingleValue>(
                           std::shared_ptr<fc::FcBase>(property))
                    ->NominalValue.get();
        }
        return {};
    }

    qev::ui::WindowPlacement const placeholderPlacement{20, 30, 320, 430};
    std::shared_ptr<qev::ui::HeadlessBackend> backend = qev::ui::HeadlessBackend::install();
    std::shared_ptr<qev::ui::Dialog> dialog;
    Model model;
    std::unique_ptr<ifc::def::SchemaPset> schema = twoSets();
    std::shared_ptr<ToyFilter> filter = std::make_shared<ToyFilter>();
    std::shared_ptr<RowFormatter> formatter = std::make_shared<RowFormatter>();
    std::shared_ptr<ToyListFormatter> listFormatter = std::make_shared<ToyListFormatter>();
    std::vector<std::string> contexts;
    std::shared_ptr<Control> control;
    std::vector<std::string> handled;
    Model::Objects walls;
};

} // namespace qev::test
