#include "Core/Utilities/ScopeGuard.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using qev::ScopeGuard;

TEST(ScopeGuard, RunsItsFunctionWhenTheScopeIsLeft)
{
    int calls = 0;
    {
        ScopeGuard const guard([&] { ++calls; });
        EXPECT_EQ(calls, 0);
    }
    EXPECT_EQ(calls, 1);
}

TEST(ScopeGuard, RunsItsFunctionWhenAnExceptionLeavesTheScope)
{
    int calls = 0;
    auto const fails = [&] {
        ScopeGuard const guard([&] { ++calls; });
        throw std::runtime_error("out of here");
    };
    EXPECT_THROW(fails(), std::runtime_error);
    EXPECT_EQ(calls, 1);
}

TEST(ScopeGuard, ADismissedOneDoesNothing)
{
    int calls = 0;
    {
        ScopeGuard guard([&] { ++calls; });
        guard.dismiss();
    }
    EXPECT_EQ(calls, 0);
}

} // namespace
