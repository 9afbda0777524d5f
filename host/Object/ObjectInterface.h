#pragma once

#include "HostObjectExport.h"

namespace qev::generate {

/// The root of every object that can answer for a node of a property tree.
///
/// It has no operations: code that holds one finds out by a run-time cast what it is.
class HOSTOBJECT_EXPORT ObjectInterface
{
public:
    virtual ~ObjectInterface();

protected:
    ObjectInterface() = default;
    ObjectInterface(ObjectInterface const&) = default;
    ObjectInterface& operator=(ObjectInterface const&) = default;
    ObjectInterface(ObjectInterface&&) = default;
    ObjectInterface& operator=(ObjectInterface&&) = default;
};

} // namespace qev::generate
