#pragma once

#include "FoundationClasses/Resource/ExternalReference/FcClassificationReferenceAttributes.h"

#include <memory>
#include <string>

namespace qev::fc::resource::externalreference {

/// IfcClassificationReference: one code of a classification, or a group of codes.
class HOSTFOUNDATIONCLASSES_EXPORT FcClassificationReference : public FcClassificationReferenceAttributes
{
public:
    /// The classification at the end of the sources; null when they lead nowhere or in a circle.
    [[nodiscard]] std::shared_ptr<FcClassification> getReferencedClassification() const;

    /// The name of that classification; empty when there is none.
    [[nodiscard]] std::string getClassificationName() const;
};

} // namespace qev::fc::resource::externalreference
