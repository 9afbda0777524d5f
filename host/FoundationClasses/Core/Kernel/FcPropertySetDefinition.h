#pragma once

#include "FoundationClasses/Core/Kernel/FcPropertySetDefinitionAttributes.h"

#include <string_view>

namespace qev::fc::core::kernel {

/// IfcPropertySetDefinition: a property set, a quantity set, or a predefined set.
class HOSTFOUNDATIONCLASSES_EXPORT FcPropertySetDefinition : public FcPropertySetDefinitionAttributes
{
public:
    /// Tells whether the set holds a property or quantity of this name.
    [[nodiscard]] virtual bool hasProperty(std::string_view name) const;

    /// Takes the set out of the model: its relations where they have no other set, its place in types,
    /// and the properties that nothing else refers to.
    void deletePset(Data& data);

protected:
    /// The entities that go with the set unless something else refers to them.
    [[nodiscard]] virtual std::vector<std::shared_ptr<FcBase>> ownedEntities() const;
};

} // namespace qev::fc::core::kernel
