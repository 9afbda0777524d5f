#include "FoundationClasses/Core/ProductExtension/FcRelReferencedInSpatialStructure.h"
#include "FoundationClasses/Core/ProductExtension/FcSpatialElement.h"
#include "FoundationClasses/Localize.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PropertyInterface/StructureRows.h"

namespace qev::fc::ui::propertyinterface {

using core::kernel::FcProduct;
using core::productextension::FcSpatialElement;
using core::productextension::FcSpatialReferenceSelect;

namespace {

/// The products that the structure references; groups, which it may reference too, have no rows here.
std::vector<std::shared_ptr<FcProduct>> referencedProducts(FcSpatialElement const& structure)
{
    std::vector<std::shared_ptr<FcProduct>> products;
    for (auto const& relation : liveOnes(structure.ReferencesElements())) {
        for (auto const& related : relation->RelatedElements.get()) {
            if (related.tag() != FcSpatialReferenceSelect::Product)
                continue;
            if (auto product = related.getProduct())
                products.push_back(std::move(product));
        }
    }
    return products;
}

std::string rowId(std::size_t position)
{
    return std::string(referencedInStructuresId) + '.' + std::to_string(position);
}

/// The product of a row below the heading; null for other ids and for rows that are gone.
std::shared_ptr<FcProduct> productOfRow(FcSpatialElement const& structure, object::PropertyId const& id)
{
    std::string_view text = id.text();
    std::string_view const heading = referencedInStructuresId;
    if (!text.starts_with(heading) || text.substr(heading.size(), 1) != ".")
        return nullptr;
    auto const position = positionFromText(text.substr(heading.size() + 1));
    if (!position)
        return nullptr;
    auto const products = referencedProducts(structure);
    return *position < products.size() ? products[*position] : nullptr;
}

} // namespace

bool GetProperties::visit(FcSpatialElement const& structure)
{
    structure.FcProduct::accept(*this);
    auto const group = groupOf(*this);
    if (!group)
        return false;
    auto list = makeList(referencedInStructuresId, structure);
    auto const count = referencedProducts(structure).size();
    for (std::size_t i = 0; i < count; ++i) {
        auto row = makeRow(referencedInStructuresId, structure);
        row->mappedId = object::PropertyId(rowId(i));
        list->children.push_back(std::move(row));
    }
    if (!list->children.empty())
        group->children.push_back(std::move(list));
    return false;
}

bool GetValue::visit(FcSpatialElement const& structure)
{
    auto const product = productOfRow(structure, id);
    if (!product)
        return true;
    value = classAndName(*product);
    return false;
}

bool GetPropertyName::visit(FcSpatialElement const& structure)
{
    if (id.text() == referencedInStructuresId) {
        name = localizeWithFallback("IfcElement::ReferencedInStructures", referencedInStructuresId);
        return false;
    }
    auto const product = productOfRow(structure, id);
    if (!product)
        return true;
    name = localize(product->getEntityName());
    return false;
}

bool GetPropertyDescription::visit(FcSpatialElement const&)
{
    if (id.text() != referencedInStructuresId)
        return true;
    description = localizeWithFallback("IfcElement::ReferencedInStructures_Description", "");
    return false;
}

} // namespace qev::fc::ui::propertyinterface
