#pragma once

#include "Core/Unit/QuantityPresentation.h"
#include "HostCoreExport.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace qev::unit {

/// Presentations for single properties that want others than their type says.
///
/// The host registers such properties by their id, the name of the set, "." and the name of the property.
/// There are none at the start.
class HOSTCORE_EXPORT QuantityPresentationFactory
{
public:
    using Creator =
        std::function<std::unique_ptr<QuantityPresentationBase>(double value, std::string const& context)>;

    QuantityPresentationFactory();
    ~QuantityPresentationFactory();
    QuantityPresentationFactory(QuantityPresentationFactory const&) = delete;
    QuantityPresentationFactory& operator=(QuantityPresentationFactory const&) = delete;

    /// The factory of the program.
    static QuantityPresentationFactory& current();

    /// Registers \p creator for the property; an empty function takes the property out.
    void registerIfcProperty(std::string const& ifcPropertyId, Creator creator);

    /// A new presentation for the property, with the value of \p given if there is one.
    ///
    /// Null when nothing is registered for the property, and when \p given is of another
    /// quantity than what is registered: its value would change its meaning.
    [[nodiscard]] std::unique_ptr<QuantityPresentationBase>
    createFromIfcPropertyId(QuantityPresentationBase const* given, std::string const& ifcPropertyId,
                            std::string const& context) const;

    /// The same, asked of the factory of the program.
    static std::unique_ptr<QuantityPresentationBase> createNewBaseUniqueFromIfcPropertyIdWithSanityCheck(
        QuantityPresentationBase const* given, std::string const& ifcPropertyId, std::string const& context);

private:
    std::map<std::string, Creator, std::less<>> m_creators;
};

/// A new presentation for values of a measure type of the IFC standard, named without its first three
/// letters: "LengthMeasure", "ThermalConductivityMeasure". Null for a type without a quantity, such as a
/// label.
HOSTCORE_EXPORT std::unique_ptr<QuantityPresentationBase>
createPresentationForMeasure(std::string_view ifcTypeNameWithoutIfc);

} // namespace qev::unit
