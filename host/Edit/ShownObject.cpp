#include "Edit/ShownObject.h"

#include <utility>

namespace qev::ui::edit {

ShownObject::ShownObject(std::shared_ptr<object::PropertyInterface> properties,
                         std::shared_ptr<ObjectPropertyEditInterface> editor)
    : EditedObject(std::move(properties))
    , m_editor(std::move(editor))
{
}

ShownObject::~ShownObject() = default;

bool ShownObject::isReadOnly() const
{
    return getPropertyInterface()->isReadOnly() || m_editor->isReadOnlyObject();
}

} // namespace qev::ui::edit
