#include "UI/FoundationClasses/Set/QuantitySet.h"

#include "Core/Assert/Assert.h"
#include "Format/Ifc/Schema/Qto/QuantitySetDef.h"
#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "FoundationClasses/Core/ProductExtension/FcElementQuantity.h"
#include "UI/FoundationClasses/Quantity/FcQuantityFactory.h"
#include "UI/FoundationClasses/Set/IfcXmlQuantitySetDefFromFcElementQuantity.h"

#include <utility>

namespace qev::fc::ui {

using core::kernel::FcObjectDefinition;
using core::productextension::FcElementQuantity;
using ifc::def::qto::QuantitySetDef;

QuantitySet::QuantitySet(PropertySetDefinitionInfo const& info, ObjectsGetter const& objectsGetter,
                         std::shared_ptr<PropertyFormatterInterface> const& formatter,
                         std::shared_ptr<PropertySetDefinitionFilterInterface> const& filter,
                         std::vector<std::string> const& contexts)
    : PropertySetDefinition(info, objectsGetter, formatter, filter, contexts, nullptr)
{
    if (!info.definition)
        m_ownDefinition = definitionFromObjects();
    auto const* const usedDefinition = info.definition ? info.definition : m_ownDefinition.get();
    auto const* const definition = dynamic_cast<QuantitySetDef const*>(usedDefinition);
    if (!definition)
        return;
    for (auto const& quantity : definition->quantityDefs)
        appendProperty(FcQuantityFactory::create(*quantity, *this));
}

QuantitySet::~QuantitySet() = default;

std::unique_ptr<QuantitySetDef> QuantitySet::definitionFromObjects() const
{
    std::unique_ptr<QuantitySetDef> first;
    for (auto const& entity : getObjects()) {
        // Further sets change nothing; there is only something to report of them.
        if (first && !assert::Assert::isEnabled())
            break;
        auto const object = entityCast<FcObjectDefinition>(entity);
        auto const set =
            object ? object->getPropertySetDefinitionNonConst<FcElementQuantity>(getName()) : nullptr;
        if (!set || !set->Name.get())
            continue;
        auto definition = IfcXmlQuantitySetDefFromFcElementQuantity::get(set);
        if (first)
            assert::report("Not implemented: Need to merge with existing values.",
                           "qev::fc::ui::QuantitySet::QuantitySet", "UI/FoundationClasses/Set/QuantitySet");
        else
            first = std::move(definition);
    }
    return first;
}

} // namespace qev::fc::ui
