#include "ListControlFixture.h"

#include "Ui/Window/Details/WindowInterfaceFactory.h"

namespace {

using namespace qev::fc;
using namespace qev::fc::ui;
using namespace qev::test;
using qev::ui::ListControl;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

/// Keeps what windows are made from, and hands all else on to the headless back end.
class RecordingBackend final : public qev::ui::WindowBackend
{
public:
    explicit RecordingBackend(std::shared_ptr<qev::ui::HeadlessBackend> backend)
        : m_backend(std::move(backend))
    {
    }

    std::vector<qev::ui::WindowCreation> creations;

    qev::ui::WindowHandle createWindow(qev::ui::WindowCreation const& creation) override
    {
        creations.push_back(creation);
        return m_backend->createWindow(creation);
    }
    std::unique_ptr<qev::ui::WindowInterface> createInterface(qev::ui::WindowHandle const& handle) override
    {
        return m_backend->createInterface(handle);
    }
    [[nodiscard]] std::optional<qev::ui::Position> getCursorPosition() const override { return std::nullopt; }
    [[nodiscard]] qev::ui::WindowHandle getFocusedWindow() const override
    {
        return m_backend->getFocusedWindow();
    }
    [[nodiscard]] bool isDescendant(qev::ui::WindowHandle const& window,
                                    qev::ui::WindowHandle const& ancestor) const override
    {
        return m_backend->isDescendant(window, ancestor);
    }
    void showMessage(qev::ui::MessageBox::Message message) override { m_backend->showMessage(message); }
    std::optional<std::size_t> showPopupMenu(qev::ui::PopupMenu const& menu,
                                             qev::ui::Position const& position) override
    {
        return m_backend->showPopupMenu(menu, position);
    }
    [[nodiscard]] std::unique_ptr<qev::ui::ProgressBarInterface>
    createProgressBar(std::string const& title) override
    {
        return m_backend->createProgressBar(title);
    }

private:
    std::shared_ptr<qev::ui::HeadlessBackend> m_backend;
};

class PropertySetListControlColumnsTest : public ListControlFixture
{
};

// --- The window ---------------------------------------------------------------------------------

TEST_F(PropertySetListControlColumnsTest, TheListReplacesThePlaceholderOfItsId)
{
    make();

    auto const window = control->getListControl();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->getDialogControlId(), listId);
    EXPECT_EQ(window->getPlacement(), placeholderPlacement);
    EXPECT_EQ(dialog->getChildWindow(listId), window);
    EXPECT_TRUE(window->isUsingReportStyle());
    EXPECT_EQ(listFormatter->list, window);
}

TEST_F(PropertySetListControlColumnsTest, TheListIsMadeInReportStyleBelowTheDialog)
{
    auto const recording = std::make_shared<RecordingBackend>(backend);
    qev::ui::details::WindowInterfaceFactory::setBackend(recording);
    make();
    qev::ui::details::WindowInterfaceFactory::setBackend(backend);

    ASSERT_EQ(recording->creations.size(), 1u);
    auto const& creation = recording->creations.front();
    EXPECT_EQ(creation.className, "ListControl");
    EXPECT_EQ(creation.owner, dialog->getHandle());
    EXPECT_EQ(creation.style, 2u);
    EXPECT_EQ(creation.extendedStyle, 5u);
    EXPECT_EQ(creation.placement, placeholderPlacement);
    EXPECT_EQ(creation.controlId, listId);
}

TEST_F(PropertySetListControlColumnsTest, TheListFormatterGetsTheListBeforeItsEventsAreAttached)
{
    class Watcher : public ToyListFormatter
    {
    public:
        std::optional<std::size_t> handlerCount;
        void setListControl(std::shared_ptr<ListControl> const& listControl) override
        {
            handlerCount = listControl->onGetColumnHeaderText.handlerCount();
        }
    };
    auto const watcher = std::make_shared<Watcher>();
    listFormatter = watcher;
    make();
    EXPECT_EQ(watcher->handlerCount, 0u);
}

