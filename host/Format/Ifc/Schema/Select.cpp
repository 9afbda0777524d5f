#include "Format/Ifc/Schema/Select.h"

#include <algorithm>

namespace qev::ifc::def::schema {

namespace {

bool contains(std::vector<ObjectBase const*> const& objects, ObjectBase const* object)
{
    return std::find(objects.begin(), objects.end(), object) != objects.end();
}

// `path` holds the selects being taken apart, so that a select that contains itself comes to an end.
void appendFlattened(Select const& select, std::vector<ObjectBase const*>& result,
                     std::vector<ObjectBase const*>& path)
{
    if (contains(path, &select))
        return;
    path.push_back(&select);
    for (ObjectBase const* const member : select.members()) {
        if (auto const* nested = dynamic_cast<Select const*>(member))
            appendFlattened(*nested, result, path);
        else if (!contains(result, member))
            result.push_back(member);
    }
    path.pop_back();
}

} // namespace

Select::Select(std::string_view name)
    : ObjectBase(name)
{
}

Select::~Select() = default;

std::vector<ObjectBase const*> Select::flattenedMembers() const
{
    std::vector<ObjectBase const*> result;
    std::vector<ObjectBase const*> path;
    appendFlattened(*this, result, path);
    return result;
}

} // namespace qev::ifc::def::schema
