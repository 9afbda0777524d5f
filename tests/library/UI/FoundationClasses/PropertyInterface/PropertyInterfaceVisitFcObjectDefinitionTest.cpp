#include "FoundationClasses/Core/Kernel/FcRelAssignsToGroup.h"
#include "FoundationClasses/Core/Kernel/FcRelAssignsToGroupByFactor.h"
#include "FoundationClasses/Core/Kernel/FcRelAssociatesClassification.h"
#include "FoundationClasses/Core/Kernel/FcRelAssociatesDocument.h"
#include "FoundationClasses/Core/Kernel/FcRelNests.h"
#include "FoundationClasses/Core/ProductExtension/FcRelAssociatesMaterial.h"
#include "FoundationClasses/Core/ProductExtension/FcRelConnectsPorts.h"
#include "FoundationClasses/Core/ProductExtension/FcSystem.h"
#include "FoundationClasses/Resource/ExternalReference/FcClassification.h"
#include "FoundationClasses/Resource/ExternalReference/FcClassificationReference.h"
#include "FoundationClasses/Resource/ExternalReference/FcDocumentInformation.h"
#include "FoundationClasses/Resource/ExternalReference/FcDocumentReference.h"
#include "FoundationClasses/Resource/Material/FcMaterial.h"
#include "FoundationClasses/Resource/Material/FcMaterialLayerSetUsage.h"
#include "FoundationClasses/Resource/Material/FcMaterialList.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWallType.h"
#include "FoundationClasses/Shared/SharedBldgServiceElements/FcDistributionPort.h"
#include "FoundationClasses/Shared/SharedBldgServiceElements/FcFlowSegment.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "library/kit/PropertyTree.h"
#include "library/kit/TranslationScope.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyAccess.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev;
using namespace qev::test;
using namespace fc::core::kernel;
using namespace fc::core::productextension;
using namespace fc::resource::externalreference;
using namespace fc::resource::material;
using namespace fc::ui::propertyinterface;
using fc::shared::sharedbldgserviceelements::FcDistributionPort;
using fc::shared::sharedbldgserviceelements::FcFlowSegment;
using object::PropertyId;
using object::PropertyValue;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

struct ObjectDefinitionRows : testing::Test
{
    TranslationScope texts;
    Model model;

    void nest(Model::Object const& object, Model::Objects const& parts)
    {
        auto const relation = model.add<FcRelNests>("");
        relation->RelatingObject = object;
        relation->RelatedObjects = fc::ReferenceList<FcObjectDefinition>(parts);
    }
    void connect(std::shared_ptr<FcPort> const& from, std::shared_ptr<FcPort> const& to)
    {
        auto const relation = model.add<FcRelConnectsPorts>("");
        relation->RelatingPort = from;
        relation->RelatedPort = to;
    }
    template <class Relation = FcRelAssignsToGroup>
    void assign(std::shared_ptr<FcGroup> const& group, Model::Objects const& objects)
    {
        auto const relation = model.add<Relation>("");
        relation->RelatingGroup = group;
        relation->RelatedObjects = fc::ReferenceList<FcObjectDefinition>(objects);
    }
    template <class Relation>
    std::shared_ptr<Relation> associate(Model::Object const& object)
    {
        auto const relation = model.add<Relation>("");
        relation->setRelatedObjects({FcDefinitionSelect(object)});
        return relation;
    }
    std::string name(fc::FcBase const& entity, std::string const& id) const
    {
        return getPropertyName(*model.data(), entity, PropertyId(id), std::nullopt);
    }
    PropertyValue value(fc::FcBase const& entity, std::string const& id) const
    {
        return getValue(*model.data(), entity, PropertyId(id), std::nullopt);
    }
};

TEST_F(ObjectDefinitionRows, OfAnObjectAloneAreItsAttributesAndTheHeadingsThatAlwaysStand)
{
    auto const type = model.wallType("T1");

    EXPECT_EQ(treeText(getProperties(*type)), "WallType = FcBaseGroupProperty [group]\n"
                                              "  GlobalId\n"
                                              "  Name\n"
                                              "  Description\n"
                                              "  ApplicableOccurrence\n"
                                              "  Tag\n"
                                              "  ElementType\n"
                                              "  PredefinedType\n"
                                              "  Documents [group] [list]\n"
                                              "  Classifications [group] [list]\n"
                                              "  PropertySets [group]\n");
}

// --- Ports ------------------------------------------------------------------------------------------

