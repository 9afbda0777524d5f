#include "Format/Ifc/Step/StepFile.h"

#include "Core/Platform/PageRelease.h"
#include "Core/Platform/Prefetch.h"
#include "Format/Ifc/Step/LineTable.h"
#include "Format/Ifc/Step/RecordLookup.h"
#include "Format/Ifc/Step/StepHeaderReader.h"
#include "Format/Ifc/Step/StepIndexer.h"
#include "Format/Ifc/Step/StepRecordParser.h"
#include "Format/Ifc/Step/StepScanner.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <utility>

namespace qev::step {

struct StepFile::Private
{
    explicit Private(platform::FileBytes content)
        : bytes(std::move(content))
        , scanner(bytes.data(), bytes.size())
    {
    }

    void report(StepMessage::Severity severity, std::size_t position, std::optional<InstanceId> record,
                std::string text);
    void reportDuplicates();
    RecordLookup const& lookup();
    void countClasses();
    void sortByClass();
    RecordIndex recordAt(std::size_t position) const;
    InstanceId highestReference(StepFile const& file);

    platform::FileBytes bytes;
    StepScanner scanner;
    StepHeader header;
    StepMessages messages;
    std::filesystem::path path;
    std::optional<platform::FileStamp> stamp;
    std::size_t dataPosition = 0;
    /// Those from before records were looked at.
    StepMessages openingMessages;
    RecordColumns columns;
    std::size_t classCount = 1;

