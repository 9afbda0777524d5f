#pragma once

#include "FoundationClasses/Resource/Actor/FcPostalAddressAttributes.h"

#include <optional>
#include <string>

namespace qev::fc::resource::actor {

/// IfcPostalAddress: where post is delivered.
class HOSTFOUNDATIONCLASSES_EXPORT FcPostalAddress : public FcPostalAddressAttributes
{
public:
    /// The address line at a place, the first being 0; no value where there is none.
    [[nodiscard]] std::optional<std::string> getAddressLine(unsigned long long place) const;
};

} // namespace qev::fc::resource::actor
