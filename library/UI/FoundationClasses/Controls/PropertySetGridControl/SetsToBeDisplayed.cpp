#include "UI/FoundationClasses/Controls/PropertySetGridControl/SetsToBeDisplayed.h"

#include "Core/Assert/Assert.h"
#include "UI/FoundationClasses/Set/PropertySetDefinition.h"

namespace qev::fc::ui {

void SetsToBeDisplayed::add(PropertySetDefinition const& definition)
{
    names.push_back(definition.getName());
    definitionsByName.emplace(definition.getName(), &definition);
}

std::vector<std::string> const& SetsToBeDisplayed::getOrderedNames() const
{
    if (!requestedOrder)
        return names;
    if (requestedOrder->size() >= definitionsByName.size())
        return *requestedOrder;
    assert::report("List containing requested property set contains too few entries.",
                   "qev::fc::ui::SetsToBeDisplayed::getOrderedNames",
                   "UI/FoundationClasses/Controls/PropertySetGridControl/SetsToBeDisplayed");
    return names;
}

} // namespace qev::fc::ui
