#pragma once

#include "Core/Localization/LocalizationAdmin.h"

#include <string>

namespace qev::test {

/// While it lives, the program has no texts but those that a test adds.
///
/// \code
/// TranslationScope texts;
/// texts.add("IfcWall", "Wand");
/// \endcode
class TranslationScope
{
public:
    TranslationScope()
    {
        resource::localization::getAdminInstance() =
            localization::LocalizationAdmin(localization::Dictionaries());
    }
    ~TranslationScope() { resource::localization::getAdminInstance() = m_before; }
    TranslationScope(TranslationScope const&) = delete;
    TranslationScope& operator=(TranslationScope const&) = delete;

    /// A text among the names of the standard, in English.
    void add(std::string key, std::string text) { addIn("Ifc", std::move(key), std::move(text)); }
    /// A text of any context, such as "FoundationClassesUi".
    void addIn(std::string const& context, std::string key, std::string text)
    {
        localization::Dictionary dictionary;
        dictionary.set(std::move(key), std::move(text));
        resource::localization::getAdminInstance().add(context, locale::Locale(), dictionary);
    }

private:
    localization::LocalizationAdmin m_before = resource::localization::getAdminInstance();
};

} // namespace qev::test
