#pragma once

#include "Format/Ifc/Schema/Attribute.h"
#include "Format/Ifc/Schema/Entity.h"
#include "Format/Ifc/Step/StepFile.h"
#include "Format/Ifc/Step/StepValue.h"
#include "FoundationClasses/EntityClass.h"

#include <functional>
#include <optional>

namespace qev::ifc {

/// Brings a value from the form it has in the file's version to the form of the model's attribute: a plain
/// value where the model has a typed one gets the type of the older attribute, an enumeration item or a
/// date record becomes text, a single reference a list of one.
step::StepValue toModelForm(step::StepValue value, def::schema::Attribute const& fileAttribute,
                            fc::AttributeDescriptor const& modelAttribute, step::StepFile const& file);

/// Tells whether a value is what the file's own version allows for the attribute, so that it is no fault of
/// the file when the model has no place for it: an enumeration item or a class that the model does not have.
bool fitsFileVersion(step::StepValue const& value, def::schema::Attribute const& fileAttribute,
                     std::function<def::schema::Entity const*(step::InstanceId)> const& classOf);

/// Tells whether the file's version lets the attribute refer to an entity of the class.
bool takesClass(def::schema::Attribute const& fileAttribute, def::schema::Entity const& fileEntity);

/// What stands for no value in the file's version: mostly nothing, and where the version demands a value the
/// empty text, alone or in a list.
step::StepValue toFileFormOfUnset(def::schema::Attribute const& fileAttribute);
/// Tells whether a list of values says no more than that there is none.
bool isFileFormOfUnsetList(step::StepValue const& value, def::schema::Attribute const& fileAttribute);

/// The way back. No value when the file's version has no form for it.
std::optional<step::StepValue> toFileForm(step::StepValue value, def::schema::Attribute const& fileAttribute);

} // namespace qev::ifc
