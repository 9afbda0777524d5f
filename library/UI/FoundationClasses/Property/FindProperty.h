#pragma once

#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Resource/Property/FcProperty.h"

#include <memory>
#include <string>

namespace qev::fc::ui {

/// The first property of that name in \p set; null when there is none, or when that first one is not of
/// class \p T.
template <class T>
[[nodiscard]] std::shared_ptr<T> findProperty(core::kernel::FcPropertySet const& set, std::string const& name)
{
    for (auto const& property : set.HasProperties.getProperties()) {
        if (property && property->Name.get() == name)
            return entityCast<T>(std::shared_ptr<FcBase>(property));
    }
    return nullptr;
}

/// The same in the property set of that name that is attached to \p object; null without such a set.
template <class T>
[[nodiscard]] std::shared_ptr<T> findProperty(core::kernel::FcObjectDefinition& object,
                                              std::string const& setName, std::string const& name)
{
    auto const set = object.getPropertySetDefinitionNonConst<core::kernel::FcPropertySet>(setName);
    return set ? findProperty<T>(*set, name) : nullptr;
}

/// A new property of class \p T and that name at the end of \p set; null when the set does not take it.
template <class T>
[[nodiscard]] std::shared_ptr<T> addNewProperty(core::kernel::FcPropertySet& set, std::string const& name)
{
    auto property = std::make_shared<T>();
    property->Name = name;
    set.HasProperties.addProperty(property);
    auto const& properties = set.HasProperties.getProperties();
    bool const isTaken = !properties.empty() && properties.back() == property;
    return isTaken ? property : nullptr;
}

} // namespace qev::fc::ui
