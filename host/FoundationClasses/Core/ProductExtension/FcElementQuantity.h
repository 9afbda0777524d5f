#pragma once

#include "FoundationClasses/Core/ProductExtension/FcElementQuantityAttributes.h"

#include <optional>

namespace qev::unit {
class QuantityPresentationBase;
}

namespace qev::fc::core::productextension {

/// IfcElementQuantity: named quantities.
class HOSTFOUNDATIONCLASSES_EXPORT FcElementQuantity : public FcElementQuantityAttributes
{
public:
    [[nodiscard]] bool hasProperty(std::string_view name) const override;

    /// The model's own choice of a presentation for a quantity of this set; null when it has none.
    [[nodiscard]] std::unique_ptr<unit::QuantityPresentationBase>
    createQuantityPresentationFor(resource::quantity::FcPhysicalSimpleQuantity const& quantity) const;

    /// Removes the first quantity of this name, from the model too unless something else refers to it.
    /// \returns whether the set is empty afterwards.
    bool removeQuantity(std::string const& name);

protected:
    [[nodiscard]] std::vector<std::shared_ptr<FcBase>> ownedEntities() const override;
};

} // namespace qev::fc::core::productextension
