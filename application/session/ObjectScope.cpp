#include "ObjectScope.h"

#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "FoundationClasses/EntityClass.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <unordered_set>

namespace qev::application {

namespace {

using fc::EntityIndex;
using fc::core::kernel::FcObjectDefinition;
using Indices = std::vector<EntityIndex>;

bool isObject(unsigned int classNumber)
{
    return classNumber >= FcObjectDefinition::idFirst && classNumber <= FcObjectDefinition::idLast;
}

} // namespace

Indices ObjectScope::getAll() const
{
    return m_data.indicesFromId(FcObjectDefinition::idFirst, FcObjectDefinition::idLast);
}

Indices ObjectScope::getContents(EntityIndex object) const
{
    BuildingStructure const structure(m_data);
    Indices contents{object};
    std::unordered_set<EntityIndex> passed{object};
    for (std::size_t i = 0; i < contents.size(); ++i)
        for (auto const child : structure.getChildren(contents[i]))
            if (passed.insert(child).second)
                contents.push_back(child);
    return contents;
}

std::vector<ClassCount> ObjectScope::countClasses(Indices const& objects) const
{
    std::map<std::string, std::size_t> counts;
    for (auto const object : objects)
        if (auto const number = m_data.classNumber(object); isObject(number))
            ++counts[fc::entityClassFromNumber(number)->name];
    std::vector<ClassCount> result;
    for (auto const& [className, count] : counts)
        result.push_back({className, count});
    return result;
}

Indices ObjectScope::filterByClass(Indices const& objects, std::string const& className) const
{
    Indices result;
    std::copy_if(objects.begin(), objects.end(), std::back_inserter(result), [&](EntityIndex object) {
        auto const number = m_data.classNumber(object);
        return isObject(number) &&
               (className.empty() || className == fc::entityClassFromNumber(number)->name);
    });
    return result;
}

} // namespace qev::application
