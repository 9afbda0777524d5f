#include "CommandLineFixture.h"

#include <algorithm>
#include <map>
#include <sstream>

namespace {

using qev::test::expectKeys;
using qev::test::Json;
using qev::test::readFile;
using Outcome = qev::test::CommandLineOutcome;
using CommandLine = qev::test::CommandLineFixture;

TEST_F(CommandLine, InfoTellsSchemaAndCounts)
{
    for (std::string const version : {"IFC2X3", "IFC4", "IFC4X3"}) {
        Json const info = json("info " + sample("office-" + version + ".ifc"));
        expectKeys(info, {"file", "schema", "originatingSystem", "timeStamp", "records", "classes",
                          "messages", "furtherMessages"});
        EXPECT_TRUE(info["schema"].get<std::string>().starts_with(version));
        EXPECT_EQ(info["classes"]["IfcProject"], 1);
        EXPECT_EQ(info["messages"], Json::array());
    }
    EXPECT_EQ(run("info " + sample("office-IFC4.ifc") + " --quick").exitCode, 0);
}

TEST_F(CommandLine, SaveGivesTheSameBytes)
{
    EXPECT_EQ(run("save " + sample("office-IFC4.ifc") + " --output " + target()).exitCode, 0);
    EXPECT_TRUE(saved() == readFile(samplePath("office-IFC4.ifc")));
}

TEST_F(CommandLine, ObjectsAreListedByClass)
{
    Json const all = json("objects " + sample("office-IFC4X3.ifc"))["objects"];
    Json const walls = json("objects " + sample("office-IFC4X3.ifc") + " --class ifcwall")["objects"];
    EXPECT_GT(all.size(), walls.size());
    ASSERT_FALSE(walls.empty());
    for (Json const& wall : walls) {
        expectKeys(wall, {"globalId", "class", "name", "container", "containerGlobalId"});
        EXPECT_TRUE(wall["class"].get<std::string>().starts_with("IfcWall"));
    }
    EXPECT_EQ(run("objects " + sample("office-IFC4X3.ifc")).exitCode, 0);
}

TEST_F(CommandLine, ObjectsTellWhatTheyAreIn)
{
    Json const document = json("objects " + sample("office-IFC4X3.ifc"));
    std::map<std::string, Json> objects;
    for (Json const& object : document["objects"])
        objects[object["globalId"]] = object;
    auto const containerOf = [&objects](std::string const& globalId) {
        return objects.at(globalId).at("container");
    };
    EXPECT_EQ(containerOf("0bGr2Pk8NKKSEWvK9Pd4cf"), "Ground floor") << "a wall of a storey";
    EXPECT_EQ(containerOf("3Z9R5geGl2i6Lq9PMG87FB"), "Stair") << "a flight";
    EXPECT_EQ(containerOf("3sRIKkLBswnft7$n9IBv2R"), "Duct 1") << "a port";
    EXPECT_EQ(containerOf("16_6_gQx_QoKf_HPK9eWxG"), nullptr) << "the project";
}

TEST_F(CommandLine, SetsTellWhereTheyAreFrom)
{
    Json const sets = json("sets " + sample("office-IFC4X3.ifc") + " --class IfcWall")["sets"];
    ASSERT_FALSE(sets.empty());
    for (Json const& set : sets)
        expectKeys(set, {"name", "kind", "source", "objectsHavingIt"});
    EXPECT_TRUE(std::is_sorted(sets.begin(), sets.end(),
                               [](Json const& a, Json const& b) { return a["name"] < b["name"]; }));
    EXPECT_EQ(run("sets " + sample("office-IFC4X3.ifc") + " --class IfcWall").exitCode, 0);
}

TEST_F(CommandLine, GridHasTheDocumentedFields)
{
    Json const grid = json("grid " + sample("office-IFC4X3.ifc") + " --class IfcWall");
    expectKeys(grid, {"objects", "groups"});
    ASSERT_FALSE(grid["groups"].empty());
    for (Json const& group : grid["groups"]) {
        expectKeys(group, {"kind", "name", "label", "rows"});
        for (Json const& row : group["rows"])
            expectKeys(row, {"name", "label", "value", "number", "unit", "editor", "choices", "checked",
                             "enabled", "editable", "description"});
    }
    EXPECT_EQ(run("grid " + sample("office-IFC4X3.ifc") + " --class IfcWall").exitCode, 0);
}

TEST_F(CommandLine, GridOfEachObjectIsOneDocumentALine)
{
    Outcome const result =
        run("grid " + sample("office-IFC4.ifc") + " --all --each --used-only --format json");
    EXPECT_EQ(result.exitCode, 0);
    std::istringstream lines(result.output);
    std::size_t count = 0;
    for (std::string line; std::getline(lines, line); ++count) {
        Json const document = Json::parse(line, nullptr, false);
        ASSERT_FALSE(document.is_discarded()) << line;
        EXPECT_EQ(document["objects"].size(), 1u);
    }
    EXPECT_EQ(count, json("objects " + sample("office-IFC4.ifc"))["objects"].size());
}

TEST_F(CommandLine, SetChangesTheFile)
{
    EXPECT_EQ(run("set " + sample("office-IFC4.ifc") +
                  " --class IfcWall --property Pset_WallCommon.FireRating --value F180 --output " + target())
                  .exitCode,
              0);
    Json const grid = json("grid " + target() + " --class IfcWall");
    std::size_t found = 0;
    for (Json const& group : grid["groups"]) {
        for (Json const& row : group["rows"]) {
            if (group["name"] == "Pset_WallCommon" && row["name"] == "FireRating") {
                ++found;
                EXPECT_EQ(row["value"], "F180");
            }
        }
    }
    EXPECT_EQ(found, 1u);
}

TEST_F(CommandLine, SetTellsHowManyOthersShareTheSet)
{
    auto const set = [this](std::string const& object, std::string const& property) {
        return run("set " + sample("office-IFC4X3.ifc") + " --object " + object + " --property " + property +
                   " --value F180 --output " + target());
    };
    std::string const wallEast = "0bGr2Pk8NKKSEWvK9Pd4cf";
    EXPECT_NE(set(wallEast, "Pset_WallCommon.FireRating").errors.find("shared: 6 further objects"),
              std::string::npos);
    std::string const wallSouth = "1PeBX2K9oB3JLtFcWr2Otg";
    EXPECT_EQ(set(wallSouth, "Pset_WallCommon.FireRating").errors, "");
}

Json quantitiesOf(std::string const& lines)
{
    Json quantities = Json::array();
    std::istringstream stream(lines);
    for (std::string line; std::getline(stream, line);) {
        Json const document = Json::parse(line);
        for (Json const& group : document["groups"]) {
            if (group["kind"] == "quantity set")
                quantities.push_back(group);
        }
    }
    return quantities;
}

TEST_F(CommandLine, SetChangesNoQuantityOfAnotherName)
{
    std::string const file = sample("office-IFC2X3.ifc");
    std::string const each = " --class IfcWall --each --format json";
    Json const before = quantitiesOf(run("grid " + file + each).output);
    EXPECT_FALSE(before.empty());
    EXPECT_EQ(run("set " + file +
                  " --class IfcWall --property Pset_WallCommon.FireRating --value F180 --output " + target())
                  .exitCode,
              0);
    EXPECT_EQ(quantitiesOf(run("grid " + target() + each).output), before);
}

/// A wall whose set holds a length of 2.5 m.
constexpr char wallWithALength[] = R"(ISO-10303-21;
HEADER;
FILE_DESCRIPTION((''),'2;1');
FILE_NAME('wall.ifc','2024-01-01T00:00:00',(''),(''),'','','');
FILE_SCHEMA(('IFC4X3_ADD2'));
ENDSEC;
DATA;
#1=IFCPROJECT('0000000000000000000001',$,'Project',$,$,$,$,$,#2);
#2=IFCUNITASSIGNMENT((#3));
#3=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);
#4=IFCWALL('0000000000000000000004',$,'Wall',$,$,$,$,$,$);
#5=IFCPROPERTYSINGLEVALUE('Width',$,IFCLENGTHMEASURE(2500.),$);
#6=IFCPROPERTYSET('0000000000000000000006',$,'Company',$,(#5));
#7=IFCRELDEFINESBYPROPERTIES('0000000000000000000007',$,$,$,(#4),#6);
ENDSEC;
END-ISO-10303-21;
)";

