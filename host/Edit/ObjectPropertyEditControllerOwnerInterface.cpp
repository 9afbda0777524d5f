#include "Edit/ObjectPropertyEditControllerOwnerInterface.h"

namespace qev::ui::edit {

ObjectPropertyEditControllerOwnerInterface::~ObjectPropertyEditControllerOwnerInterface() = default;

} // namespace qev::ui::edit
