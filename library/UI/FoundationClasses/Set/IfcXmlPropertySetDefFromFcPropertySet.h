#pragma once

#include "Format/Ifc/Schema/Pset/PropertySetDef.h"
#include "QevFoundationClassesUiExport.h"

#include <memory>
#include <optional>
#include <string>

namespace qev::fc::core::kernel {
class FcPropertySet;
}
namespace qev::fc::resource::measure {
class FcValue;
}

namespace qev::fc::ui {

/// Makes definitions of property sets that no schema knows, with what the model can tell: names and value
/// types.
class QEVFOUNDATIONCLASSESUI_EXPORT IfcXmlPropertySetDefFromFcPropertySet
{
public:
    /// The definition of \p set with an entry for each property whose kind and type are known, in stored
    /// order. Null, with a report, for null.
    [[nodiscard]] static std::unique_ptr<ifc::def::pset::PropertySetDef>
    get(core::kernel::FcPropertySet const* set);

    /// The schema's name of a value's type: "IfcLabel". Nothing for the empty value; empty for a value of a
    /// family without a type.
    [[nodiscard]] static std::optional<std::string>
    getValueTypeFromValue(resource::measure::FcValue const& value);
};

} // namespace qev::fc::ui
