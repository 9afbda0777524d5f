#pragma once

#include "Format/Ifc/Step/StepValue.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace qev::fc {

class AttributeBase;
class AttributeReader;
class AttributeWriter;
class ReferenceBase;
struct AttributeDescriptor;

/// What can be done with an attribute without knowing its type. One table exists per C++ type.
struct AttributeOperations
{
    /// Takes the value from a record. A value of the wrong kind is told to the reader and leaves the
    /// attribute unset.
    void (*read)(AttributeBase&, AttributeDescriptor const&, step::StepValue const&, AttributeReader&);
    /// The value as a record has it.
    step::StepValue (*write)(AttributeBase const&, AttributeDescriptor const&, AttributeWriter const&);
    /// Text for display; no value for an unset attribute and for references.
    std::optional<std::string> (*text)(AttributeBase const&, AttributeDescriptor const&);
    void (*visitReferences)(AttributeBase const&, std::function<void(ReferenceBase const&)> const&);
    /// A copy of the value, to be given back by `restore`.
    std::shared_ptr<void const> (*snapshot)(AttributeBase const&);
    void (*restore)(AttributeBase&, void const*);
    bool (*equals)(AttributeBase const&, void const*);
    bool (*isUnset)(AttributeBase const&);
    /// Cuts the references loose from a model that is about to end.
    void (*leaveModel)(AttributeBase&);
};

/// The table of `Attribute<T>`; the definition is in `AttributeOperationsOf.h`, which only
/// generated sources include.
template <class T>
AttributeOperations const& attributeOperations();

} // namespace qev::fc
