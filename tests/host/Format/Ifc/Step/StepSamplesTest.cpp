#include "Format/Ifc/Step/StepPatch.h"
#include "Format/Ifc/Step/StepRecordParser.h"
#include "Format/Ifc/Step/StepText.h"
#include "Format/Ifc/Step/StepWriter.h"
#include "StepTestFiles.h"
#include "TemporaryFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <utility>

namespace qev::step {
namespace {

std::vector<std::filesystem::path> samples()
{
    std::vector<std::filesystem::path> files;
    for (std::filesystem::path const folder : {QEV_OWN_SAMPLES_DIRECTORY, QEV_SAMPLES_DIRECTORY}) {
        if (folder.empty() || !std::filesystem::is_directory(folder))
            continue;
        for (auto const& entry : std::filesystem::recursive_directory_iterator(folder))
            if (entry.path().extension() == ".ifc")
                files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

void expectTextsToSurvive(StepValue const& value)
{
    if (value.kind() == StepValue::Kind::Text) {
        std::string encoded;
        StepText::appendEncoded(encoded, value.textValue());
        ASSERT_EQ(StepText::decode(encoded), value.textValue());
    }
    for (StepValue const& item : value.items())
        expectTextsToSurvive(item);
}

class StepSample : public ::testing::TestWithParam<std::filesystem::path>
{
protected:
    StepSample()
    {
        StepOpenResult result = StepFile::open(GetParam());
        m_file = std::move(result.file);
        if (m_file)
            m_file->index(test::keywords());
        m_isMalformed = GetParam().parent_path().filename() == "malformed";
    }

    std::unique_ptr<StepFile> m_file;
    bool m_isMalformed = false;
};

TEST_P(StepSample, IsIndexedWithoutErrors)
{
    ASSERT_TRUE(m_file);
    EXPECT_GT(m_file->recordCount(), 10U);
    EXPECT_FALSE(m_file->header().schemaNames().empty());
    if (!m_isMalformed) {
        EXPECT_THAT(test::messageTexts(*m_file), ::testing::IsEmpty());
    }
    for (RecordIndex i = 0; i < m_file->recordCount(); ++i)
        ASSERT_EQ(m_file->indexOf(m_file->idOf(i)), i);
}

TEST_P(StepSample, HasRecordsThatParseAndReadBackEqual)
{
    ASSERT_TRUE(m_file);
    StepRecordParser const parser(*m_file);
    std::vector<StepValue> values;
    std::vector<StepValue> again;
    StepMessages messages;
    for (RecordIndex i = 0; i < m_file->recordCount(); ++i) {
        bool const good = parser.parse(i, values, &messages);
        if (m_isMalformed && !good)
            continue;
        ASSERT_TRUE(good) << messages.all().back().toString();
        ASSERT_TRUE(parseArguments(StepWriter::arguments(values) + ")", again)) << m_file->bytesOf(i);
        ASSERT_EQ(again, values) << m_file->bytesOf(i);
        for (StepValue const& value : values)
            expectTextsToSurvive(value);
        ASSERT_EQ(parser.argumentSpans(i)->size(), values.size()) << m_file->bytesOf(i);
    }
    EXPECT_LE(messages.all().size(), 8U);
}

TEST_P(StepSample, IsSavedByteForByte)
{
    ASSERT_TRUE(m_file);
    qev::test::TemporaryFolder const folder;
    StepPatch const patch(*m_file);
    StepSaveResult const result = StepPatch::save(*m_file, patch, folder.path() / "copy.ifc");
    ASSERT_TRUE(result.saved()) << result.text;
    EXPECT_TRUE(qev::test::readFile(folder.path() / "copy.ifc") == qev::test::readFile(GetParam()));
}

TEST_P(StepSample, ChangesInOneRecordOnly)
{
    ASSERT_TRUE(m_file);
    RecordIndex const record = m_file->recordCount() / 2;
    StepPatch patch(*m_file);
    std::pair<std::size_t, std::string> const change[] = {{0, "'changed'"}};
    if (!patch.replaceArguments(record, change))
        GTEST_SKIP() << "the record in the middle has no argument";
    std::string const text = patch.toText();
    auto const changed = test::openText(text);
    ASSERT_TRUE(changed);
    ASSERT_EQ(changed->recordCount(), m_file->recordCount());
    for (RecordIndex i = 0; i < m_file->recordCount(); ++i) {
        if (i == record)
            EXPECT_EQ(StepRecordParser(*changed).argumentSpan(i, 0), "'changed'");
        else
            ASSERT_EQ(changed->bytesOf(i), m_file->bytesOf(i));
    }
}

std::string nameOf(::testing::TestParamInfo<std::filesystem::path> const& info)
{
    std::string name = info.param.stem().string();
    std::replace_if(
        name.begin(), name.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Samples, StepSample, ::testing::ValuesIn(samples()), nameOf);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(StepSample);

} // namespace
} // namespace qev::step
