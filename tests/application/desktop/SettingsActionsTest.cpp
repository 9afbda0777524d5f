#include "SettingsActions.h"

#include "InspectorWindow.h"
#include "ListPane.h"
#include "MessagesPanel.h"
#include "Ui/Qt/ListControl/QtListControl.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QMenuBar>
#include <QSettings>

namespace qev::test {
namespace {

using namespace application;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using unit::UnitPreferences;
using System = UnitPreferences::System;

/// The east wall has a set with a length in it.
constexpr std::string_view lengthOfTheEastWall =
    R"(#56=IFCPROPERTYSINGLEVALUE('Width',$,IFCLENGTHMEASURE(2.5),$);
#57=IFCPROPERTYSET('0000000000000000000057',$,'Company',$,(#56));
#58=IFCRELDEFINESBYPROPERTIES('0000000000000000000058',$,$,$,(#30),#57);
ENDSEC;
END-ISO)";

std::string buildingWithALength()
{
    std::string text(smallBuilding);
    std::string_view const end = "ENDSEC;\nEND-ISO";
    return text.replace(text.rfind(end), end.size(), lengthOfTheEastWall);
}

class SettingsActionsTest : public InspectorWindow
{
protected:
    SettingsActionsTest()
        : InspectorWindow(buildingWithALength())
    {
        change([](ProgramSettings& settings) { settings.display.language = "en"; });
    }
    ~SettingsActionsTest() override
    {
        ProgramSettings settings;
        settings.display.language = "en";
        window->getSettingsActions().apply(settings);
        QSettings().clear();
    }

