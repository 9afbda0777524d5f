#pragma once

#include "QevFoundationClassesUiExport.h"

#include <memory>
#include <string_view>

namespace qev::ifc::def {
class SchemaPset;
namespace pset {
class PropertySetDef;
}
namespace qto {
class QuantitySetDef;
}
} // namespace qev::ifc::def
namespace qev::fc::core::kernel {
class FcPropertySetDefinition;
}
namespace qev::fc::resource::property {
class FcProperty;
}
namespace qev::fc::resource::quantity {
class FcPhysicalQuantity;
}

namespace qev::fc::ui {

/// The order in which the sets of an object are listed: those of the standard, known by "Pset_" and "Qto_" in
/// front of their name, before all others; by name within both groups.
[[nodiscard]] QEVFOUNDATIONCLASSESUI_EXPORT bool psetCompareLess(std::string_view a, std::string_view b);

/// The same for the sets themselves: null first, then sets without a name.
[[nodiscard]] QEVFOUNDATIONCLASSESUI_EXPORT bool
psetCompareLess(std::shared_ptr<core::kernel::FcPropertySetDefinition const> const& a,
                std::shared_ptr<core::kernel::FcPropertySetDefinition const> const& b);

/// The order in which the properties or quantities of a set are listed: as the standard defines them, then
/// those that it does not know, by name.
///
/// A name that the standard knows counts as less than itself, so that this is no strict order where a set has
/// two entries of one name: sort with `std::stable_sort` or by insertion.
class QEVFOUNDATIONCLASSESUI_EXPORT PropertyCompareLess
{
public:
    /// For entries that are in no set: by name alone.
    PropertyCompareLess() = default;
    /// For the entries of \p set, by the definition of its name. A set that has no name, or one that the
    /// standard does not know, is sorted by name alone.
    explicit PropertyCompareLess(core::kernel::FcPropertySetDefinition const& set);
    /// The same with the definitions of \p schema, which outlives this object. Null is reported, and counts
    /// as a schema without sets.
    PropertyCompareLess(core::kernel::FcPropertySetDefinition const& set, ifc::def::SchemaPset const* schema);

    [[nodiscard]] bool operator()(std::string_view a, std::string_view b) const;
    /// By name, null first.
    [[nodiscard]] bool operator()(std::shared_ptr<resource::property::FcProperty const> const& a,
                                  std::shared_ptr<resource::property::FcProperty const> const& b) const;
    [[nodiscard]] bool
    operator()(std::shared_ptr<resource::quantity::FcPhysicalQuantity const> const& a,
               std::shared_ptr<resource::quantity::FcPhysicalQuantity const> const& b) const;

private:
    // At most one of the two is set.
    ifc::def::pset::PropertySetDef const* m_propertySet = nullptr;
    ifc::def::qto::QuantitySetDef const* m_quantitySet = nullptr;
};

} // namespace qev::fc::ui
