#pragma once

#include "UI/FoundationClasses/Controls/PropertySetDefinitionFilterInterface.h"

namespace qev::application {

/// Shows every set and every property; without a filter a property set has no rows.
class ShowAllFilter final : public fc::ui::PropertySetDefinitionFilterInterface
{
public:
    void setObject(std::shared_ptr<fc::FcBase>) override {}
    [[nodiscard]] bool isSetIncluded(std::string const&) const override { return true; }
    [[nodiscard]] bool isPropertyIncluded(std::string const&, std::string const&) const override
    {
        return true;
    }
};

} // namespace qev::application