TEST_F(PropertySetListControlColumnsTest, WithoutAPlaceholderThereIsNoWindow)
{
    make(listId + 1);
    EXPECT_EQ(control->getListControl(), nullptr);
    EXPECT_THAT(listFormatter->log, IsEmpty());

    showWalls(2);
    EXPECT_THAT(columnNames(), Contains("Code"));
    control->show();
    control->hide();
    control->setReadOnlyState(true);
    control->updateObjects({{0, walls[1]}});
    EXPECT_THAT(control->getSelectedObjectsAndIndices(), IsEmpty());
    expectControlReport("Assertion failed: Expect to have list control", "getSelectedObjectsAndIndices");
}

TEST_F(PropertySetListControlColumnsTest, WithoutADialogThereIsNoWindow)
{
    dialog.reset();
    make();
    EXPECT_EQ(control->getListControl(), nullptr);
}

TEST_F(PropertySetListControlColumnsTest, ReadOnlyDisablesTheList)
{
    showWalls(1);
    control->setReadOnlyState(true);
    EXPECT_FALSE(control->getListControl()->isEnabled());
    control->setReadOnlyState(false);
    EXPECT_TRUE(control->getListControl()->isEnabled());
}

TEST_F(PropertySetListControlColumnsTest, TheListCanBeHiddenAndShown)
{
    make();
    control->hide();
    EXPECT_FALSE(control->getListControl()->isVisible());
    control->show();
    EXPECT_TRUE(control->getListControl()->isVisible());
}

TEST_F(PropertySetListControlColumnsTest, TheWindowOutlivesTheControlWithoutHandlers)
{
    showWalls(1);
    auto const window = control->getListControl();
    control.reset();
    EXPECT_EQ(window->onGetItemText.handlerCount(), 0u);
    EXPECT_EQ(window->onLabelEditEnd.handlerCount(), 0u);
}

TEST_F(PropertySetListControlColumnsTest, EachEventOfTheListHasAHandler)
{
    make();
    auto const& window = toolkitList();
    EXPECT_EQ(window.onGetColumnHeaderText.handlerCount(), 1u);
    EXPECT_EQ(window.onGetItemText.handlerCount(), 1u);
    EXPECT_EQ(window.onItemActivated.handlerCount(), 1u);
    EXPECT_EQ(window.onItemSecondaryEvent.handlerCount(), 1u);
    EXPECT_EQ(window.onGetItemBackgroundColour.handlerCount(), 1u);
    EXPECT_EQ(window.onCheckBoxClicked.handlerCount(), 1u);
    EXPECT_EQ(window.onGetCheckState.handlerCount(), 1u);
    EXPECT_EQ(window.onLabelEditBegin.handlerCount(), 1u);
    EXPECT_EQ(window.onLabelEditEnd.handlerCount(), 1u);
    EXPECT_EQ(window.onQueryColumn.handlerCount(), 1u);
    EXPECT_EQ(window.onDoesItemContainLocalValue.handlerCount(), 1u);
    EXPECT_EQ(window.onResetItemsToGlobalValues.handlerCount(), 1u);
    EXPECT_EQ(window.onContextMenu.handlerCount(), 1u);
    EXPECT_EQ(window.onContextMenuCommand.handlerCount(), 1u);
    EXPECT_TRUE(qev::fireEvent(toolkitList().onQueryColumn, 7));
}

// --- Columns ------------------------------------------------------------------------------------

TEST_F(PropertySetListControlColumnsTest, EachPropertyOfTheCommonSetsIsAColumn)
{
    showWalls(2);
    EXPECT_THAT(columnNames(),
                ElementsAre("Code", "Length", "IsExternal", "Checked", "Status", "Codes", "Count"));
    EXPECT_EQ(list().getHeaderText(0), "Pset_A.Code");
    EXPECT_EQ(list().getRowCount(), 2u);
    EXPECT_EQ(list().getColumnCount(), 7u);
    EXPECT_THAT(listFormatter->log, ElementsAre("setListControl", "counts 2 7"));
}

