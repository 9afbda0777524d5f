#include "UI/FoundationClasses/Property/PropertySettingsInterface.h"

namespace qev::fc::ui {

PropertySettingsInterface::~PropertySettingsInterface() = default;

} // namespace qev::fc::ui
