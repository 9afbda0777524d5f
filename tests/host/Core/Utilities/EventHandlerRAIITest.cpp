#include "Core/Utilities/Events/EventHandlerRAII.h"

#include <gmock/gmock.h>

namespace {

using namespace qev;
using fc::ui::EventHandlerRAII;

class Owner;

TEST(EventHandlerRAII, ItsHandlerTakesTheArgumentsAlone)
{
    EventHandlerContainer<Owner, int, int, std::string> events;
    EventHandlerRAII const attachment(
        events, [](int count, std::string const& text) { return count * static_cast<int>(text.size()); });
    EXPECT_EQ(fireEvent(events, 3, "four"), 12);
}

TEST(EventHandlerRAII, DropsWhatTheHandlerReturnsWhereTheEventHasNoResult)
{
    EventHandlerContainer<Owner, void, int> events;
    std::set<int> seen;
    EventHandlerRAII const attachment(events, [&seen](int value) { return seen.insert(value).second; });
    fireEvent(events, 3);
    EXPECT_EQ(seen, std::set<int>{3});
}

TEST(EventHandlerRAII, EndsTheAttachmentWithItsOwnLifetime)
{
    EventHandlerContainer<Owner, void> events;
    {
        EventHandlerRAII const attachment(events, [] {});
        EXPECT_EQ(events.handlerCount(), 1u);
    }
    EXPECT_EQ(events.handlerCount(), 0u);
}

TEST(EventHandlerRAII, AttachesToContainersWithoutAnOwnerToo)
{
    EventHandlerContainer<void, void, int> events;
    int sum = 0;
    {
        EventHandlerRAII const attachment(events, [&](int value) { sum += value; });
        fireEvents(events, 5);
    }
    fireEvents(events, 7);
    EXPECT_EQ(sum, 5);
}

TEST(EventHandlerRAII, MovedIntoAVectorItRemovesTheHandlerWithTheVectorAndNotBefore)
{
    EventHandlerContainer<Owner, void> events;
    {
        std::vector<EventHandlerRAII> attachments;
        {
            EventHandlerRAII attachment(events, [] {});
            attachments.push_back(std::move(attachment));
        }
        for (int i = 0; i < 10; ++i)
            attachments.emplace_back(events, [] {});
        EXPECT_EQ(events.handlerCount(), 11u);
    }
    EXPECT_EQ(events.handlerCount(), 0u);
}

TEST(EventHandlerRAII, AssignmentEndsTheAttachmentItHadBefore)
{
    EventHandlerContainer<Owner, int> events;
    EventHandlerRAII attachment(events, [] { return 1; });
    attachment = EventHandlerRAII(events, [] { return 2; });
    EXPECT_EQ(events.handlerCount(), 1u);
    EXPECT_EQ(fireEvent(events), 2);
}

static_assert(!std::is_copy_constructible_v<EventHandlerRAII>);
static_assert(std::is_nothrow_move_constructible_v<EventHandlerRAII>);

} // namespace
