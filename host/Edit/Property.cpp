#include "Edit/Property.h"

#include "Object/PropertyInterface.h"

namespace qev::ui::edit {

Property::Property(object::PropertyId const& propertyId, unsigned int textKind,
                   std::vector<Property> const& childProperties,
                   std::shared_ptr<object::PropertyInterface> labels)
    : id(propertyId)
    , children(childProperties)
    , kind(textKind)
{
    if (labels)
        labelAndDescription.emplace(labels->getPropertyName(id), labels->getPropertyDescription(id));
}

} // namespace qev::ui::edit
