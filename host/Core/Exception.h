#pragma once

#include "HostCoreExport.h"

#include <stdexcept>

namespace qev {

/// Raised by typed accessors that are asked for a kind they do not hold.
class HOSTCORE_EXPORT exception : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
    ~exception() override;
};

} // namespace qev
