#include "Edit/EditedObject.h"

#include <utility>

namespace qev::ui::edit {

EditedObject::EditedObject(std::shared_ptr<object::PropertyInterface> properties)
    : m_properties(std::move(properties))
{
}

EditedObject::~EditedObject() = default;

} // namespace qev::ui::edit
