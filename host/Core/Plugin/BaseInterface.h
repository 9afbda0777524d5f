#pragma once

#include "HostCoreExport.h"

namespace qev::plugin {

/// What every plug-in of the application derives from. A run-time cast tells what it offers.
class HOSTCORE_EXPORT BaseInterface
{
public:
    virtual ~BaseInterface() = default;
    BaseInterface(BaseInterface const&) = delete;
    BaseInterface& operator=(BaseInterface const&) = delete;

protected:
    BaseInterface() = default;
};

} // namespace qev::plugin
