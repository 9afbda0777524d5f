#include "reference-reader/ReferenceReader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace {

using namespace qev::test::reference;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Kind = ReferenceProperty::Kind;

AttributeTable toySchema()
{
    return AttributeTable::fromText("# a toy\n"
                                    "schema TOY\n"
                                    "type IfcLabel = STRING(255)\n"
                                    "type IfcPositiveLengthMeasure = IfcLengthMeasure\n"
                                    "type IfcBoxAlignment = IfcLabel\n"
                                    "abstract entity IfcRoot\n"
                                    "  GlobalId : IfcGloballyUniqueId\n"
                                    "  OwnerHistory ? IfcOwnerHistory\n"
                                    "  Name ? IfcLabel\n"
                                    "  Description ? IfcText\n"
                                    "abstract entity IfcObjectDefinition : IfcRoot\n"
                                    "  inverse HasAssignments = set[0:?] IfcRelAssigns.RelatedObjects\n"
                                    "entity IfcDoor : IfcObjectDefinition\n"
                                    "  OverallHeight ? IfcPositiveLengthMeasure\n"
                                    "  Sides : list[1:?] of IfcLabel\n"
                                    "  Alignment ? IfcBoxAlignment\n"
                                    "entity IfcQuantityLength\n"
                                    "  Name : IfcLabel\n"
                                    "  Description ? IfcText\n"
                                    "  Unit ? IfcNamedUnit\n"
                                    "  LengthValue : IfcLengthMeasure\n"
                                    "entity IfcPoint\n"
                                    "  Coordinates : list[1:3] of IfcLengthMeasure\n"
                                    "entity IfcTypeObject : IfcObjectDefinition\n"
                                    "  ApplicableOccurrence ? IfcIdentifier\n"
                                    "  HasPropertySets ? set[1:?] of IfcPropertySetDefinition\n");
}

ReferenceReader read(std::string const& records)
{
    std::string const text =
        "DATA;\n"
        "#1=IFCPROJECT('p',$,$,$,$,$,$,$,#2);\n#2=IFCUNITASSIGNMENT((#3));\n"
        "#3=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);\n#4=IFCSIUNIT(*,.LENGTHUNIT.,.CENTI.,.METRE.);\n"
        "#10=IFCDOOR('d',$,'Door',$,2100.,('in','out'),'left');\n" +
        records + "ENDSEC;\n";
    return ReferenceReader(StepDocument::fromText(text), toySchema());
}

std::string const onDoor = "#12=IFCRELDEFINESBYPROPERTIES('r',$,$,$,(#10),#11);\n";

ReferenceProperty onlyProperty(std::string const& record)
{
    ReferenceReader const reader =
        read("#11=IFCPROPERTYSET('s',$,'Set',$,(#20));\n" + onDoor + "#20=" + record +
             ";\n"
             "#30=IFCPROPERTYSINGLEVALUE('Inner',$,IFCLABEL('x'),$);\n"
             "#31=IFCPROPERTYENUMERATION('E',(IFCREAL(1.)),#4);\n#32=IFCQUANTITYLENGTH('L',$,$,5.);\n");
    std::vector<ReferenceSet> const sets = reader.sets(10);
    return sets.at(0).properties.at(0);
}

TEST(ReferenceReader, ObjectsAreFoundByGlobalId)
{
    ReferenceReader const reader = read("#11=IFCTYPEOBJECT('t',$,'Type',$,$,$);\n#12=IFCOTHER('o');\n");
    EXPECT_THAT(reader.objects(), ElementsAre(10u, 11u));
    EXPECT_EQ(reader.find("t"), 11u);
    EXPECT_EQ(reader.find("o"), std::nullopt);
    EXPECT_EQ(reader.globalId(10), "d");
    EXPECT_EQ(reader.keyword(10), "IFCDOOR");
}

