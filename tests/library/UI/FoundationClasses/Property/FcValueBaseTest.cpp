#include "UI/FoundationClasses/Property/FcValueBase.h"

#include "Core/Localization/LocalizationAdmin.h"
#include "Core/Unit/Quantity.h"
#include "Core/Unit/QuantityPresentation.h"
#include "Format/Ifc/Schema/SchemaLoader.h"
#include "FoundationClasses/AllEntities.h"
#include "kit/ModelBuilder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using namespace qev::fc;
using namespace qev::fc::ui;
using namespace qev::test;
using testing::Contains;

class FcValueBaseTest : public testing::Test
{
protected:
    static FcValueBase attribute(FcBase const& object, std::string const& name)
    {
        auto const* const schema = qev::ifc::SchemaLoader::curr().pSchemaFromName("IFC4X1");
        auto const* const entity = schema->schema().findEntity(object.getEntityNameUpper());
        return {*entity->findAttribute(name), object, {}};
    }

    Model model;
};

TEST_F(FcValueBaseTest, NamesAreThoseOfAttributeTypeAndClass)
{
    auto const door = model.door("D1");
    auto const name = attribute(*door, "Name");

    EXPECT_EQ(name.getName(), "Name");
    EXPECT_EQ(name.getLocalizedName(), "Name");
    EXPECT_EQ(name.getDescription(), "IfcLabel");
    EXPECT_EQ(name.getLocalizedDescription(), "IfcLabel");
    EXPECT_EQ(name.getPropertyTypeName(), "IfcLabel");
    EXPECT_EQ(name.getPropertySetName(), "IfcDoor");
    EXPECT_TRUE(name.getFcValue().isEmpty());
}

TEST_F(FcValueBaseTest, TheValueOfASimpleAttributeIsItsText)
{
    auto const door = model.door("D1");
    door->OverallHeight = 2.1;

    EXPECT_EQ(attribute(*door, "Name").getValue(), "D1");
    EXPECT_EQ(attribute(*door, "OverallHeight").valueAsDoubleGet(), 2.1);
    EXPECT_EQ(attribute(*door, "OverallHeight").getAsSiUnit(*model.data()), 2.1);
    EXPECT_EQ(attribute(*door, "Tag").getValue(), "");
    EXPECT_EQ(attribute(*door, "Name").valueAsDoubleGet(), std::nullopt);
}

TEST_F(FcValueBaseTest, AReferenceHasNoText)
{
    auto const door = model.door("D1");

    EXPECT_EQ(attribute(*door, "ObjectPlacement").getValue(), "");
    EXPECT_EQ(attribute(*door, "ObjectPlacement").getAsSiUnit(*model.data()), std::nullopt);
}

TEST_F(FcValueBaseTest, NothingIsWritten)
{
    auto const door = model.door("D1");
    auto name = attribute(*door, "Name");

    EXPECT_FALSE(name.isAllowedToEdit());
    EXPECT_FALSE(name.isValidValue());
    EXPECT_FALSE(name.updateValue(*model.data(), PropertyOrQuantityValue::fromText("D2")));
    name.onPropertyCustomButtonClicked();
    EXPECT_EQ(door->Name.get(), "D1");
}

TEST_F(FcValueBaseTest, ItemsAreThoseOfAnEnumeration)
{
    auto const door = model.door("D1");

    auto const items = attribute(*door, "PredefinedType").enumValues();
    ASSERT_TRUE(items.has_value());
    EXPECT_THAT(*items, Contains("GATE"));
    EXPECT_EQ(attribute(*door, "Name").enumValues(), std::nullopt);
}

TEST_F(FcValueBaseTest, TextsOfTheFirstContextThatHasThemGoBeforeNames)
{
    auto& admin = qev::resource::localization::getAdminInstance();
    qev::localization::Dictionary dictionary;
    dictionary.set("Tag", "Mark");
    dictionary.set("Tag_Description", "What is written on it");
    admin.add("FcValueBaseTest", admin.language(), dictionary);
    auto const door = model.door("D1");
    FcValueBase const tag(attribute(*door, "Tag").getActiveValueDefinition(), *door,
                          {"NoSuchContext", "FcValueBaseTest"});

    EXPECT_EQ(tag.getLocalizedName(), "Mark");
    EXPECT_EQ(tag.getLocalizedDescription(), "What is written on it");
    EXPECT_EQ(tag.getName(), "Tag");
}

/// A door that cannot give its attributes.
class UnreadableDoor : public shared::sharedbldgelements::FcDoor
{
public:
    [[nodiscard]] std::optional<std::string>
    getAttributeAsString(std::string const& /*attribute*/) const override
    {
        return "1e999";
    }
    [[nodiscard]] std::optional<double> getAttributeAsSiUnit(Data const& /*data*/,
                                                             std::string const& /*attribute*/) const override
    {
        throw std::out_of_range("unreadable");
    }
};

