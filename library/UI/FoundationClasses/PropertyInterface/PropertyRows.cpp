#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"

#include "FoundationClasses/Core/Kernel/FcRoot.h"
#include "FoundationClasses/Localize.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyAccess.h"

#include <charconv>
#include <iterator>

namespace qev::fc::ui::propertyinterface {

std::shared_ptr<Property> makeRow(std::string_view id, FcBase const& object)
{
    auto row = std::make_shared<Property>();
    row->id = object::PropertyId(id);
    row->object = std::const_pointer_cast<FcBase>(object.shared_from_this());
    return row;
}

std::shared_ptr<Property> makeGroup(std::string_view id, FcBase const& object)
{
    auto group = makeRow(id, object);
    group->isGroup = true;
    return group;
}

std::shared_ptr<Property> makeList(std::string_view id, FcBase const& object)
{
    auto list = makeGroup(id, object);
    list->isList = true;
    return list;
}

void appendPropertiesOf(std::shared_ptr<FcBase const> const& entity, Property& parent)
{
    if (!entity)
        return;
    auto rows = getProperties(*entity);
    parent.children.insert(parent.children.end(), std::make_move_iterator(rows.begin()),
                           std::make_move_iterator(rows.end()));
}

std::shared_ptr<Property> makeGroup(std::string_view id, FcBase const& object,
                                    std::shared_ptr<FcBase const> const& nested)
{
    auto group = makeGroup(id, object);
    appendPropertiesOf(nested, *group);
    return group;
}

std::shared_ptr<Property> groupOf(GetProperties const& visitor)
{
    return visitor.properties.empty() ? nullptr : visitor.properties.back();
}

std::optional<std::size_t> positionFromText(std::string_view text)
{
    std::size_t position = 0;
    auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), position);
    bool const isRead = error == std::errc() && end == text.data() + text.size();
    return isRead ? std::optional(position) : std::nullopt;
}

std::string_view classWithoutPrefix(FcBase const& entity)
{
    constexpr std::string_view schemaPrefix = "Ifc";
    return std::string_view(entity.getEntityName()).substr(schemaPrefix.size());
}

std::string withQuotedName(std::string text, core::kernel::FcRoot const& entity)
{
    if (auto const& name = entity.Name.get())
        text += " \"" + *name + '"';
    return text;
}

std::string classAndName(core::kernel::FcRoot const& entity)
{
    return withQuotedName(entity.getEntityName(), entity);
}

std::string referenceLabel(std::string label, FcBase const* referred)
{
    if (referred)
        label += '(' + localize(referred->getEntityName()) + ')';
    return label;
}

} // namespace qev::fc::ui::propertyinterface
