#include "Format/Ifc/Step/StepPatch.h"

#include "StepTestFiles.h"
#include "TemporaryFolder.h"

#include <gmock/gmock.h>

namespace qev::step {
namespace {

using qev::test::readFile;
using qev::test::TemporaryFolder;
using test::fileText;
using test::openRecords;
using test::openText;
using ::testing::HasSubstr;

bool replace(StepPatch& patch, RecordIndex record, std::size_t slot, std::string const& text)
{
    std::pair<std::size_t, std::string> const single[] = {{slot, text}};
    return patch.replaceArguments(record, single);
}

TEST(StepPatch, WithoutChangesGivesTheSameBytes)
{
    for (std::string const& text :
         {fileText("#1=IFCWALL('a');\n"), fileText(" /* x */ #1 = IFCWALL( ) ;\r\n\r\n#2=X('"),
          fileText("") + "trailing\0rubbish"}) {
        auto const file = openText(text);
        ASSERT_TRUE(file);
        EXPECT_EQ(StepPatch(*file).toText(), text);
    }
}

TEST(StepPatch, ChangesOnlyTheBytesOfTheArgument)
{
    auto const file = openRecords("#1= IFCWALL ( 'a' /*c*/ , 2.50 ,\n(#1) );\n#2=IFCDOOR('b');\n");
    StepPatch patch(*file);
    EXPECT_TRUE(replace(patch, 0, 2, "$"));
    EXPECT_TRUE(replace(patch, 0, 0, "'new'"));
    EXPECT_EQ(patch.toText(), fileText("#1= IFCWALL ( 'new' /*c*/ , 2.50 ,\n$ );\n#2=IFCDOOR('b');\n"));
}

TEST(StepPatch, TakesTheLastOfSeveralChanges)
{
    auto const file = openRecords("#1=IFCWALL('a');\n");
    StepPatch patch(*file);
    EXPECT_TRUE(replace(patch, 0, 0, "'b'"));
    EXPECT_TRUE(replace(patch, 0, 0, "'c'"));
    EXPECT_EQ(patch.toText(), fileText("#1=IFCWALL('c');\n"));
}

TEST(StepPatch, RefusesArgumentsThatAreNotThere)
{
    auto const file =
        openRecords("#1=IFCWALL('a');\n#2=IFCWALL();\n#3=(IFCA(1));\n#4=IFCWALL('x';\n#5=IFCWALL('\n");
    StepPatch patch(*file);
    EXPECT_FALSE(replace(patch, 0, 1, "$"));
    EXPECT_FALSE(replace(patch, 1, 0, "$"));
    EXPECT_FALSE(replace(patch, 2, 0, "$"));
    EXPECT_FALSE(replace(patch, 3, 0, "$"));
    EXPECT_FALSE(replace(patch, 4, 0, "$"));
    EXPECT_FALSE(replace(patch, 99, 0, "$"));
    std::pair<std::size_t, std::string> const oneTooMany[] = {{0, "$"}, {1, "$"}};
    EXPECT_FALSE(patch.replaceArguments(0, oneTooMany));
    EXPECT_TRUE(patch.empty());
}

TEST(StepPatch, RemovesARecordWithItsLine)
{
    auto const file = openRecords("#1=IFCWALL();\n  #2=IFCDOOR(\n'x');  \n#3=IFCWALL();\n");
    StepPatch patch(*file);
    EXPECT_TRUE(patch.removeRecord(1));
    EXPECT_EQ(patch.toText(), fileText("#1=IFCWALL();\n#3=IFCWALL();\n"));
}

TEST(StepPatch, LeavesWhatSharesALineWithARemovedRecord)
{
    auto const file = openRecords("#1=IFCWALL();#2=IFCDOOR();#3=IFCWALL(); /* three */\r\n");
    StepPatch patch(*file);
    EXPECT_TRUE(patch.removeRecord(1));
    EXPECT_TRUE(patch.removeRecord(2));
    EXPECT_EQ(patch.toText(), fileText("#1=IFCWALL(); /* three */\r\n"));
}

TEST(StepPatch, RemovesNeighboursAndTheirChanges)
{
    auto const file = openRecords("#1=IFCWALL('a');\r\n#2=IFCWALL('b');\r\n#3=IFCWALL('c');\r\n");
    StepPatch patch(*file);
    EXPECT_TRUE(replace(patch, 1, 0, "$"));
    EXPECT_TRUE(patch.removeRecord(1));
    EXPECT_TRUE(patch.removeRecord(2));
    patch.appendRecord(4, "IFCDOOR", "");
    EXPECT_TRUE(openText(patch.toText())->indexOf(4) == 1);
    EXPECT_THAT(patch.toText(), HasSubstr("#1=IFCWALL('a');\r\n#4=IFCDOOR();\n"));
}

TEST(StepPatch, RemovesNoRecordWithoutAnEnd)
{
    auto const file = openRecords("#1=IFCWALL()\n#2=IFCDOOR();\n");
    StepPatch patch(*file);
    EXPECT_FALSE(patch.removeRecord(0));
    EXPECT_FALSE(patch.removeRecord(99));
    EXPECT_TRUE(patch.empty());
}

TEST(StepPatch, AppendsRecordsBehindTheLastInTheStyleOfTheFile)
{
    auto const file = openText("ISO-10303-21;\r\nHEADER;\r\nFILE_SCHEMA(('IFC4'));\r\nENDSEC;\r\nDATA;\r\n"
                               "\t#1 = IFCWALL();\r\n\r\nENDSEC;\r\nEND-ISO-10303-21;\r\n");
    StepPatch patch(*file);
    patch.appendRecord(2, "IFCDOOR", "'a'");
    patch.appendRecord(3, "IFCDOOR", "#2");
    EXPECT_EQ(patch.toText(),
              "ISO-10303-21;\r\nHEADER;\r\nFILE_SCHEMA(('IFC4'));\r\nENDSEC;\r\nDATA;\r\n"
              "\t#1 = IFCWALL();\r\n\t#2 = IFCDOOR('a');\r\n\t#3 = IFCDOOR(#2);\r\n\r\nENDSEC;\r\n"
              "END-ISO-10303-21;\r\n");
}

TEST(StepPatch, AppendsToTheLastDataSection)
{
    std::string const begin = std::string(test::head) + "#1=IFCWALL();\nENDSEC;\nDATA;\n";
    auto const file = openText(begin + std::string(test::tail));
    StepPatch patch(*file);
    patch.appendRecord(2, "IFCDOOR", "");
    EXPECT_EQ(patch.toText(), begin + "#2=IFCDOOR();\n" + std::string(test::tail));
}

TEST(StepPatch, AppendsToAFileOfOneLine)
{
    auto const file = openText(
        "ISO-10303-21;HEADER;FILE_SCHEMA(('IFC4'));ENDSEC;DATA;#1=IFCWALL();ENDSEC;END-ISO-10303-21;");
    StepPatch patch(*file);
    patch.appendRecord(2, "IFCDOOR", "'x'");
    auto const again = openText(patch.toText());
    ASSERT_TRUE(again);
    EXPECT_EQ(again->recordCount(), 2U);
    EXPECT_TRUE(again->messages().empty());
}

TEST(StepPatch, AppendsBeforeARecordThatTheFileEndsIn)
{
    auto const file = openText(std::string(test::head) + "#1=IFCWALL();\n#2=IFCDOOR(#");
    StepPatch patch(*file);
    patch.appendRecord(3, "IFCDOOR", "");
    EXPECT_EQ(patch.toText(), std::string(test::head) + "#1=IFCWALL();\n#3=IFCDOOR();\n#2=IFCDOOR(#");
}

class StepPatchSave : public ::testing::Test
{
protected:
    void open(std::string const& text)
    {
        path = folder.write("model.ifc", text);
        file = std::move(StepFile::open(path).file);
        ASSERT_TRUE(file);
        ASSERT_TRUE(file->index(test::keywords()));
    }

