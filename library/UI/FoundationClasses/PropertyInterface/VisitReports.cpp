#include "UI/FoundationClasses/PropertyInterface/VisitReports.h"

#include "Core/Assert/Assert.h"

#include <string>

namespace qev::fc::ui::propertyinterface {

namespace {

constexpr unsigned int notImplemented = 1;

void report(std::string_view text, std::string_view visitor, std::string_view entityClass, unsigned int kind)
{
    auto const function = "qev::fc::ui::propertyinterface::" + std::string(visitor) + "::visit";
    auto const path =
        "UI/FoundationClasses/PropertyInterface/PropertyInterfaceVisit" + std::string(entityClass);
    assert::report(text, function, path, kind);
}

} // namespace

void reportInVisit(std::string_view text, std::string_view visitor, std::string_view entityClass)
{
    report(text, visitor, entityClass, 0);
}

void reportSetValueNotImplemented(std::string_view entityClass)
{
    report("Not implemented", "SetValue", entityClass, notImplemented);
}

} // namespace qev::fc::ui::propertyinterface
