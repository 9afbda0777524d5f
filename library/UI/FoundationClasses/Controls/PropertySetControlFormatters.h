#pragma once

#include "UI/FoundationClasses/Controls/Formatters/PropertyFormatterInterface.h"

#include <memory>

namespace qev::fc::ui {

/// The formatters that a control is made with: the one for all controls, and the one for its own flavour.
template <class FormatterInterface>
struct PropertySetControlFormatters
{
    /// May be null.
    std::shared_ptr<PropertyFormatterInterface> propertyFormatter;
    /// May be null, unless the control says otherwise.
    std::shared_ptr<FormatterInterface> controlFormatter;
};

} // namespace qev::fc::ui
