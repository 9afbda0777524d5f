#pragma once

#include "FoundationClasses/Core/ProductExtension/FcSiteAttributes.h"

#include <optional>
#include <string>

namespace qev::fc::core::productextension {

/// IfcSite: the ground on which buildings stand.
class HOSTFOUNDATIONCLASSES_EXPORT FcSite : public FcSiteAttributes
{
public:
    /// The web address of a map that shows the site's place; no value unless latitude and longitude are
    /// set and a place on earth.
    [[nodiscard]] std::optional<std::string> getMapURL() const;
};

} // namespace qev::fc::core::productextension
