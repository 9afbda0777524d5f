#include "UI/FoundationClasses/Controls/Formatters/PropertyGridControlPropertyFormatterStrategyInterface.h"

namespace qev::fc::ui {

PropertyGridControlPropertyFormatterStrategyInterface::
    ~PropertyGridControlPropertyFormatterStrategyInterface() = default;

} // namespace qev::fc::ui
