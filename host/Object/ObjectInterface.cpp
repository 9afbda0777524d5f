#include "Object/ObjectInterface.h"

namespace qev::generate {

ObjectInterface::~ObjectInterface() = default;

} // namespace qev::generate