class CommandLineDisplay : public CommandLine
{
protected:
    CommandLineDisplay()
        : wall(quoted(folder.write("wall.ifc", wallWithALength).string()))
    {
    }

    /// The row of the length in the grid, shown with further options.
    [[nodiscard]] Json width(std::string const& options) const
    {
        Json const document = json(options + " grid " + wall + " --class IfcWall");
        for (Json const& group : document["groups"]) {
            if (group["name"] == "Company")
                return group["rows"].at(0);
        }
        ADD_FAILURE() << "there is no row";
        return {};
    }
    /// What the file says after typing \p value with further options.
    [[nodiscard]] std::string lengthAfter(std::string const& options, std::string const& value) const
    {
        EXPECT_EQ(run(options + " set " + wall + " --class IfcWall --property Company.Width --value " +
                      value + " --output " + target())
                      .exitCode,
                  0);
        auto const text = saved();
        auto const start = text.find("IFCLENGTHMEASURE(") + 17;
        return text.substr(start, text.find(')', start) - start);
    }

    std::string wall;
};

TEST_F(CommandLineDisplay, UnitsAreMetricUnlessOthersAreAskedFor)
{
    EXPECT_EQ(width("")["value"], "2.5 m");
    Json const imperial = width("--units imperial");
    EXPECT_EQ(imperial["value"], "8' 2 7/16\"");
    EXPECT_EQ(imperial["number"], 2.5);
}

