#include "UI/FoundationClasses/PsetSorting.h"

#include "Core/Assert/Assert.h"
#include "Core/String/Compare.h"
#include "Format/Ifc/Schema/Pset/PropertySetDef.h"
#include "Format/Ifc/Schema/Qto/QuantitySetDef.h"
#include "Format/Ifc/Schema/SchemaLoader.h"
#include "FoundationClasses/Core/Kernel/FcPropertySetDefinition.h"
#include "FoundationClasses/Resource/Property/FcProperty.h"
#include "FoundationClasses/Resource/Quantity/FcPhysicalQuantity.h"

#include <optional>

namespace qev::fc::ui {

using core::kernel::FcPropertySetDefinition;
using ifc::def::pset::PropertySetDef;
using ifc::def::qto::QuantitySetDef;

namespace {

bool isStandard(std::string_view name) { return name.starts_with("Pset_") || name.starts_with("Qto_"); }

bool isLessByName(std::string_view a, std::string_view b)
{
    return str::details::compare<char>(a, b, str::details::CaseLevel::Counted) < 0;
}

/// The order of two pointers of which at least one is null, null first; nothing when neither is.
template <class Entity>
std::optional<bool> nullCompareLess(std::shared_ptr<Entity> const& a, std::shared_ptr<Entity> const& b)
{
    if (a && b)
        return std::nullopt;
    return !a && b;
}

/// Which of the two names stands first among \p entries; nothing when neither does.
template <class Entries>
std::optional<bool> compareByPlace(Entries const& entries, std::string_view a, std::string_view b)
{
    for (auto const& entry : entries) {
        if (entry->name == a)
            return true;
        if (entry->name == b)
            return false;
    }
    return std::nullopt;
}

} // namespace

bool psetCompareLess(std::string_view a, std::string_view b)
{
    bool const isFirstStandard = isStandard(a);
    if (isFirstStandard != isStandard(b))
        return isFirstStandard;
    return isLessByName(a, b);
}

bool psetCompareLess(std::shared_ptr<FcPropertySetDefinition const> const& a,
                     std::shared_ptr<FcPropertySetDefinition const> const& b)
{
    if (auto const isLess = nullCompareLess(a, b))
        return *isLess;
    auto const& firstName = a->Name.get();
    auto const& secondName = b->Name.get();
    if (firstName && secondName)
        return psetCompareLess(*firstName, *secondName);
    return !firstName && secondName;
}

PropertyCompareLess::PropertyCompareLess(FcPropertySetDefinition const& set)
    : PropertyCompareLess(set, ifc::SchemaLoader::curr().pSchemaFromName(ifc::SchemaLoader::modelVersion))
{
}

PropertyCompareLess::PropertyCompareLess(FcPropertySetDefinition const& set,
                                         ifc::def::SchemaPset const* schema)
{
    auto const& name = set.Name.get();
    if (!name)
        return;
    if (!schema) {
        assert::report("Could not load schema", "qev::fc::ui::PropertyCompareLess::PropertyCompareLess",
                       "UI/FoundationClasses/PsetSorting");
        return;
    }
    auto const* const definition = schema->pXmlSetFromName(*name);
    m_propertySet = dynamic_cast<PropertySetDef const*>(definition);
    if (!m_propertySet)
        m_quantitySet = dynamic_cast<QuantitySetDef const*>(definition);
}

bool PropertyCompareLess::operator()(std::string_view a, std::string_view b) const
{
    std::optional<bool> isLess;
    if (m_propertySet)
        isLess = compareByPlace(m_propertySet->propertyDefs, a, b);
    else if (m_quantitySet)
        isLess = compareByPlace(m_quantitySet->quantityDefs, a, b);
    return isLess ? *isLess : isLessByName(a, b);
}

bool PropertyCompareLess::operator()(std::shared_ptr<resource::property::FcProperty const> const& a,
                                     std::shared_ptr<resource::property::FcProperty const> const& b) const
{
    if (auto const isLess = nullCompareLess(a, b))
        return *isLess;
    return (*this)(a->Name.get(), b->Name.get());
}

bool PropertyCompareLess::operator()(
    std::shared_ptr<resource::quantity::FcPhysicalQuantity const> const& a,
    std::shared_ptr<resource::quantity::FcPhysicalQuantity const> const& b) const
{
    if (auto const isLess = nullCompareLess(a, b))
        return *isLess;
    return (*this)(a->Name.get(), b->Name.get());
}

} // namespace qev::fc::ui
