#include "Output.h"

#include <algorithm>
#include <iostream>

namespace qev::application {

namespace {

/// Characters, not bytes: good enough to line up columns of European texts.
std::size_t width(std::string const& text)
{
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0u) != 0x80u; }));
}

} // namespace

void printJson(Json const& document, bool onOneLine)
{
    std::cout << document.dump(onOneLine ? -1 : 2, ' ', false, Json::error_handler_t::replace) << '\n';
}

std::string onOneLine(std::string text)
{
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\n' || c == '\r' || c == '\t'; }, ' ');
    return text;
}

void printTable(std::vector<std::vector<std::string>> const& rows)
{
    std::vector<std::size_t> widths;
    for (auto const& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], width(row[column]));
    }
    for (auto const& row : rows) {
        std::string line;
        for (std::size_t column = 0; column < row.size(); ++column) {
            std::string const cell = onOneLine(row[column]);
            line += cell;
            if (column + 1 < row.size())
                line += std::string(widths[column] - width(row[column]) + 2, ' ');
        }
        std::cout << line << '\n';
    }
}

} // namespace qev::application
