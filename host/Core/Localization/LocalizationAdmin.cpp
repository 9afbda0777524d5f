#include "Core/Localization/LocalizationAdmin.h"

#include "Core/String/Utf8.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <system_error>
#include <utility>

namespace qev::localization {

namespace {

/// "context" and "language" of "context.language".
std::optional<std::pair<std::string, locale::Locale>> placeOf(std::string const& stem)
{
    auto const dot = stem.rfind('.');
    if (dot == std::string::npos || dot == 0)
        return std::nullopt;
    auto const language = locale::Locale::fromCode(stem.substr(dot + 1));
    if (!language)
        return std::nullopt;
    return std::pair(stem.substr(0, dot), *language);
}

} // namespace

LocalizationAdmin::LocalizationAdmin(Dictionaries dictionaries)
    : m_dictionaries(std::move(dictionaries))
{
}

std::optional<std::string> LocalizationAdmin::text(std::string_view context, std::string_view key) const
{
    for (auto const& language : Dictionaries::getFallbacks(m_language)) {
        for (auto const* const dictionaries : {&m_ofUser, &m_dictionaries}) {
            if (auto text = dictionaries->exactText(context, key, language))
                return text;
        }
    }
    return std::nullopt;
}

std::vector<locale::Locale> LocalizationAdmin::languages() const
{
    auto result = m_dictionaries.languages();
    auto const ofUser = m_ofUser.languages();
    result.insert(result.end(), ofUser.begin(), ofUser.end());
    std::sort(result.begin(), result.end());
    result.erase(std::unique(result.begin(), result.end()), result.end());
    return result;
}

std::vector<LocalizationAdmin::Message> LocalizationAdmin::addFolder(std::filesystem::path const& folder)
{
    std::vector<Message> messages;
    std::vector<std::filesystem::path> files;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        if (entry->path().extension() == ".txt")
            files.push_back(entry->path());
    }
    if (error)
        messages.push_back({folder, 0, error.message()});
    std::sort(files.begin(), files.end());
    for (auto const& file : files)
        addFile(file, messages);
    return messages;
}

void LocalizationAdmin::addFile(std::filesystem::path const& file, std::vector<Message>& messages)
{
    auto const place = placeOf(str::utf8FromPath(file.stem()));
    if (!place) {
        messages.push_back({file, 0, "expected a name of the form <context>.<language>.txt"});
        return;
    }
    std::ifstream stream(file, std::ios::binary);
    std::string const text{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    if (!stream) {
        messages.push_back({file, 0, "cannot be read"});
        return;
    }
    auto const result = Dictionary::parse(text);
    for (auto const& parseError : result.errors)
        messages.push_back({file, parseError.line, parseError.text});
    m_ofUser.add(place->first, place->second, result.dictionary);
}

} // namespace qev::localization

namespace qev::resource::localization {

qev::localization::LocalizationAdmin& getAdminInstance()
{
    static qev::localization::LocalizationAdmin admin(qev::localization::Dictionaries::builtIn());
    return admin;
}

} // namespace qev::resource::localization