TEST(ReferenceReader, AttributesOfAQuantityAreInItsOwnUnit)
{
    ReferenceReader const reader =
        read("#11=IFCQUANTITYLENGTH('L',$,#4,5.);\n#12=IFCQUANTITYLENGTH('L',$,$,5.);\n");
    EXPECT_DOUBLE_EQ(*reader.attribute(11, "LengthValue")->value->si(), 0.05);
    EXPECT_DOUBLE_EQ(*reader.attribute(12, "LengthValue")->value->si(), 0.005);
}

TEST(ReferenceReader, ListsOfNumbersAreInTheUnitOfTheProject)
{
    ReferenceReader const reader = read("#11=IFCPOINT((1.,2.));\n");
    auto const coordinates = reader.attribute(11, "Coordinates");
    EXPECT_EQ(coordinates->value, std::nullopt);
    EXPECT_EQ(coordinates->itemScale, (UnitScale{0.001, 0.0}));
    EXPECT_EQ(reader.attribute(10, "Sides")->itemScale, UnitScale());
}

TEST(ReferenceReader, AttributesAreNamedByTheSchema)
{
    ReferenceReader const reader = read("");
    std::vector<ReferenceAttribute> const attributes = reader.attributes(10);
    ASSERT_THAT(attributes, SizeIs(7));
    EXPECT_EQ(attributes[2].name, "Name");
    EXPECT_EQ(attributes[2].value->text, "Door");
    EXPECT_EQ(attributes[3].value, std::nullopt);
    EXPECT_EQ(attributes[4].name, "OverallHeight");
    EXPECT_EQ(attributes[4].value->type, "IFCPOSITIVELENGTHMEASURE");
    EXPECT_DOUBLE_EQ(*attributes[4].value->si(), 2.1);
    EXPECT_EQ(attributes[5].value, std::nullopt);
    EXPECT_THAT(attributes[5].written.items, SizeIs(2));
    EXPECT_EQ(reader.attribute(10, "Alignment")->value->type, "IFCLABEL");
    EXPECT_EQ(reader.attribute(10, "Width"), std::nullopt);
}

TEST(ReferenceReader, SetsComeFromRelationsAndFromTheType)
{
    ReferenceReader const reader = read("#11=IFCPROPERTYSET('s',$,'Own',$,());\n" + onDoor +
                                        "#13=IFCPROPERTYSET('u',$,$,$,());\n"
                                        "#14=IFCTYPEOBJECT('t',$,'Type',$,$,(#13));\n"
                                        "#15=IFCRELDEFINESBYTYPE('v',$,$,$,(#10),#14);\n");
    ASSERT_THAT(reader.sets(10), SizeIs(1));
    EXPECT_EQ(reader.sets(10)[0].name, "Own");
    EXPECT_EQ(reader.sets(10)[0].globalId, "s");
    ASSERT_EQ(reader.typeOf(10), 14u);
    ASSERT_THAT(reader.sets(14), SizeIs(1));
    EXPECT_EQ(reader.sets(14)[0].name, std::nullopt);
}

TEST(ReferenceReader, OneRelationMayAttachSeveralSets)
{
    ReferenceReader const reader =
        read("#11=IFCPROPERTYSET('s',$,'A',$,());\n#12=IFCDOORLININGPROPERTIES('l',$,'B',$,1.);\n"
             "#13=IFCRELDEFINESBYPROPERTIES('r',$,$,$,(#10),IFCPROPERTYSETDEFINITIONSET((#11,#12)));\n");
    ASSERT_THAT(reader.sets(10), SizeIs(2));
    EXPECT_EQ(reader.sets(10)[1].kind, ReferenceSet::Kind::Predefined);
    EXPECT_EQ(reader.sets(10)[1].keyword, "IFCDOORLININGPROPERTIES");
}

TEST(ReferenceReader, SingleValueKeepsTypeAndText)
{
    ReferenceProperty const property = onlyProperty("IFCPROPERTYSINGLEVALUE('P','said',IFCLABEL('x'),$)");
    EXPECT_EQ(property.kind, Kind::Single);
    EXPECT_EQ(property.name, "P");
    EXPECT_EQ(property.description, "said");
    ASSERT_THAT(property.values, SizeIs(1));
    EXPECT_EQ(property.values[0].type, "IFCLABEL");
    EXPECT_EQ(property.values[0].text, "x");
    EXPECT_EQ(property.values[0].si(), std::nullopt);
}