struct PortRows : ObjectDefinitionRows
{
    std::shared_ptr<FcFlowSegment> pipe = model.add<FcFlowSegment>("Pipe 1");
    std::shared_ptr<FcFlowSegment> next = model.add<FcFlowSegment>("Pipe 2");
    std::shared_ptr<FcDistributionPort> out = model.add<FcDistributionPort>("Out");
    std::shared_ptr<FcDistributionPort> in = model.add<FcDistributionPort>("In");
    std::shared_ptr<FcDistributionPort> far = model.add<FcDistributionPort>("Far");

    PortRows()
    {
        nest(pipe, {out, in});
        nest(next, {far});
    }
};

TEST_F(PortRows, EndWithWhatThePortIsConnectedTo)
{
    auto const ports = nodeAt(getProperties(*pipe), "FlowSegment/Ports");

    ASSERT_TRUE(ports);
    EXPECT_TRUE(ports->isGroup);
    EXPECT_TRUE(ports->isList);
    EXPECT_EQ(ports->object, pipe);
    ASSERT_THAT(childIds(*ports), ElementsAre("DistributionPort", "DistributionPort"));
    auto const row = ports->children[1]->children.back();
    EXPECT_EQ(row->id.text(), "ConnectedTo");
    EXPECT_EQ(row->mappedId, PropertyId("ConnectedTo.1"));
    EXPECT_EQ(row->object, pipe);
    EXPECT_EQ(ports->children[1]->object, in);
}

TEST_F(PortRows, TellTheFirstConnectedObjectThatIsNotTheirOwn)
{
    connect(out, in);
    connect(out, far);

    EXPECT_EQ(value(*pipe, "ConnectedTo.0"), PropertyValue("IfcFlowSegment \"Pipe 2\""));
    EXPECT_EQ(std::get<std::shared_ptr<fc::FcBase const>>(getReference(*pipe, PropertyId("ConnectedTo.0"))),
              next);
}

TEST_F(PortRows, TellTheClassAloneOfAConnectedObjectWithoutAName)
{
    connect(out, far);
    next->Name = std::nullopt;

    EXPECT_EQ(value(*pipe, "ConnectedTo.0"), PropertyValue("IfcFlowSegment"));
}

TEST_F(PortRows, TellNothingOfAPortThatIsConnectedToItsOwnObjectOnly)
{
    connect(out, in);

    EXPECT_EQ(value(*pipe, "ConnectedTo.0"), PropertyValue());
    EXPECT_EQ(getReference(*pipe, PropertyId("ConnectedTo.0")), EntityReference());
}

TEST_F(PortRows, TellNothingBeyondTheLastPort)
{
    connect(in, far);

    EXPECT_EQ(value(*pipe, "ConnectedTo.1"), PropertyValue("IfcFlowSegment \"Pipe 2\""));
    EXPECT_EQ(value(*pipe, "ConnectedTo.2"), PropertyValue());
    EXPECT_EQ(getReference(*pipe, PropertyId("ConnectedTo.2")), EntityReference());
}

TEST_F(PortRows, WithoutANumberAreThoseOfTheFirstPort)
{
    connect(out, far);

    EXPECT_EQ(value(*pipe, "ConnectedTo"), PropertyValue("IfcFlowSegment \"Pipe 2\""));
    EXPECT_EQ(value(*pipe, "ConnectedTo."), PropertyValue("IfcFlowSegment \"Pipe 2\""));
}

TEST_F(ObjectDefinitionRows, HaveNoPortsWhereTheObjectHasNone)
{
    EXPECT_EQ(nodeAt(getProperties(*model.add<FcFlowSegment>("Pipe")), "FlowSegment/Ports"), nullptr);
}

// --- Systems ----------------------------------------------------------------------------------------

TEST_F(ObjectDefinitionRows, NestTheSystemsOfAnObject)
{
    auto const pipe = model.add<FcFlowSegment>("Pipe");
    auto const water = model.add<FcSystem>("Water");
    auto const heating = model.add<FcGroup>("Heating");
    assign(water, {pipe});
    assign<FcRelAssignsToGroupByFactor>(heating, {pipe});
    assign(nullptr, {pipe});

    auto const systems = nodeAt(getProperties(*pipe), "FlowSegment/Systems");

    ASSERT_TRUE(systems);
    EXPECT_TRUE(systems->isGroup);
    EXPECT_TRUE(systems->isList);
    EXPECT_EQ(systems->object, pipe);
    ASSERT_THAT(childIds(*systems), ElementsAre("System", "Group"));
    EXPECT_EQ(systems->children[0]->object, water);
    EXPECT_EQ(systems->children[1]->object, heating);
}

