#include "FoundationClasses/Localize.h"
#include "FoundationClasses/Resource/ExternalReference/FcDocumentInformation.h"
#include "FoundationClasses/Resource/ExternalReference/FcDocumentReference.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"

namespace qev::fc::ui::propertyinterface {

using resource::externalreference::FcDocumentReference;

namespace {

constexpr char referencedDocument[] = "ReferencedDocument";

} // namespace

bool GetProperties::visit(FcDocumentReference const& entity)
{
    entity.FcExternalReference::accept(*this);
    auto const document = entity.ReferencedDocument->get();
    if (auto const group = document ? groupOf(*this) : nullptr)
        group->children.push_back(makeGroup(referencedDocument, entity, document));
    return false;
}

bool GetPropertyName::visit(FcDocumentReference const& entity)
{
    if (id.text() != referencedDocument)
        return true;
    name = referenceLabel(localizeWithFallback("IfcDocumentReference.ReferencedDocument", referencedDocument),
                          entity.ReferencedDocument->get().get());
    return false;
}

} // namespace qev::fc::ui::propertyinterface
