#pragma once

#include "FoundationClasses/Core/Kernel/FcRelAssociatesDocumentAttributes.h"

namespace qev::fc::core::kernel {

/// IfcRelAssociatesDocument: connects objects with a document or a reference to one.
class HOSTFOUNDATIONCLASSES_EXPORT FcRelAssociatesDocument : public FcRelAssociatesDocumentAttributes
{
public:
    void setRelatingDocument(resource::externalreference::FcDocumentSelect const& document);
};

} // namespace qev::fc::core::kernel
