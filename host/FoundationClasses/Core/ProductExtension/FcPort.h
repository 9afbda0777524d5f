#pragma once

#include "FoundationClasses/Core/ProductExtension/FcPortAttributes.h"

#include <memory>
#include <vector>

namespace qev::fc::core::productextension {

/// IfcPort: a place where an element can be connected to others.
class HOSTFOUNDATIONCLASSES_EXPORT FcPort : public FcPortAttributes
{
public:
    /// The objects that this port belongs to: those it is nested in, then those of the older relation.
    [[nodiscard]] std::vector<std::shared_ptr<kernel::FcObjectDefinition>> getOwners() const;

    /// The objects whose ports this one is connected to, each once, in the order of the relations. An object
    /// that is connected to itself is among them.
    /// \param withRealizingElements adds the elements that make a connection, such as a gasket
    [[nodiscard]] std::vector<std::shared_ptr<kernel::FcObjectDefinition>>
    getConnections(bool withRealizingElements) const;
};

} // namespace qev::fc::core::productextension
