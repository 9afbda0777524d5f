#include "UI/FoundationClasses/Controls/ListControl/PropertySetListControlInterface.h"

namespace qev::fc::ui {

PropertySetListControlInterface::~PropertySetListControlInterface() = default;

} // namespace qev::fc::ui
