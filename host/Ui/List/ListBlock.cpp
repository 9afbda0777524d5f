#include "Ui/List/ListBlock.h"

#include "Core/String/DelimitedText.h"

#include <utility>

namespace qev::ui {

namespace {

std::string escaped(std::string_view text)
{
    std::string html;
    for (char const character : text) {
        switch (character) {
        case '&':
            html += "&amp;";
            break;
        case '<':
            html += "&lt;";
            break;
        case '>':
            html += "&gt;";
            break;
        case '"':
            html += "&quot;";
            break;
        case '\n':
            html += "<br>";
            break;
        case '\r':
            break;
        default:
            html += character;
        }
    }
    return html;
}

} // namespace

std::string blockAsTabSeparatedText(ListBlock const& block) { return str::writeDelimited(block, '\t'); }

std::string blockAsHtml(ListBlock const& block, bool hasHeaders)
{
    std::string html = "<meta charset=\"utf-8\"><table>";
    std::string cell = hasHeaders ? "th" : "td";
    for (auto const& row : block) {
        html += "<tr>";
        for (auto const& text : row)
            html += '<' + cell + '>' + escaped(text) + "</" + cell + '>';
        html += "</tr>";
        cell = "td";
    }
    return html + "</table>";
}

ListBlock blockFromTabSeparatedText(std::string_view text)
{
    ListBlock block;
    for (auto& row : str::readDelimited(text, '\t'))
        block.push_back(std::move(row.cells));
    return block;
}

} // namespace qev::ui
