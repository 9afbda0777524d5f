#include "Core/Utilities/Events/EventHandlerContainer.h"

#include "ReportRecorder.h"

#include <gmock/gmock.h>

namespace {

using namespace qev;
using testing::ElementsAre;

class Owner;
using OwnerEvents = EventHandlerContainer<Owner, int, int>;
using OwnerEvent = Event<Owner, int, int>;
using PlainEvents = EventHandlerContainer<void, void, std::string const&>;

char const* const sourcePath = "Core/Utilities/Events/EventHandlerContainer";

TEST(EventHandlerContainer, TheFirstIdIsOne)
{
    PlainEvents events;
    EXPECT_EQ(events.iHandlerAdd([](std::string const&) {}), 1);
    EXPECT_EQ(events.iHandlerAdd([](std::string const&) {}), 2);
}

TEST(EventHandlerContainer, IdsKeepRisingAfterRemovals)
{
    PlainEvents events;
    events.iHandlerAdd([](std::string const&) {});
    events.vHandlerRemove(events.iHandlerAdd([](std::string const&) {}));
    EXPECT_EQ(events.iHandlerAdd([](std::string const&) {}), 3);
}

TEST(EventHandlerContainer, HasNoListBeforeItsFirstHandler)
{
    PlainEvents events;
    EXPECT_EQ(events.handlers(), nullptr);
    events.vHandlerRemove(events.iHandlerAdd([](std::string const&) {}));
    ASSERT_NE(events.handlers(), nullptr);
    EXPECT_EQ(events.handlerCount(), 0u);
}

TEST(EventHandlerContainer, RemovingFromOneThatNeverHadAHandlerIsQuiet)
{
    PlainEvents events;
    events.vHandlerRemove(1);
    EXPECT_TRUE(test::takeReports().empty());
}

TEST(EventHandlerContainer, RemovingAnIdTwiceIsReportedTheSecondTime)
{
    PlainEvents events;
    int const id = events.iHandlerAdd([](std::string const&) {});
    events.vHandlerRemove(id);
    EXPECT_TRUE(test::takeReports().empty());
    events.vHandlerRemove(id);
    test::expectReport("Event handler doesn't exist",
                       "qev::EventHandlerContainer<Owner,Result,Args...>::vHandlerRemove", sourcePath);
}

TEST(EventHandlerContainer, RemovingKeepsTheOrderOfTheOthers)
{
    PlainEvents events;
    std::vector<int> calls;
    events.iHandlerAdd([&](std::string const&) { calls.push_back(1); });
    int const second = events.iHandlerAdd([&](std::string const&) { calls.push_back(2); });
    events.iHandlerAdd([&](std::string const&) { calls.push_back(3); });
    events.vHandlerRemove(second);
    fireEvents(events, "x");
    EXPECT_THAT(calls, ElementsAre(1, 3));
}

TEST(EventHandlerContainer, WithoutAnOwnerAllHandlersRunFromTheFirstAddedToTheLast)
{
    PlainEvents events;
    std::vector<std::string> calls;
    events.iHandlerAdd([&](std::string const& text) { calls.push_back("first " + text); });
    events.iHandlerAdd([&](std::string const& text) { calls.push_back("second " + text); });
    fireEvents(events, "a");
    EXPECT_THAT(calls, ElementsAre("first a", "second a"));
}

TEST(EventHandlerContainer, FiringWithoutHandlersDoesNothing)
{
    PlainEvents plain;
    fireEvents(plain, "a");
    OwnerEvents owned;
    EXPECT_EQ(fireEvent(owned, 7), 0);
}

TEST(EventHandlerContainer, TheLastHandlerOfAWalkMayDestroyTheContainer)
{
    auto events = std::make_unique<EventHandlerContainer<void>>();
    events->iHandlerAdd([&] { events.reset(); });
    fireEvents(*events);
    EXPECT_EQ(events, nullptr);
}

TEST(EventHandlerContainer, AnOwnersEventRunsTheHandlerAddedLastAlone)
{
    OwnerEvents events;
    std::vector<int> calls;
    events.iHandlerAdd([&](OwnerEvent&, int value) { return calls.push_back(1), value; });
    events.iHandlerAdd([&](OwnerEvent&, int value) { return calls.push_back(2), 10 * value; });
    EXPECT_EQ(fireEvent(events, 4), 40);
    EXPECT_THAT(calls, ElementsAre(2));
}

TEST(EventHandlerContainer, AHandlerMayForwardToTheOneBeforeIt)
{
    OwnerEvents events;
    std::vector<int> calls;
    events.iHandlerAdd([&](OwnerEvent& event, int value) {
        calls.push_back(1);
        EXPECT_EQ(event.nextIndex, 0u);
        return value + forwardEvent(event, value);
    });
    events.iHandlerAdd([&](OwnerEvent& event, int value) {
        calls.push_back(2);
        auto const next = event.container.pEventHandlerFromInd(event);
        return 100 + (*next)(event, value);
    });
    EXPECT_EQ(fireEvent(events, 4), 104);
    EXPECT_THAT(calls, ElementsAre(2, 1));
}

TEST(EventHandlerContainer, AnEventWithNothingLeftHasNoNextHandler)
{
    OwnerEvents events;
    events.iHandlerAdd([](OwnerEvent&, int) { return 1; });
    OwnerEvent event{events, 0};
    EXPECT_EQ(events.pEventHandlerFromInd(event), nullptr);
    EXPECT_EQ(event.nextIndex, 0u);
}

TEST(EventHandlerContainer, AnEventIndexBehindTheListIsReported)
{
    OwnerEvents events;
    events.iHandlerAdd([](OwnerEvent&, int) { return 1; });
    OwnerEvent event{events, 3};
    EXPECT_EQ(events.pEventHandlerFromInd(event), nullptr);
    EXPECT_EQ(event.nextIndex, 2u);
    test::expectReport("Index out of range",
                       "qev::EventHandlerContainer<Owner,Result,Args...>::pEventHandlerFromInd", sourcePath);
}

TEST(EventHandlerContainer, AnEmptyFunctionRaisesTheStandardExceptionWhenCalled)
{
    OwnerEvents events;
    events.iHandlerAdd(OwnerEvents::Function());
    EXPECT_THROW(fireEvent(events, 1), std::bad_function_call);
}

TEST(EventHandlerContainer, AHandlerMayRemoveItselfAndAddAnotherWhileItRuns)
{
    OwnerEvents events;
    int id = 0;
    std::string const state = "a text that is longer than what a string keeps inside of itself";
    id = events.iHandlerAdd([&events, &id, state](OwnerEvent&, int value) {
        events.vHandlerRemove(id);
        for (int i = 0; i < 10; ++i)
            events.iHandlerAdd([](OwnerEvent&, int other) { return -other; });
        return value + static_cast<int>(state.size());
    });
    EXPECT_EQ(fireEvent(events, 1), 1 + static_cast<int>(state.size()));
    EXPECT_EQ(fireEvent(events, 1), -1);
}

TEST(EventHandlerContainer, AHandlerKeepsItsStateBetweenEvents)
{
    EventHandlerContainer<Owner, int> events;
    events.iHandlerAdd([calls = 0](auto&) mutable { return ++calls; });
    fireEvent(events);
    EXPECT_EQ(fireEvent(events), 2);
}

TEST(EventHandlerContainer, ReferencesReachTheHandlerAsTheyAre)
{
    EventHandlerContainer<Owner, void, std::string&> events;
    events.iHandlerAdd([](auto&, std::string& text) { text += "!"; });
    std::string text = "changed";
    fireEvent(events, text);
    EXPECT_EQ(text, "changed!");
}

} // namespace
