#include "FoundationClasses/Resource/Representation/FcGeometricRepresentationSubContext.h"
#include "UI/FoundationClasses/PropertyInterface/CoordinateRows.h"
#include "UI/FoundationClasses/PropertyInterface/CreateQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/NorthDirection.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyAccess.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"
#include "UI/FoundationClasses/PropertyInterface/VisitReports.h"

namespace qev::fc::ui::propertyinterface {

using resource::representation::FcGeometricRepresentationContext;
using resource::representation::FcGeometricRepresentationSubContext;

namespace {

bool isOfParent(object::PropertyId const& id)
{
    return id.text() == "WorldCoordinateSystem" || id.text() == "CoordinateSpaceDimension" ||
           id.text() == "TrueNorth" || id.text() == "Precision";
}

/// A parent that is a sub-context itself is none: the standard forbids it, and broken files go in circles.
std::shared_ptr<FcGeometricRepresentationContext> parentOf(FcGeometricRepresentationSubContext const& context)
{
    auto parent = context.ParentContext->get();
    return parent && isOfClass<FcGeometricRepresentationSubContext>(*parent) ? nullptr : parent;
}

} // namespace

bool GetValue::visit(FcGeometricRepresentationSubContext const& context)
{
    auto const parent = isOfParent(id) ? parentOf(context) : nullptr;
    if (!parent)
        return true;
    value = getValue(data, *parent, id, setName);
    return false;
}

bool SetValue::visit(FcGeometricRepresentationSubContext&)
{
    reportSetValueNotImplemented("FcGeometricRepresentationSubContext");
    return false;
}

bool CreateQuantityPresentation::visit(FcGeometricRepresentationSubContext const& context)
{
    if (id.text() != "TrueNorth")
        return true;
    auto const parent = parentOf(context);
    auto const north = parent ? northDirection(*parent) : std::nullopt;
    presentation = makePlaneAnglePresentation(north ? north->innerAngle(northAxis) : 0.0);
    return false;
}

} // namespace qev::fc::ui::propertyinterface
