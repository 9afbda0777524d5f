#include "FoundationClasses/Resource/Property/FcPropertyReferenceValue.h"

#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Resource/Actor/FcOrganization.h"
#include "FoundationClasses/Resource/Actor/FcPerson.h"
#include "FoundationClasses/Resource/Actor/FcPersonAndOrganization.h"
#include "FoundationClasses/Resource/Actor/FcPostalAddress.h"
#include "FoundationClasses/Resource/Cost/FcCostValue.h"
#include "FoundationClasses/Resource/DateTime/FcIrregularTimeSeries.h"
#include "FoundationClasses/Resource/DateTime/FcIrregularTimeSeriesValue.h"
#include "FoundationClasses/Resource/DateTime/FcRegularTimeSeries.h"
#include "FoundationClasses/Resource/DateTime/FcTimeSeriesValue.h"
#include "FoundationClasses/Resource/ExternalReference/FcDocumentReference.h"
#include "FoundationClasses/Resource/Material/FcMaterial.h"
#include "FoundationClasses/Resource/Material/FcMaterialConstituent.h"
#include "FoundationClasses/Resource/Material/FcMaterialConstituentSet.h"
#include "FoundationClasses/Resource/Material/FcMaterialLayer.h"
#include "FoundationClasses/Resource/Material/FcMaterialLayerSet.h"
#include "FoundationClasses/Resource/Material/FcMaterialProfile.h"
#include "FoundationClasses/Resource/Utility/FcTable.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "library/kit/EntityProperties.h"

#include <gtest/gtest.h>

namespace {

using namespace qev;
using namespace qev::test;
using fc::resource::property::FcObjectReferenceSelect;
using fc::resource::property::FcPropertyReferenceValue;
using object::PropertyValue;

using Text = std::optional<std::string>;

constexpr char path[] =
    "UI/FoundationClasses/PropertyInterface/PropertyInterfaceVisitFcPropertyReferenceValue";

struct ReferenceValueRow : testing::Test
{
    Model model;
    std::shared_ptr<FcPropertyReferenceValue> property = std::make_shared<FcPropertyReferenceValue>();

    ReferenceValueRow()
    {
        property->Name = "Source";
        model.addSet(model.wall("W1"), "Own")->HasProperties.addProperty(property);
    }

    EntityProperties row() const { return {model.data(), property}; }

