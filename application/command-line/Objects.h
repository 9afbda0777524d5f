#pragma once

#include "Format/Ifc/Model/IfcFile.h"

#include <string>
#include <vector>

namespace qev::application {

/// Which objects of a file a command is about.
struct ObjectSelection
{
    std::vector<std::string> globalIds;
    std::string className;
    bool all = false;
};

/// The places of the selected objects: in the order of the global ids, or by class and then as in the file.
/// What cannot be found is told on the error stream.
std::vector<fc::EntityIndex> findObjects(ifc::IfcFile const& file, ObjectSelection const& selection);

/// The class of the model with this schema name, in any case; null for an unknown one.
fc::EntityClass const* findClass(std::string const& name);

} // namespace qev::application
