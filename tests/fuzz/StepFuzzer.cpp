// Feeds arbitrary bytes to the STEP reader, and checks what must hold whatever they are.

#include "Format/Ifc/Step/RecordSearch.h"
#include "Format/Ifc/Step/StepPatch.h"
#include "Format/Ifc/Step/StepRecordParser.h"
#include "Format/Ifc/Step/StepText.h"
#include "Format/Ifc/Step/StepWriter.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using namespace qev::step;

void require(bool condition, char const* what)
{
    if (condition)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

StepKeywordTable keywords()
{
    StepKeywordTable table;
    table.add("IFCWALL", 1);
    table.add("IFCPROPERTYSINGLEVALUE", 2);
    table.add("IFCCARTESIANPOINT", 3);
    return table;
}

void checkRecord(StepFile const& file, RecordIndex record)
{
    StepRecordParser const parser(file);
    std::string_view const bytes = file.bytesOf(record);
    require(!bytes.empty() && bytes.front() == '#', "a record begins with #");
    require(bytes.data() + bytes.size() <= file.bytes().data() + file.bytes().size(),
            "a record lies in the file");
    require(record + 1 >= file.recordCount() ||
                bytes.size() <= file.positionOf(record + 1) - file.positionOf(record),
            "a record ends before the next");

    std::vector<StepValue> values;
    StepMessages messages;
    bool const good = parser.parse(record, values, &messages);
    require(good == messages.empty(), "what is wrong has a message");
    auto const spans = parser.argumentSpans(record);
    if (good && spans)
        require(spans->size() == values.size(), "spans and values agree");
    for (std::size_t slot = 0; spans && slot < spans->size(); ++slot)
        require(parser.argumentSpan(record, slot) == (*spans)[slot], "one span is like all spans");
    std::size_t references = 0;
    parser.forEachReference(record, [&references](InstanceId) { ++references; });
    require(references <= bytes.size(), "references are in the record");
    parser.forEachReference(record, [&file, record](InstanceId id) {
        require(RecordSearch::forReferencesTo(file, id).next({&record, 1}, 0) == 0, "a reference is found");
    });
    if (good && !values.empty()) {
        std::vector<StepValue> again;
        require(parseArguments(StepWriter::arguments(values) + ")", again) && again == values,
                "values read back equal");
    }
}

void checkPatch(StepFile const& file)
{
    require(StepPatch(file).toText() == file.bytes(), "no change, same bytes");
    StepPatch patch(file);
    RecordIndex const last = file.recordCount() - 1;
    InstanceId const newId = file.firstFreeId();
    std::pair<std::size_t, std::string> const change[] = {{0, "'changed'"}};
    bool const replaced = patch.replaceArguments(last, change);
    patch.appendRecord(newId, "IFCWALL", "$");
    StepOpenResult const again = StepFile::fromText(patch.toText());
    require(again.file != nullptr, "a changed file opens again");
    again.file->index(keywords());
    require(again.file->recordCount() == file.recordCount() + 1, "one record more");
    if (replaced)
        require(StepRecordParser(*again.file).argumentSpan(again.file->indexOf(file.idOf(last)), 0) ==
                        "'changed'" ||
                    file.isDuplicate(last) || newId == 0,
                "the change is in the new file");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    std::string_view const bytes(reinterpret_cast<char const*>(data), size);
    std::string const text = StepText::decode(bytes);
    std::string encoded;
    StepText::appendEncoded(encoded, text);
    require(StepText::decode(encoded) == text, "texts read back equal");

    StepOpenResult const opened = StepFile::fromText(bytes);
    require(opened.file != nullptr || !opened.messages.empty(), "a refusal has a reason");
    if (opened.file == nullptr)
        return 0;
    opened.file->index(keywords());
    for (RecordIndex record = 0; record < opened.file->recordCount(); ++record)
        checkRecord(*opened.file, record);
    if (opened.file->recordCount() > 0)
        checkPatch(*opened.file);
    return 0;
}