TEST_F(ObjectDefinitionRows, HaveNoSystemsWithoutARelatingGroup)
{
    auto const pipe = model.add<FcFlowSegment>("Pipe");
    assign(nullptr, {pipe});

    EXPECT_EQ(nodeAt(getProperties(*pipe), "FlowSegment/Systems"), nullptr);
}

TEST_F(ObjectDefinitionRows, EndWhereAGroupIsInItself)
{
    auto const outer = model.add<FcGroup>("Outer");
    auto const inner = model.add<FcGroup>("Inner");
    assign(outer, {inner});
    assign(inner, {outer});

    auto const innerAgain = nodeAt(getProperties(*outer), "Group/Systems/Group/Systems");

    ASSERT_TRUE(innerAgain);
    EXPECT_THAT(innerAgain->children, IsEmpty());
}

// --- Associations -----------------------------------------------------------------------------------

TEST_F(ObjectDefinitionRows, NestMaterialsAndMaterialUsages)
{
    auto const wall = model.wall("W1");
    auto const concrete = std::make_shared<FcMaterial>();
    auto const usage = std::make_shared<FcMaterialLayerSetUsage>();
    associate<FcRelAssociatesMaterial>(wall)->RelatingMaterial =
        FcMaterialSelect(std::static_pointer_cast<FcMaterialDefinition>(concrete));
    associate<FcRelAssociatesMaterial>(wall)->RelatingMaterial =
        FcMaterialSelect(std::static_pointer_cast<FcMaterialUsageDefinition>(usage));

    auto const materials = nodeAt(getProperties(*wall), "Wall/Materials");

    ASSERT_TRUE(materials);
    EXPECT_TRUE(materials->isGroup);
    EXPECT_TRUE(materials->isList);
    EXPECT_EQ(materials->object, wall);
    ASSERT_EQ(materials->children.size(), 2u);
    EXPECT_EQ(materials->children[0]->object, concrete);
    EXPECT_EQ(materials->children[1]->object, usage);
}

TEST_F(ObjectDefinitionRows, ReportAListOfMaterialsAndShowTheOthers)
{
    auto const wall = model.wall("W1");
    associate<FcRelAssociatesMaterial>(wall)->RelatingMaterial =
        FcMaterialSelect(std::make_shared<FcMaterialList>());

    EXPECT_EQ(nodeAt(getProperties(*wall), "Wall/Materials"), nullptr);
    expectReport("IfcMaterialList is deprecated, and therefore not implemented.",
                 "qev::fc::ui::propertyinterface::GetProperties::visit",
                 "UI/FoundationClasses/PropertyInterface/PropertyInterfaceVisitFcObjectDefinition");

    associate<FcRelAssociatesMaterial>(wall)->RelatingMaterial =
        FcMaterialSelect(std::static_pointer_cast<FcMaterialDefinition>(std::make_shared<FcMaterial>()));
    EXPECT_THAT(childIds(*nodeAt(getProperties(*wall), "Wall/Materials")), ElementsAre("Material"));
    EXPECT_EQ(takeReports().size(), 1u);
}

TEST_F(ObjectDefinitionRows, NestDocumentsAndReferencesToThem)
{
    auto const wall = model.wall("W1");
    auto const document = std::make_shared<FcDocumentInformation>();
    auto const reference = std::make_shared<FcDocumentReference>();
    associate<FcRelAssociatesDocument>(wall)->RelatingDocument = FcDocumentSelect(document);
    associate<FcRelAssociatesDocument>(wall)->RelatingDocument = FcDocumentSelect(reference);
    associate<FcRelAssociatesDocument>(wall);

    auto const documents = nodeAt(getProperties(*wall), "Wall/Documents");

    ASSERT_EQ(documents->children.size(), 2u);
    EXPECT_EQ(documents->object, wall);
    EXPECT_EQ(documents->children[0]->object, document);
    EXPECT_EQ(documents->children[1]->object, reference);
}

