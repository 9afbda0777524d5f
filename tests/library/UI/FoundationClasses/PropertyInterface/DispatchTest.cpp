#include "FoundationClasses/Core/Kernel/FcContext.h"
#include "FoundationClasses/Core/Kernel/FcObject.h"
#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "FoundationClasses/Core/Kernel/FcProduct.h"
#include "FoundationClasses/Core/Kernel/FcProject.h"
#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Core/Kernel/FcPropertySetDefinition.h"
#include "FoundationClasses/Core/Kernel/FcTypeObject.h"
#include "FoundationClasses/Core/ProductExtension/FcBuilding.h"
#include "FoundationClasses/Core/ProductExtension/FcElement.h"
#include "FoundationClasses/Core/ProductExtension/FcElementQuantity.h"
#include "FoundationClasses/Core/ProductExtension/FcRelSpaceBoundary.h"
#include "FoundationClasses/Core/ProductExtension/FcSite.h"
#include "FoundationClasses/Core/ProductExtension/FcSpace.h"
#include "FoundationClasses/Core/ProductExtension/FcSpatialElement.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/Resource/Actor/FcPerson.h"
#include "FoundationClasses/Resource/Actor/FcPersonAndOrganization.h"
#include "FoundationClasses/Resource/Actor/FcPostalAddress.h"
#include "FoundationClasses/Resource/Actor/FcTelecomAddress.h"
#include "FoundationClasses/Resource/ExternalReference/FcClassification.h"
#include "FoundationClasses/Resource/ExternalReference/FcClassificationReference.h"
#include "FoundationClasses/Resource/ExternalReference/FcDocumentReference.h"
#include "FoundationClasses/Resource/ExternalReference/FcExternalReference.h"
#include "FoundationClasses/Resource/ExternalReference/FcLibraryReference.h"
#include "FoundationClasses/Resource/GeometricConstraint/FcLocalPlacement.h"
#include "FoundationClasses/Resource/Geometry/FcCartesianPoint.h"
#include "FoundationClasses/Resource/Material/FcMaterial.h"
#include "FoundationClasses/Resource/Material/FcMaterialConstituent.h"
#include "FoundationClasses/Resource/Material/FcMaterialConstituentSet.h"
#include "FoundationClasses/Resource/Material/FcMaterialLayer.h"
#include "FoundationClasses/Resource/Material/FcMaterialLayerSet.h"
#include "FoundationClasses/Resource/Material/FcMaterialLayerSetUsage.h"
#include "FoundationClasses/Resource/Material/FcMaterialProfile.h"
#include "FoundationClasses/Resource/Material/FcMaterialProperties.h"
#include "FoundationClasses/Resource/Measure/FcDerivedUnit.h"
#include "FoundationClasses/Resource/Measure/FcDerivedUnitElement.h"
#include "FoundationClasses/Resource/Property/FcComplexProperty.h"
#include "FoundationClasses/Resource/Property/FcExtendedProperties.h"
#include "FoundationClasses/Resource/Property/FcProperty.h"
#include "FoundationClasses/Resource/Property/FcPropertyBoundedValue.h"
#include "FoundationClasses/Resource/Property/FcPropertyEnumeratedValue.h"
#include "FoundationClasses/Resource/Property/FcPropertyListValue.h"
#include "FoundationClasses/Resource/Property/FcPropertyReferenceValue.h"
#include "FoundationClasses/Resource/Property/FcPropertySingleValue.h"
#include "FoundationClasses/Resource/Property/FcPropertyTableValue.h"
#include "FoundationClasses/Resource/Quantity/FcPhysicalComplexQuantity.h"
#include "FoundationClasses/Resource/Representation/FcCoordinateOperation.h"
#include "FoundationClasses/Resource/Representation/FcGeometricRepresentationContext.h"
#include "FoundationClasses/Resource/Representation/FcGeometricRepresentationSubContext.h"
#include "FoundationClasses/Resource/Representation/FcMapConversion.h"
#include "FoundationClasses/Resource/Utility/FcOwnerHistory.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "FoundationClasses/Shared/SharedBldgServiceElements/FcDistributionPort.h"
#include "kit/ReportRecorder.h"
#include "UI/FoundationClasses/PropertyInterface/CreateQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/GetEnumeratedValues.h"
#include "UI/FoundationClasses/PropertyInterface/GetListIndexPrefix.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetReference.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/HasEnumeratedValues.h"
#include "UI/FoundationClasses/PropertyInterface/HasQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/IsValueAllowed.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include <gtest/gtest.h>

