#pragma once

#include "Ui/Window/Controls/PropertyGridControl/PropertyGridProperty.h"

namespace qev::ui {

/// An empty row, which keeps others apart.
class HOSTUI_EXPORT PropertyGridEmptyLineProperty : public PropertyGridProperty
{
public:
    PropertyGridEmptyLineProperty();
};

} // namespace qev::ui