TEST(ReferenceReader, SingleValueWithoutValueHasNone)
{
    EXPECT_THAT(onlyProperty("IFCPROPERTYSINGLEVALUE('P',$,$,$)").values, IsEmpty());
}

TEST(ReferenceReader, SingleValueIsInTheUnitOfTheProjectOrItsOwn)
{
    EXPECT_DOUBLE_EQ(*onlyProperty("IFCPROPERTYSINGLEVALUE('P',$,IFCLENGTHMEASURE(5.),$)").values[0].si(),
                     0.005);
    EXPECT_DOUBLE_EQ(*onlyProperty("IFCPROPERTYSINGLEVALUE('P',$,IFCLENGTHMEASURE(5.),#4)").values[0].si(),
                     0.05);
}

TEST(ReferenceReader, LogicalIsAnItem)
{
    ReferenceProperty const property = onlyProperty("IFCPROPERTYSINGLEVALUE('P',$,IFCLOGICAL(.U.),$)");
    EXPECT_EQ(property.values[0].kind, StepArgument::Kind::Enumeration);
    EXPECT_EQ(property.values[0].text, "U");
}

TEST(ReferenceReader, EnumeratedValueTakesTheUnitOfItsEnumeration)
{
    ReferenceProperty const property =
        onlyProperty("IFCPROPERTYENUMERATEDVALUE('P',$,(IFCREAL(1.),IFCREAL(2.)),#31)");
    EXPECT_EQ(property.kind, Kind::Enumerated);
    ASSERT_THAT(property.values, SizeIs(2));
    EXPECT_DOUBLE_EQ(*property.values[1].si(), 0.02);
    EXPECT_THAT(onlyProperty("IFCPROPERTYENUMERATEDVALUE('P',$,(IFCLABEL('A')),$)").values, SizeIs(1));
}

TEST(ReferenceReader, BoundedValueTellsItsBounds)
{
    ReferenceProperty const property = onlyProperty(
        "IFCPROPERTYBOUNDEDVALUE('P',$,IFCLENGTHMEASURE(9.),IFCLENGTHMEASURE(1.),$,IFCLENGTHMEASURE(4.))");
    EXPECT_EQ(property.kind, Kind::Bounded);
    EXPECT_DOUBLE_EQ(*property.upper->si(), 0.009);
    EXPECT_DOUBLE_EQ(*property.lower->si(), 0.001);
    EXPECT_DOUBLE_EQ(*property.setPoint->si(), 0.004);
}

TEST(ReferenceReader, BoundedValueOfAnOldFileHasNoSetPoint)
{
    ReferenceProperty const property = onlyProperty("IFCPROPERTYBOUNDEDVALUE('P',$,$,IFCREAL(1.),$)");
    EXPECT_EQ(property.upper, std::nullopt);
    EXPECT_EQ(property.lower->number, 1.0);
    EXPECT_EQ(property.setPoint, std::nullopt);
}

TEST(ReferenceReader, ListValueKeepsItsOrder)
{
    ReferenceProperty const property =
        onlyProperty("IFCPROPERTYLISTVALUE('P',$,(IFCINTEGER(3),IFCINTEGER(1)),$)");
    EXPECT_EQ(property.kind, Kind::List);
    ASSERT_THAT(property.values, SizeIs(2));
    EXPECT_EQ(property.values[0].text, "3");
}

TEST(ReferenceReader, TableValueHasAUnitForEachColumn)
{
    ReferenceProperty const property = onlyProperty(
        "IFCPROPERTYTABLEVALUE('P',$,(IFCLENGTHMEASURE(1.)),(IFCLENGTHMEASURE(1.)),$,$,#4,.LINEAR.)");
    EXPECT_EQ(property.kind, Kind::Table);
    EXPECT_DOUBLE_EQ(*property.values.at(0).si(), 0.001);
    EXPECT_DOUBLE_EQ(*property.definedValues.at(0).si(), 0.01);
}

