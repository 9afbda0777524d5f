#include "FoundationClasses/Core/ProductExtension/FcSite.h"

#include "Core/Unit/QuantityPresentation.h"
#include "FoundationClasses/Core/ProductExtension/FcBuilding.h"
#include "FoundationClasses/Resource/Actor/FcPostalAddress.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "library/kit/PropertyTree.h"
#include "library/kit/TranslationScope.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyAccess.h"
#include "UI/FoundationClasses/PropertyInterface/StructureRows.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev;
using namespace qev::test;
using namespace fc::ui::propertyinterface;
using fc::resource::actor::FcPostalAddress;
using fc::resource::measure::FcCompoundPlaneAngleMeasure;
using object::PropertyId;
using object::PropertyValue;
using testing::ElementsAre;

struct SiteRows : testing::Test
{
    TranslationScope texts;
    Model model;
    std::shared_ptr<fc::core::productextension::FcSite> site = model.site("T1");
    std::shared_ptr<fc::core::productextension::FcBuilding> building = model.building("B1");
    std::shared_ptr<FcPostalAddress> address = std::make_shared<FcPostalAddress>();

    PropertyValue value(std::string const& id) const
    {
        return getValue(*model.data(), *site, PropertyId(id), std::nullopt);
    }
    void set(std::string const& id, PropertyValue const& value)
    {
        setValue(*model.data(), *site, PropertyId(id), value);
    }
};

// --- Addresses --------------------------------------------------------------------------------------

TEST_F(SiteRows, HaveTheAddressBeforeTheFirstHeading)
{
    site->SiteAddress = address;

    auto const group = getProperties(*site).front();

    EXPECT_THAT(childIds(*group),
                ElementsAre("GlobalId", "Name", "Description", "ObjectType", "LongName", "CompositionType",
                            "RefLatitude", "RefLongitude", "RefElevation", "LandTitleNumber", "SiteAddress",
                            "Documents", "Classifications", "PropertySets"));
    auto const& row = *group->children[10];
    EXPECT_TRUE(row.isGroup);
    EXPECT_FALSE(row.isList);
    EXPECT_EQ(row.object, site);
    EXPECT_EQ(row.children.size(), getProperties(*address).size());
    EXPECT_EQ(row.children.front()->object, address);
}

TEST_F(SiteRows, OfABuildingHaveItsAddressBeforeTheFirstHeading)
{
    EXPECT_EQ(nodeAt(getProperties(*building), "Building/BuildingAddress"), nullptr);
    building->BuildingAddress = address;

    auto const row = nodeAt(getProperties(*building), "Building/BuildingAddress");

    ASSERT_TRUE(row);
    EXPECT_TRUE(row->isGroup);
    EXPECT_EQ(row->object, building);
    auto const ids = childIds(*getProperties(*building).front());
    auto const position = std::find(ids.begin(), ids.end(), "BuildingAddress") - ids.begin();
    EXPECT_EQ(ids[position + 1], "Documents");
    EXPECT_EQ(nodeAt(getProperties(*site), "Site/SiteAddress"), nullptr);
}

TEST_F(SiteRows, AreNoneForAGroupWithoutHeadings)
{
    fc::Property group;
    group.children.push_back(std::make_shared<fc::Property>());

    insertAddress("BuildingAddress", address, *building, group);

    EXPECT_EQ(group.children.size(), 1u);
}

// --- Latitude and longitude -------------------------------------------------------------------------

TEST_F(SiteRows, ShowLatitudeAndLongitudeAsAngles)
{
    EXPECT_EQ(value("RefLatitude"), PropertyValue());
    EXPECT_EQ(value("RefLongitude"), PropertyValue());
    site->RefLatitude = FcCompoundPlaneAngleMeasure({48, 30, 0});
    site->RefLongitude = FcCompoundPlaneAngleMeasure({-11, -15, 0});

    EXPECT_EQ(value("RefLatitude"), PropertyValue(48.5));
    EXPECT_EQ(value("RefLongitude"), PropertyValue(-11.25));
}

TEST_F(SiteRows, WriteLatitudeAndLongitude)
{
    set("RefLatitude", std::optional<double>(48.5));
    set("RefLongitude", std::optional<double>(-11.25));
    EXPECT_THAT(site->RefLatitude.get()->components(), ElementsAre(48, 30, 0, 0));
    EXPECT_THAT(site->RefLongitude.get()->components(), ElementsAre(-11, -15, 0, 0));
    set("RefLatitude", 49.0);
    EXPECT_THAT(site->RefLatitude.get()->components(), ElementsAre(49, 0, 0, 0));

    set("RefLatitude", std::optional<double>());
    EXPECT_EQ(site->RefLatitude.get(), std::nullopt);
    EXPECT_NE(site->RefLongitude.get(), std::nullopt);
}

TEST_F(SiteRows, KeepTheComponentsOfTheAngleTheyHave)
{
    site->RefLatitude = FcCompoundPlaneAngleMeasure({48, 8, 13});

    set("RefLatitude", value("RefLatitude"));

    EXPECT_THAT(site->RefLatitude.get()->components(), ElementsAre(48, 8, 13));
}

TEST_F(SiteRows, ClearAnAngleAndReportAValueOfAnotherKind)
{
    site->RefLatitude = FcCompoundPlaneAngleMeasure({48, 8, 13});

    set("RefLatitude", "north");

    EXPECT_EQ(site->RefLatitude.get(), std::nullopt);
    expectReport("Property value doesn't hold the given type.", "qev::object::PropertyValue::get",
                 "Object/PropertyValue");
}

TEST_F(SiteRows, PresentLatitudeAndLongitudeInDegrees)
{
    for (auto const* id : {"RefLatitude", "RefLongitude"}) {
        EXPECT_TRUE(hasQuantityPresentation(*site, PropertyId(id)));
        auto const presentation =
            createQuantityPresentation(*model.data(), *site, PropertyId(id), std::nullopt);
        ASSERT_TRUE(presentation);
        EXPECT_EQ(presentation->value(), 0.0);
        EXPECT_EQ(typeid(presentation->unit()),
                  typeid(unit::Unit<18, unit::Quantity<5, 0, 0, 0, 0, 0, 0, 0>>));
    }
    EXPECT_FALSE(hasQuantityPresentation(*site, PropertyId("Name")));
    EXPECT_TRUE(hasQuantityPresentation(*site, PropertyId("RefElevation")));
    EXPECT_NE(createQuantityPresentation(*model.data(), *site, PropertyId("RefElevation"), std::nullopt),
              nullptr);
}

TEST_F(SiteRows, LeadToAMapWhereTheyHaveAPlace)
{
    PropertyId const group("FcBaseGroupProperty");
    EXPECT_EQ(getReference(*site, group), EntityReference());
    site->RefLatitude = FcCompoundPlaneAngleMeasure({48, 30, 0});
    site->RefLongitude = FcCompoundPlaneAngleMeasure({11, 15, 0});

    EXPECT_EQ(std::get<std::string>(getReference(*site, group)), site->getMapURL());
    EXPECT_EQ(getReference(*site, PropertyId("RefLatitude")), EntityReference());
}

TEST_F(SiteRows, LeaveOtherIdsToTheBaseClass)
{
    set("Name", std::optional<std::string>("T2"));
    EXPECT_EQ(site->Name.get(), "T2");
    EXPECT_EQ(value("Name"), PropertyValue(std::optional<std::string>("T2")));
}

} // namespace
