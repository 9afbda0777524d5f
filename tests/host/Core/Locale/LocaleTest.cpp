#include "Core/Locale/Locale.h"

#include <gtest/gtest.h>

namespace {

using qev::locale::Locale;

TEST(Locale, TheNumbersAreFixed)
{
    EXPECT_EQ(Locale::get(0).code(), "en-US");
    EXPECT_EQ(Locale::get(1).code(), "en");
    EXPECT_EQ(Locale::get(2).code(), "de");
    EXPECT_EQ(Locale::get(3).code(), "fr");
}

TEST(Locale, AnUnknownNumberIsEnglish)
{
    EXPECT_EQ(Locale::get(-1), Locale());
    EXPECT_EQ(Locale::get(1000), Locale());
    EXPECT_EQ(Locale().code(), "en");
}

TEST(Locale, CodesAreReadInTheirUsualSpellings)
{
    EXPECT_EQ(Locale::fromCode("de"), Locale("de", ""));
    EXPECT_EQ(Locale::fromCode("de-DE"), Locale("de", "DE"));
    EXPECT_EQ(Locale::fromCode("DE_at"), Locale("de", "AT"));
    EXPECT_EQ(Locale::fromCode("de_DE.UTF-8"), Locale("de", "DE"));
}

TEST(Locale, OtherTextsAreNoCodes)
{
    for (char const* const text : {"", "d", "de-", "de-DEU", "german", "C.UTF-8", "d1", "-DE"})
        EXPECT_FALSE(Locale::fromCode(text)) << text;
}

TEST(Locale, KnowsTheDecimalSign)
{
    for (char const* const code : {"en", "en-GB", "ja", "de-CH", "es-MX"})
        EXPECT_EQ(Locale::fromCode(code)->decimalSign(), '.') << code;
    for (char const* const code : {"de", "de-AT", "fr", "es-ES", "pt-BR"})
        EXPECT_EQ(Locale::fromCode(code)->decimalSign(), ',') << code;
}

TEST(Locale, CanLoseItsRegion) { EXPECT_EQ(Locale("de", "AT").withoutRegion(), Locale::get(2)); }

} // namespace
