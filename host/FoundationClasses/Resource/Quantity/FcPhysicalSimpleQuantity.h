#pragma once

#include "FoundationClasses/Resource/Quantity/FcPhysicalSimpleQuantityAttributes.h"

#include <memory>

namespace qev::unit {
class QuantityPresentationBase;
}

namespace qev::fc::resource::quantity {

/// IfcPhysicalSimpleQuantity: a named number of one measure, in SI units.
class HOSTFOUNDATIONCLASSES_EXPORT FcPhysicalSimpleQuantity : public FcPhysicalSimpleQuantityAttributes
{
public:
    [[nodiscard]] virtual double getValue() const;
    virtual void setValue(double value);
    /// A presentation by the measure, carrying the value; null where the measure has none.
    [[nodiscard]] virtual std::unique_ptr<unit::QuantityPresentationBase> createQuantityPresentation() const;

protected:
    /// A presentation of a measure, named without "Ifc", that carries the value.
    [[nodiscard]] std::unique_ptr<unit::QuantityPresentationBase> presentationOf(char const* measure) const;
};

} // namespace qev::fc::resource::quantity
