#pragma once

#include "Format/Ifc/Schema/Qto/QuantitySetDef.h"
#include "QevFoundationClassesUiExport.h"

#include <memory>

namespace qev::fc::core::productextension {
class FcElementQuantity;
}

namespace qev::fc::ui {

/// Makes definitions of quantity sets that no schema knows.
class QEVFOUNDATIONCLASSESUI_EXPORT IfcXmlQuantitySetDefFromFcElementQuantity
{
public:
    /// The definition of \p set, which must not be null, with an entry for each quantity of a known class, in
    /// stored order; others are reported. Null for a set without a name.
    [[nodiscard]] static std::unique_ptr<ifc::def::qto::QuantitySetDef>
    get(std::shared_ptr<core::productextension::FcElementQuantity> const& set);
};

} // namespace qev::fc::ui
