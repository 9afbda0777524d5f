#include "Format/Ifc/Step/StepMessage.h"

#include <utility>

namespace qev::step {

namespace {

char const* nameOf(StepMessage::Severity severity)
{
    switch (severity) {
    case StepMessage::Severity::Warning:
        return "warning";
    case StepMessage::Severity::Error:
        return "error";
    case StepMessage::Severity::Refused:
        break;
    }
    return "refused";
}

} // namespace

std::string StepMessage::toString() const
{
    std::string result = nameOf(severity);
    if (line != 0)
        result += " in line " + std::to_string(line);
    if (record)
        result += ", record #" + std::to_string(*record);
    return result + ": " + text;
}

void StepMessages::add(StepMessage message)
{
    if (full())
        ++m_dropped;
    else
        m_messages.push_back(std::move(message));
}

} // namespace qev::step
