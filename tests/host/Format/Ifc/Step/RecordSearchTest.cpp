#include "Format/Ifc/Step/RecordSearch.h"

#include "StepTestFiles.h"

#include <gmock/gmock.h>

#include <numeric>

namespace qev::step {
namespace {

using test::openRecords;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<InstanceId> found(StepFile const& file, RecordSearch const& search)
{
    std::vector<RecordIndex> records(file.recordCount());
    std::iota(records.begin(), records.end(), RecordIndex{0});
    std::vector<InstanceId> ids;
    for (std::size_t i = search.next(records, 0); i < records.size(); i = search.next(records, i + 1))
        ids.push_back(file.idOf(records[i]));
    return ids;
}

std::vector<InstanceId> foundReferences(std::string_view records, InstanceId id)
{
    auto const file = openRecords(records);
    return found(*file, RecordSearch::forReferencesTo(*file, id));
}

TEST(RecordSearch, FindsTheRecordsThatHoldAText)
{
    auto const file = openRecords("#1=IFCWALL('first',$);\n"
                                  "#2=IFCWALL('second',$);\n"
                                  "#3=IFCWALL('first and last',$);\n");
    EXPECT_THAT(found(*file, RecordSearch::forBytes(*file, "first")), ElementsAre(1u, 3u));
    EXPECT_THAT(found(*file, RecordSearch::forBytes(*file, "'first'")), ElementsAre(1u));
    EXPECT_THAT(found(*file, RecordSearch::forBytes(*file, "third")), IsEmpty());
}

TEST(RecordSearch, FindsNoTextThatGoesOnInTheNextRecord)
{
    auto const file = openRecords("#1=IFCWALL('a');#2=IFCWALL('b');\n");
    EXPECT_THAT(found(*file, RecordSearch::forBytes(*file, "');#2=IFCWALL('")), IsEmpty());
}

TEST(RecordSearch, FindsReferencesAsWholeNumbersOnly)
{
    char const* const records = "#12=IFCWALL($);\n"
                                "#20=IFCGROUP(#12);\n"
                                "#21=IFCGROUP(#123);\n"
                                "#22=IFCGROUP(#312);\n"
                                "#23=IFCGROUP(12,'12');\n"
                                "#24=IFCGROUP((#112,#121,#12));\n";
    EXPECT_THAT(foundReferences(records, 12), ElementsAre(12u, 20u, 24u));
    EXPECT_THAT(foundReferences(records, 3), IsEmpty());
    EXPECT_THAT(foundReferences(records, 312), ElementsAre(22u));
}

TEST(RecordSearch, FindsReferencesWithLeadingZeros)
{
    char const* const records = "#5=IFCWALL($);\n"
                                "#6=IFCGROUP(#005);\n"
                                "#7=IFCGROUP(#0050);\n"
                                "#8=IFCGROUP(005);\n";
    EXPECT_THAT(foundReferences(records, 5), ElementsAre(5u, 6u));
    EXPECT_THAT(foundReferences(records, 50), ElementsAre(7u));
}

TEST(RecordSearch, LooksIntoTheRecordsGivenOnly)
{
    std::string records;
    for (int id = 1; id <= 300; ++id)
        records += "#" + std::to_string(id) + "=IFCGROUP(#" + std::to_string(id % 7) + ");\n";
    auto const file = openRecords(records);
    auto const search = RecordSearch::forReferencesTo(*file, 4);
    std::vector<RecordIndex> const chosen = {3, 10, 11, 12, 16, 17, 18, 24, 299};
    std::vector<RecordIndex> places;
    for (std::size_t i = search.next(chosen, 0); i < chosen.size(); i = search.next(chosen, i + 1))
        places.push_back(chosen[i]);
    EXPECT_THAT(places, ElementsAre(3u, 10u, 17u, 24u));
    EXPECT_EQ(found(*file, search).size(), 43u);
}

TEST(RecordSearch, FindsAReferenceInTheLastRecordOfABrokenFile)
{
    auto const file = test::openText(std::string(test::head) + "#5=IFCWALL($);\n#6=IFCGROUP(#5,#77");
    EXPECT_THAT(found(*file, RecordSearch::forReferencesTo(*file, 77)), ElementsAre(6u));
}

} // namespace
} // namespace qev::step