TEST(ReferenceReader, ReferenceNamesItsRecord)
{
    EXPECT_EQ(onlyProperty("IFCPROPERTYREFERENCEVALUE('P',$,$,#30)").reference, 30u);
    EXPECT_EQ(onlyProperty("IFCPROPERTYREFERENCEVALUE('P',$,$,$)").reference, 0u);
}

TEST(ReferenceReader, ComplexPropertyHasParts)
{
    ReferenceProperty const property = onlyProperty("IFCCOMPLEXPROPERTY('P',$,'use',(#30))");
    EXPECT_EQ(property.kind, Kind::Complex);
    ASSERT_THAT(property.parts, SizeIs(1));
    EXPECT_EQ(property.parts[0].name, "Inner");
}

TEST(ReferenceReader, ComplexPropertyThatHoldsItselfEnds)
{
    EXPECT_THAT(onlyProperty("IFCCOMPLEXPROPERTY('P',$,'use',(#20))").parts, SizeIs(1));
}

TEST(ReferenceReader, QuantitiesCarryTheirMeasure)
{
    struct Case
    {
        std::string keyword;
        Kind kind;
        std::string type;
    };
    for (Case const& expected :
         {Case{"LENGTH", Kind::Length, "IFCLENGTHMEASURE"}, Case{"AREA", Kind::Area, "IFCAREAMEASURE"},
          Case{"VOLUME", Kind::Volume, "IFCVOLUMEMEASURE"}, Case{"COUNT", Kind::Count, "IFCCOUNTMEASURE"},
          Case{"WEIGHT", Kind::Weight, "IFCMASSMEASURE"}, Case{"TIME", Kind::Time, "IFCTIMEMEASURE"},
          Case{"NUMBER", Kind::Number, "IFCNUMERICMEASURE"}}) {
        ReferenceProperty const property = onlyProperty("IFCQUANTITY" + expected.keyword + "('Q',$,$,2.5,$)");
        EXPECT_EQ(property.kind, expected.kind);
        EXPECT_EQ(property.values.at(0).type, expected.type);
        EXPECT_EQ(property.values.at(0).number, 2.5);
    }
    EXPECT_DOUBLE_EQ(*onlyProperty("IFCQUANTITYLENGTH('Q',$,#4,2.5)").values.at(0).si(), 0.025);
}

TEST(ReferenceReader, QuantitySetsAndComplexQuantitiesAreRead)
{
    ReferenceReader const reader = read("#11=IFCELEMENTQUANTITY('s',$,'Qto',$,'by hand',(#20));\n" + onDoor +
                                        "#20=IFCPHYSICALCOMPLEXQUANTITY('C',$,(#21),'layer',$,$);\n"
                                        "#21=IFCQUANTITYLENGTH('L',$,$,5.);\n");
    ASSERT_THAT(reader.sets(10), SizeIs(1));
    ReferenceSet const set = reader.sets(10)[0];
    EXPECT_EQ(set.kind, ReferenceSet::Kind::Quantities);
    EXPECT_EQ(set.properties.at(0).kind, Kind::ComplexQuantity);
    EXPECT_DOUBLE_EQ(*set.properties.at(0).parts.at(0).values.at(0).si(), 0.005);
}

TEST(ReferenceReader, DanglingReferencesAreLeftOut)
{
    ReferenceReader const reader = read("#11=IFCPROPERTYSET('s',$,'Set',$,(#98));\n" + onDoor +
                                        "#13=IFCRELDEFINESBYPROPERTIES('q',$,$,$,(#97),#96);\n");
    ASSERT_THAT(reader.sets(10), SizeIs(1));
    EXPECT_THAT(reader.sets(10)[0].properties, IsEmpty());
    EXPECT_THAT(reader.sets(97), IsEmpty());
    EXPECT_THAT(reader.attributes(97), IsEmpty());
}

} // namespace