    RecordLookup idLookup;
    LineTable lines;
    std::vector<std::uint32_t> classCounts;
    /// Where the records of each class begin in `classOrder`, and the end of the last.
    std::vector<std::uint32_t> classStarts;
    std::vector<RecordIndex> classOrder;
    std::optional<InstanceId> firstFreeId;
};

void StepFile::Private::report(StepMessage::Severity severity, std::size_t position,
                               std::optional<InstanceId> record, std::string text)
{
    // The number of a line costs time, and nobody will see it.
    std::uint64_t const line = messages.full() ? 0 : lines.lineOf(bytes.view(), position);
    messages.add({severity, line, record, std::move(text)});
}

RecordLookup const& StepFile::Private::lookup()
{
    if (!idLookup.isBuilt())
        idLookup.build(columns.ids, columns.ascending);
    return idLookup;
}

void StepFile::Private::reportDuplicates()
{
    if (columns.ascending)
        return;
    RecordLookup const& records = lookup();
    std::size_t const count = columns.ids.size();
    for (std::size_t i = 0; i < count; ++i) {
        InstanceId const id = columns.ids[i];
        RecordIndex const first = records.find(columns.ids, id);
        if (first == i)
            continue;
        std::string text;
        if (!messages.full())
            text = "Expected an id that no other record has, found it in line " +
                   std::to_string(lines.lineOf(bytes.view(), columns.positions[first])) + " before.";
        report(StepMessage::Severity::Error, columns.positions[i], id, std::move(text));
    }
}

void StepFile::Private::countClasses()
{
    if (!classCounts.empty())
        return;
    classCounts.assign(classCount, 0);
    std::size_t const count = columns.classes.size();
    for (std::size_t i = 0; i < count; ++i)
        ++classCounts[columns.classes[i]];
}

void StepFile::Private::sortByClass()
{
    if (!classStarts.empty())
        return;
    countClasses();
    classStarts.assign(classCount + 1, 0);
    for (std::size_t i = 0; i < classCount; ++i)
        classStarts[i + 1] = classStarts[i] + classCounts[i];
    std::vector<std::uint32_t> next(classStarts.begin(), classStarts.end() - 1);
    std::size_t const count = columns.classes.size();
    classOrder.resize(count);
    for (std::size_t i = 0; i < count; ++i)
        classOrder[next[columns.classes[i]]++] = static_cast<RecordIndex>(i);
}

RecordIndex StepFile::Private::recordAt(std::size_t position) const
{
    std::size_t low = 0;
    std::size_t high = columns.positions.size();
    while (low < high) {
        std::size_t const middle = low + (high - low) / 2;
        if (columns.positions[middle] <= position)
            low = middle + 1;
        else
            high = middle;
    }
    return low == 0 ? noRecord : static_cast<RecordIndex>(low - 1);
}

InstanceId StepFile::Private::highestReference(StepFile const& file)
{
    InstanceId highest = file.highestId();
    StepRecordParser const parser(file);
    char const* p = bytes.data() + dataPosition;
    char const* const end = bytes.data() + bytes.size();
    while ((p = static_cast<char const*>(std::memchr(p, '#', static_cast<std::size_t>(end - p)))) !=
           nullptr) {
        ++p;
        InstanceId id = 0;
        auto const read = std::from_chars(p, end, id);
        if (read.ec != std::errc() || id <= highest)
            continue;
        // It may stand in a text or a comment: only the record as a whole tells.
        RecordIndex const record = recordAt(static_cast<std::size_t>(p - bytes.data()));
        if (record == noRecord)
            continue;
        parser.forEachReference(record, [&highest](InstanceId found) { highest = std::max(highest, found); });
        std::string_view const whole = file.bytesOf(record);
        p = std::max(p, whole.data() + whole.size());
    }
    return highest;
}

StepFile::StepFile(platform::FileBytes bytes)
    : m_private(std::make_unique<Private>(std::move(bytes)))
{
}

StepFile::~StepFile() { platform::releasePages(m_private->bytes.data(), m_private->bytes.size()); }

StepOpenResult StepFile::open(std::filesystem::path const& path, Progress const& progress)
{
    platform::FileReadResult read = platform::FileBytes::read(path, progress);
    if (!read.bytes) {
        StepOpenResult result;
        result.cancelled = read.cancelled;
        if (!read.cancelled)
            result.messages.add({StepMessage::Severity::Refused, 0, std::nullopt, read.error});
        return result;
    }
    StepOpenResult result = fromBytes(std::move(*read.bytes));
    if (result.file) {
        result.file->m_private->path = path;
        result.file->m_private->stamp = read.stamp;
    }
    return result;
}

StepOpenResult StepFile::fromBytes(platform::FileBytes bytes)
{
    std::unique_ptr<StepFile> file(new StepFile(std::move(bytes)));
    Private& inside = *file->m_private;
    StepHeaderReader reader(
        inside.scanner, inside.header,
        [&inside](StepMessage::Severity severity, std::size_t position, std::string text) {
            inside.report(severity, position, std::nullopt, std::move(text));
        });
    bool const usable = reader.run();
    inside.dataPosition = reader.dataPosition();
    inside.openingMessages = inside.messages;
    StepOpenResult result;
    result.messages = inside.messages;
    if (usable)
        result.file = std::move(file);
    return result;
}

StepOpenResult StepFile::fromText(std::string_view text)
{
    return fromBytes(platform::FileBytes::copyOf(text));
}

StepHeader const& StepFile::header() const { return m_private->header; }

bool StepFile::index(StepKeywordTable const& table, Progress const& progress)
{
    Private& inside = *m_private;
    inside.messages = inside.openingMessages;
    inside.columns = {};
    inside.idLookup = {};
    inside.classCounts.clear();
    inside.classStarts.clear();
    inside.classOrder.clear();
    inside.firstFreeId.reset();
    inside.classCount = table.classCount();
    StepIndexer indexer(
        inside.scanner, table, inside.columns,
        [&inside](StepMessage::Severity severity, std::size_t position, std::optional<InstanceId> record,
                  std::string text) { inside.report(severity, position, record, std::move(text)); });
    if (!indexer.run(inside.dataPosition, progress))
        return false;
    inside.reportDuplicates();
    return true;
}

StepMessages const& StepFile::messages() const { return m_private->messages; }

RecordIndex StepFile::recordCount() const { return static_cast<RecordIndex>(m_private->columns.ids.size()); }

InstanceId StepFile::idOf(RecordIndex record) const { return m_private->columns.ids[record]; }

StepFile::ClassNumber StepFile::classOf(RecordIndex record) const
{
    return m_private->columns.classes[record];
}

std::string_view StepFile::keywordOf(RecordIndex record) const
{
    return m_private->scanner.readHead(positionOf(record)).keyword;
}

std::string_view StepFile::bytesOf(RecordIndex record) const { return extentOf(record).bytes; }

StepFile::Ending StepFile::endingOf(RecordIndex record) const { return extentOf(record).ending; }

std::string_view StepFile::argumentsOf(RecordIndex record) const { return extentOf(record).arguments; }

StepRecordExtent StepFile::extentOf(RecordIndex record) const
{
    // A copy, for several threads may read records.
    StepScanner scanner = m_private->scanner;
    std::size_t const begin = positionOf(record);
    StepScanner::RecordHead const head = scanner.readHead(begin);
    StepScanner::RecordEnd const end = scanner.findEnd(head.arguments);
    char const* const data = scanner.data();
    auto const part = [data, &end](std::size_t from) {
        return std::string_view(data + from, end.end > from ? end.end - from : 0);
    };
    StepRecordExtent extent;
    extent.bytes = part(begin);
    extent.keyword = head.keyword;
    std::size_t const arguments = std::min(head.arguments, end.end);
    extent.body = head.isComplex || head.keyword.empty()
                      ? part(arguments)
                      : part(static_cast<std::size_t>(head.keyword.data() - data));
    extent.arguments = head.isComplex ? std::string_view() : part(arguments);
    extent.ending = end.ending;
    extent.isComplex = head.isComplex;
    extent.escapesHideApostrophes = end.escapesHideApostrophes;
    return extent;
}

RecordIndex StepFile::indexOf(InstanceId id) const
{
    return m_private->lookup().find(m_private->columns.ids, id);
}

std::vector<RecordIndex> StepFile::indicesOf(std::span<InstanceId const> ids) const
{
    return m_private->lookup().find(m_private->columns.ids, ids);
}

void StepFile::prepareReading() const { static_cast<void>(m_private->lookup()); }

bool StepFile::isDuplicate(RecordIndex record) const
{
    return !m_private->columns.ascending && indexOf(idOf(record)) != record;
}

std::span<RecordIndex const> StepFile::recordsOf(ClassNumber number) const
{
    if (number >= m_private->classCount)
        return {};
    m_private->sortByClass();
    std::uint32_t const begin = m_private->classStarts[number];
    return std::span(m_private->classOrder).subspan(begin, m_private->classStarts[number + 1U] - begin);
}

std::vector<std::uint32_t> const& StepFile::classCounts() const
{
    m_private->countClasses();
    return m_private->classCounts;
}

InstanceId StepFile::highestId() const { return recordCount() == 0 ? 0 : m_private->lookup().highestId(); }

InstanceId StepFile::firstFreeId() const
{
    if (!m_private->firstFreeId)
        m_private->firstFreeId = m_private->highestReference(*this) + 1;
    return *m_private->firstFreeId;
}

std::string_view StepFile::bytes() const { return m_private->bytes.view(); }

std::uint64_t StepFile::lineOf(std::size_t position) const
{
    return m_private->lines.lineOf(m_private->bytes.view(), position);
}

std::uint64_t StepFile::lineOfRecord(RecordIndex record) const { return lineOf(positionOf(record)); }

std::size_t StepFile::positionOf(RecordIndex record) const
{
    return static_cast<std::size_t>(m_private->columns.positions[record]);
}

void StepFile::expectNext(std::span<RecordIndex const> records, std::size_t position) const
{
    // Records that are asked for one after the other by their class lie apart, and most take two or three
    // lines. A hint takes effect when some more records have had their turn.
    constexpr std::size_t cacheLine = 64;
    constexpr std::size_t lines = 3;
    constexpr std::size_t ahead = 8;
    CompactColumn const& positions = m_private->columns.positions;
    auto const isRecord = [&](std::size_t at) { return at < records.size() && records[at] < recordCount(); };
    if (isRecord(position + 2 * ahead))
        positions.expect(records[position + 2 * ahead]);
    if (!isRecord(position + ahead))
        return;
    std::size_t const begin = positionOf(records[position + ahead]);
    for (std::size_t line = 0; line < lines; ++line)
        platform::prefetch(m_private->bytes.data() + begin + line * cacheLine);
}

std::size_t StepFile::insertPosition() const { return m_private->columns.insertPosition; }

std::filesystem::path const& StepFile::path() const { return m_private->path; }

std::optional<platform::FileStamp> const& StepFile::stamp() const { return m_private->stamp; }

void StepFile::noteSaved(std::filesystem::path const& path, platform::FileStamp const& stamp)
{
    m_private->path = path;
    m_private->stamp = stamp;
}

} // namespace qev::step
