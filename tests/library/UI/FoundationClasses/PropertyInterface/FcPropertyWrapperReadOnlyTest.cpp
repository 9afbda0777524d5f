#include "FcPropertyWrapperTest.h"
#include "FoundationClasses/Core/Kernel/FcRelNests.h"
#include "FoundationClasses/Domain/Hvac/FcPipeSegment.h"
#include "FoundationClasses/Resource/Actor/FcActorRole.h"
#include "FoundationClasses/Resource/Property/FcPropertyTableValue.h"
#include "FoundationClasses/Shared/SharedBldgServiceElements/FcDistributionPort.h"

namespace {

using namespace qev;
using namespace qev::test;

TEST_F(PropertyWrapper, IsReadOnlyUntilToldOtherwise)
{
    EXPECT_TRUE(wrapper->isReadOnly());
    EXPECT_TRUE(wrapper->isPropertyReadOnly(PropertyId("Name")));
    wrapper->setReadOnly(false);
    EXPECT_FALSE(wrapper->isReadOnly());
    EXPECT_FALSE(wrapper->isPropertyReadOnly(PropertyId("Name")));
    EXPECT_FALSE(wrapper->isPropertyReadOnly(PropertyId("NoSuchPath")));
}

TEST_F(PropertyWrapper, LetsAPredefinedTypeBeChosenOnce)
{
    wrapper->setReadOnly(false);
    EXPECT_FALSE(wrapper->isPropertyReadOnly(PropertyId("PredefinedType")));
    EXPECT_FALSE(wrapper->isPropertyReadOnly(PropertyId("PropertySets.Own.MyPredefinedTypeHere")));
    wall->PredefinedType = fc::FcWallTypeEnum::MOVABLE;
    EXPECT_TRUE(wrapper->isPropertyReadOnly(PropertyId("PredefinedType")));
    EXPECT_TRUE(wrapper->isPropertyReadOnly(PropertyId("PropertySets.Own.MyPredefinedTypeHere")));
}

TEST_F(PropertyWrapper, LetsThePredefinedTypeOfAPortBeChangedUntilItHasSets)
{
    using fc::shared::sharedbldgserviceelements::FcDistributionPort;
    auto const port = model.add<FcDistributionPort>("P1");
    port->PredefinedType = fc::FcDistributionPortTypeEnum::PIPE;
    FcPropertyWrapper ofPort(model.data(), port);
    ofPort.setReadOnly(false);

    EXPECT_FALSE(ofPort.isPropertyReadOnly(PropertyId("PredefinedType")));
    model.addSet(port, "Pset_DistributionPortCommon", {{"A", label("a")}});
    EXPECT_TRUE(ofPort.isPropertyReadOnly(PropertyId("PredefinedType")));
}

TEST_F(PropertyWrapper, AsksAPortBelowAnObjectForTheSetsOfItsOwn)
{
    using fc::shared::sharedbldgserviceelements::FcDistributionPort;
    auto const pipe = model.add<fc::domain::hvac::FcPipeSegment>("Pipe");
    pipe->PredefinedType = fc::FcPipeSegmentTypeEnum::RIGIDSEGMENT;
    model.addSet(pipe, "Pset_PipeSegmentTypeCommon", {{"A", label("a")}});
    auto const port = model.add<FcDistributionPort>("P1");
    port->PredefinedType = fc::FcDistributionPortTypeEnum::PIPE;
    auto const nesting = model.add<fc::core::kernel::FcRelNests>("");
    nesting->RelatingObject = pipe;
    nesting->RelatedObjects = fc::ReferenceList<fc::core::kernel::FcObjectDefinition>({port});
    FcPropertyWrapper ofPipe(model.data(), pipe);
    ofPipe.setReadOnly(false);
    PropertyId const id("Ports.0.PredefinedType");
    ASSERT_EQ(ofPipe.getMappedProperty(id), std::tuple(port, nullptr, PropertyId("PredefinedType")));

    EXPECT_TRUE(ofPipe.isPropertyReadOnly(PropertyId("PredefinedType")));
    EXPECT_FALSE(ofPipe.isPropertyReadOnly(id));
    model.addSet(port, "Pset_DistributionPortCommon", {{"A", label("a")}});
    EXPECT_TRUE(ofPipe.isPropertyReadOnly(id));
}

TEST_F(PropertyWrapper, LetsNoPredefinedTypeOfOtherEntitiesBeChanged)
{
    auto const role = std::make_shared<fc::resource::actor::FcActorRole>();
    model.data()->entityAdd(role, false);
    FcPropertyWrapper ofRole(model.data(), role);
    ofRole.setReadOnly(false);
    EXPECT_TRUE(ofRole.isPropertyReadOnly(PropertyId("PredefinedType")));
}

TEST_F(PropertyWrapper, LetsNoPredefinedTypeOfAnEntityThatIsGoneBeChanged)
{
    auto port = std::make_shared<fc::shared::sharedbldgserviceelements::FcDistributionPort>();
    FcPropertyWrapper ofPort(model.data(), port);
    ofPort.setReadOnly(false);
    EXPECT_FALSE(ofPort.isPropertyReadOnly(PropertyId("PredefinedType")));
    ofPort.clearCache();
    port.reset();

    EXPECT_TRUE(ofPort.isPropertyReadOnly(PropertyId("PredefinedType")));
}

TEST_F(PropertyWrapper, LetsNoTableBeTypedInto)
{
    auto const table = tableValue("T", {});
    drawn->nodes = {node("Top", wall, {node("Table", table), node("Value", singleValue("S", label("s")))})};
    drawn->setReadOnly(false);

    EXPECT_TRUE(drawn->isPropertyReadOnly(PropertyId("Table")));
    EXPECT_FALSE(drawn->isPropertyReadOnly(PropertyId("Value")));
}

} // namespace
