#include "Format/Ifc/Step/StepHeader.h"

#include <algorithm>

namespace qev::step {

StepHeaderRecord const* StepHeader::find(std::string_view keyword) const
{
    auto const found = std::find_if(m_records.begin(), m_records.end(),
                                    [keyword](StepHeaderRecord const& r) { return r.keyword == keyword; });
    return found == m_records.end() ? nullptr : &*found;
}

std::string StepHeader::text(std::string_view keyword, std::size_t argument) const
{
    StepHeaderRecord const* record = find(keyword);
    if (record == nullptr || argument >= record->arguments.size())
        return {};
    StepValue const& value = record->arguments[argument];
    return value.kind() == StepValue::Kind::Text ? value.textValue() : std::string();
}

std::vector<std::string> StepHeader::texts(std::string_view keyword, std::size_t argument) const
{
    std::vector<std::string> result;
    StepHeaderRecord const* record = find(keyword);
    if (record == nullptr || argument >= record->arguments.size())
        return result;
    StepValue const& value = record->arguments[argument];
    if (value.kind() == StepValue::Kind::Text)
        result.push_back(value.textValue());
    if (value.kind() != StepValue::Kind::List)
        return result;
    for (StepValue const& item : value.items())
        if (item.kind() == StepValue::Kind::Text)
            result.push_back(item.textValue());
    return result;
}

std::vector<std::string> StepHeader::descriptions() const { return texts("FILE_DESCRIPTION", 0); }

std::vector<std::string> StepHeader::schemaNames() const
{
    std::vector<std::string> names = texts("FILE_SCHEMA", 0);
    for (std::string& name : names) {
        // 'IFC4 { 1 0 ... }' names the schema's object identifier too.
        std::size_t const end = name.find('{');
        if (end != std::string::npos)
            name.resize(end);
        while (!name.empty() && name.back() == ' ')
            name.pop_back();
    }
    return names;
}

} // namespace qev::step
