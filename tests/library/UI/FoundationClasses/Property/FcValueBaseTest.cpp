#include "UI/FoundationClasses/Property/FcValueBase.h"

#include "Core/Unit/QuantityPresentation.h"
#include "Format/Ifc/Schema/SchemaLoader.h"
#include "FoundationClasses/AllEntities.h"
#include "kit/ModelBuilder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

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
    for (auto const* const type : {"IfcRatioMeasure", "LengthMeasure", "IfcMassMeasure", "If", ""})
        EXPECT_FALSE(has(type)) << type;
}

} // namespace
