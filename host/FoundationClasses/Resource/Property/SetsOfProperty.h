#pragma once

#include "FoundationClasses/ForwardDeclarations.h"
#include "HostFoundationClassesExport.h"

#include <functional>

namespace qev::fc::resource::property {

/// Shows \p visit the sets that \p property is in, by their order in the model, until it answers false.
///
/// `PartOfPset` has the same sets, but makes an object of each of them; thousands of sets can share a
/// property. The sets must not change meanwhile. A property that is in no model is in no set.
HOSTFOUNDATIONCLASSES_EXPORT void
visitSetsOf(FcProperty const& property, std::function<bool(core::kernel::FcPropertySet const&)> const& visit);

} // namespace qev::fc::resource::property
