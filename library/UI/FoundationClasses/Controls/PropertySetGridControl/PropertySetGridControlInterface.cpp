#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertySetGridControlInterface.h"

namespace qev::fc::ui {

PropertySetGridControlInterface::~PropertySetGridControlInterface() = default;

} // namespace qev::fc::ui
