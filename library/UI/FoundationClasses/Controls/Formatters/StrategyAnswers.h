#pragma once

#include "Core/Assert/Assert.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qev::fc::ui {

/// The first answer that a strategy gives to \p ask, in the order in which they were added; the others are
/// not asked. \p fallback when none answers.
template <class Strategy, class Ask, class Answer>
[[nodiscard]] Answer firstAnswer(std::vector<std::shared_ptr<Strategy>> const& strategies, Ask const& ask,
                                 Answer fallback)
{
    for (auto const& strategy : strategies) {
        if (auto answer = ask(*strategy))
            return Answer(std::move(*answer));
    }
    return fallback;
}

/// Tells all strategies, in the order in which they were added.
template <class Strategy, class Tell>
void tellAll(std::vector<std::shared_ptr<Strategy>> const& strategies, Tell const& tell)
{
    for (auto const& strategy : strategies)
        tell(*strategy);
}

/// Appends a strategy. Null is reported for \p className, and left out.
template <class Strategy>
void appendStrategy(std::vector<std::shared_ptr<Strategy>>& strategies,
                    std::shared_ptr<Strategy> const& strategy, std::string_view className)
{
    if (strategy) {
        strategies.push_back(strategy);
        return;
    }
    assert::report("Strategy is nullptr.", "qev::fc::ui::" + std::string(className) + "::addStrategy",
                   "UI/FoundationClasses/Controls/Formatters/" + std::string(className));
}

} // namespace qev::fc::ui
