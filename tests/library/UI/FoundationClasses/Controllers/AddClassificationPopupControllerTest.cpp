#include "UI/FoundationClasses/Controllers/AddClassificationPopupController.h"

#include "Core/Plugin/PluginAdministrator.h"
#include "FoundationClasses/Classification/ClassificationInterface.h"
#include "PopupFixture.h"

namespace {

using namespace qev;
using namespace qev::test;
using classification::ClassificationInterface;
using fc::ui::AddClassificationPopupController;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto className = "AddClassificationPopupController";

class ToySystem : public ClassificationInterface
{
public:
    ToySystem(std::string key, std::string description)
        : m_key(std::move(key))
        , m_description(std::move(description))
    {
    }
    [[nodiscard]] std::string getKey() const override { return m_key; }
    [[nodiscard]] std::string getDescription() const override { return m_description; }

private:
    std::string m_key;
    std::string m_description;
};

class OtherPlugin : public plugin::BaseInterface
{
};

class AddClassificationPopupControllerTest : public PopupFixture
{
protected:
    AddClassificationPopupControllerTest() { plugin::AbstractPluginAdministrator::setCurrent(plugins); }
    ~AddClassificationPopupControllerTest() override
    {
        plugin::AbstractPluginAdministrator::setCurrent(nullptr);
    }

    std::shared_ptr<ToySystem> addSystem(std::string key, std::string description = {})
    {
        auto system = std::make_shared<ToySystem>(std::move(key), std::move(description));
        plugins->add(system);
        return system;
    }
    void show()
    {
        controller = std::make_unique<AddClassificationPopupController>(
            std::vector<std::shared_ptr<fc::core::kernel::FcObjectDefinition const>>{model.wall("W1")});
        controller->attachToControl(makePopup());
        controller->show([this](auto system) { chosen.push_back(std::move(system)); });
    }

    std::shared_ptr<plugin::PluginAdministrator> plugins = std::make_shared<plugin::PluginAdministrator>();
    std::unique_ptr<AddClassificationPopupController> controller;
    std::vector<std::shared_ptr<ClassificationInterface>> chosen;
};

TEST_F(AddClassificationPopupControllerTest, ListsTheKeysOfTheSystemsInTheOrderOfThePlugIns)
{
    addSystem("Rooms");
    plugins->add(std::make_shared<OtherPlugin>());
    addSystem("Elements", "Parts of buildings");
    show();
    EXPECT_EQ(list->dump(), "  \n"
                            "  Rooms\n"
                            "  Elements\n");
    EXPECT_EQ(list->getColumnCount(), 1u);
    EXPECT_TRUE(isOpen());
}

TEST_F(AddClassificationPopupControllerTest, TheSecondColumnWouldDescribeTheSystem)
{
    addSystem("Elements", "Parts of buildings");
    show();
    auto const control = window.lock();
    EXPECT_EQ(fireEvent(control->onGetItemText, Item{0, 1}), "Parts of buildings");
    EXPECT_EQ(fireEvent(control->onGetItemText, Item{0, 2}), "");
    EXPECT_EQ(fireEvent(control->onGetItemText, Item{1, 0}), "");
    EXPECT_EQ(fireEvent(control->onGetItemText, Item{}), "Elements");
}

TEST_F(AddClassificationPopupControllerTest, ARowThatIsOpenedHandsItsSystemOnAndThePopupStays)
{
    addSystem("Rooms");
    auto const elements = addSystem("Elements");
    show();
    EXPECT_TRUE(list->activate(1, 0));
    EXPECT_THAT(chosen, ElementsAre(elements));
    EXPECT_TRUE(isOpen());
    turnElsewhere();
    EXPECT_FALSE(isOpen());
}

TEST_F(AddClassificationPopupControllerTest, ARowPastTheEndAndAMissingCallbackDoNothing)
{
    addSystem("Rooms");
    show();
    fireEvent(window.lock()->onItemActivated, Item{1, 0});
    EXPECT_THAT(chosen, IsEmpty());
    controller->show(nullptr);
    EXPECT_TRUE(list->activate(0, 0));
    EXPECT_THAT(chosen, IsEmpty());
}

TEST_F(AddClassificationPopupControllerTest, TheCallbackMayEndThePopup)
{
    addSystem("Rooms");
    show();
    std::string seen;
    controller->show([&, large = std::string(100, 'x')](auto const& system) {
        controller.reset();
        seen = system->getKey() + large.substr(98);
    });
    EXPECT_TRUE(list->activate(0, 0));
    EXPECT_EQ(seen, "Roomsxx");
    EXPECT_TRUE(window.expired());
}

TEST_F(AddClassificationPopupControllerTest, WithoutSystemsTheListIsEmpty)
{
    show();
    EXPECT_EQ(list->getRowCount(), 0u);
    EXPECT_EQ(AddClassificationPopupController::getClassificationInterface(""), nullptr);
    EXPECT_EQ(AddClassificationPopupController::getClassificationInterface("Rooms"), nullptr);
}

TEST_F(AddClassificationPopupControllerTest, OfSystemsWithOneKeyTheFirstIsFoundAndAllAreListed)
{
    auto const first = addSystem("Rooms", "first");
    addSystem("Rooms", "second");
    show();
    EXPECT_EQ(list->getRowCount(), 2u);
    EXPECT_EQ(AddClassificationPopupController::getClassificationInterface("Rooms"), first);
}

TEST_F(AddClassificationPopupControllerTest, AKeyIsFoundByAllItsBytes)
{
    auto const odd = addSystem(std::string("Rooms\0x", 7));
    auto const plain = addSystem("Rooms");
    using std::string_view_literals::operator""sv;
    EXPECT_EQ(AddClassificationPopupController::getClassificationInterface("Rooms"), plain);
    EXPECT_EQ(AddClassificationPopupController::getClassificationInterface("Rooms\0x"sv), odd);
    EXPECT_EQ(AddClassificationPopupController::getClassificationInterface("rooms"), nullptr);
    EXPECT_EQ(AddClassificationPopupController::getClassificationInterface("Room"), nullptr);
}

TEST_F(AddClassificationPopupControllerTest, ReportsThatThereIsNoControl)
{
    AddClassificationPopupController unattached({});
    unattached.show(nullptr);
    expectPopupReport("Not attached to any control yet.", className, "show");
}

} // namespace