#include <iterator>
#include <stdexcept>
#include <type_traits>

namespace {

using namespace qev;
using namespace fc::ui::propertyinterface;
using fc::core::kernel::FcContext;
using fc::core::kernel::FcObject;
using fc::core::kernel::FcObjectDefinition;
using fc::core::kernel::FcProduct;
using fc::core::kernel::FcProject;
using fc::core::kernel::FcPropertySet;
using fc::core::kernel::FcPropertySetDefinition;
using fc::core::kernel::FcTypeObject;
using fc::core::productextension::FcBuilding;
using fc::core::productextension::FcElement;
using fc::core::productextension::FcElementQuantity;
using fc::core::productextension::FcRelSpaceBoundary;
using fc::core::productextension::FcSite;
using fc::core::productextension::FcSpace;
using fc::core::productextension::FcSpatialElement;
using fc::resource::actor::FcPerson;
using fc::resource::actor::FcPersonAndOrganization;
using fc::resource::actor::FcPostalAddress;
using fc::resource::actor::FcTelecomAddress;
using fc::resource::externalreference::FcClassification;
using fc::resource::externalreference::FcClassificationReference;
using fc::resource::externalreference::FcDocumentReference;
using fc::resource::externalreference::FcExternalReference;
using fc::resource::externalreference::FcLibraryReference;
using fc::resource::geometricconstraint::FcLocalPlacement;
using fc::resource::geometry::FcCartesianPoint;
using fc::resource::material::FcMaterial;
using fc::resource::material::FcMaterialConstituent;
using fc::resource::material::FcMaterialConstituentSet;
using fc::resource::material::FcMaterialLayer;
using fc::resource::material::FcMaterialLayerSet;
using fc::resource::material::FcMaterialLayerSetUsage;
using fc::resource::material::FcMaterialProfile;
using fc::resource::material::FcMaterialProperties;
using fc::resource::measure::FcDerivedUnit;
using fc::resource::measure::FcDerivedUnitElement;
using fc::resource::property::FcComplexProperty;
using fc::resource::property::FcExtendedProperties;
using fc::resource::property::FcProperty;
using fc::resource::property::FcPropertyBoundedValue;
using fc::resource::property::FcPropertyEnumeratedValue;
using fc::resource::property::FcPropertyListValue;
using fc::resource::property::FcPropertyReferenceValue;
using fc::resource::property::FcPropertySingleValue;
using fc::resource::property::FcPropertyTableValue;
using fc::resource::quantity::FcPhysicalComplexQuantity;
using fc::resource::representation::FcCoordinateOperation;
using fc::resource::representation::FcGeometricRepresentationContext;
using fc::resource::representation::FcGeometricRepresentationSubContext;
using fc::resource::representation::FcMapConversion;
using fc::resource::utility::FcOwnerHistory;
using fc::shared::sharedbldgelements::FcWall;
using fc::shared::sharedbldgserviceelements::FcDistributionPort;
using object::PropertyId;
using object::PropertyValue;

// --- Which visits there are -------------------------------------------------------------------------

/// The class that declares the visit of an entity of class \p T: the visitor itself, or the base of all
/// visitors, whose visits pass on.
template <class T, class Declaring>
Declaring* declaring(bool (Declaring::*)(T));
template <class T, class Declaring>
Declaring* declaring(void (Declaring::*)(T));

template <class Visitor, class T>
constexpr bool hasOwnVisit = std::is_same_v<decltype(declaring<T>(&Visitor::visit)), Visitor*>;

/// In the order of the columns.
template <class T>
constexpr bool ownVisits[] = {hasOwnVisit<GetProperties, T const&>,
                              hasOwnVisit<GetValue, T const&>,
                              hasOwnVisit<SetValue, T&>,
                              hasOwnVisit<GetPropertyName, T const&>,
                              hasOwnVisit<GetPropertyDescription, T const&>,
                              hasOwnVisit<HasEnumeratedValues, T const&>,
                              hasOwnVisit<GetEnumeratedValues, T const&>,
                              hasOwnVisit<IsValueAllowed, T const&>,
                              hasOwnVisit<GetReference, T const&>,
                              hasOwnVisit<HasQuantityPresentation, T const&>,
                              hasOwnVisit<CreateQuantityPresentation, T const&>,
                              hasOwnVisit<GetListIndexPrefix, T const&>};

// --- What they do -----------------------------------------------------------------------------------

/// Ids that some class or other answers to.
char const* const ids[] = {"FcBaseGroupProperty",
                           "Name",
                           "IsTypedBy",
                           "PropertySets",
                           "Location",
                           "0",
                           "Unit",
                           "RefLatitude",
                           "XCoordinate",
                           "ListValue",
                           "EnumeratedValue",
                           "BoundedValue",
                           "TrueNorth",
                           "Documents",
                           "Properties",
                           "MaterialLayers",
                           "RelatingSpace",
                           "CreationDate",
                           "Specification",
                           "TelephoneNumber",
                           "AddressFirstLine"};

/// Whether a visit said that the base class should go on, and left the result as it was.
struct Outcome
{
    bool goesOn = true;
    bool isUntouched = true;
};

/// Elements of a list are known by their number; what another id raises there counts as an answer.
template <class T>
bool visitForName(GetPropertyName& visitor, T const& entity)
{
    try {
        return visitor.visit(entity);
    } catch (std::invalid_argument const&) {
        return false;
    }
}

/// The outcomes of the twelve visits of \p entity as its class \p T alone, in the order of the columns.
template <class T>
std::vector<Outcome> outcomes(T& entity, PropertyId const& id)
{
    auto const data = fc::Data::create();
    PropertyValue const newValue("x");
    T const& constEntity = entity;
    GetProperties properties;
    GetValue value(*data, id, std::nullopt);
    SetValue set(*data, id, newValue);
    GetPropertyName name(*data, id, std::nullopt);
    GetPropertyDescription description(id);
    HasEnumeratedValues hasValues(id);
    GetEnumeratedValues values(id);
    IsValueAllowed allowed(*data, id, newValue);
    GetReference reference(id);
    HasQuantityPresentation hasQuantity(id);
    CreateQuantityPresentation quantity(*data, std::nullopt, id);
    GetListIndexPrefix prefix(id);
    // The visit runs before the result is looked at: braces keep the order.
    return {Outcome{properties.visit(constEntity), properties.properties.empty()},
            Outcome{value.visit(constEntity), value.value == PropertyValue()},
            Outcome{set.visit(entity), true},
            Outcome{visitForName(name, constEntity), name.name.empty()},
            Outcome{description.visit(constEntity), description.description.empty()},
            Outcome{hasValues.visit(constEntity), !hasValues.result},
            Outcome{values.visit(constEntity), values.values.empty()},
            Outcome{allowed.visit(constEntity), allowed.allowed},
            Outcome{reference.visit(constEntity), reference.reference == EntityReference()},
            Outcome{hasQuantity.visit(constEntity), !hasQuantity.result},
            Outcome{quantity.visit(constEntity), quantity.presentation == nullptr},
            Outcome{prefix.visit(constEntity), prefix.prefix.empty()}};
}

/// What stands in the entities, so that they have something to answer with.
template <class T>
std::shared_ptr<T> makeEntity()
{
    auto entity = std::make_shared<T>();
    if constexpr (std::is_base_of_v<FcPropertySetDefinition, T>)
        entity->Name = "Name";
    return entity;
}

/// \p cells has one letter for each visitor: "o" for a visit of the class's own, "s" for one that does
/// nothing but stop, whatever it is asked, "." for none, so that the base class answers. What a visit of its
/// own answers is told by the tests of the classes.
template <class T, class Concrete = T>
void check(std::string const& name, std::string const& cells)
{
    ASSERT_EQ(cells.size(), std::size(ownVisits<T>)) << name;
    for (std::size_t column = 0; column < cells.size(); ++column)
        EXPECT_EQ(ownVisits<T>[column], cells[column] != '.') << name << ", column " << column;
    for (auto const* id : ids) {
        auto const entity = makeEntity<Concrete>();
        auto const found = outcomes<T>(*entity, PropertyId(id));
        ASSERT_EQ(found.size(), cells.size());
        for (std::size_t column = 0; column < cells.size(); ++column) {
            if (cells[column] == 'o')
                continue;
            EXPECT_EQ(found[column].goesOn, cells[column] == '.')
                << name << ", column " << column << ", " << id;
            EXPECT_TRUE(found[column].isUntouched) << name << ", column " << column << ", " << id;
        }
    }
    // A visit of its own may report that it does not know one of the ids.
    test::takeReports();
}

// Columns: rows, value, set, name, description, has values, values, allowed, reference, has quantity,
// quantity, prefix.
TEST(Dispatch, PassesOnOrStopsAtEachClassAsTheTableSays)
{
    check<FcBuilding>("FcBuilding", "o...........");
    check<FcCartesianPoint>("FcCartesianPoint", "ooooo....oo.");
    check<FcClassification>("FcClassification", "........o...");
    check<FcClassificationReference>("FcClassificationReference", "oo.o.......o");
    check<FcComplexProperty>("FcComplexProperty", "o.ooo.......");
    check<FcContext, FcProject>("FcContext", "o..oo.......");
    check<FcCoordinateOperation, FcMapConversion>("FcCoordinateOperation", "o..o........");
    check<FcDerivedUnit>("FcDerivedUnit", "o..oo.......");
    check<FcDerivedUnitElement>("FcDerivedUnitElement", "o..oo.......");
    check<FcDistributionPort>("FcDistributionPort", "o..o........");
    check<FcDocumentReference>("FcDocumentReference", "o..o........");
    check<FcElement, FcWall>("FcElement", "oo......o...");
    check<FcElementQuantity>("FcElementQuantity", "ooooo....oo.");
    check<FcExtendedProperties, FcMaterialProperties>("FcExtendedProperties", "o.ooo.......");
    check<FcExternalReference, FcLibraryReference>("FcExternalReference", "........o...");
    check<FcGeometricRepresentationContext>("FcGeometricRepresentationContext", "oooo.....oo.");
    check<FcGeometricRepresentationSubContext>("FcGeometricRepresentationSubContext", ".oo.......o.");
    check<FcLocalPlacement>("FcLocalPlacement", "ooooo....oo.");
    check<FcMaterial>("FcMaterial", "o..oo.......");
    check<FcMaterialConstituent>("FcMaterialConstituent", "o..oo.......");
    check<FcMaterialConstituentSet>("FcMaterialConstituentSet", "ooooo.......");
    check<FcMaterialLayer>("FcMaterialLayer", "o..oo.......");
    check<FcMaterialLayerSet>("FcMaterialLayerSet", "ooooo.......");
    check<FcMaterialLayerSetUsage>("FcMaterialLayerSetUsage", "o.o.........");
    check<FcMaterialProfile>("FcMaterialProfile", "o.ooo.......");
    check<FcObject, FcWall>("FcObject", "oo.oo...o...");
    check<FcObjectDefinition, FcWall>("FcObjectDefinition", "oo.oo...o...");
    check<FcOwnerHistory>("FcOwnerHistory", "ooo.........");
    check<FcPerson>("FcPerson", "sooo........");
    check<FcPersonAndOrganization>("FcPersonAndOrganization", "o..o........");
    check<FcPhysicalComplexQuantity>("FcPhysicalComplexQuantity", "oosoo....oo.");
    check<FcPostalAddress>("FcPostalAddress", "ooooo.......");
    check<FcProduct, FcWall>("FcProduct", "oo.oo.......");
    check<FcProperty, FcPropertySingleValue>("FcProperty", "ooooo.......");
    check<FcPropertyBoundedValue>("FcPropertyBoundedValue", "ooooo....oo.");
    check<FcPropertyEnumeratedValue>("FcPropertyEnumeratedValue", "oooooooo.ss.");
    check<FcPropertyListValue>("FcPropertyListValue", "ooooo....oo.");
    check<FcPropertyReferenceValue>("FcPropertyReferenceValue", ".oo.........");
    check<FcPropertySet>("FcPropertySet", "o..o........");
    check<FcPropertySetDefinition, FcPropertySet>("FcPropertySetDefinition", "o..oo.......");
    check<FcPropertySingleValue>("FcPropertySingleValue", ".oo..oo..oo.");
    check<FcPropertyTableValue>("FcPropertyTableValue", "oosoo....oo.");
    check<FcRelSpaceBoundary>("FcRelSpaceBoundary", "oooo....o...");
    check<FcSite>("FcSite", "ooo.....ooo.");
    check<FcSpatialElement, FcSpace>("FcSpatialElement", "oo.oo.......");
    check<FcTelecomAddress>("FcTelecomAddress", ".oooo.......");
    check<FcTypeObject>("FcTypeObject", "o..oo.......");
}

TEST(Dispatch, EndsAtTheBaseOfAllClasses)
{
    for (bool const isOwn : ownVisits<fc::FcBase>)
        EXPECT_TRUE(isOwn);
}

TEST(Dispatch, PassesOnAtClassesThatTheTableDoesNotName)
{
    check<FcWall>("FcWall", "............");
    check<FcSpace>("FcSpace", "............");
    check<FcProject>("FcProject", "............");
    check<FcLibraryReference>("FcLibraryReference", "............");
    check<FcMaterialProperties>("FcMaterialProperties", "............");
    check<FcMapConversion>("FcMapConversion", "............");
}

} // namespace
