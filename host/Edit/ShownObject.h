#pragma once

#include "Edit/EditedObject.h"
#include "Edit/ObjectPropertyEditInterface.h"

#include <memory>
#include <vector>

namespace qev::ui::edit {

/// An edited object with what says how to show it.
class HOSTEDIT_EXPORT ShownObject final : public EditedObject
{
public:
    /// Neither may be null; the object keeps both alive.
    ShownObject(std::shared_ptr<object::PropertyInterface> properties,
                std::shared_ptr<ObjectPropertyEditInterface> editor);
    ~ShownObject() override;

    [[nodiscard]] ObjectPropertyEditInterface& getEditor() const { return *m_editor; }
    /// Whether nothing of it can be edited, by what either of the two says.
    [[nodiscard]] bool isReadOnly() const;

private:
    std::shared_ptr<ObjectPropertyEditInterface> m_editor;
};

/// Objects in the order in which they were selected.
using ShownObjects = std::vector<std::shared_ptr<ShownObject>>;

} // namespace qev::ui::edit
