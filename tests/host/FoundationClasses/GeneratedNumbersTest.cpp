#include "FoundationClasses/AllEntities.h"
#include "FoundationClasses/EntityClass.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace qev::fc {

namespace {

using namespace core::kernel;
using namespace core::productextension;
using namespace resource::datetime;
using namespace resource::externalreference;
using namespace resource::geometricconstraint;
using namespace resource::geometry;
using namespace resource::material;
using namespace resource::profile;
using namespace resource::property;
using namespace resource::quantity;
using namespace resource::utility;
using domain::rail::FcRailType;
using shared::sharedbldgelements::FcRailingType;
using shared::sharedbldgserviceelements::FcDistributionPort;

/// The number of a class without subclasses.
template <class T>
void expectNumber(unsigned int number)
{
    EXPECT_EQ(T::idFirst, number);
    EXPECT_EQ(T::idLast, number);
}

template <class T>
void expectRange(unsigned int first, unsigned int end)
{
    EXPECT_EQ(T::idFirst, first);
    EXPECT_EQ(T::idLast + 1, end);
}

} // namespace

TEST(GeneratedNumbers, RangesThatClassTestsRelyOn)
{
    expectRange<FcPhysicalQuantity>(80, 90);
    expectRange<FcPhysicalSimpleQuantity>(82, 90);
    expectRange<FcProperty>(166, 175);
    expectRange<FcRoot>(354, 838);
    expectRange<FcObjectDefinition>(355, 770);
    expectRange<FcObject>(359, 612);
    expectRange<FcTypeObject>(612, 770);
    expectRange<FcPropertySetDefinition>(771, 782);
}

TEST(GeneratedNumbers, ClassesThatAreAskedForByNumber)
{
    expectNumber<FcClassificationReference>(39);
    expectNumber<FcMaterialLayerSet>(56);
    expectNumber<FcLocalPlacement>(75);
    expectNumber<FcOwnerHistory>(77);
    expectNumber<FcQuantityArea>(83);
    expectNumber<FcQuantityCount>(84);
    expectNumber<FcPropertyBoundedValue>(169);
    expectNumber<FcPropertyEnumeratedValue>(170);
    expectNumber<FcPropertyListValue>(171);
    expectNumber<FcPropertySingleValue>(173);
    expectNumber<FcPropertyTableValue>(174);
    expectNumber<FcDirection>(241);
    expectNumber<FcCartesianPoint>(264);
    expectNumber<FcDistributionPort>(557);
    expectNumber<FcBuildingStorey>(567);
    expectNumber<FcBuilding>(570);
    expectNumber<FcSite>(580);
    expectNumber<FcPropertySet>(779);
    expectNumber<FcElementQuantity>(781);
    expectNumber<FcRelAssociatesClassification>(798);
    expectNumber<FcRelAssociatesDocument>(800);
    expectNumber<FcRelAssociatesMaterial>(802);
    expectNumber<FcRelReferencedInSpatialStructure>(820);
    EXPECT_EQ(FcPort::idFirst, 556u);
}

TEST(GeneratedNumbers, GroupAssignmentsAndTimeSeriesAreTheOnlyClassesOfTheirRanges)
{
    expectRange<FcRelAssignsToGroup>(791, 793);
    expectNumber<FcRelAssignsToGroupByFactor>(792);
    expectRange<FcTimeSeries>(867, 870);
    expectNumber<FcIrregularTimeSeries>(868);
    expectNumber<FcRegularTimeSeries>(869);
}

TEST(GeneratedNumbers, QuantitySetStandsBetweenPropertySetAndElementQuantity)
{
    expectRange<FcQuantitySet>(780, 782);
    EXPECT_TRUE(FcQuantitySet::staticEntityClass().isAbstract);
}

// A test for a root that goes one number further meets no object, as the class behind it is abstract.
TEST(GeneratedNumbers, TheClassBehindTheRootsHasNoObjectsOfItsOwn)
{
    EXPECT_EQ(FcSchedulingTime::idFirst, 838u);
    EXPECT_TRUE(FcSchedulingTime::staticEntityClass().isAbstract);
}

TEST(GeneratedNumbers, SiblingsAreInTheOrderOfCharacterCodes)
{
    EXPECT_EQ(FcCShapeProfileDef::idFirst, 145u);
    EXPECT_EQ(FcCircleProfileDef::idFirst, 146u);
    EXPECT_EQ(FcCircleHollowProfileDef::idFirst, 147u);
    EXPECT_EQ(FcTShapeProfileDef::idFirst, 154u);
    EXPECT_EQ(FcTrapeziumProfileDef::idFirst, 155u);
    EXPECT_EQ(FcRailType::idFirst, 639u);
    EXPECT_EQ(FcRailingType::idFirst, 640u);
    EXPECT_EQ(FcRelConnectsPortToElement::idFirst, 808u);
    EXPECT_EQ(FcRelConnectsPorts::idFirst, 809u);
}

TEST(GeneratedNumbers, TheRootOfAllHasNumberZeroAndTheWholeRange)
{
    EXPECT_EQ(FcBase::idFirst, 0u);
    EXPECT_EQ(FcBase::idLast, 872u);
    EXPECT_EQ(entityClassFromNumber(0), &FcBase::staticEntityClass());
    EXPECT_EQ(entityClassFromNumber(873), nullptr);
}

} // namespace qev::fc
