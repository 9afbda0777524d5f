#pragma once

#include "FoundationClasses/Resource/Topology/FcFaceBoundAttributes.h"

#include <memory>

namespace qev::fc::resource::topology {

/// IfcFaceBound: a loop that bounds a face.
class HOSTFOUNDATIONCLASSES_EXPORT FcFaceBound : public FcFaceBoundAttributes
{
public:
    FcFaceBound();
    /// \param orientation true when the loop runs as the face sees it
    FcFaceBound(std::shared_ptr<FcLoop> const& bound, bool orientation);
};

} // namespace qev::fc::resource::topology
