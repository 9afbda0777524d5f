#include "FoundationClasses/Core/Kernel/FcRelAssociatesDocument.h"

namespace qev::fc::core::kernel {

void FcRelAssociatesDocument::setRelatingDocument(
    resource::externalreference::FcDocumentSelect const& document)
{
    RelatingDocument = document;
}

} // namespace qev::fc::core::kernel
