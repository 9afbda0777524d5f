#include "UI/FoundationClasses/Controls/Formatters/ListControlPropertyFormatterInterface.h"

namespace qev::fc::ui {

ListControlPropertyFormatterInterface::~ListControlPropertyFormatterInterface() = default;

} // namespace qev::fc::ui
