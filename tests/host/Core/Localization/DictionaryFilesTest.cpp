#include "Core/Localization/Dictionary.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <vector>

/// The dictionaries that the program brings along, held against each other and against the sources.
namespace {

using qev::localization::Dictionary;
using testing::Contains;
using testing::IsEmpty;

std::filesystem::path const root = QEV_SOURCE_DIRECTORY;

std::string readText(std::filesystem::path const& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

Dictionary::ParseResult read(std::string const& context, std::string const& language)
{
    return Dictionary::parse(readText(root / "data/dictionaries" / (context + "." + language + ".txt")));
}

std::set<std::string> keysOf(Dictionary const& dictionary)
{
    std::set<std::string> keys;
    for (auto const& [key, text] : dictionary.texts())
        keys.insert(key);
    return keys;
}

/// "%1" and the like, in the order of their numbers.
std::set<std::string> placesOf(std::string const& text)
{
    std::set<std::string> places;
    for (auto place = text.find('%'); place != std::string::npos; place = text.find('%', place + 1))
        places.insert(text.substr(place, 2));
    return places;
}

/// The first text in double quotes behind each \p opening in the sources below \p folder.
std::set<std::string> textsBehind(std::string const& opening, char const* folder)
{
    std::set<std::string> texts;
    for (auto const& entry : std::filesystem::recursive_directory_iterator(root / folder)) {
        if (entry.path().extension() != ".cpp")
            continue;
        auto const source = readText(entry.path());
        for (auto place = source.find(opening); place != std::string::npos;
             place = source.find(opening, place + 1)) {
            auto const start = place + opening.size();
            texts.insert(source.substr(start, source.find('"', start) - start));
        }
    }
    return texts;
}

std::string sourcesBelow(char const* folder)
{
    std::string sources;
    for (auto const& entry : std::filesystem::recursive_directory_iterator(root / folder)) {
        if (entry.path().extension() == ".cpp")
            sources += readText(entry.path());
    }
    return sources;
}

class DictionaryFiles : public testing::TestWithParam<std::string>
{
};

TEST_P(DictionaryFiles, AreUnderstoodToTheLastLineInEachLanguage)
{
    for (char const* const language : {"en", "de", "fr"}) {
        auto const file = root / "data/dictionaries" / (GetParam() + "." + language + ".txt");
        auto const text = readText(file);
        auto const result = Dictionary::parse(text);
        EXPECT_THAT(result.errors, IsEmpty()) << file;
        auto const lines = std::count(text.begin(), text.end(), '\t');
        EXPECT_EQ(static_cast<std::size_t>(lines), result.dictionary.size())
            << "a key stands twice in " << file;
    }
}

TEST_P(DictionaryFiles, HaveTheSameKeysInEachLanguage)
{
    auto const english = keysOf(read(GetParam(), "en").dictionary);
    EXPECT_FALSE(english.empty());
    for (char const* const language : {"de", "fr"})
        EXPECT_EQ(keysOf(read(GetParam(), language).dictionary), english) << language;
}

TEST_P(DictionaryFiles, HaveATextWithTheSameArgumentsForEachKey)
{
    auto const english = read(GetParam(), "en").dictionary;
    for (char const* const language : {"en", "de", "fr"}) {
        auto const dictionary = read(GetParam(), language).dictionary;
        for (auto const& [key, text] : dictionary.texts()) {
            EXPECT_FALSE(text.empty()) << language << ": " << key;
            EXPECT_EQ(placesOf(text), placesOf(english.text(key).value_or(""))) << language << ": " << key;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, DictionaryFiles,
                         testing::Values("FoundationClassesUi", "Ifc", "Inspector", "Ui", "Units"),
                         [](auto const& tested) { return tested.param; });

/// The names of the standard are English, so that there is no file for English.
TEST(DictionaryFilesOfTheStandard, HaveTheSameKeysInEachLanguage)
{
    auto const german = read("IfcProperties", "de");
    auto const french = read("IfcProperties", "fr");
    EXPECT_THAT(german.errors, IsEmpty());
    EXPECT_THAT(french.errors, IsEmpty());
    EXPECT_GT(german.dictionary.size(), 100u);
    EXPECT_EQ(keysOf(german.dictionary), keysOf(french.dictionary));
}

TEST(DictionaryFilesOfTheLibrary, HaveEveryKeyThatTheSourcesName)
{
    auto const keys = keysOf(read("FoundationClassesUi", "en").dictionary);
    auto named = textsBehind("localizedText({\"FoundationClassesUi\"}, \"", "library");
    auto const sources = sourcesBelow("library");
    std::string const closing = "\", \"FoundationClassesUi\"";
    for (auto place = sources.find(closing); place != std::string::npos;
         place = sources.find(closing, place + 1)) {
        auto const start = sources.rfind('"', place - 1) + 1;
        named.insert(sources.substr(start, place - start));
    }
    EXPECT_FALSE(named.empty());
    for (auto const& key : named)
        EXPECT_THAT(keys, Contains(key));
}

TEST(DictionaryFilesOfTheToolkit, HaveEveryKeyThatTheSourcesName)
{
    auto const keys = keysOf(read("Ui", "en").dictionary);
    auto const sources = sourcesBelow("host/Ui") + sourcesBelow("host/Edit");
    for (auto const* const folder : {"host/Ui", "host/Edit"})
        for (auto const& key : textsBehind("localize(\"", folder))
            EXPECT_THAT(keys, Contains(key));
    for (auto const& key : keys)
        EXPECT_NE(sources.find('"' + key + '"'), std::string::npos) << key;
}

TEST(DictionaryFilesOfTheInspector, HaveEveryKeyThatTheSourcesNameAndNoOther)
{
    auto const keys = keysOf(read("Inspector", "en").dictionary);
    auto const named = textsBehind("getText(\"", "application/desktop");
    EXPECT_FALSE(named.empty());
    for (auto const& key : named)
        EXPECT_THAT(keys, Contains(key));
    auto const sources = sourcesBelow("application/desktop");
    for (auto const& key : keys)
        EXPECT_NE(sources.find('"' + key + '"'), std::string::npos) << key;
}

} // namespace
