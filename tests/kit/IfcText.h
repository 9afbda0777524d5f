#pragma once

#include <string>
#include <string_view>

namespace qev::test {

/// A whole STEP file of \p schema with these records in its DATA section.
inline std::string ifcText(std::string_view schema, std::string_view records)
{
    std::string text = "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\n"
                       "FILE_NAME('','',(''),(''),'','Qev tests','');\nFILE_SCHEMA(('";
    text += schema;
    text += "'));\nENDSEC;\nDATA;\n";
    text += records;
    return text + "ENDSEC;\nEND-ISO-10303-21;\n";
}

} // namespace qev::test
