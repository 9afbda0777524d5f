#include "UI/FoundationClasses/Set/IfcXmlQuantitySetDefFromFcElementQuantity.h"

#include "Core/Assert/Assert.h"
#include "Format/Ifc/Schema/Qto/QuantityTypeArea.h"
#include "Format/Ifc/Schema/Qto/QuantityTypeCount.h"
#include "Format/Ifc/Schema/Qto/QuantityTypeLength.h"
#include "Format/Ifc/Schema/Qto/QuantityTypeTime.h"
#include "Format/Ifc/Schema/Qto/QuantityTypeVolume.h"
#include "Format/Ifc/Schema/Qto/QuantityTypeWeight.h"
#include "FoundationClasses/Core/ProductExtension/FcElementQuantity.h"
#include "FoundationClasses/Resource/Quantity/FcQuantityArea.h"
#include "FoundationClasses/Resource/Quantity/FcQuantityCount.h"
#include "FoundationClasses/Resource/Quantity/FcQuantityLength.h"
#include "FoundationClasses/Resource/Quantity/FcQuantityTime.h"
#include "FoundationClasses/Resource/Quantity/FcQuantityVolume.h"
#include "FoundationClasses/Resource/Quantity/FcQuantityWeight.h"

#include <utility>

namespace qev::fc::ui {

using namespace ifc::def::qto;

namespace {

/// Null for a quantity of another class than those that definitions have.
std::unique_ptr<QuantityType> typeOf(FcBase const& quantity)
{
    namespace model = resource::quantity;
    if (isOfClass<model::FcQuantityArea>(quantity))
        return std::make_unique<QuantityTypeArea>();
    if (isOfClass<model::FcQuantityCount>(quantity))
        return std::make_unique<QuantityTypeCount>();
    if (isOfClass<model::FcQuantityLength>(quantity))
        return std::make_unique<QuantityTypeLength>();
    if (isOfClass<model::FcQuantityTime>(quantity))
        return std::make_unique<QuantityTypeTime>();
    if (isOfClass<model::FcQuantityVolume>(quantity))
        return std::make_unique<QuantityTypeVolume>();
    if (isOfClass<model::FcQuantityWeight>(quantity))
        return std::make_unique<QuantityTypeWeight>();
    return nullptr;
}

} // namespace

std::unique_ptr<QuantitySetDef> IfcXmlQuantitySetDefFromFcElementQuantity::get(
    std::shared_ptr<core::productextension::FcElementQuantity> const& set)
{
    if (!set->Name.get())
        return nullptr;
    auto definition = std::make_unique<QuantitySetDef>(*set->Name.get());
    for (auto const& quantity : set->Quantities.get().get()) {
        auto type = typeOf(*quantity);
        if (type)
            definition->quantityDefs.push_back(
                std::make_unique<QuantityDef>(*definition, quantity->Name.get(), std::move(type)));
        else
            assert::report("Unknown quantity.", "qev::fc::ui::IfcXmlQuantitySetDefFromFcElementQuantity::get",
                           "UI/FoundationClasses/Set/IfcXmlQuantitySetDefFromFcElementQuantity");
    }
    return definition;
}

} // namespace qev::fc::ui