TEST_F(PropertySetListControlColumnsTest, WithoutObjectsThereAreNoRowsAndNoPropertyColumns)
{
    listFormatter->customColumns = {{"id", "Id", std::nullopt}};
    showWalls(2);
    show({});
    EXPECT_EQ(list().getRowCount(), 0u);
    EXPECT_THAT(columnNames(), ElementsAre("id"));
}

TEST_F(PropertySetListControlColumnsTest, TheFilterLeavesOutSetsAndProperties)
{
    filter->excludedSets = {"Pset_B"};
    filter->excludedProperties = {"Length", "Checked", "Codes"};
    showWalls(1);
    EXPECT_THAT(columnNames(), ElementsAre("Code", "IsExternal", "Status"));
}

TEST_F(PropertySetListControlColumnsTest, CustomColumnsWithoutAPlaceComeInReverseAtTheEnd)
{
    filter->excludedProperties = {"Length", "Checked", "Codes", "Status", "Count"};
    listFormatter->customColumns = {{"A", "A", std::nullopt},
                                    {"B", "B", std::nullopt},
                                    {"C", "C", ColumnPropertyNames{"Pset_A", "IsExternal"}},
                                    {"D", "D", ColumnPropertyNames{"Pset_A", "IsExternal"}},
                                    {"E", "E", ColumnPropertyNames{"Pset_A", "Length"}}};
    showWalls(1);
    EXPECT_THAT(columnNames(), ElementsAre("Code", "C", "D", "IsExternal", "E", "B", "A"));
}

TEST_F(PropertySetListControlColumnsTest, ColumnsAreHiddenByDefault)
{
    listFormatter->hiddenProperties = {"Length", "Count"};
    showWalls(1);
    EXPECT_TRUE(list().isColumnHidden(column("Length")));
    EXPECT_TRUE(list().isColumnHidden(column("Count")));
    EXPECT_FALSE(list().isColumnHidden(column("Code")));
}

TEST_F(PropertySetListControlColumnsTest, CustomColumnsCanBeHiddenByDefaultToo)
{
    listFormatter->customColumns = {{"id", "Id", std::nullopt}, {"name", "Name", std::nullopt}};
    listFormatter->hiddenProperties = {"id"};
    showWalls(1);
    EXPECT_TRUE(list().isColumnHidden(column("id")));
    EXPECT_FALSE(list().isColumnHidden(column("name")));
}

TEST_F(PropertySetListControlColumnsTest, AHeaderThatIsNotThereIsReportedAndEmpty)
{
    showWalls(1);
    EXPECT_EQ(qev::fireEvent(toolkitList().onGetColumnHeaderText, 99), "");
    EXPECT_THAT(takeReportTexts(), ElementsAre("Column index out of range."));
}

TEST_F(PropertySetListControlColumnsTest, BooleansHaveBoxesAndEnumerationsDropLists)
{
    formatter->related = {{"IsExternal", "Code"}};
    showWalls(1);
    EXPECT_EQ(list().getCheckBoxMode(column("Code")), ListControl::BoxWithValue);
    EXPECT_EQ(list().getCheckBoxMode(column("Length")), std::nullopt);
    EXPECT_TRUE(list().isComboBoxColumn(column("Status")));
    EXPECT_FALSE(list().isComboBoxColumn(column("Length")));

    formatter->related = {};
    show({walls.begin(), walls.end()});
    EXPECT_EQ(list().getCheckBoxMode(column("IsExternal")), ListControl::BoxAlone);
    EXPECT_EQ(list().getCheckBoxMode(column("Code")), std::nullopt);
}

TEST_F(PropertySetListControlColumnsTest, OtherColumnsTakeNothingOverFromThoseBefore)
{
    listFormatter->hiddenProperties = {"Code"};
    showWalls(1);
    filter->excludedSets = {"Pset_A"};
    show({walls.begin(), walls.end()});
    EXPECT_THAT(columnNames(), ElementsAre("Count"));
    EXPECT_FALSE(list().isColumnHidden(0));
}

