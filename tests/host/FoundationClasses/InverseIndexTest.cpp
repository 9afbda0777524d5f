#include "FoundationClasses/InverseIndex.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev;
using fc::InverseIndex;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pointee;

TEST(InverseIndex, KnowsNothingAtFirst)
{
    InverseIndex const index;
    EXPECT_EQ(index.find(1), nullptr);
    EXPECT_EQ(index.knownTargets(), 0u);
}

TEST(InverseIndex, KnowsTheTargetsThatItLearnt)
{
    InverseIndex index;
    index.learn(1, {12, 11});
    index.learn(2, {});
    EXPECT_THAT(index.find(1), Pointee(ElementsAre(11u, 12u)));
    EXPECT_THAT(index.find(2), Pointee(IsEmpty()));
    EXPECT_EQ(index.find(3), nullptr);
    EXPECT_EQ(index.knownTargets(), 2u);
}

TEST(InverseIndex, ChangesWhatItKnowsOnly)
{
    InverseIndex index;
    index.learn(1, {12});
    index.add(1, 11);
    index.add(1, 11);
    index.add(2, 11);
    index.remove(1, 12);
    index.remove(2, 12);
    EXPECT_THAT(index.find(1), Pointee(ElementsAre(11u)));
    EXPECT_EQ(index.find(2), nullptr);
}

TEST(InverseIndex, KnowsEveryTargetOnceItLearntAll)
{
    InverseIndex index;
    index.learnAll({{2, 12}, {1, 11}, {2, 11}, {2, 12}});
    EXPECT_THAT(index.find(1), Pointee(ElementsAre(11u)));
    EXPECT_THAT(index.find(2), Pointee(ElementsAre(11u, 12u)));
    EXPECT_THAT(index.find(3), Pointee(IsEmpty()));

    index.add(3, 13);
    index.remove(2, 11);
    EXPECT_THAT(index.find(2), Pointee(ElementsAre(12u)));
    EXPECT_THAT(index.find(3), Pointee(ElementsAre(13u)));
}

TEST(InverseIndex, KeepsWhatChangedBeforeItLearntAll)
{
    InverseIndex index;
    index.learn(1, {11});
    index.add(1, 13);
    index.learnAll({{1, 11}, {1, 13}, {2, 12}});
    EXPECT_THAT(index.find(1), Pointee(ElementsAre(11u, 13u)));
    EXPECT_THAT(index.find(2), Pointee(ElementsAre(12u)));
}

} // namespace
