#pragma once

#include "RowStrategy.h"

namespace qev::application {

/// Refuses what the model would not take before a row takes it, with a message for the user.
class RowInputCheck final : public RowStrategy
{
public:
    ~RowInputCheck() override;

    void onPropertyCreated(std::string const& setName, std::string const& propertyName,
                           ui::PropertyGridProperty& property) override;
};

} // namespace qev::application
