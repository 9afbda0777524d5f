#include "CommandLineFixture.h"

#include <gmock/gmock.h>

#include <optional>

namespace {

using qev::test::CommandLineFixture;
using qev::test::CommandLineOutcome;
using qev::test::expectKeys;
using qev::test::Json;
using qev::test::readFile;
using testing::HasSubstr;
using testing::Not;

std::string const office = "office-IFC4.ifc";
std::string const southWall = "1PeBX2K9oB3JLtFcWr2Otg";
std::string const innerWall = "2evW67TYmV5qMNDwaS_u1W";

/// The row of that path anywhere in the tree.
std::optional<Json> findRow(Json const& rows, std::string const& path)
{
    for (Json const& row : rows) {
        if (row["path"] == path)
            return row;
        if (auto found = findRow(row["children"], path))
            return found;
    }
    return std::nullopt;
}

/// The object editor of a wall, on the command line.
class ClickCommand : public CommandLineFixture
{
protected:
    /// Clicks on the wall with every kind of property, in the sample of IFC4 or in another file.
    CommandLineOutcome click(std::string const& path, std::string const& button, std::string const& answers,
                             std::string const& file = sample(office)) const
    {
        return run("--classifications " + sample("sample-classes.csv") + " click " + file + " --object " +
                   southWall + " --path " + quoted(path) + " --button " + quoted(button) + ' ' + answers +
                   " --output " + target());
    }
    std::optional<Json> savedRow(std::string const& path) const
    {
        return findRow(json("buttons " + target() + " --object " + southWall)["rows"], path);
    }
    void expectNothingSaved() const { EXPECT_FALSE(std::filesystem::exists(folder.path() / "saved.ifc")); }
};

// --- buttons ----------------------------------------------------------------------------------------

TEST_F(ClickCommand, ButtonsPrintsTheRowsWithTheirButtons)
{
    Json const document = json("buttons " + sample(office) + " --object " + southWall);
    expectKeys(document, {"globalId", "class", "name", "rows"});
    EXPECT_EQ(document["class"], "IfcWallStandardCase");
    EXPECT_EQ(document["name"], "Wall G south");
    auto const name = findRow(document["rows"], "Name").value();
    expectKeys(name, {"path", "label", "group", "value", "checked", "editable", "buttons", "children"});
    EXPECT_EQ(name["value"], "Wall G south");
    EXPECT_EQ(name["editable"], true);
    EXPECT_EQ(name["buttons"], Json::array());
    EXPECT_EQ(findRow(document["rows"], "PropertySets").value()["buttons"], Json({""}));
    auto const bounds = findRow(document["rows"], "PropertySets.Sample_Bounded.Range").value();
    EXPECT_EQ(bounds["buttons"], Json({"delete", "edit"}));
    EXPECT_EQ(bounds["editable"], false);
    auto const truth = findRow(document["rows"], "PropertySets.Sample_SingleValues.Boolean true").value();
    EXPECT_EQ(truth["checked"], true);
}

TEST_F(ClickCommand, ButtonsPrintsTextForPeople)
{
    auto const result = run("buttons " + sample(office) + " --object " + southWall);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.output, testing::ContainsRegex("Colour +RED +\"delete\" \"edit\" +"
                                                      "PropertySets.Sample_Enumerated.Colour\n"));
    EXPECT_THAT(result.output, testing::ContainsRegex("Documents +\"\" +Documents\n"));
}

TEST_F(ClickCommand, TellsAnUnknownObjectAndAFileThatCannotBeRead)
{
    EXPECT_EQ(run("buttons " + sample(office) + " --object none").exitCode, 4);
    EXPECT_EQ(run("buttons " + sample("none.ifc") + " --object " + southWall).exitCode, 3);
    EXPECT_EQ(run("buttons " + sample(office)).exitCode, 2);
    EXPECT_EQ(click("Documents", "", "", sample("none.ifc")).exitCode, 3);
    auto const result =
        run("click " + sample(office) + " --object none --path Documents --button \"\" --output " + target());
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_THAT(result.errors, HasSubstr("there is no object with the GlobalId none"));
    expectNothingSaved();
}

