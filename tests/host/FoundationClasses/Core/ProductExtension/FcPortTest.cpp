#include "FoundationClasses/Core/ProductExtension/FcPort.h"

#include "FoundationClasses/Core/Kernel/FcRelNests.h"
#include "FoundationClasses/Core/ProductExtension/FcDistributionElement.h"
#include "FoundationClasses/Core/ProductExtension/FcRelConnectsPorts.h"
#include "FoundationClasses/Core/ProductExtension/FcRelConnectsPortToElement.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "FoundationClasses/Shared/SharedBldgServiceElements/FcDistributionPort.h"
#include "FoundationClasses/Shared/SharedBldgServiceElements/FcFlowSegment.h"
#include "kit/ModelBuilder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev;
using namespace qev::test;
using namespace fc::core::productextension;
using fc::core::kernel::FcRelNests;
using fc::shared::sharedbldgserviceelements::FcDistributionPort;
using fc::shared::sharedbldgserviceelements::FcFlowSegment;
using testing::ElementsAre;
using testing::IsEmpty;

struct Ports : testing::Test
{
    Model model;
    std::shared_ptr<FcFlowSegment> pipe = model.add<FcFlowSegment>("Pipe 1");
    std::shared_ptr<FcFlowSegment> next = model.add<FcFlowSegment>("Pipe 2");
    std::shared_ptr<FcDistributionPort> out = model.add<FcDistributionPort>("Out");
    std::shared_ptr<FcDistributionPort> in = model.add<FcDistributionPort>("In");

    void nest(Model::Object const& object, Model::Objects const& parts)
    {
        auto const relation = model.add<FcRelNests>("");
        relation->RelatingObject = object;
        relation->RelatedObjects = fc::ReferenceList<fc::core::kernel::FcObjectDefinition>(parts);
    }

    void attach(std::shared_ptr<FcDistributionElement> const& element, std::shared_ptr<FcPort> const& port)
    {
        auto const relation = model.add<FcRelConnectsPortToElement>("");
        relation->RelatingPort = port;
        relation->RelatedElement = element;
    }

    std::shared_ptr<FcRelConnectsPorts> connect(std::shared_ptr<FcPort> const& from,
                                                std::shared_ptr<FcPort> const& to)
    {
        auto relation = model.add<FcRelConnectsPorts>("");
        relation->RelatingPort = from;
        relation->RelatedPort = to;
        return relation;
    }
};

TEST_F(Ports, AreThoseNestedInTheObject)
{
    EXPECT_THAT(pipe->getPorts(), IsEmpty());
    nest(pipe, {in, model.add<FcFlowSegment>("Part"), out});
    EXPECT_THAT(pipe->getPorts(), ElementsAre(in, out));
    EXPECT_THAT(next->getPorts(), IsEmpty());
}

TEST_F(Ports, AreThoseOfTheOlderRelationToo)
{
    nest(pipe, {in});
    attach(pipe, out);
    attach(pipe, in);
    EXPECT_THAT(pipe->getPorts(), ElementsAre(in, out));
}

TEST_F(Ports, OfAnObjectThatCanHaveNoneAreNone) { EXPECT_THAT(model.wall("W1")->getPorts(), IsEmpty()); }

TEST_F(Ports, KnowWhatTheyBelongTo)
{
    EXPECT_THAT(out->getOwners(), IsEmpty());
    nest(pipe, {out});
    attach(pipe, out);
    EXPECT_THAT(out->getOwners(), ElementsAre(pipe));
}

TEST_F(Ports, AreConnectedInBothDirections)
{
    nest(pipe, {out});
    attach(next, in);
    connect(out, in);
    EXPECT_THAT(out->getConnections(false), ElementsAre(next));
    EXPECT_THAT(in->getConnections(false), ElementsAre(pipe));
}

TEST_F(Ports, OfTheSameObjectAreConnectedToIt)
{
    nest(pipe, {in, out});
    connect(out, in);
    EXPECT_THAT(out->getConnections(false), ElementsAre(pipe));
}

TEST_F(Ports, WithoutConnectionOrOwnerAreConnectedToNothing)
{
    EXPECT_THAT(out->getConnections(false), IsEmpty());
    connect(out, in);
    EXPECT_THAT(out->getConnections(true), IsEmpty());
}

TEST_F(Ports, ShowWhatMakesTheConnectionWhenAskedTo)
{
    nest(next, {in});
    auto const gasket = model.add<FcFlowSegment>("Gasket");
    connect(out, in)->RealizingElement = gasket;
    EXPECT_THAT(out->getConnections(false), ElementsAre(next));
    EXPECT_THAT(out->getConnections(true), ElementsAre(next, gasket));
}

} // namespace
