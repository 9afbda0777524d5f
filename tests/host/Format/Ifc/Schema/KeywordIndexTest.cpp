#include "Format/Ifc/Schema/KeywordIndex.h"

#include <gtest/gtest.h>

namespace {

using qev::ifc::KeywordIndex;

TEST(KeywordIndex, EveryKeywordIsFoundAtItsPosition)
{
    std::vector<std::string> keywords;
    for (int number = 0; number < 900; ++number)
        keywords.push_back("IFC" + std::string(static_cast<std::size_t>(number % 7), 'X') +
                           std::to_string(number));
    KeywordIndex index(keywords.size());
    for (std::size_t position = 0; position < keywords.size(); ++position)
        EXPECT_TRUE(index.add(keywords[position], static_cast<std::uint16_t>(position)));
    for (std::size_t position = 0; position < keywords.size(); ++position)
        EXPECT_EQ(index.find(keywords[position]), position);
}

// All of these have the same ends and the same length, so that only the comparison tells them apart.
TEST(KeywordIndex, KeywordsWithEqualEndsAreToldApart)
{
    std::vector<std::string> keywords;
    for (char letter = 'A'; letter <= 'Z'; ++letter)
        keywords.push_back(std::string("IFCSTART") + letter + "ENDENDEN");
    KeywordIndex index(keywords.size());
    for (std::size_t position = 0; position < keywords.size(); ++position)
        index.add(keywords[position], static_cast<std::uint16_t>(position));
    for (std::size_t position = 0; position < keywords.size(); ++position)
        EXPECT_EQ(index.find(keywords[position]), position);
    EXPECT_EQ(index.find("IFCSTART_ENDENDEN"), KeywordIndex::notFound);
}

TEST(KeywordIndex, AKeywordIsAddedOnce)
{
    KeywordIndex index(2);
    EXPECT_TRUE(index.add("IFCWALL", 0));
    EXPECT_FALSE(index.add("IFCWALL", 1));
    EXPECT_EQ(index.find("IFCWALL"), 0);
}

TEST(KeywordIndex, WhatIsNotThereIsNotFound)
{
    KeywordIndex index(1);
    EXPECT_EQ(index.find(""), KeywordIndex::notFound);
    EXPECT_EQ(index.find("IFCWALL"), KeywordIndex::notFound);
    index.add("IFCWALL", 0);
    EXPECT_EQ(index.find("IFCWAL"), KeywordIndex::notFound);
    EXPECT_EQ(index.find("IFCWALLX"), KeywordIndex::notFound);
    EXPECT_EQ(index.find("ifcwall"), KeywordIndex::notFound);
}

} // namespace