TEST_F(CommandLineDisplay, InputHasTheUnitsThatAreShown)
{
    EXPECT_EQ(lengthAfter("", "3"), "3000.");
    EXPECT_EQ(lengthAfter("--units imperial", "10"), "3048.");
    EXPECT_EQ(lengthAfter("--units imperial", "\"3 m\""), "3000.");
}

TEST_F(CommandLineDisplay, LanguageChoosesTextsAndDecimalSign)
{
    EXPECT_EQ(width("--language de")["value"], "2,5 m");
    EXPECT_EQ(lengthAfter("--language de", "1,234"), "1234.");
    Outcome const refused =
        run("--language fr set " + wall + " --class IfcWall --property Company.Width --value wide --output " +
            target());
    EXPECT_EQ(refused.exitCode, 5);
    EXPECT_NE(refused.output.find("Un nombre est attendu"), std::string::npos) << refused.output;
}

TEST_F(CommandLineDisplay, TextsOfTheUserAreShown)
{
    folder.write("IfcProperties.en.txt", "Width\tOur width\nnot understood\n");
    std::string const options = "--texts " + quoted(folder.path().string());
    EXPECT_EQ(width(options)["label"], "Our width");
    Outcome const outcome = run(options + " grid " + wall + " --class IfcWall");
    EXPECT_NE(outcome.errors.find("IfcProperties.en.txt, line 2"), std::string::npos) << outcome.errors;
}

TEST_F(CommandLineDisplay, ChoicesThatDoNotExistAreBadUsage)
{
    EXPECT_EQ(run("--units cubits info " + wall).exitCode, 2);
    EXPECT_EQ(run("--language x1 info " + wall).exitCode, 2);
    EXPECT_EQ(run("--texts nowhere info " + wall).exitCode, 2);
}

TEST_F(CommandLine, BadUsageGivesTwo)
{
    EXPECT_EQ(run("").exitCode, 2);
    EXPECT_EQ(run("unknown").exitCode, 2);
    EXPECT_EQ(run("info").exitCode, 2);
    EXPECT_EQ(run("info " + sample("office-IFC4.ifc") + " --format html").exitCode, 2);
    EXPECT_EQ(run("save " + sample("office-IFC4.ifc")).exitCode, 2);
    EXPECT_EQ(run("grid " + sample("office-IFC4.ifc")).exitCode, 2);
    EXPECT_EQ(run("sets " + sample("office-IFC4.ifc")).exitCode, 2);
    EXPECT_EQ(run("set " + sample("office-IFC4.ifc") + " --class IfcWall").exitCode, 2);
    EXPECT_EQ(run("--help").exitCode, 0);
}

TEST_F(CommandLine, AnUnreadableFileGivesThree)
{
    auto const noIfc = quoted(folder.write("no.ifc", "something else").string());
    for (std::string const& file : {noIfc, quoted((folder.path() / "absent.ifc").string())}) {
        for (std::string const command : {"info", "objects", "grid --all", "sets --class IfcWall"}) {
            Outcome const result = run(command + " " + file);
            EXPECT_EQ(result.exitCode, 3) << command;
            EXPECT_FALSE(result.errors.empty());
        }
        EXPECT_EQ(run("save " + file + " --output " + target()).exitCode, 3);
        EXPECT_EQ(
            run("set " + file + " --class IfcWall --property A.B --value C --output " + target()).exitCode,
            3);
    }
}

TEST_F(CommandLine, NothingFoundGivesFour)
{
    std::string const file = sample("office-IFC4.ifc");
    EXPECT_EQ(run("objects " + file + " --class IfcNothing").exitCode, 4);
    EXPECT_EQ(run("grid " + file + " --object 0000000000000000000000").exitCode, 4);
    EXPECT_EQ(run("sets " + file + " --class IfcTendon").exitCode, 4);
    EXPECT_EQ(
        run("set " + file + " --class IfcWall --property No.Such --value 1 --output " + target()).exitCode,
        4);
}

