#include "UI/FoundationClasses/Controls/Formatters/PropertyGridControlPropertyFormatterInterface.h"

namespace qev::fc::ui {

PropertyGridControlPropertyFormatterInterface::~PropertyGridControlPropertyFormatterInterface() = default;

} // namespace qev::fc::ui
