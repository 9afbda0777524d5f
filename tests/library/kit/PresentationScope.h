#pragma once

#include "Core/Unit/QuantityPresentation.h"
#include "Core/Unit/QuantityPresentationFactory.h"

#include <string>
#include <utility>

namespace qev::test {

/// Presents one property as a speed for as long as this lives, whatever its type says: `PresentationScope
/// speed("Own.P")` for the property P of the set Own.
class PresentationScope
{
public:
    explicit PresentationScope(std::string propertyId)
        : m_propertyId(std::move(propertyId))
    {
        unit::QuantityPresentationFactory::current().registerIfcProperty(
            m_propertyId, [](double value, std::string const&) {
                auto presentation = unit::createPresentationForMeasure("LinearVelocityMeasure");
                presentation->setValue(value);
                return presentation;
            });
    }
    ~PresentationScope()
    {
        unit::QuantityPresentationFactory::current().registerIfcProperty(m_propertyId, {});
    }
    PresentationScope(PresentationScope const&) = delete;
    PresentationScope& operator=(PresentationScope const&) = delete;

private:
    std::string m_propertyId;
};

} // namespace qev::test
