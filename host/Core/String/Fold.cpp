#include "Core/String/Fold.h"

#include "Core/String/Ascii.h"

#include <algorithm>
#include <sstream>
#include <unicode/stringpiece.h>
#include <unicode/unistr.h>

namespace qev::str {

std::string foldCase(std::string_view text)
{
    auto const isAscii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
    if (std::all_of(text.begin(), text.end(), isAscii))
        return toLower(text);
    std::string folded;
    icu::UnicodeString::fromUTF8({text.data(), static_cast<int32_t>(text.size())})
        .foldCase()
        .toUTF8String(folded);
    return folded;
}

std::vector<std::string> foldedWords(std::string_view text)
{
    std::istringstream stream{foldCase(text)};
    std::vector<std::string> words;
    for (std::string word; stream >> word;)
        words.push_back(word);
    return words;
}

} // namespace qev::str
