#include "UI/FoundationClasses/PropertyInterface/EnumerationText.h"

#include "Core/String/Ascii.h"

#include <algorithm>

namespace qev::fc::ui::propertyinterface {

namespace {

std::string_view withoutLeadingSpace(std::string_view text)
{
    return text.substr(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
}

} // namespace

std::vector<std::string_view> enumerationPieces(std::string_view text)
{
    std::vector<std::string_view> pieces;
    while (true) {
        auto const comma = text.find(',');
        pieces.push_back(text.substr(0, comma));
        if (comma == std::string_view::npos)
            return pieces;
        text.remove_prefix(comma + 1);
    }
}

std::string enumerationText(std::optional<std::string> const& attributeText)
{
    std::string_view values = attributeText ? *attributeText : std::string_view();
    if (values.size() >= 2)
        values = values.substr(1, values.size() - 2);
    if (values.empty())
        return " ";
    std::string text;
    for (auto const piece : enumerationPieces(values)) {
        if (piece.data() != values.data())
            text += ", ";
        text += withoutLeadingSpace(piece);
    }
    return text;
}

std::optional<std::string> possibleForm(std::string_view piece, std::vector<std::string> const& possible)
{
    auto found = std::find(possible.begin(), possible.end(), piece);
    if (found == possible.end())
        found = std::find_if(possible.begin(), possible.end(), [piece](std::string const& value) {
            return str::equalIgnoringCase(str::trimmed(piece), value);
        });
    return found == possible.end() ? std::nullopt : std::optional(*found);
}

} // namespace qev::fc::ui::propertyinterface