    void change(std::function<void(ProgramSettings&)> const& edit)
    {
        auto settings = window->getSettingsActions().getSettings();
        edit(settings);
        window->getSettingsActions().change(settings);
    }
    void setUnits(System system)
    {
        change([system](ProgramSettings& settings) { settings.display.units = UnitPreferences(system); });
    }
    [[nodiscard]] QModelIndex width() const { return row({"Company", "Width"}); }
    [[nodiscard]] std::vector<std::string> menuTitles() const
    {
        std::vector<std::string> titles;
        for (auto const* const action : window->menuBar()->actions())
            titles.push_back(action->text().toStdString());
        return titles;
    }
    [[nodiscard]] QMenu* submenu(int position) const
    {
        auto* const menu = window->menuBar()->actions().back()->menu()->actions().at(position)->menu();
        emit menu->aboutToShow();
        return menu;
    }
};

TEST_F(SettingsActionsTest, UnitsChangeWhatIsShownAndNothingInTheModel)
{
    open();
    window->selectObject(eastWall);
    EXPECT_EQ(value(width()), "2.5 m");
    setUnits(System::Imperial);
    EXPECT_EQ(value(width()), "8' 2 7/16\"");
    EXPECT_FALSE(window->isWindowModified());

    startEditing(width());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    settle();
    EXPECT_FALSE(window->isWindowModified()) << "the text of the editor is the very value";
    setUnits(System::Metric);
    EXPECT_EQ(value(width()), "2.5 m");
}

TEST_F(SettingsActionsTest, InputHasTheUnitsAndTheSignOfTheSettings)
{
    open();
    window->selectObject(eastWall);
    change([](ProgramSettings& settings) {
        settings.display.units.setChoice(unit::QuantityId::Length,
                                         {107, 1, unit::QppSettings::Style::Decimal});
        settings.display.decimalSign = ',';
    });
    EXPECT_EQ(value(width()), "2500 mm");
    typeInto(width(), "1,234");
    EXPECT_EQ(value(width()), "1,2 mm");
    typeInto(width(), "8' 2 1/2\"");
    EXPECT_EQ(value(width()), "2501,9 mm");
    window->getFileActions().save();
    EXPECT_THAT(readFile(path), HasSubstr("IFCLENGTHMEASURE(2.5019)"));
}

TEST_F(SettingsActionsTest, TheListShowsTheSameObjectsInTheNewUnitsAndLanguage)
{
    open();
    window->selectObject(eastWall);
    window->showList(true);
    auto& pane = window->getList();
    pane.setScope(ListPane::Scope::Selection);
    auto const shows = [&pane](QString const& text) {
        auto const& cells = pane.getList()->getCells();
        for (int column = 0; column < cells.columnCount(); ++column)
            if (cells.index(0, column).data().toString() == text)
                return true;
        return false;
    };
    ASSERT_EQ(pane.getObjects().size(), 1u);
    EXPECT_TRUE(shows("2.5 m"));
    change([](ProgramSettings& settings) { settings.display.language = "de"; });
    ASSERT_EQ(pane.getObjects().size(), 1u);
    EXPECT_TRUE(shows("2,5 m"));
}

TEST_F(SettingsActionsTest, RefusedInputIsExplainedBesideTheRow)
{
    open();
    window->selectObject(eastWall);
    typeInto(width(), "wide");
    EXPECT_THAT(view().getMessage().toStdString(), HasSubstr("A number is expected, such as 2.5 for 2.5 m"));
    EXPECT_EQ(value(width()), "2.5 m");
    change([](ProgramSettings& settings) { settings.display.language = "de"; });
    typeInto(width(), "1.234");
    EXPECT_THAT(view().getMessage().toStdString(), HasSubstr("Schreiben Sie 1,234 oder 1234."));
    EXPECT_FALSE(window->isWindowModified());
}

TEST_F(SettingsActionsTest, LanguageReachesTheWindowAtOnce)
{
    EXPECT_THAT(menuTitles(), ElementsAre("&File", "&Edit", "&View", "&Settings"));
    open();
    window->selectObject(eastWall);
    change([](ProgramSettings& settings) { settings.display.language = "de"; });
    EXPECT_THAT(menuTitles(), ElementsAre("&Datei", "&Bearbeiten", "&Ansicht", "&Einstellungen"));
    EXPECT_EQ(window->getSearch().getBox().placeholderText(), "Nach Name, Klasse oder GlobalId suchen");
    EXPECT_EQ(value(row({"Wand allgemein", "Feuerwiderstandsklasse"})), "F30");
    EXPECT_EQ(value(width()), "2,5 m");
    EXPECT_EQ(window->getStructure().model()->headerData(1, Qt::Horizontal).toString(), "Klasse");
    EXPECT_THAT(window->getFileText().toStdString(), HasSubstr("Objekte"));
    change([](ProgramSettings& settings) { settings.display.language = "fr"; });
    EXPECT_THAT(menuTitles(), Contains("&Fichier"));
    window->getFileActions().close();
    EXPECT_THAT(window->getProperties().getHint().toStdString(), HasSubstr("Ouvrez un fichier IFC"));
}

TEST_F(SettingsActionsTest, SettingsAreKeptForTheNextRun)
{
    setUnits(System::Imperial);
    EXPECT_EQ(ProgramSettings::restore(), window->getSettingsActions().getSettings());
    EXPECT_EQ(ProgramSettings::restore().display.units.system(), System::Imperial);
}

TEST_F(SettingsActionsTest, SettingsForOneRunAreNotKept)
{
    auto settings = window->getSettingsActions().getSettings();
    settings.display.units = UnitPreferences(System::Imperial);
    window->getSettingsActions().apply(settings);
    EXPECT_EQ(ProgramSettings::restore().display.units.system(), System::Metric);
}

TEST_F(SettingsActionsTest, MenusShowAndChangeTheChoice)
{
    auto* const units = submenu(0);
    ASSERT_EQ(units->actions().size(), 2);
    EXPECT_TRUE(units->actions().front()->isChecked());
    units->actions().back()->trigger();
    EXPECT_EQ(window->getSettingsActions().getSettings().display.units.system(), System::Imperial);
    EXPECT_TRUE(submenu(0)->actions().back()->isChecked());

    auto* const languages = submenu(1);
    std::vector<std::string> names;
    for (auto const* const action : languages->actions())
        names.push_back(action->text().toStdString());
    EXPECT_THAT(names, ElementsAre("That of the system", "Deutsch", "English", "Français"));
    EXPECT_TRUE(languages->actions().at(2)->isChecked());
    languages->actions().at(1)->trigger();
    EXPECT_EQ(window->getSettingsActions().getSettings().display.language, "de");
}

TEST_F(SettingsActionsTest, TextsOfTheUserReachTheWindow)
{
    folder.write("Inspector.en.txt", "Menu_File\tModel\n");
    change([this](ProgramSettings& settings) { settings.display.texts = folder.path(); });
    EXPECT_THAT(menuTitles(), Contains("Model"));
    change([](ProgramSettings& settings) { settings.display.texts.clear(); });
    EXPECT_THAT(menuTitles(), Contains("&File"));
    EXPECT_THAT(asked, IsEmpty());
}

TEST_F(SettingsActionsTest, FolderThatIsNotUnderstoodIsTold)
{
    folder.write("Inspector.en.txt", "nothing\n");
    change([this](ProgramSettings& settings) { settings.display.texts = folder.path(); });
    EXPECT_THAT(asked, ElementsAre("Not everything in the folders was understood."));
}

TEST_F(SettingsActionsTest, ThemeChangesTheColoursAndGoesBackToThoseOfTheSystem)
{
    auto const before = QApplication::palette();
    change([](ProgramSettings& settings) { settings.theme = Theme::Dark; });
    EXPECT_LT(QApplication::palette().color(QPalette::Base).lightness(), 80);
    EXPECT_GT(QApplication::palette().color(QPalette::Text).lightness(), 180);
    change([](ProgramSettings& settings) { settings.theme = Theme::OfSystem; });
    EXPECT_EQ(QApplication::palette().color(QPalette::Base), before.color(QPalette::Base));
}

} // namespace
} // namespace qev::test
