#include "reference-reader/StepNumber.h"

#include <locale>
#include <sstream>

namespace qev::test::reference {

std::optional<double> numberOf(StepArgument const& argument)
{
    if (argument.kind == StepArgument::Kind::Typed && argument.items.size() == 1)
        return numberOf(argument.items[0]);
    if (!argument.isNumber())
        return std::nullopt;
    std::istringstream stream(argument.text);
    stream.imbue(std::locale::classic());
    double number = 0.0;
    stream >> number;
    return stream.fail() ? std::nullopt : std::optional(number);
}

} // namespace qev::test::reference
