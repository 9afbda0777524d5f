#include "FoundationClasses/Core/ProductExtension/FcElementQuantity.h"

#include "Core/Unit/QuantityPresentation.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/Resource/Quantity/FcPhysicalSimpleQuantity.h"

#include <algorithm>

namespace qev::fc::core::productextension {

bool FcElementQuantity::hasProperty(std::string_view name) const
{
    auto const& quantities = Quantities->get();
    return std::any_of(quantities.begin(), quantities.end(),
                       [name](auto const& quantity) { return quantity->Name.get() == name; });
}

std::unique_ptr<unit::QuantityPresentationBase> FcElementQuantity::createQuantityPresentationFor(
    resource::quantity::FcPhysicalSimpleQuantity const& quantity) const
{
    return quantity.createQuantityPresentation();
}

bool FcElementQuantity::removeQuantity(std::string const& name)
{
    auto const& quantities = Quantities->get();
    auto const found = std::find_if(quantities.begin(), quantities.end(),
                                    [&name](auto const& quantity) { return quantity->Name.get() == name; });
    if (found == quantities.end())
        return quantities.empty();
    auto const quantity = *found;
    std::optional<ChangeLog::Step> step;
    if (getData())
        step.emplace(getData()->changes(), "Remove quantity");
    Quantities.edit([&quantity](auto& list) { list.erase(quantity); });
    if (getData())
        getData()->deleteIfUnreferenced(quantity);
    return Quantities->get().empty();
}

std::vector<std::shared_ptr<FcBase>> FcElementQuantity::ownedEntities() const
{
    auto const& quantities = Quantities->get();
    return {quantities.begin(), quantities.end()};
}

} // namespace qev::fc::core::productextension
