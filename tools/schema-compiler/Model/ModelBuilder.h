#pragma once

#include "Format/Ifc/Schema/Schema.h"
#include "Model/ClassModel.h"
#include "Model/GroupTable.h"
#include "Model/HandwrittenClasses.h"

#include <string>

namespace qev::schemacompiler {

/// Joins the schema with the table of groups and the list of hand-written classes.
///
/// Raises `InputError` when the tables name what the schema does not have, when an entity has no group,
/// and when a record would have more slots than a set of 64 bits can tell apart.
/// \p groupFile is the name of the table of groups for messages; \p source that of the schema.
ClassModel buildModel(ifc::def::schema::Schema const& schema, GroupTable const& groups,
                      std::string const& groupFile, HandwrittenClasses const& handwritten,
                      std::string const& source);

} // namespace qev::schemacompiler
