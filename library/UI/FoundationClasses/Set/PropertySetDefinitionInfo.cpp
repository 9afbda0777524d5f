#include "UI/FoundationClasses/Set/PropertySetDefinitionInfo.h"

#include "Core/Assert/Assert.h"
#include "Format/Ifc/Schema/Pset/PropertySetDef.h"
#include "Format/Ifc/Schema/Qto/QuantitySetDef.h"

#include <typeinfo>
#include <utility>

namespace qev::fc::ui {

PropertySetDefinitionInfo::PropertySetDefinitionInfo(ifc::def::xml::SetDef const& setDefinition)
    : name(setDefinition.name)
    , definition(&setDefinition)
{
    auto const& setClass = typeid(setDefinition);
    if (setClass == typeid(ifc::def::pset::PropertySetDef))
        type = PropertySetDefinitionType::PropertySet;
    else if (setClass == typeid(ifc::def::qto::QuantitySetDef))
        type = PropertySetDefinitionType::QuantitySet;
    else
        assert::report("Not able to find schema type.",
                       "qev::fc::ui::PropertySetDefinitionInfo::PropertySetDefinitionInfo",
                       "UI/FoundationClasses/Set/PropertySetDefinitionInfo");
}

PropertySetDefinitionInfo::PropertySetDefinitionInfo(std::string setName, PropertySetDefinitionType setType)
    : name(std::move(setName))
    , type(setType)
{
}

} // namespace qev::fc::ui
