#include "Core/Assert/Assert.h"

#include <iostream>
#include <utility>

namespace qev::assert {

namespace {

struct State
{
    bool enabled = true;
    Assert::Handler handler;
};

State& state()
{
    static State instance;
    return instance;
}

} // namespace

bool Assert::isEnabled() { return state().enabled; }

void Assert::setEnabled(bool enabled) { state().enabled = enabled; }

void Assert::addAssert(AssertInfo const& info)
{
    if (state().handler) {
        state().handler(info);
        return;
    }
    std::cerr << "Assertion: " << info.text << " (" << info.function << ", " << info.path << ':' << info.line
              << ")\n";
}

Assert::Handler Assert::setHandler(Handler handler)
{
    return std::exchange(state().handler, std::move(handler));
}

void report(std::string_view text, std::string_view function, std::string_view path, unsigned int kind,
            unsigned int line)
{
    if (!Assert::isEnabled())
        return;
    Assert::addAssert({kind, std::string(text), std::string(function), std::string(path), line});
}

} // namespace qev::assert
