#include "UI/FoundationClasses/Controls/Formatters/ListControlPropertyFormatterStrategyInterface.h"

namespace qev::fc::ui {

ListControlPropertyFormatterStrategyInterface::~ListControlPropertyFormatterStrategyInterface() = default;

} // namespace qev::fc::ui
