#include "Format/Ifc/Model/FileUnits.h"

#include "Format/Ifc/Model/IfcFile.h"

#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Core/ProductExtension/FcBuildingStorey.h"
#include "FoundationClasses/Resource/Property/FcPropertySingleValue.h"
#include "FoundationClasses/Resource/Quantity/FcQuantityLength.h"
#include "IfcText.h"

#include <gtest/gtest.h>

namespace {

using namespace qev;
using fc::resource::property::FcPropertySingleValue;

/// A project whose unit assignment has \p units, and property #20 with \p value and the unit \p own.
std::unique_ptr<ifc::IfcFile> fileWith(std::string const& units, std::string const& unitRecords,
                                       std::string const& value, std::string const& own = "$")
{
    auto opened = ifc::IfcFile::fromText(test::ifcText(
        "IFC4", "#1=IFCPROJECT('0YvctVUKr0kugbFTf53O9L',$,'P',$,$,$,$,$,#2);\n#2=IFCUNITASSIGNMENT((" +
                    units + "));\n" + unitRecords + "#20=IFCPROPERTYSINGLEVALUE('X',$," + value + "," + own +
                    ");\n"));
    return std::move(opened.file);
}

double valueOf(ifc::IfcFile const& file)
{
    auto const property = fc::entityCast<FcPropertySingleValue>(file.entityFromId(20));
    return property->NominalValue->valueAsDoubleGet().value_or(-1.0);
}

double read(std::string const& units, std::string const& unitRecords, std::string const& value,
            std::string const& own = "$")
{
    auto const file = fileWith(units, unitRecords, value, own);
    return valueOf(*file);
}

std::string const millimetre = "#3=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);\n";

TEST(FileUnits, APrefixScalesTheNumber)
{
    EXPECT_EQ(read("#3", millimetre, "IFCLENGTHMEASURE(1234.)"), 1.234);
}

TEST(FileUnits, ARestrictedMeasureTakesTheUnitOfItsKind)
{
    EXPECT_EQ(read("#3", millimetre, "IFCPOSITIVELENGTHMEASURE(10.)"), 0.01);
    EXPECT_EQ(read("#3", millimetre, "IFCNONNEGATIVELENGTHMEASURE(10.)"), 0.01);
}

TEST(FileUnits, APrefixOfASquareMetreIsSquared)
{
    EXPECT_EQ(read("#3", "#3=IFCSIUNIT(*,.AREAUNIT.,.CENTI.,.SQUARE_METRE.);\n", "IFCAREAMEASURE(25000.)"),
              2.5);
}

TEST(FileUnits, AGramIsAThousandthOfTheSiUnit)
{
    EXPECT_EQ(read("#3", "#3=IFCSIUNIT(*,.MASSUNIT.,$,.GRAM.);\n", "IFCMASSMEASURE(500.)"), 0.5);
    EXPECT_EQ(read("#3", "#3=IFCSIUNIT(*,.MASSUNIT.,.KILO.,.GRAM.);\n", "IFCMASSMEASURE(500.1)"), 500.1);
}

TEST(FileUnits, ADegreeCelsiusHasAnOffset)
{
    EXPECT_DOUBLE_EQ(read("#3", "#3=IFCSIUNIT(*,.THERMODYNAMICTEMPERATUREUNIT.,$,.DEGREE_CELSIUS.);\n",
                          "IFCTHERMODYNAMICTEMPERATUREMEASURE(20.)"),
                     293.15);
}

TEST(FileUnits, AConversionBasedUnitMultipliesItsFactor)
{
    EXPECT_DOUBLE_EQ(read("#3",
                          "#3=IFCCONVERSIONBASEDUNIT(#4,.LENGTHUNIT.,'FOOT',#5);\n#4=IFCDIMENSIONALEXPONENTS("
                          "1,0,0,0,0,0,0);\n"
                          "#5=IFCMEASUREWITHUNIT(IFCRATIOMEASURE(304.8),#6);\n#6=IFCSIUNIT(*,.LENGTHUNIT.,."
                          "MILLI.,.METRE.);\n",
                          "IFCLENGTHMEASURE(10.)"),
                     3.048);
}

double readFahrenheit(std::string const& factor, std::string const& offset, std::string const& base,
                      std::string const& value)
{
    return read("#3",
                "#3=IFCCONVERSIONBASEDUNITWITHOFFSET(#4,.THERMODYNAMICTEMPERATUREUNIT.,'FAHRENHEIT',#5," +
                    offset + ");\n" +
                    "#4=IFCDIMENSIONALEXPONENTS(0,0,0,0,1,0,0);\n"
                    "#5=IFCMEASUREWITHUNIT(IFCRATIOMEASURE(" +
                    factor + "),#6);\n" + "#6=IFCSIUNIT(*,.THERMODYNAMICTEMPERATUREUNIT.,$,." + base +
                    ".);\n",
                "IFCTHERMODYNAMICTEMPERATUREMEASURE(" + value + ")");
}

TEST(FileUnits, AnOffsetIsAddedAfterTheFactor)
{
    EXPECT_NEAR(readFahrenheit("0.555555555555556", "255.372222222222", "KELVIN", "32."), 273.15, 1e-9);
    EXPECT_NEAR(readFahrenheit("0.555555555555556", "-17.7777777777778", "DEGREE_CELSIUS", "212."), 373.15,
                1e-9);
}

TEST(FileUnits, AnOffsetBelowAbsoluteZeroBelongsToTheUnitItself)
{
    EXPECT_NEAR(readFahrenheit("0.555555555555556", "-459.67", "KELVIN", "32."), 273.15, 1e-9);
    EXPECT_NEAR(readFahrenheit("1.8", "-459.67", "KELVIN", "32."), 273.15, 1e-9);
}

TEST(FileUnits, ADerivedUnitMultipliesThePowersOfItsElements)
{
    EXPECT_DOUBLE_EQ(
        read("#3",
             "#3=IFCDERIVEDUNIT((#4,#5),.VOLUMETRICFLOWRATEUNIT.,$,$);\n#4=IFCDERIVEDUNITELEMENT(#6,1);\n"
             "#5=IFCDERIVEDUNITELEMENT(#7,-1);\n#6=IFCSIUNIT(*,.VOLUMEUNIT.,.DECI.,.CUBIC_METRE.);\n"
             "#7=IFCSIUNIT(*,.TIMEUNIT.,$,.SECOND.);\n",
             "IFCVOLUMETRICFLOWRATEMEASURE(250.)"),
        0.25);
}

TEST(FileUnits, AMeasureWithoutAUnitInTheAssignmentIsSi)
{
    EXPECT_EQ(read("#3", millimetre, "IFCAREAMEASURE(7.5)"), 7.5);
}

TEST(FileUnits, APlainNumberHasTheUnitThatItsPropertyNames)
{
    std::string const units = millimetre + "#9=IFCSIUNIT(*,.LENGTHUNIT.,.KILO.,.METRE.);\n";
    EXPECT_EQ(read("#3", units, "IFCREAL(2.)", "#9"), 2000.0);
    EXPECT_EQ(read("#3", units, "IFCREAL(2.)"), 2.0);
}

TEST(FileUnits, APropertysOwnUnitWins)
{
    EXPECT_EQ(read("#3", millimetre + "#9=IFCSIUNIT(*,.LENGTHUNIT.,.KILO.,.METRE.);\n",
                   "IFCLENGTHMEASURE(2.)", "#9"),
              2000.0);
}

TEST(FileUnits, AnOwnUnitOfAnotherKindDoesNotCount)
{
    EXPECT_EQ(
        read("#3", millimetre + "#9=IFCSIUNIT(*,.TIMEUNIT.,$,.SECOND.);\n", "IFCLENGTHMEASURE(2.)", "#9"),
        0.002);
}

TEST(FileUnits, UnitsThatLeadInCirclesAreLeftOut)
{
    EXPECT_EQ(read("#3",
                   "#3=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'LOOP',#5);\n#5=IFCMEASUREWITHUNIT("
                   "IFCRATIOMEASURE(2.),#3);\n",
                   "IFCLENGTHMEASURE(2.)"),
              2.0);
}

TEST(FileUnits, AttributesAreConvertedToo)
{
    auto const opened = ifc::IfcFile::fromText(test::ifcText(
        "IFC4", "#1=IFCPROJECT('0YvctVUKr0kugbFTf53O9L',$,'P',$,$,$,$,$,#2);\n#2=IFCUNITASSIGNMENT((#3));\n" +
                    millimetre +
                    "#7=IFCBUILDINGSTOREY('1YvctVUKr0kugbFTf53O9L',$,'S',$,$,$,$,$,.ELEMENT.,2800.);\n"
                    "#8=IFCQUANTITYLENGTH('L',$,$,1500.,$);\n"));
    auto const storey =
        fc::entityCast<fc::core::productextension::FcBuildingStorey>(opened.file->entityFromId(7));
    ASSERT_TRUE(storey);
    EXPECT_EQ(storey->Elevation.get(), 2.8);
    auto const quantity =
        fc::entityCast<fc::resource::quantity::FcQuantityLength>(opened.file->entityFromId(8));
    ASSERT_TRUE(quantity);
    EXPECT_EQ(quantity->getValue(), 1.5);
}

TEST(FileUnits, AnEditedNumberIsWrittenInTheUnitOfTheFileWithTheFewestDigits)
{
    auto const file = fileWith(
        "#3",
        "#3=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'FOOT',#5);\n"
        "#5=IFCMEASUREWITHUNIT(IFCRATIOMEASURE(0.3048),#6);\n#6=IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.);\n",
        "IFCLENGTHMEASURE(1.)");
    auto const property = fc::entityCast<FcPropertySingleValue>(file->entityFromId(20));
    property->NominalValue.edit([](auto& value) { return value.setDoubleValue(7.3 * 0.3048); });
    EXPECT_NE(file->toText().find("IFCLENGTHMEASURE(7.3)"), std::string::npos) << file->toText();
}

TEST(FileUnits, UnitTypesFollowFromMeasureNames)
{
    EXPECT_EQ(ifc::FileUnits::unitTypeOf("IfcPositivePlaneAngleMeasure"), "PLANEANGLEUNIT");
    EXPECT_EQ(ifc::FileUnits::unitTypeOf("IfcThermalTransmittanceMeasure"), "THERMALTRANSMITTANCEUNIT");
    EXPECT_EQ(ifc::FileUnits::unitTypeOf("IfcSectionalAreaIntegralMeasure"), "SECTIONAREAINTEGRALUNIT");
    EXPECT_EQ(ifc::FileUnits::unitTypeOf("IfcLabel"), "");
}

} // namespace
