#include "UI/FoundationClasses/PropertyInterface/VisitReports.h"

#include "Core/Assert/Assert.h"

#include <string>

namespace qev::fc::ui::propertyinterface {

namespace {

// Kinds of reports.
constexpr unsigned int brokenRule = 0;
constexpr unsigned int notImplemented = 1;

void report(std::string_view text, std::string_view visitor, std::string_view entityClass, unsigned int kind,
            unsigned int line)
{
    auto const function = "qev::fc::ui::propertyinterface::" + std::string(visitor) + "::visit";
    auto const path =
        "UI/FoundationClasses/PropertyInterface/PropertyInterfaceVisit" + std::string(entityClass);
    assert::report(text, function, path, kind, line);
}

} // namespace

void reportInVisit(std::string_view text, std::string_view visitor, std::string_view entityClass,
                   unsigned int line)
{
    report(text, visitor, entityClass, brokenRule, line);
}

void reportSetValueNotImplemented(std::string_view entityClass, unsigned int line)
{
    report("Not implemented", "SetValue", entityClass, notImplemented, line);
}

} // namespace qev::fc::ui::propertyinterface
