#pragma once

#include "RowStrategy.h"

#include <string>

namespace qev::application {

/// Lets the rows of properties without a value say so.
class UnsetHint final : public RowStrategy
{
public:
    /// \p text is what stands in place of a value.
    explicit UnsetHint(std::string text);
    ~UnsetHint() override;

    void onPropertyCreated(std::string const& setName, std::string const& propertyName,
                           ui::PropertyGridProperty& property) override;

private:
    std::string m_text;
};

} // namespace qev::application
