#include "UI/FoundationClasses/Quantity/FcQuantityBase.h"

#include "Format/Ifc/Schema/Qto/QuantityDef.h"
#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "FoundationClasses/Core/ProductExtension/FcElementQuantity.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/Resource/Quantity/FcPhysicalQuantity.h"
#include "UI/FoundationClasses/Set/EmptiedSet.h"
#include "UI/FoundationClasses/Set/QuantitySet.h"

namespace qev::fc::ui {

using core::kernel::FcObjectDefinition;
using core::productextension::FcElementQuantity;

FcQuantityBase::FcQuantityBase(ifc::def::qto::QuantityDef const& definition, QuantitySet& set)
    : m_definition(definition)
    , m_set(set)
{
}

FcQuantityBase::~FcQuantityBase() = default;

bool FcQuantityBase::isAllowedToEdit() const { return true; }

bool FcQuantityBase::isValidValue() const { return true; }

bool FcQuantityBase::updateValue(Data& data, PropertyOrQuantityValue const& value)
{
    auto const& objects = getObjects();
    if (objects.empty())
        return false;
    for (auto const& entity : objects) {
        auto const object = entityCast<FcObjectDefinition>(entity);
        if (!object)
            continue;
        auto const text = value.getStringValue();
        if (text.empty())
            removeFrom(*object, data);
        else if (!storeIn(*object, data, text))
            return false;
    }
    return true;
}

std::string FcQuantityBase::getName() const { return m_definition.name; }

std::string FcQuantityBase::getDescription() const { return m_definition.description; }

std::string FcQuantityBase::getLocalizedName() const { return getName(); }

std::string FcQuantityBase::getLocalizedDescription() const { return getDescription(); }

std::string FcQuantityBase::getPropertySetName() const { return m_set.getName(); }

void FcQuantityBase::onPropertyCustomButtonClicked() { m_set.onPropertyCustomButtonClicked(getName()); }

std::vector<std::shared_ptr<FcBase>> const& FcQuantityBase::getObjects() const { return m_set.getObjects(); }

void FcQuantityBase::removeFrom(FcObjectDefinition& object, Data& data)
{
    auto const set = object.getPropertySetDefinitionNonConst<FcElementQuantity>(getPropertySetName());
    if (set && set->removeQuantity(getName()))
        deleteEmptiedSet(object, *set, data);
}

bool FcQuantityBase::storeIn(FcObjectDefinition& object, Data& data, std::string const& text)
{
    auto const set = object.getOrCreatePropertySetDefinition<FcElementQuantity>(data, getPropertySetName());
    if (!set || setNewValue(text, *set))
        return true;
    if (set->Quantities.get().get().empty())
        deleteEmptiedSet(object, *set, data);
    return false;
}

} // namespace qev::fc::ui
