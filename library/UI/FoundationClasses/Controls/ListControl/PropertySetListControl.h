#pragma once

#include "Core/Attribute/Colour.h"
#include "Core/Utilities/Events/EventHandlerContainer.h"
#include "Core/Utilities/Events/EventHandlerRAII.h"
#include "QevFoundationClassesUiExport.h"
#include "UI/FoundationClasses/Controls/ListControl/ListControlColumnsCache.h"
#include "UI/FoundationClasses/Controls/ListControl/PropertySetListControlInterface.h"
#include "UI/FoundationClasses/Controls/PropertySetControl.h"
#include "UI/FoundationClasses/Controls/PropertySetControlFormatters.h"
#include "Ui/Window/Controls/ListControl/ListControl.h"

#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qev::fc::core::kernel {
class FcObjectDefinition;
} // namespace qev::fc::core::kernel
namespace qev::ui {
class PopupMenu;
} // namespace qev::ui

namespace qev::fc::ui {

class FcPropertyBooleanType;
class FcPropertySingleValue;
class ListControlPropertyFormatterInterface;
struct PropertyOrQuantityValue;

/// Shows many objects at once: a row for each object, a column for each property that their sets have in
/// common, and columns of the host's own.
///
/// Nothing is kept for a row. One displayed property serves a whole column: before each question it is
/// pointed at the object of the row, so the work of showing grows with what is visible, not with the objects.
///
/// Without a filter all sets and properties are shown; without a property formatter no cell is disabled or
/// read-only. Made by `std::make_shared`.
class QEVFOUNDATIONCLASSESUI_EXPORT PropertySetListControl
    : public PropertySetListControlInterface,
      public PropertySetControl,
      public std::enable_shared_from_this<PropertySetListControl>
{
public:
    /// Makes the list in place of the child \p controlId of \p dialog. Without such a child the control has
    /// no window.
    PropertySetListControl(
        ifc::def::SchemaPset const* schemaPset, std::shared_ptr<Data> const& data,
        std::shared_ptr<qev::ui::Dialog> const& dialog, int controlId,
        std::shared_ptr<PropertySetDefinitionFilterInterface> const& filter,
        PropertySetControlFormatters<ListControlPropertyFormatterInterface> const& formatters,
        std::vector<std::string> const& contexts,
        std::shared_ptr<PropertyTypePropertySetAndPropertyNameQppOverrideInterface> qppOverride);
    ~PropertySetListControl() override;

    void reset() override;

    /// Replaces the objects of some rows. Sets and columns stay, so a new object has to have the same sets.
    /// A row that is not there is reported and passed over.
    void updateObjects(std::map<std::size_t, std::shared_ptr<core::kernel::FcObjectDefinition>> const& rows);
    /// Disables the list, or enables it again.
    void setReadOnlyState(bool readOnly);
    /// The background of cells that cannot be edited.
    [[nodiscard]] static attr::Colour const& readOnlyColour();

    [[nodiscard]] std::vector<std::pair<std::shared_ptr<FcBase>, std::size_t>>
    getSelectedObjectsAndIndices() const override;
    void notifyPropertySetPropertyChanged(std::string const& setName, std::string const& propertyName,
                                          std::set<std::size_t> const& objectIndices,
                                          PropertyChangedNotificationType type) override;

    /// The list; null when the dialog had no place for it.
    [[nodiscard]] std::shared_ptr<qev::ui::ListControl> const& getListControl() const
    {
        return m_listControl;
    }
    [[nodiscard]] ListControlColumnsCache const& getColumns() const { return m_columns; }

    /// A row was opened.
    EventHandlerContainer<void, void, FcBase&> itemActivatedHandlers;
    /// A row was asked about by the other gesture.
    EventHandlerContainer<void, void, FcBase&> itemSecondaryHandlers;
    /// The context menu of a cell is to be filled.
    EventHandlerContainer<void, void, FcBase&, ColumnPropertyNames const&, qev::ui::PopupMenu&>
        itemContextMenuHandlers;
    /// The entry of that index was chosen from it.
    EventHandlerContainer<void, void, FcBase&, ColumnPropertyNames const&, int>
        itemContextMenuCommandHandlers;

private:
    using ListControl = qev::ui::ListControl;
    using ItemInfo = ListControl::ItemInfo;
    using ItemHandlers = EventHandlerContainer<void, void, FcBase&>;

    /// What the toolkit was told of a column.
    struct ShownColumn
    {
        ColumnPropertyNames names;
        std::optional<int> checkBoxMode;
        bool isComboBox = false;

        friend bool operator==(ShownColumn const&, ShownColumn const&) = default;
    };

    void initSets() override;
    void refreshDisplay() override;
    [[nodiscard]] std::shared_ptr<qev::ui::Window> getWindow() override;
    [[nodiscard]] std::vector<std::shared_ptr<FcBase>> const& getObjectsBeingEdited() override;

    void createListControl(int controlId);
    void setupListControlEventHandlers();
    void setupEditingEventHandlers();
    /// Attaches \p operation to \p event, for as long as this control lives.
    template <class Event, class Operation>
    void attach(Event& event, Operation operation);

    void setObjectFromIndexOnFormatter(std::size_t row);
    void setObjectFromIndexOnListControlFormatter(std::size_t row);
    /// False, with a report, when there is no such row.
    bool setObjectBeingEdited(std::size_t row);

    void rebuildColumns();
    void addCustomColumns();
    void setDefaultHiddenColumns();
    [[nodiscard]] std::vector<ShownColumn> describeColumns() const;
    void initialiseColumnCheckAndComboBoxes();

    [[nodiscard]] std::string onGetItemText(ItemInfo const& item);
    /// Tells the formatter the object of the row. False for a cell that shows nothing at present.
    [[nodiscard]] bool turnToCell(ItemInfo const& item);
    /// The property of a cell, pointed at the object of the row; null when there is none, and for a value
    /// that is switched off.
    [[nodiscard]] PropertyInterface const* getSwitchedOnProperty(ItemInfo const& item);
    [[nodiscard]] std::string onGetItemEditText(ItemInfo const& item);
    [[nodiscard]] std::optional<double> onGetItemNumber(ItemInfo const& item);
    [[nodiscard]] bool isStringValueToBeBlankForGivenItem(ItemInfo const& item) const;
    [[nodiscard]] std::optional<attr::Colour> onGetItemBackgroundColour(ItemInfo const& item);
    [[nodiscard]] bool onIsItemReadOnly(ItemInfo const& item);
    [[nodiscard]] std::optional<qev::ui::CheckState> onGetCheckBoxState(ItemInfo const& item);
    void onCheckBoxClicked(ItemInfo const& item, qev::ui::CheckState state);
    [[nodiscard]] ListControl::LabelEditBeginResultParams
    onLabelEditBegin(ListControl::LabelEditBeginParams const& params);
    [[nodiscard]] bool isRowEditable(std::size_t row, ColumnPropertyNames const& names,
                                     PropertyInterface const& property);
    void onLabelEditEnd(ListControl::LabelEditEndParams const& params);
    [[nodiscard]] std::set<std::size_t> writeLabelEdit(ListControl::LabelEditEndParams const& params,
                                                       PropertyInterface& property);
    [[nodiscard]] bool onWouldTakeLabelEdit(ListControl::LabelEditEndParams const& params);
    [[nodiscard]] std::shared_ptr<void> onEditsBegin() const;
    [[nodiscard]] bool onDoesItemContainLocalValue(ItemInfo const& item);
    void onResetItemsToGlobalValues(std::vector<std::size_t> const& rows, std::size_t column);
    void resetToGlobalValues(std::vector<std::size_t> const& rows, ColumnPropertyNames const& names);
    void onItemEvent(ItemHandlers const& handlers, ItemInfo const& item) const;
    void onContextMenu(ItemInfo const& item, qev::ui::PopupMenu& menu) const;
    void onContextMenuCommand(ItemInfo const& item, int command) const;

    [[nodiscard]] FcPropertyBooleanType* requireBooleanProperty(std::size_t column,
                                                                std::string_view operation) const;
    /// The single value of a cell that shows one, as text or as a box; null for others.
    [[nodiscard]] FcPropertySingleValue const* getShownSingleValue(ItemInfo const& item);
    [[nodiscard]] bool isEnabled(ColumnPropertyNames const& names) const;
    [[nodiscard]] bool isReadOnly(ColumnPropertyNames const& names) const;

    std::shared_ptr<ListControl> m_listControl;
    std::vector<std::shared_ptr<FcBase>> m_objectsBeingEdited;
    std::shared_ptr<ListControlPropertyFormatterInterface> m_listFormatter;
    std::optional<std::size_t> m_formatterObjectIndex;
    std::optional<std::size_t> m_listFormatterObjectIndex;
    ListControlColumnsCache m_columns;
    std::vector<ShownColumn> m_shownColumns;
    std::vector<EventHandlerRAII> m_attachments;
};

} // namespace qev::fc::ui
