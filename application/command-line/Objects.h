#pragma once

#include "Format/Ifc/Model/IfcFile.h"

#include <cstddef>
#include <memory>
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

/// The entity with this global id; null, and told on the error stream, when there is none.
std::shared_ptr<fc::FcBase> findObject(ifc::IfcFile const& file, std::string const& globalId);

/// Lets go of what nobody holds any more, once there are so many objects beside \p held of them that they
/// take some ten megabytes. Neighbours share types and relations, which are read again after each release.
void releaseIfMany(fc::Data& data, std::size_t held = 0);

/// The class of the model with this schema name, in any case; null for an unknown one.
fc::EntityClass const* findClass(std::string const& name);

} // namespace qev::application
