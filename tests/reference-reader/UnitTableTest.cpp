#include "reference-reader/UnitTable.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace qev::test::reference;

StepDocument read(std::string const& units, std::string const& members)
{
    return StepDocument::fromText("DATA;\n#1=IFCPROJECT('p',$,$,$,$,$,$,$,#2);\n#2=IFCUNITASSIGNMENT((" +
                                  members + "));\n" + units + "ENDSEC;\n");
}

TEST(UnitTable, PrefixCountsForAreaAndVolumeWithTheirDimension)
{
    StepDocument const document = read("#3=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);\n"
                                       "#4=IFCSIUNIT(*,.AREAUNIT.,.CENTI.,.SQUARE_METRE.);\n"
                                       "#5=IFCSIUNIT(*,.VOLUMEUNIT.,.DECI.,.CUBIC_METRE.);\n",
                                       "#3,#4,#5");
    UnitTable const units(document);
    EXPECT_DOUBLE_EQ(units.ofMeasure("IFCLENGTHMEASURE").factor, 1e-3);
    EXPECT_DOUBLE_EQ(units.ofMeasure("IFCPOSITIVELENGTHMEASURE").factor, 1e-3);
    EXPECT_DOUBLE_EQ(units.ofMeasure("IFCNONNEGATIVELENGTHMEASURE").factor, 1e-3);
    EXPECT_DOUBLE_EQ(units.ofMeasure("IFCAREAMEASURE").factor, 1e-4);
    EXPECT_DOUBLE_EQ(units.ofMeasure("IFCVOLUMEMEASURE").factor, 1e-3);
}

TEST(UnitTable, MassIsInKilograms)
{
    StepDocument const document = read("#3=IFCSIUNIT(*,.MASSUNIT.,$,.GRAM.);\n", "#3");
    EXPECT_DOUBLE_EQ(UnitTable(document).ofMeasure("IFCMASSMEASURE").factor, 1e-3);
    StepDocument const kilogram = read("#3=IFCSIUNIT(*,.MASSUNIT.,.KILO.,.GRAM.);\n", "#3");
    EXPECT_DOUBLE_EQ(UnitTable(kilogram).ofMeasure("IFCMASSMEASURE").factor, 1.0);
}

TEST(UnitTable, DegreeCelsiusHasAnOffset)
{
    StepDocument const document =
        read("#3=IFCSIUNIT(*,.THERMODYNAMICTEMPERATUREUNIT.,$,.DEGREE_CELSIUS.);\n", "#3");
    EXPECT_EQ(UnitTable(document).ofMeasure("IFCTHERMODYNAMICTEMPERATUREMEASURE"), (UnitScale{1.0, 273.15}));
}

TEST(UnitTable, ConversionBasedUnitGoesThroughItsBase)
{
    StepDocument const document = read("#3=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);\n"
                                       "#4=IFCMEASUREWITHUNIT(IFCLENGTHMEASURE(25.4),#3);\n"
                                       "#5=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'INCH',#4);\n"
                                       "#6=IFCMEASUREWITHUNIT(IFCRATIOMEASURE(12.),#5);\n"
                                       "#7=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'FOOT',#6);\n",
                                       "#7");
    EXPECT_DOUBLE_EQ(UnitTable(document).ofMeasure("IFCLENGTHMEASURE").factor, 0.3048);
}

TEST(UnitTable, OffsetIsAddedAfterTheFactor)
{
    StepDocument const document =
        read("#3=IFCSIUNIT(*,.THERMODYNAMICTEMPERATUREUNIT.,$,.DEGREE_CELSIUS.);\n"
             "#4=IFCMEASUREWITHUNIT(IFCRATIOMEASURE(0.5),#3);\n"
             "#5=IFCCONVERSIONBASEDUNITWITHOFFSET($,.THERMODYNAMICTEMPERATUREUNIT.,'X',#4,-16.);\n",
             "#5");
    UnitScale const scale = UnitTable(document).ofMeasure("IFCTHERMODYNAMICTEMPERATUREMEASURE");
    EXPECT_DOUBLE_EQ(scale.factor, 0.5);
    EXPECT_DOUBLE_EQ(scale.offset, 257.15);
}

TEST(UnitTable, DerivedUnitMultipliesItsElements)
{
    StepDocument const document = read("#3=IFCSIUNIT(*,.VOLUMEUNIT.,.DECI.,.CUBIC_METRE.);\n"
                                       "#4=IFCSIUNIT(*,.TIMEUNIT.,$,.SECOND.);\n"
                                       "#5=IFCMEASUREWITHUNIT(IFCTIMEMEASURE(60.),#4);\n"
                                       "#6=IFCCONVERSIONBASEDUNIT($,.TIMEUNIT.,'MINUTE',#5);\n"
                                       "#7=IFCDERIVEDUNITELEMENT(#3,1);\n#8=IFCDERIVEDUNITELEMENT(#6,-1);\n"
                                       "#9=IFCDERIVEDUNIT((#7,#8),.VOLUMETRICFLOWRATEUNIT.,$);\n",
                                       "#9");
    EXPECT_DOUBLE_EQ(UnitTable(document).ofMeasure("IFCVOLUMETRICFLOWRATEMEASURE").factor, 0.001 / 60.0);
}

TEST(UnitTable, WhatHasNoScaleStaysAsItIs)
{
    StepDocument const document =
        read("#3=IFCMONETARYUNIT('EUR');\n#4=IFCCONTEXTDEPENDENTUNIT($,.USERDEFINED.,'PERSON');\n"
             "#5=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'LOOP',#6);\n"
             "#6=IFCMEASUREWITHUNIT(IFCLENGTHMEASURE(1.),#5);\n",
             "#3,#4,#5,#99");
    UnitTable const units(document);
    EXPECT_EQ(units.ofMeasure("IFCMONETARYMEASURE"), UnitScale{});
    EXPECT_EQ(units.ofMeasure("IFCCOUNTMEASURE"), UnitScale{});
    EXPECT_EQ(units.ofMeasure("IFCLABEL"), UnitScale{});
    EXPECT_EQ(units.ofMeasure("IFCLENGTHMEASURE").factor, 1.0);
}

} // namespace