// --- click ------------------------------------------------------------------------------------------

TEST_F(ClickCommand, TellsWhichButtonsARowHas)
{
    auto result = click("None", "", "");
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.errors, "qev-ifc: there is no row None\n");
    result = click("PropertySets.Sample_Bounded.Range", "add", "");
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.errors,
              "qev-ifc: the row PropertySets.Sample_Bounded.Range has no button \"add\"; it has "
              "\"delete\", \"edit\"\n");
    EXPECT_EQ(
        run("click " + sample(office) + " --object " + southWall + " --path Documents --output " + target())
            .exitCode,
        2);
    expectNothingSaved();
}

TEST_F(ClickCommand, AddsASetWithAllItsProperties)
{
    auto const result =
        click("PropertySets", "", "--choose Pset_ReinforcementBarPitchOfWall \"Add all properties\"");
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    auto const set = savedRow("PropertySets.Pset_ReinforcementBarPitchOfWall");
    ASSERT_TRUE(set);
    EXPECT_GT((*set)["children"].size(), 3u);
    EXPECT_EQ((*set)["buttons"], Json({"delete"}));
}

TEST_F(ClickCommand, AddsOnePropertyAndThenAnother)
{
    ASSERT_EQ(click("PropertySets", "", "--choose Pset_Condition --choose AssessmentDate").exitCode, 0);
    auto set = savedRow("PropertySets.Pset_Condition").value();
    EXPECT_EQ(set["children"].size(), 1u);
    EXPECT_EQ(set["buttons"], Json({"delete", "add"}));
    ASSERT_EQ(click("PropertySets.Pset_Condition", "add", "--choose 0", target()).exitCode, 0);
    EXPECT_EQ(savedRow("PropertySets.Pset_Condition").value()["children"].size(), 2u);
    ASSERT_EQ(click("PropertySets.Pset_Condition", "delete", "", target()).exitCode, 0);
    EXPECT_FALSE(savedRow("PropertySets.Pset_Condition"));
    EXPECT_TRUE(saved() == readFile(samplePath(office))) << "what was added is gone";
}

TEST_F(ClickCommand, TellsTheRowsOfAListThatAsksForAChoice)
{
    auto result = click("PropertySets", "", "");
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.errors, HasSubstr("choose one of its rows with --choose; the list has\n  0  Pset_"));
    result = click("PropertySets", "", "--choose Pset_None");
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_THAT(result.errors, HasSubstr("there is no row Pset_None; the list has\n  0  Pset_"));
    result = click("PropertySets", "", "--choose Pset_Condition");
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.errors, HasSubstr("AssessmentDate"));
    result = click("Documents", "", "--choose more");
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.errors, "qev-ifc: nothing asks for the choice of more\n");
    result = click("Documents", "", "--values more");
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.errors, "qev-ifc: nothing asks for --values\n");
    expectNothingSaved();
}

TEST_F(ClickCommand, ClassifiesAndAsksForTheCode)
{
    auto const wall = [this](std::string const& arguments) {
        return run("--classifications " + sample("sample-classes.csv") + " click " + sample(office) +
                   " --object " + innerWall + " --path Classifications --button \"\" --output " + target() +
                   ' ' + arguments);
    };
    auto result = wall("--choose \"Sample classes\" 342");
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(saved(), HasSubstr("'342','Partitions'"));
    EXPECT_THAT(saved(), HasSubstr("'340','Internal walls'"));
    std::filesystem::remove(folder.path() / "saved.ifc");
    result = wall("--choose \"Sample classes\"");
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.errors, "qev-ifc: a code of Sample classes is asked for: give it with --choose\n");
    result = wall("--choose \"Sample classes\" --choose 999");
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.errors, "qev-ifc: Sample classes has no code 999\n");
    result = wall("--choose Other 342");
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.errors, "qev-ifc: there is no row Other; the list has\n  0  Sample classes\n");
    expectNothingSaved();
}

TEST_F(ClickCommand, ReplacesTheCodeOfAnObjectThatHasOne)
{
    auto const result = click("Classifications", "", "--choose 0 300");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, "qev-ifc: The object has this classification already.\n");
    EXPECT_THAT(saved(), HasSubstr("'300','Building fabric'"));
}

