#include "Core/Plugin/PluginAdministrator.h"
#include "Format/Ifc/Schema/SchemaLoader.h"
#include "FoundationClasses/AllEntities.h"
#include "FoundationClasses/Classification/ClassificationInterface.h"
#include "host/Ui/Qt/DarkPalette.h"
#include "host/Ui/Qt/GoldenPicture.h"
#include "host/Ui/Qt/QtUiTest.h"
#include "kit/ModelBuilder.h"
#include "UI/FoundationClasses/Controllers/AddClassificationPopupController.h"
#include "UI/FoundationClasses/Controllers/AddPropertyPopupController.h"
#include "UI/FoundationClasses/Controllers/AddPsetPopupController.h"
#include "UI/FoundationClasses/Controllers/EditBoundedValuePropertyPopupController.h"
#include "UI/FoundationClasses/Controllers/EditPropertyEnumerationPopupController.h"
#include "UI/FoundationClasses/Controllers/EditPropertyTablePopupController.h"
#include "Ui/Qt/ListControl/QtListControl.h"

#include <QApplication>
#include <QPalette>
#include <QPointer>
#include <QTest>

/// Each popup as the user sees it.
namespace qev::test {
namespace {

using namespace fc::ui;
using ui::ListControl;

std::filesystem::path const goldenFolder = QEV_GOLDEN_FOLDER;

class NamedSystem : public classification::ClassificationInterface
{
public:
    explicit NamedSystem(std::string key)
        : m_key(std::move(key))
    {
    }
    [[nodiscard]] std::string getKey() const override { return m_key; }
    [[nodiscard]] std::string getDescription() const override { return {}; }

private:
    std::string m_key;
};

class QtPopupPicturesTest : public QtUiTest
{
protected:
    QtPopupPicturesTest()
        : palette(QApplication::palette())
    {
        // A text cursor that blinks is there in one picture and gone in the next.
        QApplication::setCursorFlashTime(0);
        QApplication::setActiveWindow(backend->getWidget(dialog->getHandle()));
    }
    ~QtPopupPicturesTest() override { QApplication::setPalette(palette); }

    [[nodiscard]] std::unique_ptr<ListPopup::Control> makePopup()
    {
        auto popup = std::make_unique<ListPopup::Control>("Popup");
        auto const placement = popup->getControlPlacement(dialog, std::nullopt, ui::Position{10, 10});
        auto const window = ui::Window::create<ListControl>(dialog, popup->getStyleFlags() | 0x24U, 0,
                                                            placement.placement, 10);
        popup->setControl(window);
        popup->onControlCreated(placement.listSettings);
        shown = backend->getListControl(*window);
        return popup;
    }
    template <class Controller>
    void show(Controller& controller)
    {
        controller.attachToControl(makePopup());
        controller.show([](auto const&...) {});
        EXPECT_TRUE(QTest::qWaitForWindowActive(shown));
        finish();
    }
    void finish()
    {
        EXPECT_TRUE(QTest::qWaitFor([this] { return !shown->isWorking(); }, 10000));
        settle();
    }
    void compare(char const* file) { expectGoldenPicture(shown->grab().toImage(), goldenFolder / file); }
    void key(Qt::Key pressed)
    {
        QTest::keyClick(QApplication::focusWidget(), pressed);
        settle();
    }
    void type(QString const& text)
    {
        QTest::keyClicks(QApplication::focusWidget(), text);
        finish();
    }

    Model model;
    QPointer<ui::QtListControl> shown;
    QPalette palette;
};

TEST_F(QtPopupPicturesTest, AddPset)
{
    AddPsetPopupController controller({model.wall("W1")});
    show(controller);
    key(Qt::Key_Down);
    compare("AddPset.png");
}

TEST_F(QtPopupPicturesTest, AddPsetFiltered)
{
    AddPsetPopupController controller({model.wall("W1")});
    show(controller);
    type("wall");
    compare("AddPsetFiltered.png");
}

TEST_F(QtPopupPicturesTest, AddProperty)
{
    AddPropertyPopupController controller({model.addSet(model.wall("W1"), "Pset_ProjectCommon")});
    show(controller);
    compare("AddProperty.png");
}

TEST_F(QtPopupPicturesTest, AddPropertyInDark)
{
    QApplication::setPalette(makeDarkPalette());
    AddPropertyPopupController controller({model.addSet(model.wall("W1"), "Pset_ProjectCommon")});
    show(controller);
    compare("AddPropertyDark.png");
}

TEST_F(QtPopupPicturesTest, AddClassification)
{
    auto const plugins = std::make_shared<plugin::PluginAdministrator>();
    plugins->add(std::make_shared<NamedSystem>("Elements of buildings"));
    plugins->add(std::make_shared<NamedSystem>("Rooms"));
    plugin::AbstractPluginAdministrator::setCurrent(plugins);
    AddClassificationPopupController controller({});
    show(controller);
    compare("AddClassification.png");
    plugin::AbstractPluginAdministrator::setCurrent(nullptr);
}

TEST_F(QtPopupPicturesTest, EditEnumeration)
{
    auto const property = enumeratedValue("Status", {label("NEW"), label("EXISTING")}, {});
    model.addSet(model.wall("W1"), "Pset_WallCommon")->HasProperties.addProperty(property);
    EditPropertyEnumerationPopupController controller({property});
    show(controller);
    compare("EditEnumeration.png");
}

TEST_F(QtPopupPicturesTest, EditBounds)
{
    EditBoundedValuePropertyPopupController controller(
        {boundedValue("Width", length(0.25), length(2.5), FcValue())}, "");
    show(controller);
    compare("EditBounds.png");
}

TEST_F(QtPopupPicturesTest, EditBoundsRefused)
{
    EditBoundedValuePropertyPopupController controller(
        {boundedValue("Width", length(0.25), length(2.5), FcValue())}, "");
    show(controller);
    key(Qt::Key_Right);
    key(Qt::Key_F2);
    type("wide");
    key(Qt::Key_Return);
    compare("EditBoundsRefused.png");
}

TEST_F(QtPopupPicturesTest, EditTable)
{
    EditPropertyTablePopupController controller(
        model.data(), {tableValue("Curve", {{real(1), length(0.25)}, {real(2), length(0.5)}})}, "");
    show(controller);
    key(Qt::Key_Right);
    key(Qt::Key_F2);
    compare("EditTable.png");
}

TEST_F(QtPopupPicturesTest, EditEmptyTable)
{
    EditPropertyTablePopupController controller(model.data(), {tableValue("Curve", {})}, "");
    show(controller);
    compare("EditEmptyTable.png");
}

} // namespace
} // namespace qev::test
