#include "Format/Ifc/Step/StepRecordParser.h"

#include "Format/Ifc/Step/ArgumentReader.h"
#include "Format/Ifc/Step/StepScanner.h"

#include <utility>

namespace qev::step {

namespace {

/// Enough of what stands at \p position to recognise it.
std::string foundAt(char const* position, char const* end)
{
    constexpr std::size_t longest = 20;
    std::string found;
    while (position < end && found.size() < longest && static_cast<unsigned char>(*position) >= ' ')
        found += *position++;
    return found.empty() ? "the end of the line" : "\"" + found + "\"";
}

StepMessage messageOf(StepFile const& file, RecordIndex record, ArgumentReader::Error const& error,
                      char const* end)
{
    StepMessage message;
    auto const position = static_cast<std::size_t>(error.position - file.bytes().data());
    message.line = file.lineOf(position);
    message.record = file.idOf(record);
    message.text = "Expected " + error.expected + ", found ";
    message.text += error.position < end ? foundAt(error.position, end) : "the end of the record";
    message.text += ".";
    return message;
}

char const* endOf(StepRecordExtent const& extent) { return extent.bytes.data() + extent.bytes.size(); }

ArgumentReader readerOf(StepRecordExtent const& extent)
{
    char const* const begin = extent.arguments.data();
    return {begin, begin + extent.arguments.size(), extent.escapesHideApostrophes};
}

} // namespace

bool StepRecordParser::parse(RecordIndex record, std::vector<StepValue>& values, StepMessages* messages) const
{
    values.clear();
    StepRecordExtent const extent = m_file->extentOf(record);
    if (extent.isComplex)
        return true;
    ArgumentReader reader = readerOf(extent);
    reader.readList(values);
    reader.expect(';', "\";\"");
    if (!reader.error())
        return true;
    if (messages != nullptr)
        messages->add(messageOf(*m_file, record, *reader.error(), endOf(extent)));
    return false;
}

std::optional<std::string_view> StepRecordParser::argumentSpan(RecordIndex record, std::size_t slot) const
{
    ArgumentReader reader = readerOf(m_file->extentOf(record));
    std::string_view argument;
    for (std::size_t i = 0; reader.skipArgument(argument); ++i) {
        char const separator = reader.takeSeparator();
        if (i == slot && !argument.empty())
            return argument;
        if (i == slot || separator != ',')
            break;
    }
    return std::nullopt;
}

std::optional<std::vector<std::string_view>> StepRecordParser::argumentSpans(RecordIndex record) const
{
    StepRecordExtent const extent = m_file->extentOf(record);
    if (extent.isComplex || extent.ending != StepFile::Ending::Complete)
        return std::nullopt;
    ArgumentReader reader = readerOf(extent);
    std::vector<std::string_view> spans;
    std::string_view argument;
    char separator = ',';
    while (separator == ',') {
        if (!reader.skipArgument(argument))
            return std::nullopt;
        separator = reader.takeSeparator();
        // `()` has no argument rather than an empty one.
        if (argument.empty() && (separator == ',' || !spans.empty()))
            return std::nullopt;
        if (!argument.empty())
            spans.push_back(argument);
    }
    reader.expect(';', "\";\"");
    if (reader.error())
        return std::nullopt;
    return spans;
}

std::optional<StepValue> StepRecordParser::parseArgument(RecordIndex record, std::size_t slot) const
{
    ArgumentReader reader = readerOf(m_file->extentOf(record));
    std::string_view argument;
    for (std::size_t i = 0; i < slot; ++i)
        if (!reader.skipArgument(argument) || reader.takeSeparator() != ',')
            return std::nullopt;
    StepValue value = reader.readValue();
    reader.skipBlanks();
    bool const ends = reader.takeSeparator() != '\0';
    if (!ends || reader.error())
        return std::nullopt;
    return value;
}

StepRecordParser::ReferenceCursor StepRecordParser::argumentCursor(RecordIndex record, std::size_t slot) const
{
    StepRecordExtent const extent = m_file->extentOf(record);
    ArgumentReader reader = readerOf(extent);
    std::string_view argument;
    for (std::size_t i = 0; i < slot; ++i)
        if (!reader.skipArgument(argument) || reader.takeSeparator() != ',')
            return {};
    return {reader.position(), endOf(extent), extent.escapesHideApostrophes, false, 0};
}

StepRecordParser::ReferenceCursor StepRecordParser::recordCursor(RecordIndex record) const
{
    StepRecordExtent const extent = m_file->extentOf(record);
    return {extent.body.data(), endOf(extent), extent.escapesHideApostrophes, true, 0};
}

bool StepRecordParser::nextReference(ReferenceCursor& cursor, InstanceId& id)
{
    if (cursor.position == nullptr)
        return false;
    ArgumentReader reader(cursor.position, cursor.end, cursor.escapesHideApostrophes);
    bool const found = reader.nextReference(id, cursor.depth, cursor.everything);
    cursor.position = reader.position();
    return found;
}

bool parseArguments(std::string_view text, std::vector<StepValue>& values)
{
    ArgumentReader reader(text.data(), text.data() + text.size(), true);
    reader.readList(values);
    reader.skipBlanks();
    return !reader.error() && reader.atEnd();
}

} // namespace qev::step
