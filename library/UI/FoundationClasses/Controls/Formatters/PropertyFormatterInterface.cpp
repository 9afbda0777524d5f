#include "UI/FoundationClasses/Controls/Formatters/PropertyFormatterInterface.h"

namespace qev::fc::ui {

PropertyFormatterInterface::~PropertyFormatterInterface() = default;

} // namespace qev::fc::ui
