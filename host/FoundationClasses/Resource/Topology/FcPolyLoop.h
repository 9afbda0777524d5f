#pragma once

#include "FoundationClasses/Resource/Topology/FcPolyLoopAttributes.h"

#include <memory>
#include <vector>

namespace qev::fc::resource::topology {

/// IfcPolyLoop: a closed polygon.
class HOSTFOUNDATIONCLASSES_EXPORT FcPolyLoop : public FcPolyLoopAttributes
{
public:
    /// Sets the corners, in order; the last is joined to the first.
    void vPolygonSet(std::vector<std::shared_ptr<geometry::FcCartesianPoint>> const& points);
};

} // namespace qev::fc::resource::topology
