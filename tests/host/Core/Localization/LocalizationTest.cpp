#include "Core/Localization/Localize.h"

#include "Core/Localization/LocalizationAdmin.h"
#include "Core/Utilities/ScopeGuard.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

namespace {

using namespace qev;
using localization::Dictionaries;
using localization::Dictionary;
using localization::LocalizationAdmin;
using testing::ElementsAre;
using testing::HasSubstr;

Dictionary dictionaryOf(std::string_view text) { return Dictionary::parse(text).dictionary; }

TEST(Dictionary, ReadsKeysAndTexts)
{
    auto const result =
        Dictionary::parse("\xEF\xBB\xBF# comment\r\n\r\nWall\tWand\r\nTwo words\ttext\twith tab\nlast\t");
    EXPECT_TRUE(result.errors.empty());
    EXPECT_EQ(result.dictionary.text("Wall"), "Wand");
    EXPECT_EQ(result.dictionary.text("Two words"), "text\twith tab");
    EXPECT_EQ(result.dictionary.text("last"), "");
    EXPECT_EQ(result.dictionary.text("wall"), std::nullopt);
    EXPECT_EQ(result.dictionary.size(), 3u);
}

TEST(Dictionary, ReadsEscapes)
{
    EXPECT_EQ(dictionaryOf("key\ta\\nb\\tc\\\\d\\x\\").text("key"), "a\nb\tc\\d\\x\\");
}

TEST(Dictionary, TellsLinesThatItDoesNotUnderstand)
{
    auto const result = Dictionary::parse("good\ttext\nbad\n\tno key\n");
    ASSERT_EQ(result.errors.size(), 2u);
    EXPECT_EQ(result.errors[0].line, 2u);
    EXPECT_EQ(result.errors[1].line, 3u);
    EXPECT_EQ(result.dictionary.size(), 1u);
}

TEST(Dictionaries, AskTheLanguageThenTheOneWithoutRegionThenEnglish)
{
    Dictionaries dictionaries;
    dictionaries.add("C", locale::Locale("en", ""), dictionaryOf("a\ta-en\nb\tb-en\nc\tc-en"));
    dictionaries.add("C", locale::Locale("de", ""), dictionaryOf("a\ta-de\nb\tb-de"));
    dictionaries.add("C", locale::Locale("de", "AT"), dictionaryOf("a\ta-at"));
    locale::Locale const austria("de", "AT");
    EXPECT_EQ(dictionaries.text("C", "a", austria), "a-at");
    EXPECT_EQ(dictionaries.text("C", "b", austria), "b-de");
    EXPECT_EQ(dictionaries.text("C", "c", austria), "c-en");
    EXPECT_EQ(dictionaries.text("C", "d", austria), std::nullopt);
    EXPECT_EQ(dictionaries.text("D", "a", austria), std::nullopt);
    EXPECT_THAT(dictionaries.languages(),
                ElementsAre(locale::Locale("de", ""), austria, locale::Locale("en", "")));
}

TEST(Dictionaries, TheStandardHasTwoContextsAndAnyOtherTopicItsOwn)
{
    EXPECT_THAT(Dictionaries::getContexts("IFC"), ElementsAre("Ifc", "IfcProperties"));
    EXPECT_THAT(Dictionaries::getContexts("FoundationClassesUi"), ElementsAre("FoundationClassesUi"));
}

TEST(Localize, GivesTheTextOrElseTheKey)
{
    EXPECT_EQ(localize("Pset_Name", "FoundationClassesUi"), "Property set");
    EXPECT_EQ(localize("NoSuchKey", "FoundationClassesUi"), "NoSuchKey");
    EXPECT_EQ(localize("Pset_Name", "NoSuchContext"), "Pset_Name");
}

TEST(Localize, PutsArgumentsInTheirPlaces)
{
    EXPECT_EQ(localize("%2, %1%2 %3 100%", "NoSuchContext", {"a", "%1"}), "%1, a%1 %3 100%");
    EXPECT_EQ(localize("Input_NotANumber", "Ui", {"x"}),
              "\"x\" is not a number that this property can take.");
}

TEST(Localize, FollowsTheCurrentLanguage)
{
    auto& admin = resource::localization::getAdminInstance();
    ScopeGuard const restore([&admin, language = admin.language()] { admin.setLanguage(language); });
    admin.setLanguage(*locale::Locale::fromCode("de-DE"));
    EXPECT_EQ(localize("LogicalValue_True", "FoundationClassesUi"), "Wahr");
    EXPECT_EQ(admin.text("IfcProperties", "Pset_WallCommon.FireRating"), "Feuerwiderstandsklasse");
    admin.setLanguage(locale::Locale::get(3));
    EXPECT_EQ(localize("LogicalValue_True", "FoundationClassesUi"), "Vrai");
    admin.setLanguage(locale::Locale::get(4));
    EXPECT_EQ(localize("LogicalValue_True", "FoundationClassesUi"), "True")
        << "Italian falls back to English";
}

class DictionaryFolder : public testing::Test
{
protected:
    DictionaryFolder()
        : m_folder(
              std::filesystem::temp_directory_path() /
              ("dictionaries-" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name())))
    {
        std::filesystem::remove_all(m_folder);
        std::filesystem::create_directory(m_folder);
    }

