#include "UI/FoundationClasses/Property/FcPropertyBase.h"

#include "Core/Assert/Assert.h"
#include "Core/Locale/Locale.h"
#include "Format/Ifc/Schema/Pset/PropertyDef.h"
#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/Resource/Measure/FcValue.h"
#include "FoundationClasses/Resource/Property/FcProperty.h"
#include "UI/FoundationClasses/LocalizedText.h"
#include "UI/FoundationClasses/Set/EmptiedSet.h"
#include "UI/FoundationClasses/Set/PropertySet.h"

namespace qev::fc::ui {

using core::kernel::FcObjectDefinition;
using core::kernel::FcPropertySet;

namespace {

/// The published text of a definition in the language that every release has, or \p key.
std::string aliasOr(ifc::def::pset::PropertyDef const& definition, std::string const& key)
{
    auto alias = definition.nameAliases.sValueFromLanguage(locale::Locale::get(1));
    return alias.empty() ? key : alias;
}

bool isEmpty(FcPropertySet const& set) { return set.HasProperties.getProperties().empty(); }

} // namespace

FcPropertyBase::FcPropertyBase(ifc::def::pset::PropertyDef& definition, PropertySet& set,
                               std::vector<std::string> const& contexts)
    : m_definition(definition)
    , m_set(set)
    , m_contexts(contexts)
{
}

FcPropertyBase::~FcPropertyBase() = default;

bool FcPropertyBase::isAllowedToEdit() const { return false; }

bool FcPropertyBase::isValidValue() const { return false; }

bool FcPropertyBase::updateValue(Data& data, PropertyOrQuantityValue const& value)
{
    auto const& objects = getObjects();
    if (objects.empty())
        return false;
    for (auto const& entity : objects) {
        auto const object = entityCast<FcObjectDefinition>(entity);
        if (!object)
            continue;
        if (value.isClearing())
            removeFrom(*object, data);
        else if (!storeIn(*object, data, value))
            return false;
    }
    return true;
}

std::string FcPropertyBase::getName() const { return getActivePropertyDefinition().name; }

std::string FcPropertyBase::getDescription() const { return getActivePropertyDefinition().description; }

std::string FcPropertyBase::getLocalizedName() const
{
    auto const& definition = getActivePropertyDefinition();
    auto const key = definition.getConcept();
    return localizedText(m_contexts, key, [&] { return aliasOr(definition, key); });
}

std::string FcPropertyBase::getLocalizedDescription() const
{
    auto const& definition = getActivePropertyDefinition();
    auto const key = definition.getConcept() + "_Description";
    return localizedText(m_contexts, key, [&] { return aliasOr(definition, key); });
}

std::string FcPropertyBase::getValue() const { return {}; }

std::string FcPropertyBase::getPropertySetName() const { return m_set.getName(); }

void FcPropertyBase::onPropertyCustomButtonClicked() { m_set.onPropertyCustomButtonClicked(getName()); }

ifc::def::pset::PropertyDef const& FcPropertyBase::getActivePropertyDefinition() const
{
    return m_definition;
}

bool FcPropertyBase::setNewValue(PropertyOrQuantityValue const& /*value*/, FcPropertySet& /*set*/,
                                 FcObjectDefinition& /*object*/)
{
    return true;
}

resource::measure::FcValue const& FcPropertyBase::getEmptyFcValue()
{
    static resource::measure::FcValue const empty;
    return empty;
}

std::vector<std::shared_ptr<FcBase>> const& FcPropertyBase::getObjects() const { return m_set.getObjects(); }

void FcPropertyBase::reportUncreatedProperty()
{
    assert::report("Unable to create property.", "qev::fc::ui::FcPropertyBase::getProperty",
                   "UI/FoundationClasses/Property/FcPropertyBase");
}

resource::measure::FcValue const& FcPropertyBase::getFcValue() const { return getEmptyFcValue(); }

void FcPropertyBase::removeFrom(FcObjectDefinition& object, Data& data)
{
    auto const set = object.getPropertySetDefinitionNonConst<FcPropertySet>(getPropertySetName());
    if (set && set->HasProperties.removeProperty(getName()) && isEmpty(*set))
        deleteEmptiedSet(object, *set, data);
}

bool FcPropertyBase::storeIn(FcObjectDefinition& object, Data& data, PropertyOrQuantityValue const& value)
{
    auto const set = object.getOrCreatePropertySetDefinition<FcPropertySet>(data, getPropertySetName());
    if (!set || setNewValue(value, *set, object))
        return true;
    if (isEmpty(*set))
        deleteEmptiedSet(object, *set, data);
    return false;
}

} // namespace qev::fc::ui
