#include "FoundationClasses/Resource/Topology/FcPolyLoop.h"

#include "FoundationClasses/Resource/Geometry/FcCartesianPoint.h"

namespace qev::fc::resource::topology {

void FcPolyLoop::vPolygonSet(std::vector<std::shared_ptr<geometry::FcCartesianPoint>> const& points)
{
    Polygon = ReferenceList<geometry::FcCartesianPoint>(points);
}

} // namespace qev::fc::resource::topology