    ~DictionaryFolder() override { std::filesystem::remove_all(m_folder); }

    void write(std::string const& name, std::string const& text) { std::ofstream(m_folder / name) << text; }

    std::filesystem::path m_folder;
    LocalizationAdmin m_admin{Dictionaries::builtIn()};
};

TEST_F(DictionaryFolder, AddsAndReplacesTexts)
{
    write("FoundationClassesUi.en.txt", "Pset_Name\tSet\nOwn\tOwn text\n");
    write("Company.fr.txt", "Wall\tMur\n");
    EXPECT_TRUE(m_admin.addFolder(m_folder).empty());
    EXPECT_EQ(m_admin.text("FoundationClassesUi", "Pset_Name"), "Set");
    EXPECT_EQ(m_admin.text("FoundationClassesUi", "Own"), "Own text");
    EXPECT_EQ(m_admin.text("FoundationClassesUi", "PsetProperty_Name"), "Property");
    m_admin.setLanguage(locale::Locale::get(3));
    EXPECT_EQ(m_admin.text("Company", "Wall"), "Mur");
}

TEST_F(DictionaryFolder, GoesBeforeTextsThatAreAddedLater)
{
    write("FoundationClassesUi.en.txt", "Pset_Name\tSet\n");
    write("FoundationClassesUi.it.txt", "Pset_Name\tInsieme\n");
    m_admin.addFolder(m_folder);
    m_admin.add("FoundationClassesUi", locale::Locale(), dictionaryOf("Pset_Name\tOther"));
    EXPECT_EQ(m_admin.text("FoundationClassesUi", "Pset_Name"), "Set");
    EXPECT_THAT(m_admin.languages(), testing::Contains(locale::Locale("it", "")));
    m_admin.removeFolders();
    EXPECT_EQ(m_admin.text("FoundationClassesUi", "Pset_Name"), "Other");
    EXPECT_THAT(m_admin.languages(), testing::Not(testing::Contains(locale::Locale("it", ""))));
}

TEST_F(DictionaryFolder, DoesNotHideTheProgramsTextInTheCurrentLanguage)
{
    write("FoundationClassesUi.en.txt", "Pset_Name\tSet\n");
    m_admin.addFolder(m_folder);
    m_admin.setLanguage(locale::Locale("de", "AT"));
    EXPECT_EQ(m_admin.text("FoundationClassesUi", "Pset_Name"), "Merkmalsatz");
}

TEST_F(DictionaryFolder, TellsWhatItDoesNotUnderstandAndTakesTheRest)
{
    write("nolanguage.txt", "a\tb\n");
    write("Company.en.txt", "good\ttext\nbad\n");
    write("readme.md", "not a dictionary");
    auto const messages = m_admin.addFolder(m_folder);
    ASSERT_EQ(messages.size(), 2u);
    EXPECT_EQ(messages[0].file.filename(), "Company.en.txt");
    EXPECT_EQ(messages[0].line, 2u);
    EXPECT_EQ(messages[1].file.filename(), "nolanguage.txt");
    EXPECT_EQ(messages[1].line, 0u);
    EXPECT_THAT(messages[1].text, HasSubstr("<context>.<language>.txt"));
    EXPECT_EQ(m_admin.text("Company", "good"), "text");
}

TEST_F(DictionaryFolder, TellsAFolderThatIsNotThere)
{
    auto const messages = m_admin.addFolder(m_folder / "missing");
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].file, m_folder / "missing");
}

} // namespace