    TemporaryFolder folder;
    std::filesystem::path path;
    std::unique_ptr<StepFile> file;
};

TEST_F(StepPatchSave, ReplacesTheFileAndCanGoOn)
{
    open(fileText("#1=IFCWALL('a');\n"));
    StepPatch patch(*file);
    EXPECT_TRUE(replace(patch, 0, 0, "'b'"));
    EXPECT_TRUE(StepPatch::save(*file, patch, path).saved());
    EXPECT_EQ(readFile(path), fileText("#1=IFCWALL('b');\n"));
    EXPECT_TRUE(replace(patch, 0, 0, "'c'"));
    StepSaveResult const second = StepPatch::save(*file, patch, path);
    EXPECT_TRUE(second.saved()) << second.text;
    EXPECT_EQ(readFile(path), fileText("#1=IFCWALL('c');\n"));
    EXPECT_EQ(folder.entryCount(), 1U);
}

TEST_F(StepPatchSave, RefusesAFileThatAnotherProgramChanged)
{
    open(fileText("#1=IFCWALL('a');\n"));
    StepPatch patch(*file);
    EXPECT_TRUE(replace(patch, 0, 0, "'b'"));
    folder.write("model.ifc", "changed by another program");
    StepSaveResult const result = StepPatch::save(*file, patch, path);
    EXPECT_EQ(result.status, StepSaveResult::Status::ChangedMeanwhile);
    EXPECT_THAT(result.text, HasSubstr("model.ifc"));
    EXPECT_EQ(readFile(path), "changed by another program");
    EXPECT_EQ(folder.entryCount(), 1U);
    EXPECT_TRUE(StepPatch::save(*file, patch, path, StepPatch::IfChanged::Overwrite).saved());
    EXPECT_EQ(readFile(path), fileText("#1=IFCWALL('b');\n"));
}

TEST_F(StepPatchSave, ToAnotherPathLeavesTheOldFileAndMovesThere)
{
    open(fileText("#1=IFCWALL('a');\n"));
    folder.write("model.ifc", "changed by another program");
    StepPatch const patch(*file);
    EXPECT_TRUE(StepPatch::save(*file, patch, folder.path() / "copy.ifc").saved());
    EXPECT_EQ(readFile(folder.path() / "copy.ifc"), fileText("#1=IFCWALL('a');\n"));
    EXPECT_EQ(readFile(path), "changed by another program");
    EXPECT_EQ(file->path(), folder.path() / "copy.ifc");
}

TEST_F(StepPatchSave, FailsWithTheNameWhereNothingCanBeWritten)
{
    open(fileText("#1=IFCWALL('a');\n"));
    StepPatch const patch(*file);
    StepSaveResult const result = StepPatch::save(*file, patch, folder.path() / "missing" / "copy.ifc");
    EXPECT_EQ(result.status, StepSaveResult::Status::Failed);
    EXPECT_THAT(result.text, HasSubstr("copy.ifc"));
    EXPECT_EQ(file->path(), path);
}

TEST_F(StepPatchSave, CanBeCancelledAndLeavesTheOldFile)
{
    std::string const text = fileText("#1=IFCWALL('" + std::string(std::size_t{17} << 20, 'x') + "');\n");
    open(text);
    StepPatch const patch(*file);
    StepSaveResult const result = StepPatch::save(*file, patch, path, StepPatch::IfChanged::Refuse,
                                                  [](std::uint64_t, std::uint64_t) { return false; });
    EXPECT_EQ(result.status, StepSaveResult::Status::Cancelled);
    EXPECT_TRUE(readFile(path) == text);
    EXPECT_EQ(folder.entryCount(), 1U);
}

TEST_F(StepPatchSave, CanBeCancelledBetweenChangesToo)
{
    std::string records;
    for (int id = 1; id <= 2; ++id)
        records +=
            "#" + std::to_string(id) + "=IFCWALL('" + std::string(std::size_t{9} << 20, 'x') + "','mark');\n";
    std::string const text = fileText(records);
    open(text);
    StepPatch patch(*file);
    std::pair<std::size_t, std::string> const change{1, "'another mark'"};
    ASSERT_TRUE(patch.replaceArguments(0, {&change, 1}));
    ASSERT_TRUE(patch.replaceArguments(1, {&change, 1}));
    StepSaveResult const result = StepPatch::save(*file, patch, path, StepPatch::IfChanged::Refuse,
                                                  [](std::uint64_t, std::uint64_t) { return false; });
    EXPECT_EQ(result.status, StepSaveResult::Status::Cancelled);
    EXPECT_TRUE(readFile(path) == text);
}

} // namespace
} // namespace qev::step
