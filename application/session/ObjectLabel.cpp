#include "ObjectLabel.h"

namespace qev::application {

ObjectLabel ObjectLabel::of(fc::FcBase const& entity)
{
    return {entity.getAttributeAsString("Name").value_or(""), entity.getEntityName(),
            entity.getAttributeAsString("GlobalId").value_or("")};
}

ObjectLabel ObjectLabel::of(fc::Data const& data, fc::EntityIndex index)
{
    auto const entity = data.entity(index);
    return entity ? of(*entity) : ObjectLabel();
}

} // namespace qev::application
