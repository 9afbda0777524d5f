#pragma once

#include "FoundationClasses/Attribute.h"
#include "FoundationClasses/Reference.h"
#include "HostFoundationClassesExport.h"

#include <memory>
#include <string>
#include <vector>

namespace qev::fc::resource::property {
class FcProperty;
}

namespace qev::fc::core::kernel {

/// The properties of a property set.
class HOSTFOUNDATIONCLASSES_EXPORT PropertyContainer
    : public Attribute<ReferenceList<resource::property::FcProperty>>
{
public:
    using Attribute::Attribute;
    using Attribute::operator=;

    /// All properties, in stored order. Valid until the container changes.
    [[nodiscard]] std::vector<std::shared_ptr<resource::property::FcProperty>> const& getProperties() const;
    /// Removes the first property of this name, from the model too unless something else refers to it.
    /// True when one was removed.
    bool removeProperty(std::string const& name);
    void addProperty(std::shared_ptr<resource::property::FcProperty> property);
};

} // namespace qev::fc::core::kernel