TEST_F(FcValueBaseTest, ANumberThatCannotBeReadIsNone)
{
    auto const door = model.add<UnreadableDoor>("D1");
    auto const height = attribute(*door, "OverallHeight");

    EXPECT_EQ(height.getValue(), "1e999");
    EXPECT_EQ(height.valueAsDoubleGet(), std::nullopt);
    EXPECT_EQ(height.getAsSiUnit(*model.data()), std::nullopt);
}

TEST_F(FcValueBaseTest, TheNumberIsTheOneAtTheStartOfTheText)
{
    auto const door = model.door("12.5 bis");

    EXPECT_EQ(attribute(*door, "Name").valueAsDoubleGet(), 12.5);
}

TEST_F(FcValueBaseTest, LengthsHaveAPresentationAndLabelsHaveNone)
{
    auto const door = model.door("D1");

    EXPECT_NE(attribute(*door, "OverallHeight").quantityPresentation(), nullptr);
    EXPECT_EQ(attribute(*door, "Name").quantityPresentation(), nullptr);
}

/// An attribute that is of another type than the schema says.
class RetypedValue : public FcValueBase
{
public:
    RetypedValue(FcValueBase const& other, FcBase const& object, std::string typeName)
        : FcValueBase(other.getActiveValueDefinition(), object, {})
        , m_typeName(std::move(typeName))
    {
    }
    std::string getPropertyTypeName() const override { return m_typeName; }

private:
    std::string m_typeName;
};

TEST_F(FcValueBaseTest, PresentationsGoByTheNameWithItsPrefixAndPlainRatiosHaveNone)
{
    auto const door = model.door("D1");
    auto const any = attribute(*door, "Name");
    auto const has = [&](std::string const& type) {
        return RetypedValue(any, *door, type).quantityPresentation() != nullptr;
    };

    for (auto const* const type :
         {"IfcAreaMeasure", "IfcVolumetricFlowRateMeasure", "IfcCountMeasure",
          "IfcThermodynamicTemperatureMeasure", "IfcPowerMeasure", "IfcLengthMeasure",
          "IfcPositiveLengthMeasure", "IfcNonNegativeLengthMeasure", "IfcVolumeMeasure",
          "IfcPositiveRatioMeasure", "IfcTimeMeasure", "IfcThermalTransmittanceMeasure",
          "IfcPlaneAngleMeasure"})
        EXPECT_TRUE(has(type)) << type;
    for (auto const* const type : {"IfcRatioMeasure", "LengthMeasure", "IfcMassMeasure", "IfcLabel", "Ifc",
                                   "If", "", "ifcLengthMeasure", "IfcIfcLengthMeasure", "IfcLengthMeasureX"})
        EXPECT_FALSE(has(type)) << type;
}

TEST_F(FcValueBaseTest, PresentationsAreInTheSiUnitOfTheMeasure)
{
    auto const door = model.door("D1");
    auto const any = attribute(*door, "Name");
    auto const unitOf = [&](std::string const& type) {
        return &RetypedValue(any, *door, type).quantityPresentation()->unit();
    };

    EXPECT_EQ(unitOf("IfcAreaMeasure"), &qev::unit::AreaUnit::get());
    EXPECT_EQ(unitOf("IfcVolumetricFlowRateMeasure"), &qev::unit::VolumeFlowUnit::get());
    EXPECT_EQ(unitOf("IfcCountMeasure"), &qev::unit::CountUnit::get());
    EXPECT_EQ(unitOf("IfcThermodynamicTemperatureMeasure"), &qev::unit::TemperatureUnit::get());
    EXPECT_EQ(unitOf("IfcPowerMeasure"), &qev::unit::PowerUnit::get());
    EXPECT_EQ(unitOf("IfcLengthMeasure"), &qev::unit::LengthUnit::get());
    EXPECT_EQ(unitOf("IfcPositiveLengthMeasure"), &qev::unit::LengthUnit::get());
    EXPECT_EQ(unitOf("IfcNonNegativeLengthMeasure"), &qev::unit::LengthUnit::get());
    EXPECT_EQ(unitOf("IfcVolumeMeasure"), &qev::unit::VolumeUnit::get());
    EXPECT_EQ(unitOf("IfcPositiveRatioMeasure"), &qev::unit::RatioUnit::get());
    EXPECT_EQ(unitOf("IfcTimeMeasure"), &qev::unit::TimeUnit::get());
    EXPECT_EQ(unitOf("IfcThermalTransmittanceMeasure"), &qev::unit::ThermalTransmittanceUnit::get());
    EXPECT_EQ(unitOf("IfcPlaneAngleMeasure"), &qev::unit::PlaneAngleUnit::get());
}

} // namespace
