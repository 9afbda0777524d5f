#include "CommandLineFixture.h"

#include <optional>
#include <sstream>

namespace {

using qev::test::expectKeys;
using qev::test::Json;
using qev::test::readFile;
using EntityCommand = qev::test::CommandLineFixture;

std::string const office = "office-IFC4.ifc";
std::string const innerWall = "2evW67TYmV5qMNDwaS_u1W";

/// The node of that path anywhere in the tree.
std::optional<Json> findNode(Json const& nodes, std::string const& path)
{
    for (Json const& node : nodes) {
        if (node["path"] == path)
            return node;
        if (auto found = findNode(node["children"], path))
            return found;
    }
    return std::nullopt;
}

TEST_F(EntityCommand, PrintsTheTreeOfAnObject)
{
    Json const document = json("entity " + sample(office) + " --object " + innerWall);

    expectKeys(document, {"id", "class", "globalId", "properties"});
    EXPECT_EQ(document["id"], 741);
    EXPECT_EQ(document["class"], "IfcWall");
    EXPECT_EQ(document["globalId"], innerWall);
    Json const& group = document["properties"][0];
    expectKeys(group, {"path", "localId", "label", "description", "group", "reference", "children"});
    EXPECT_EQ(group["localId"], "FcBaseGroupProperty");
    auto const name = findNode(document["properties"], "Name");
    ASSERT_TRUE(name);
    expectKeys(*name, {"path", "localId", "label", "description", "group", "reference", "kind", "value",
                       "text", "unit", "readOnly", "emptyAllowed", "choices", "children"});
    EXPECT_EQ((*name)["kind"], "optional text");
    EXPECT_EQ((*name)["value"], "Wall G inner");
    EXPECT_EQ((*name)["text"], "Wall G inner");
    EXPECT_EQ((*name)["readOnly"], false);
    EXPECT_EQ((*name)["emptyAllowed"], false);
    auto const type = findNode(document["properties"], "IsTypedBy");
    ASSERT_TRUE(type);
    EXPECT_EQ((*type)["reference"]["class"], "IfcWallType");
    EXPECT_EQ((*type)["reference"]["name"], "Internal wall 135");
    EXPECT_EQ(findNode(document["properties"], "PredefinedType").value()["readOnly"], true);
}

TEST_F(EntityCommand, PrintsAnyRecordByItsNumber)
{
    Json const document = json("entity " + sample(office) + " --id 106");
    EXPECT_EQ(document["class"], "IfcApplication");
    EXPECT_EQ(document["globalId"], "");
    EXPECT_EQ(findNode(document["properties"], "Version").value()["value"], "1.0");
}

TEST_F(EntityCommand, WritesNumbersInTheLanguageOfTheProgram)
{
    Json const document = json("--language de entity " + sample(office) + " --id 310");
    auto const easting = findNode(document["properties"], "Eastings").value();
    EXPECT_EQ(easting["text"], "356600,25 m");
    auto const abscissa = findNode(document["properties"], "XAxisAbscissa").value();
    EXPECT_EQ(abscissa["value"], 0.9961946981);
    EXPECT_EQ(abscissa["text"], "0,9961946981");
}

TEST_F(EntityCommand, PrintsTextForPeople)
{
    auto const result = run("entity " + sample(office) + " --id 106");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output.rfind("#106  IfcApplication\n", 0), 0u) << result.output;
    EXPECT_NE(result.output.find("qev-samples"), std::string::npos);
}

TEST_F(EntityCommand, StreamsAllEntities)
{
    auto const result = run("entity " + sample(office) + " --all --format json");
    EXPECT_EQ(result.exitCode, 0);
    std::istringstream lines(result.output);
    int count = 0;
    for (std::string line; std::getline(lines, line); ++count)
        expectKeys(Json::parse(line), {"id", "class", "globalId", "properties"});
    EXPECT_EQ(count, json("info " + sample(office))["records"]);
}

TEST_F(EntityCommand, ChangesAPropertyAndSaves)
{
    std::string const arguments =
        "entity " + sample(office) + " --object " + innerWall + " --output " + target();
    auto const result = run(arguments + " --set \"Name=Changed = twice\" --set \"IsTypedBy.Tag=WT9\"");
    EXPECT_EQ(result.exitCode, 0) << result.output << result.errors;
    EXPECT_NE(saved().find("'Changed = twice'"), std::string::npos);
    EXPECT_NE(saved().find("'WT9'"), std::string::npos);
    EXPECT_EQ(saved().size(), readFile(samplePath(office)).size() + std::string("Changed = twice").size() -
                                  std::string("Wall G inner").size());
}

TEST_F(EntityCommand, KeepsTheBytesWhereNothingChanges)
{
    auto const result = run("entity " + sample(office) + " --object " + innerWall +
                            " --set \"Name=Wall G inner\" --output " + target());
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(saved() == readFile(samplePath(office)));
}

TEST_F(EntityCommand, TellsARefusedEditAndSavesTheRest)
{
    std::string const arguments =
        "entity " + sample(office) + " --object " + innerWall + " --output " + target();
    auto const result = run(arguments + " --set Name= --set PredefinedType=SHEAR --set Tag=T1");
    EXPECT_EQ(result.exitCode, 5);
    EXPECT_EQ(result.output, "refused: Name: it cannot be empty\n"
                             "refused: PredefinedType: it cannot be changed\n");
    EXPECT_NE(saved().find("'T1'"), std::string::npos);
}

TEST_F(EntityCommand, RefusesBadUsage)
{
    std::string const wall = "entity " + sample(office) + " --object " + innerWall;
    EXPECT_EQ(run("entity " + sample(office)).exitCode, 2);
    EXPECT_EQ(run(wall + " --all").exitCode, 2);
    EXPECT_EQ(run(wall + " --set Name=x").exitCode, 2);
    EXPECT_EQ(run(wall + " --output " + target()).exitCode, 2);
    EXPECT_EQ(run("entity " + sample(office) + " --all --set Name=x --output " + target()).exitCode, 2);
    EXPECT_EQ(run("entity " + sample(office) + " --id 1").exitCode, 4);
    EXPECT_EQ(run("entity " + sample(office) + " --object nobody").exitCode, 4);
    EXPECT_EQ(run(wall + " --set NoSuchPath=x --output " + target()).exitCode, 4);
    EXPECT_EQ(run("entity missing.ifc --id 1").exitCode, 3);
}

} // namespace
