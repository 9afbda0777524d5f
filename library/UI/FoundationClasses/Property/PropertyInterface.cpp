#include "UI/FoundationClasses/Property/PropertyInterface.h"

namespace qev::fc::ui {

PropertyInterface::~PropertyInterface() = default;

} // namespace qev::fc::ui
