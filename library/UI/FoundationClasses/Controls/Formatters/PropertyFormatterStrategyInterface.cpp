#include "UI/FoundationClasses/Controls/Formatters/PropertyFormatterStrategyInterface.h"

namespace qev::fc::ui {

PropertyFormatterStrategyInterface::~PropertyFormatterStrategyInterface() = default;

} // namespace qev::fc::ui
