#pragma once

#include "HostEditExport.h"
#include "Object/PropertyInterface.h"

#include <memory>

namespace qev::ui::edit {

/// One of the objects that an editor shows.
class HOSTEDIT_EXPORT EditedObject
{
public:
    /// \p properties must not be null; the edited object keeps them alive.
    explicit EditedObject(std::shared_ptr<object::PropertyInterface> properties);
    virtual ~EditedObject();
    EditedObject(EditedObject const&) = delete;
    EditedObject& operator=(EditedObject const&) = delete;

    [[nodiscard]] std::shared_ptr<object::PropertyInterface const> getPropertyInterface() const
    {
        return m_properties;
    }
    [[nodiscard]] std::shared_ptr<object::PropertyInterface> getWritablePropertyInterface()
    {
        return m_properties;
    }

private:
    std::shared_ptr<object::PropertyInterface> m_properties;
};

} // namespace qev::ui::edit
