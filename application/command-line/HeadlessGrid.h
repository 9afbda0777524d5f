#pragma once

#include "FoundationClasses/Data.h"
#include "UI/FoundationClasses/Controls/PropertySetDefinitionFilterInterface.h"
#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertySetGridControl.h"
#include "Ui/Headless/HeadlessBackend.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace qev::application {

/// One group of a property grid with its rows.
struct GridGroup
{
    /// "instance attributes", "type attributes", "property set" or "quantity set".
    std::string kind;
    /// The set's name, or the class whose attributes these are.
    std::string name;
    /// The name as the grid shows it.
    std::string label;

    struct Row
    {
        /// The property's name in the schema or the model.
        std::string name;
        /// The name as the grid shows it.
        std::string label;
        std::shared_ptr<ui::PropertyGridRow> row;
        ui::PropertyGridRowRecord record;
    };
    std::vector<Row> rows;
};

/// A property grid of objects on the headless back end, read and driven as by a user.
class HeadlessGrid
{
public:
    /// Which rows are wanted; all without one.
    using RowFilter = std::function<bool(std::string const& setName, std::string const& propertyName)>;

    HeadlessGrid(std::shared_ptr<fc::Data> data, bool showUnused, RowFilter filter = {});
    ~HeadlessGrid();

    /// Shows these objects; groups of former ones end here.
    void show(std::vector<std::shared_ptr<fc::FcBase>> const& objects);
    [[nodiscard]] std::vector<GridGroup> groups() const;
    /// The sets that are shown, in the order of the control.
    [[nodiscard]] std::vector<std::unique_ptr<fc::ui::PropertySetDefinition>> const& definitions() const;

    /// Types \p text into a row: into its editor, its list or its check box, whichever it has.
    /// \returns false when the row refuses it; `message` says why.
    bool type(GridGroup::Row const& row, std::string const& text);
    [[nodiscard]] std::string const& message() const { return m_message; }

private:
    class Recorder;

    [[nodiscard]] ui::HeadlessPropertyGrid& grid() const;
    bool setCheckBox(GridGroup::Row const& row, std::string const& text);
    [[nodiscard]] GridGroup groupOf(ui::PropertyGridRow const& top, std::size_t& attributeGroup) const;

    std::shared_ptr<fc::Data> m_data;
    std::shared_ptr<ui::HeadlessBackend> m_backend;
    std::shared_ptr<ui::Dialog> m_dialog;
    std::shared_ptr<Recorder> m_recorder;
    std::shared_ptr<fc::ui::PropertySetGridControl> m_control;
    std::string m_message;
};

} // namespace qev::application
