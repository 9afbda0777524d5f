#include "FoundationClasses/Localize.h"

#include "Core/Id/Guid.h"
#include "Core/Localization/LocalizationAdmin.h"
#include "Core/Utilities/ScopeGuard.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace {

using namespace qev;

TEST(Localize, GivesTheKeyBackWhereThereIsNoText)
{
    EXPECT_EQ(fc::localize("No such key"), "No such key");
    EXPECT_EQ(fc::localize("IfcSite", "NoSuchAttribute"), "NoSuchAttribute");
}

TEST(Localize, GivesTheFallbackWhereThereIsNoText)
{
    EXPECT_EQ(fc::localizeWithFallback("No such key", "Fallback"), "Fallback");
    EXPECT_EQ(fc::localizeWithFallback("No such key", ""), "");
}

TEST(Localize, TakesTheTextOfTheDictionaries)
{
    auto const folder = std::filesystem::temp_directory_path() / ("qev-" + Guid::generate().toString());
    std::filesystem::create_directories(folder);
    ScopeGuard const guard([&folder] { std::filesystem::remove_all(folder); });
    std::ofstream(folder / "Ifc.en.txt")
        << "LocalizeTestKey\tA text\nIfcSite.LocalizeTestKey\tA text of the site\n";
    ASSERT_TRUE(resource::localization::getAdminInstance().addFolder(folder).empty());

    EXPECT_EQ(fc::localize("LocalizeTestKey"), "A text");
    EXPECT_EQ(fc::localize("IfcSite", "LocalizeTestKey"), "A text of the site");
    EXPECT_EQ(fc::localize("IfcWall", "LocalizeTestKey"), "LocalizeTestKey");
    EXPECT_EQ(fc::localizeWithFallback("LocalizeTestKey", "Fallback"), "A text");
}

} // namespace
