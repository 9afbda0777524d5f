#include "FoundationClasses/Resource/Material/FcMaterialLayerSet.h"
#include "FoundationClasses/Resource/Material/FcMaterialLayerSetUsage.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"
#include "UI/FoundationClasses/PropertyInterface/VisitReports.h"

namespace qev::fc::ui::propertyinterface {

using resource::material::FcMaterialLayerSetUsage;

bool GetProperties::visit(FcMaterialLayerSetUsage const& usage)
{
    usage.FcMaterialUsageDefinition::accept(*this);
    auto const group = groupOf(*this);
    if (!group)
        return false;
    auto list = makeList("ForLayerSet", usage);
    appendPropertiesOf(usage.ForLayerSet->get(), *list);
    group->children.push_back(std::move(list));
    return false;
}

bool SetValue::visit(FcMaterialLayerSetUsage&)
{
    reportSetValueNotImplemented("FcMaterialLayerSetUsage");
    return true;
}

} // namespace qev::fc::ui::propertyinterface