TEST_F(CommandLine, ARefusedEditGivesFive)
{
    Outcome const result =
        run("set " + sample("office-IFC4.ifc") +
            " --class IfcWall --property Pset_WallCommon.ThermalTransmittance --value \"not a number\"" +
            " --output " + target());
    EXPECT_EQ(result.exitCode, 5) << result.errors;
    EXPECT_FALSE(result.output.empty()) << "a line for each object that refused";
    EXPECT_TRUE(saved() == readFile(samplePath("office-IFC4.ifc")));
}

TEST_F(CommandLine, AnOutputThatCannotBeWrittenGivesSix)
{
    std::string const nowhere = quoted((folder.path() / "absent" / "saved.ifc").string());
    EXPECT_EQ(run("save " + sample("office-IFC4.ifc") + " --output " + nowhere).exitCode, 6);
}

TEST_F(CommandLine, OutputThatFindsNoRoomIsTold)
{
    if (!std::filesystem::exists("/dev/full"))
        GTEST_SKIP() << "the system has no file that is always full";
    auto const errors = folder.path() / "errors.txt";
    std::string const command = quoted(QEV_IFC_PROGRAM) + " objects " + sample("office-IFC4.ifc") +
                                " >/dev/full 2>" + quoted(errors.string());
    EXPECT_EQ(std::system(command.c_str()) >> 8, 6);
    EXPECT_EQ(readFile(errors), "qev-ifc: the output could not be written\n");

    std::string const refused = quoted(QEV_IFC_PROGRAM) + " set " + sample("office-IFC4.ifc") +
                                " --class IfcWall --property Pset_WallCommon.ThermalTransmittance" +
                                " --value \"not a number\" --output " + target() + " >/dev/full 2>" +
                                quoted(errors.string());
    EXPECT_EQ(std::system(refused.c_str()) >> 8, 5) << "what the command has to say comes first";
}

TEST_F(CommandLine, ListsGoOutAsTablesAndComeBack)
{
    auto const file = sample("office-IFC4X3.ifc");
    Outcome const listed =
        run("list " + file + " --class IfcWall --columns Pset_WallCommon.FireRating --format csv");
    EXPECT_EQ(listed.exitCode, 0) << listed.errors;
    EXPECT_TRUE(listed.output.starts_with("GlobalId,Name,Pset_WallCommon.FireRating\n")) << listed.output;

    auto const unchanged = folder.write("unchanged.csv", listed.output);
    Outcome result = run("import " + file + " " + quoted(unchanged.string()) + " --output " + target());
    EXPECT_EQ(result.exitCode, 0) << result.output << result.errors;
    EXPECT_EQ(result.output, "0 values changed\n");
    EXPECT_TRUE(saved() == readFile(samplePath("office-IFC4X3.ifc")));

    auto const firstLine = listed.output.find('\n') + 1;
    auto const globalId = listed.output.substr(firstLine, 22);
    auto const changed =
        folder.write("changed.csv", "GlobalId;Pset_WallCommon.FireRating;Pset_WallCommon.Status\n" +
                                        globalId + ";F77;BROKEN\n");
    result = run("import " + file + " " + quoted(changed.string()) + " --output " + target());
    EXPECT_EQ(result.exitCode, 5);
    EXPECT_EQ(result.output, "refused: line 2, Pset_WallCommon.Status, " + globalId +
                                 ": 'BROKEN': it is none of the values to choose from\n1 value changed\n");
    Json const list =
        json("list " + target() + " --object " + globalId + " --columns Pset_WallCommon.FireRating");
    expectKeys(list, {"columns", "objects"});
    expectKeys(list["columns"][0], {"name", "label", "unit"});
    expectKeys(list["objects"][0], {"globalId", "name", "values"});
    EXPECT_EQ(list["objects"][0]["globalId"], globalId);
    EXPECT_EQ(list["objects"][0]["values"]["Pset_WallCommon.FireRating"], "F77");
}

TEST_F(CommandLine, ListsAndTablesThatCannotBeAreTold)
{
    auto const file = sample("office-IFC4X3.ifc");
    EXPECT_EQ(run("list " + file + " --class IfcWall --columns None.Such").exitCode, 4);
    EXPECT_EQ(run("list " + file + " --class IfcBoiler").exitCode, 4);
    EXPECT_EQ(run("list " + file).exitCode, 2);
    EXPECT_EQ(run("import " + file + " none.csv --output " + target()).exitCode, 3);
    auto const table = folder.write("table.csv", "Name,Pset_WallCommon.FireRating\nx,y\n");
    Outcome const result = run("import " + file + " " + quoted(table.string()) + " --output " + target());
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_NE(result.errors.find("has no column GlobalId"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "saved.ifc"));
}

} // namespace
