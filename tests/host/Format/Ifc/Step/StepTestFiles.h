#pragma once

#include "Format/Ifc/Step/StepFile.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace qev::step::test {

/// A table with a few keywords: IFCWALL 1, IFCDOOR 2, IFCLABELX 3, IFCPOINT 4.
inline StepKeywordTable keywords()
{
    StepKeywordTable table;
    table.add("IFCWALL", 1);
    table.add("IFCDOOR", 2);
    table.add("IFCLABELX", 3);
    table.add("IFCPOINT", 4);
    return table;
}

inline constexpr std::string_view head = "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\n"
                                         "FILE_NAME('n','t',(''),(''),'p','o','');\n"
                                         "FILE_SCHEMA(('IFC4'));\nENDSEC;\nDATA;\n";
inline constexpr std::string_view tail = "ENDSEC;\nEND-ISO-10303-21;\n";

/// A whole file around some records.
inline std::string fileText(std::string_view records)
{
    return std::string(head) + std::string(records) + std::string(tail);
}

/// Opens and indexes a text; null when it is refused.
inline std::unique_ptr<StepFile> openText(std::string_view text)
{
    StepOpenResult result = StepFile::fromText(text);
    if (result.file)
        result.file->index(keywords());
    return std::move(result.file);
}

inline std::unique_ptr<StepFile> openRecords(std::string_view records) { return openText(fileText(records)); }

inline std::vector<std::string> messageTexts(StepFile const& file)
{
    std::vector<std::string> texts;
    for (StepMessage const& message : file.messages().all())
        texts.push_back(message.toString());
    return texts;
}

} // namespace qev::step::test