TEST_F(PropertySetListControlColumnsTest, TheSameColumnsStayAsTheUserArrangedThem)
{
    listFormatter->hiddenProperties = {"Code"};
    showWalls(1);
    list().hideColumn(column("Code"), false);
    list().hideColumn(column("Count"), true);
    show({walls.begin(), walls.end()});
    EXPECT_FALSE(list().isColumnHidden(column("Code")));
    EXPECT_TRUE(list().isColumnHidden(column("Count")));
}

TEST_F(PropertySetListControlColumnsTest, TheListIsFilledWhileItDoesNotPaint)
{
    make();
    bool wasSuspended = false;
    class Watcher : public ToyListFormatter
    {
    public:
        std::function<void()> onCounts;
        void onItemAndColumnCountUpdated() override { onCounts(); }
    };
    auto const watcher = std::make_shared<Watcher>();
    listFormatter = watcher;
    backend->addPlaceholder(dialog, listId + 1, placeholderPlacement);
    make(listId + 1);
    watcher->onCounts = [&] { wasSuspended = list().isRedrawSuspended(); };
    showWalls(1);
    EXPECT_TRUE(wasSuspended);
    EXPECT_FALSE(list().isRedrawSuspended());
}

TEST_F(PropertySetListControlColumnsTest, WithoutAListFormatterThereAreNoCustomColumns)
{
    listFormatter = nullptr;
    showWalls(1);
    EXPECT_EQ(list().getColumnCount(), 7u);
    EXPECT_FALSE(list().containsLocalValue(0, 0));
    list().select({0});
    list().resetToGlobalValues(0);
    EXPECT_THAT(handled, IsEmpty());
}

TEST_F(PropertySetListControlColumnsTest, ResetTakesThePropertiesFromTheColumns)
{
    showWalls(1);
    auto const count = control->getColumns().getColumnCount();
    control->reset();
    EXPECT_EQ(control->getColumns().getColumnCount(), count);
    EXPECT_EQ(control->getColumns().getProperty(0), nullptr);
    EXPECT_THAT(control->getDefinitions(), IsEmpty());
}

TEST_F(PropertySetListControlColumnsTest, ResetLetsGoOfTheObjects)
{
    formatter = nullptr;
    listFormatter = nullptr;
    auto const wall = model.wall("W1");
    model.addSet(wall, "Pset_A", {{"Code", label("C1")}});
    show({wall});
    EXPECT_EQ(text(0, "Code"), "C1");
    filter->objects.clear();
    auto const holders = wall.use_count();
    control->reset();
    // Neither the list of objects nor that of the row at hand keeps the wall.
    EXPECT_EQ(wall.use_count(), holders - 2);
}

TEST_F(PropertySetListControlColumnsTest, AColumnThatLosesItsPropertyWhileTheListIsFilledIsReported)
{
    class Resetting : public ToyListFormatter
    {
    public:
        std::function<void()> onAsked;
        [[nodiscard]] bool isPropertyToBeHiddenByDefault(std::string const& /*setName*/,
                                                         std::string const& /*name*/) const override
        {
            onAsked();
            return false;
        }
    };
    auto const resetting = std::make_shared<Resetting>();
    resetting->onAsked = [this] { control->reset(); };
    listFormatter = resetting;
    filter->excludedSets = {"Pset_A"};
    showWalls(1);
    expectControlReport("Property is missing.",
                        "initialiseColumnCheckAndComboBoxes::<lambda_1>::operator ()");
}

TEST_F(PropertySetListControlColumnsTest, BetweenResetAndRefreshCellsAreEmpty)
{
    showWalls(1);
    control->reset();
    // The rows are gone too, which the question tells.
    EXPECT_EQ(text(0, "Code"), "");
    EXPECT_THAT(takeReportTexts(), ElementsAre("Index out of range.", "Invalid item index."));
}

} // namespace
