#include "FoundationClasses/Core/ProductExtension/FcSite.h"

#include "FoundationClasses/Resource/Actor/FcPostalAddress.h"

#include <gtest/gtest.h>

namespace {

using namespace qev;
using fc::core::productextension::FcSite;
using fc::resource::actor::FcPostalAddress;
using fc::resource::measure::FcCompoundPlaneAngleMeasure;

TEST(SiteMap, NeedsLatitudeAndLongitude)
{
    FcSite site;
    EXPECT_EQ(site.getMapURL(), std::nullopt);
    site.RefLatitude = FcCompoundPlaneAngleMeasure({48, 8, 0});
    EXPECT_EQ(site.getMapURL(), std::nullopt);
    site.RefLongitude = FcCompoundPlaneAngleMeasure({-11, -34, -30, 0});
    EXPECT_EQ(site.getMapURL(),
              "https://www.openstreetmap.org/?mlat=48.133333&mlon=-11.575000#map=18/48.133333/"
              "-11.575000");
}

TEST(SiteMap, NeedsAPlaceOnEarth)
{
    FcSite site;
    site.RefLatitude = FcCompoundPlaneAngleMeasure({91, 0, 0});
    site.RefLongitude = FcCompoundPlaneAngleMeasure({0, 0, 0});
    EXPECT_EQ(site.getMapURL(), std::nullopt);
    site.RefLatitude = FcCompoundPlaneAngleMeasure({90, 0, 0});
    EXPECT_NE(site.getMapURL(), std::nullopt);
    site.RefLongitude = FcCompoundPlaneAngleMeasure({0, 700000, 0});
    EXPECT_EQ(site.getMapURL(), std::nullopt);
}

TEST(AddressLine, IsCountedFromZero)
{
    FcPostalAddress address;
    EXPECT_EQ(address.getAddressLine(0), std::nullopt);
    address.AddressLines = std::vector<std::string>{"Main Street 1", ""};
    EXPECT_EQ(address.getAddressLine(0), "Main Street 1");
    EXPECT_EQ(address.getAddressLine(1), "");
    EXPECT_EQ(address.getAddressLine(2), std::nullopt);
    EXPECT_EQ(address.getAddressLine(~0ull), std::nullopt);
}

} // namespace