    template <class T>
    std::shared_ptr<T> referTo()
    {
        auto entity = std::make_shared<T>();
        model.data()->entityAdd(entity, false);
        property->PropertyReference = FcObjectReferenceSelect(entity);
        return entity;
    }
    void expectNotImplemented(std::string const& type) const
    {
        EXPECT_EQ(row().value("Name"), PropertyValue()) << type;
        expectReport(type + " type of PropertyReferenceValue not implemented",
                     "qev::fc::ui::propertyinterface::GetValue::visit", path);
    }
};

TEST_F(ReferenceValueRow, IsALeafThatAnswersByItsName)
{
    EXPECT_EQ(row().tree(), "Source = Name\n");
    EXPECT_EQ(row().name("Name"), "Source");
}

TEST_F(ReferenceValueRow, ShowsNothingForNoReference) { EXPECT_EQ(row().value("Name"), PropertyValue()); }

TEST_F(ReferenceValueRow, ShowsNothingForAReferenceToWhatWasDeleted)
{
    model.data()->entityDelete(referTo<fc::resource::material::FcMaterial>());
    EXPECT_EQ(row().value("Name"), PropertyValue());
}

TEST_F(ReferenceValueRow, ShowsTheNameOfAnExternalReference)
{
    auto const document = referTo<fc::resource::externalreference::FcDocumentReference>();
    EXPECT_EQ(row().value("Name"), PropertyValue(Text()));
    document->Name = "Plan";
    EXPECT_EQ(row().value("Name"), PropertyValue(Text("Plan")));
}

TEST_F(ReferenceValueRow, ShowsTheNameOfAMaterial)
{
    referTo<fc::resource::material::FcMaterial>()->Name = "Brick";
    EXPECT_EQ(row().value("Name"), PropertyValue(Text("Brick")));
}

TEST_F(ReferenceValueRow, ShowsTheNamesOfPartsAndSetsOfMaterials)
{
    using namespace fc::resource::material;
    auto const frame = referTo<FcMaterialConstituent>();
    EXPECT_EQ(row().value("Name"), PropertyValue(Text()));
    frame->Name = "Frame";
    EXPECT_EQ(row().value("Name"), PropertyValue(Text("Frame")));
    referTo<FcMaterialConstituentSet>()->Name = "Window";
    EXPECT_EQ(row().value("Name"), PropertyValue(Text("Window")));
    referTo<FcMaterialLayer>()->Name = "Outer";
    EXPECT_EQ(row().value("Name"), PropertyValue(Text("Outer")));
    referTo<FcMaterialProfile>()->Name = "IPE 200";
    EXPECT_EQ(row().value("Name"), PropertyValue(Text("IPE 200")));
}

TEST_F(ReferenceValueRow, ShowsTheNameOfALayerSet)
{
    auto const set = referTo<fc::resource::material::FcMaterialLayerSet>();
    EXPECT_EQ(row().value("Name"), PropertyValue(Text()));
    set->LayerSetName = "Cavity wall";
    EXPECT_EQ(row().value("Name"), PropertyValue(Text("Cavity wall")));
}

TEST_F(ReferenceValueRow, ShowsTheValuesOfATimeSeries)
{
    using namespace fc::resource::datetime;
    auto const irregular = referTo<FcIrregularTimeSeries>();
    EXPECT_EQ(row().value("Name"), PropertyValue(Text("")));
    irregular->Values.edit([](auto& moments) {
        auto const first = std::make_shared<FcIrregularTimeSeriesValue>();
        first->ListValues = std::vector{real(1.5), real(2)};
        auto const second = std::make_shared<FcIrregularTimeSeriesValue>();
        second->ListValues = std::vector{label("late")};
        moments.push_back(first);
        moments.push_back(second);
    });
    EXPECT_EQ(row().value("Name"), PropertyValue(Text("1.5, 2, late")));

    referTo<FcRegularTimeSeries>()->Values.edit([](auto& moments) {
        auto const only = std::make_shared<FcTimeSeriesValue>();
        only->ListValues = std::vector{integer(7)};
        moments.push_back(only);
    });
    EXPECT_EQ(row().value("Name"), PropertyValue(Text("7")));
}

TEST_F(ReferenceValueRow, SeparatesEmptyValuesOfATimeSeriesToo)
{
    using namespace fc::resource::datetime;
    referTo<FcRegularTimeSeries>()->Values.edit([](auto& moments) {
        auto const first = std::make_shared<FcTimeSeriesValue>();
        first->ListValues = std::vector{label(""), label("b")};
        auto const second = std::make_shared<FcTimeSeriesValue>();
        second->ListValues = std::vector{label("")};
        moments.push_back(first);
        moments.push_back(second);
    });
    EXPECT_EQ(row().value("Name"), PropertyValue(Text(", b, ")));
}

TEST_F(ReferenceValueRow, ReportsReferencesThatAreNotShown)
{
    referTo<fc::resource::actor::FcPostalAddress>();
    expectNotImplemented("Address");
    referTo<fc::resource::cost::FcCostValue>();
    expectNotImplemented("AppliedValue");
    referTo<fc::resource::actor::FcOrganization>();
    expectNotImplemented("Organization");
    referTo<fc::resource::actor::FcPerson>();
    expectNotImplemented("Person");
    referTo<fc::resource::actor::FcPersonAndOrganization>();
    expectNotImplemented("PersonAndOrganization");
    referTo<fc::resource::utility::FcTable>();
    expectNotImplemented("Table");
}

TEST_F(ReferenceValueRow, ReportsAReadOfAnotherId)
{
    EXPECT_EQ(row().value("UsageName"), PropertyValue());
    expectReport("Property of IfcPropertyReferenceValue has not been implemented.",
                 "qev::fc::ui::propertyinterface::GetValue::visit",
                 "UI/FoundationClasses/PropertyInterface/PropertyInterfaceVisitFcProperty");
}

TEST_F(ReferenceValueRow, IsNotWritten)
{
    row().set("Name", Text("Other"));
    expectReport("Not implemented", "qev::fc::ui::propertyinterface::SetValue::visit", path);
    EXPECT_EQ(property->Name.get(), "Source");
}

} // namespace
