#pragma once

#include "FoundationClasses/Resource/Actor/FcTelecomAddressAttributes.h"

namespace qev::fc::resource::actor {

/// IfcTelecomAddress: where somebody is called and written to.
class HOSTFOUNDATIONCLASSES_EXPORT FcTelecomAddress : public FcTelecomAddressAttributes
{
public:
    /// The attributes, but a single telephone number, facsimile number and mail address in the place of the
    /// lists of them: "TelephoneNumber", "FacsimileNumber" and "MailAddress".
    std::vector<std::shared_ptr<Property>> getLocalProperties() const override;
};

} // namespace qev::fc::resource::actor
