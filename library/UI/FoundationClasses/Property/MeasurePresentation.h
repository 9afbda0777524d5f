#pragma once

#include <memory>
#include <string_view>

namespace qev::unit {
class QuantityPresentationBase;
}

namespace qev::fc::ui {

/// A presentation of value 0 in the SI unit of the measure type \p name, which has no "Ifc" in front. Null
/// for every type that is not shown with a unit.
[[nodiscard]] std::unique_ptr<unit::QuantityPresentationBase>
presentationOfPropertyMeasure(std::string_view name);

/// The same for the type \p name of an attribute, with its "Ifc" in front. Plain ratios have none here:
/// attributes of that type are factors rather than percentages.
[[nodiscard]] std::unique_ptr<unit::QuantityPresentationBase>
presentationOfAttributeMeasure(std::string_view name);

} // namespace qev::fc::ui
