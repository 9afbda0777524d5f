#pragma once

#include "Core/Locale/Locale.h"
#include "Core/Localization/Dictionaries.h"
#include "HostCoreExport.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qev::localization {

/// Looks texts up in the current language.
///
/// The program has one, reached by `getAdminInstance`; a test can make its own. Use from one thread.
class HOSTCORE_EXPORT LocalizationAdmin
{
public:
    /// A line or file of a folder of dictionaries that was not understood; line 0 means the whole file.
    struct Message
    {
        std::filesystem::path file;
        std::size_t line = 0;
        std::string text;
    };

    explicit LocalizationAdmin(Dictionaries dictionaries);

    /// The text of \p key in the context, or nothing where no dictionary has one.
    [[nodiscard]] std::optional<std::string> text(std::string_view context, std::string_view key) const;

    /// English at the start.
    [[nodiscard]] locale::Locale const& language() const { return m_language; }
    void setLanguage(locale::Locale const& language) { m_language = language; }

    /// The languages in which there are texts.
    [[nodiscard]] std::vector<locale::Locale> languages() const;

    /// Adds texts; those of a key that is there already are replaced.
    void add(std::string const& context, locale::Locale const& language, Dictionary const& dictionary)
    {
        m_dictionaries.add(context, language, dictionary);
    }

    /// Reads all files "<context>.<language>.txt" of \p folder, the user's own. Of texts of the same key and
    /// language those of folders go first, the last folder before the others.
    /// \returns what was not understood; that is left out.
    std::vector<Message> addFolder(std::filesystem::path const& folder);
    /// Forgets the texts of all folders.
    void removeFolders() { m_ofUser = Dictionaries(); }

private:
    void addFile(std::filesystem::path const& file, std::vector<Message>& messages);

    Dictionaries m_dictionaries;
    Dictionaries m_ofUser;
    locale::Locale m_language;
};

} // namespace qev::localization

namespace qev::resource::localization {

/// The look-up of texts of the program, with the dictionaries that it brings along.
HOSTCORE_EXPORT qev::localization::LocalizationAdmin& getAdminInstance();

} // namespace qev::resource::localization
