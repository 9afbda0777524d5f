#include "Core/Exception.h"

namespace qev {

exception::~exception() = default;

} // namespace qev
