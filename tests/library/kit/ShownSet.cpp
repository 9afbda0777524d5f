#include "library/kit/ShownSet.h"

#include "Format/Ifc/Schema/Xml/SetDef.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace qev::test {

using fc::ui::PropertySetDefinition;
using fc::ui::PropertySetDefinitionInfo;

ShownSet::ShownSet(std::unique_ptr<ifc::def::xml::SetDef> definition, Entities shownObjects)
    : ShownSet(std::move(definition), std::move(shownObjects), Options())
{
}

ShownSet::ShownSet(std::unique_ptr<ifc::def::xml::SetDef> definition, Entities shownObjects,
                   Options const& options)
    : objects(std::move(shownObjects))
    , m_definition(std::move(definition))
{
    build(PropertySetDefinitionInfo(*m_definition), options);
}

ShownSet::ShownSet(std::string const& name, fc::ui::PropertySetDefinitionType type, Entities shownObjects)
    : objects(std::move(shownObjects))
{
    build(PropertySetDefinitionInfo(name, type), Options());
}

ShownSet::~ShownSet() = default;

void ShownSet::build(PropertySetDefinitionInfo const& info, Options const& options)
{
    m_set = PropertySetDefinition::create(
        info, [this]() -> Entities const& { return objects; }, options.formatter, options.filter,
        options.contexts, options.qppOverride);
}

std::vector<std::string> ShownSet::names() const
{
    std::vector<std::string> names;
    for (auto const& property : m_set->getProperties())
        names.push_back(property->getName());
    return names;
}

fc::ui::PropertyInterface& ShownSet::operator[](std::string const& name) const
{
    for (auto const& property : m_set->getProperties()) {
        if (property->getName() == name)
            return *property;
    }
    throw std::invalid_argument("no row " + name);
}

} // namespace qev::test