TEST_F(ObjectDefinitionRows, NestClassificationsAndReferencesIntoThem)
{
    auto const wall = model.wall("W1");
    auto const system = std::make_shared<FcClassification>();
    auto const reference = std::make_shared<FcClassificationReference>();
    associate<FcRelAssociatesClassification>(wall)->RelatingClassification = FcClassificationSelect(system);
    associate<FcRelAssociatesClassification>(wall)->RelatingClassification =
        FcClassificationSelect(reference);
    associate<FcRelAssociatesClassification>(wall);

    auto const classifications = nodeAt(getProperties(*wall), "Wall/Classifications");

    ASSERT_THAT(classifications->children, Not(IsEmpty()));
    EXPECT_EQ(classifications->object, wall);
    EXPECT_EQ(classifications->children.front()->object, system);
    EXPECT_EQ(classifications->children.back()->object, reference);
}

TEST_F(ObjectDefinitionRows, LeaveOutDeletedRelations)
{
    auto const wall = model.wall("W1");
    auto const relation = associate<FcRelAssociatesDocument>(wall);
    relation->RelatingDocument = FcDocumentSelect(std::make_shared<FcDocumentInformation>());
    model.data()->entityDelete(relation);

    EXPECT_THAT(nodeAt(getProperties(*wall), "Wall/Documents")->children, IsEmpty());
}

TEST_F(ObjectDefinitionRows, StandInTheirOrder)
{
    auto const pipe = model.add<FcFlowSegment>("Pipe");
    associate<FcRelAssociatesMaterial>(pipe)->RelatingMaterial =
        FcMaterialSelect(std::static_pointer_cast<FcMaterialDefinition>(std::make_shared<FcMaterial>()));
    assign(model.add<FcSystem>("Water"), {pipe});
    nest(pipe, {model.add<FcDistributionPort>("Port")});

    EXPECT_THAT(childIds(*getProperties(*pipe).front()),
                ElementsAre("GlobalId", "Name", "Description", "ObjectType", "Tag", "Ports", "Systems",
                            "Materials", "Documents", "Classifications", "PropertySets"));
}

// --- Texts ------------------------------------------------------------------------------------------

TEST_F(ObjectDefinitionRows, AreLabelledByFallbacksWithoutTexts)
{
    auto const wall = model.wall("W1");

    EXPECT_EQ(name(*wall, "ConnectedTo.0"), "Connected to");
    EXPECT_EQ(name(*wall, "Ports"), "Ports");
    EXPECT_EQ(name(*wall, "Systems"), "Systems");
    EXPECT_EQ(name(*wall, "Materials"), "Materials");
    EXPECT_EQ(name(*wall, "Documents"), "Documents");
    EXPECT_EQ(name(*wall, "Classifications"), "Classifications");
    EXPECT_EQ(getPropertyDescription(*wall, PropertyId("ConnectedTo.0")), "What this port is connected to");
    for (auto const* id : {"Ports", "Systems", "Materials", "Documents", "Classifications"})
        EXPECT_EQ(getPropertyDescription(*wall, PropertyId(id)), "") << id;
}

TEST_F(ObjectDefinitionRows, AreLabelledByTheTextsOfTheirKeys)
{
    auto const wall = model.wall("W1");
    texts.add("Connected-to", "to");
    texts.add("Connected-to_Description", "describes to");
    texts.addIn("FoundationClassesUi", "Classifications", "own");
    texts.add("Classifications", "not asked for");
    texts.add("Classifications_Description", "describes classes");
    for (std::string const id : {"Ports", "Systems", "Materials", "Documents"}) {
        texts.add(id, "named " + id);
        texts.add(id + "_Description", "describes " + id);
        EXPECT_EQ(name(*wall, id), "named " + id);
        EXPECT_EQ(getPropertyDescription(*wall, PropertyId(id)), "describes " + id);
    }
    EXPECT_EQ(name(*wall, "ConnectedTo.7"), "to");
    EXPECT_EQ(getPropertyDescription(*wall, PropertyId("ConnectedTo.7")), "describes to");
    EXPECT_EQ(name(*wall, "Classifications"), "own");
    EXPECT_EQ(getPropertyDescription(*wall, PropertyId("Classifications")), "describes classes");
}

TEST_F(ObjectDefinitionRows, LeaveOtherIdsToTheBaseClass)
{
    auto const wall = model.wall("W1");
    texts.add("IfcWall.Name", "Label of the attribute");
    texts.add("IfcWall.Name_Description", "Description of the attribute");

    EXPECT_EQ(name(*wall, "Name"), "Label of the attribute");
    EXPECT_EQ(getPropertyDescription(*wall, PropertyId("Name")), "Description of the attribute");
    EXPECT_EQ(value(*wall, "Name"), PropertyValue(std::optional<std::string>("W1")));
}

} // namespace