TEST_F(ClickCommand, AddsADocument)
{
    EXPECT_EQ(click("Documents", "", "").exitCode, 0);
    EXPECT_TRUE(savedRow("Documents.1"));
}

TEST_F(ClickCommand, TicksTheValuesOfAnEnumeration)
{
    std::string const colours = "PropertySets.Sample_Enumerated.Colours";
    EXPECT_EQ(click(colours, "edit", "--choose YELLOW 0").exitCode, 0);
    EXPECT_THAT(saved(), HasSubstr("'Colours',$,(IFCLABEL('RED'),IFCLABEL('YELLOW')),"));
    EXPECT_EQ(click(colours, "edit", "--choose \"\"").exitCode, 0);
    EXPECT_THAT(saved(), HasSubstr("'Colours',$,$,"));
    auto const result = click(colours, "edit", "");
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.errors, HasSubstr("  0  [x] RED\n  1  [ ] YELLOW\n"));
    EXPECT_EQ(click(colours, "edit", "--choose PINK").exitCode, 4);
}

TEST_F(ClickCommand, TypesBounds)
{
    std::string const range = "PropertySets.Sample_Bounded.Range";
    auto result = click(range, "edit", "--values \"\" \"3 m\" -1");
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(saved(), HasSubstr("'Range',$,IFCLENGTHMEASURE(3.),$,$,IFCLENGTHMEASURE(-1.));"));
    result = click(range, "edit", "--values wide 3 \"\"");
    EXPECT_EQ(result.exitCode, 5);
    EXPECT_THAT(result.errors, HasSubstr("Lower bound: it does not take the value wide\n"));
    EXPECT_THAT(saved(), HasSubstr("'Range',$,IFCLENGTHMEASURE(3.),IFCLENGTHMEASURE(0.1),$,$);"));
    result = click(range, "edit", "--values 1 2");
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.errors, HasSubstr("expected 3 --values"));
    result = click(range, "edit", "");
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.errors, HasSubstr("give them with --values, lower bound, upper bound and set point"));
    result = click("PropertySets.Sample_Bounded.Nothing", "edit", "--values 1 2 3");
    EXPECT_EQ(result.exitCode, 5) << "its type is not known";
}

TEST_F(ClickCommand, TypesTheRowsOfATable)
{
    std::string const table = "PropertySets.Sample_Tables.Sound reduction";
    EXPECT_EQ(click(table, "edit", "--values 1 2 3 4").exitCode, 0);
    EXPECT_THAT(saved(), HasSubstr("(IFCREAL(1.),IFCREAL(3.)),"));
    EXPECT_EQ(savedRow(table).value()["children"].size(), 2u);
    EXPECT_EQ(click(table, "edit", "--values 1 2 3 4 5 6 7 8 9 10").exitCode, 0);
    EXPECT_EQ(savedRow(table).value()["children"].size(), 5u);
    EXPECT_EQ(click(table, "edit", "--values \"\"").exitCode, 0);
    EXPECT_EQ(savedRow(table).value()["children"].size(), 0u);
    auto result = click(table, "edit", "--values 1 2 3");
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.errors, HasSubstr("a table takes two --values for each row"));
    result = click(table, "edit", "--values 1 loud");
    EXPECT_EQ(result.exitCode, 5);
    EXPECT_THAT(result.errors, HasSubstr("row 0: it does not take the value loud"));
}

TEST_F(ClickCommand, PrintsWhereAReferenceLeadsAndKeepsTheBytes)
{
    auto const result = click("IsTypedBy", "", "");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.output, testing::MatchesRegex("leads to [0-9A-Za-z_$]{22}\n"));
    EXPECT_TRUE(saved() == readFile(samplePath(office)));
}

TEST_F(ClickCommand, TellsThatFurtherObjectsChange)
{
    EXPECT_THAT(click("PropertySets.Sample_Enumerated.Colour", "delete", "").errors,
                HasSubstr("the set is shared: 1 further objects change too"));
    EXPECT_THAT(click("PropertySets.Sample_Bounded.Range", "delete", "").errors, Not(HasSubstr("shared")));
}

} // namespace
