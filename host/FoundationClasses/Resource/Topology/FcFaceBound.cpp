#include "FoundationClasses/Resource/Topology/FcFaceBound.h"

#include "FoundationClasses/Resource/Topology/FcLoop.h"

namespace qev::fc::resource::topology {

FcFaceBound::FcFaceBound() = default;

FcFaceBound::FcFaceBound(std::shared_ptr<FcLoop> const& bound, bool orientation)
{
    Bound = bound;
    Orientation = orientation;
}

} // namespace qev::fc::resource::topology
