#include "UI/FoundationClasses/Controls/PropertySetDefinitionFilterInterface.h"

namespace qev::fc::ui {

PropertySetDefinitionFilterInterface::~PropertySetDefinitionFilterInterface() = default;

} // namespace qev::fc::ui
