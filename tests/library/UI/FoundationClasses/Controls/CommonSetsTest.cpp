#include "PropertySetControlFixture.h"

namespace {

using namespace qev::fc;
using namespace qev::fc::ui;
using namespace qev::test;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class SetsInCommon : public PropertySetControlFixture
{
};

TEST_F(SetsInCommon, SeveralObjectsShowWhatAllOfThemHave)
{
    auto& control = use(toySchemaWith(SetBuilder("Pset_All").applicableTo("IfcProduct").take(),
                                      SetBuilder("Pset_Door").applicableTo("IfcDoor").take(),
                                      SetBuilder("Pset_Wall").applicableTo("IfcWall").take()));
    auto const wall = model.wall("W1");
    auto const door = model.door("D1");
    model.addSet(wall, "Shared", {{"Code", label("A")}});
    model.addSet(door, "Shared", {{"Code", label("B")}});
    model.addSet(wall, "WallOnly", {{"Code", label("A")}});

    control.setObjects(model.data(), {wall, door});

    // The shared set has two definitions to merge, of which the first counts.
    EXPECT_THAT(takeReportTexts(), ElementsAre("Not implemented: Need to merge with existing values."));
    EXPECT_THAT(namesOf(control), ElementsAre("Pset_All", "Shared"));
}

TEST_F(SetsInCommon, OneObjectWithoutAnySetLeavesNone)
{
    auto& control = use(toySchemaWith(SetBuilder("Pset_Wall").applicableTo("IfcWall").take()));

    control.setObjects(model.data(), {model.wall("W1"), model.space("S1"), model.wall("W2")});

    EXPECT_THAT(control.getDefinitions(), IsEmpty());
}

TEST_F(SetsInCommon, WhatIsNoObjectDefinitionIsIgnored)
{
    auto& control = useToy();
    auto const wall = model.wall("W1");
    auto const set = model.addSet(wall, "Company", {{"Code", label("A")}});
    std::shared_ptr<FcBase> const property = set->HasProperties.getProperties().front();

    control.setObjects(model.data(), {property, wall, nullptr, set});

    EXPECT_THAT(namesOf(control), ElementsAre("Company", "Pset_Toy"));
}

TEST_F(SetsInCommon, NothingButOtherEntitiesShowsNoSetAndReportsNothing)
{
    auto& control = useToy();

    control.setObject(model.data(), std::shared_ptr<FcBase>(singleValue("Code", label("A"))));

    EXPECT_THAT(control.getDefinitions(), IsEmpty());
    EXPECT_THAT(takeReportTexts(), IsEmpty());
}

TEST_F(SetsInCommon, AnObjectWithoutAnySetEndsTheWork)
{
    auto& control = use(toySchemaWith(SetBuilder("Pset_Wall").applicableTo("IfcWall").take()));

    // The class of the slab, which the schema does not know, is not come to.
    control.setObjects(model.data(), {model.wall("W1"), model.space("S1"), model.slab("S2")});

    EXPECT_THAT(control.getDefinitions(), IsEmpty());
    EXPECT_THAT(takeReportTexts(), IsEmpty());
}

TEST_F(SetsInCommon, AFirstObjectWithoutAnySetEndsTheWork)
{
    auto& control = use(toySchemaWith(SetBuilder("Pset_Wall").applicableTo("IfcWall").take()));

    control.setObjects(model.data(), {model.space("S1"), model.wall("W1"), model.slab("S2")});

    EXPECT_THAT(control.getDefinitions(), IsEmpty());
    EXPECT_THAT(takeReportTexts(), IsEmpty());
}

TEST_F(SetsInCommon, ObjectsWithoutASetInCommonShowNone)
{
    auto& control = use(toySchemaWith(SetBuilder("Pset_Wall").applicableTo("IfcWall").take(),
                                      SetBuilder("Pset_Door").applicableTo("IfcDoor").take()));

    control.setObjects(model.data(), {model.wall("W1"), model.door("D1"), model.wall("W2")});

    EXPECT_THAT(control.getDefinitions(), IsEmpty());
}

TEST_F(SetsInCommon, WhatOneObjectLacksIsGoneWhateverLaterOnesHave)
{
    auto& control = useToy();
    Entities walls;
    for (auto const* const name : {"W1", "W2", "W3", "W4"})
        walls.push_back(model.wall(name));
    auto const add = [&](std::size_t wall, std::string const& set) {
        model.addSet(std::static_pointer_cast<core::kernel::FcObjectDefinition>(walls[wall]), set,
                     {{"Code", label("A")}});
    };
    for (std::size_t const wall : {0u, 1u, 2u, 3u})
        add(wall, "Everywhere");
    for (std::size_t const wall : {0u, 2u, 3u})
        add(wall, "NotInTheSecond");
    for (std::size_t const wall : {0u, 1u, 2u})
        add(wall, "NotInTheLast");
    add(3, "OnlyInTheLast");

    control.setObjects(model.data(), walls);
    takeReports();

    EXPECT_THAT(namesOf(control), ElementsAre("Everywhere", "Pset_Toy"));
}

TEST_F(SetsInCommon, ASetOfTheSchemaForOneAndOfTheOtherItselfIsWhatItIsForTheFirst)
{
    auto& control = use(toySchemaWith(SetBuilder("Pset_Wall").applicableTo("IfcWall").take(),
                                      SetBuilder("Pset_Door").applicableTo("IfcDoor").take()));
    auto const wall = model.wall("W1");
    auto const door = model.door("D1");
    model.addSet(door, "Pset_Wall", {{"Code", label("A")}});

    control.setObjects(model.data(), {wall, door});
    ASSERT_THAT(namesOf(control), ElementsAre("Pset_Wall"));
    EXPECT_NE(control.getDefinitions().front()->getDefinition(), nullptr);

    control.setObjects(model.data(), {door, wall});
    ASSERT_THAT(namesOf(control), ElementsAre("Pset_Wall"));
    EXPECT_EQ(control.getDefinitions().front()->getDefinition(), nullptr);
}

TEST_F(SetsInCommon, SetsOfUnequalTypeButOneNameAreOneSet)
{
    auto& control = useToy();
    auto const first = model.wall("W1");
    auto const second = model.wall("W2");
    model.addSet(first, "Company", {{"Code", label("A")}});
    model.addQuantities(second, "Company", {{"Length", 2.0}});

    control.setObjects(model.data(), {first, second});

    EXPECT_THAT(namesOf(control), ElementsAre("Company", "Pset_Toy"));
    EXPECT_EQ(control.getDefinitions().front()->getType(), PropertySetDefinitionType::PropertySet);
}

TEST_F(SetsInCommon, TypeAndOccurrenceHaveTheSetsOfTheOccurrenceInCommon)
{
    auto& control = use(toySchemaWith(SetBuilder("Pset_Wall").applicableTo("IfcWall").take()));
    auto const type = model.wallType("WT1");
    auto const wall = model.wall("W1");
    model.addSet(type, "OfTheType", {{"Code", label("A")}});
    model.assignType(type, {wall});

    control.setObjects(model.data(), {type, wall});

    EXPECT_THAT(namesOf(control), ElementsAre("Pset_Wall"));
}

TEST_F(SetsInCommon, PredefinedTypesOfOneClassAreToldApart)
{
    auto& control = use(toySchemaWith(SetBuilder("Pset_Gate").applicableTo("IfcDoor", "GATE").take(),
                                      SetBuilder("Pset_Door").applicableTo("IfcDoor").take()));
    auto const gate = model.door("D1");
    gate->PredefinedType = FcDoorTypeEnum::GATE;
    auto const trapdoor = model.door("D2");
    trapdoor->PredefinedType = FcDoorTypeEnum::TRAPDOOR;

    control.setObjects(model.data(), {gate, model.door("D3"), gate});
    EXPECT_THAT(namesOf(control), ElementsAre("Pset_Door", "Pset_Gate"));
    control.setObjects(model.data(), {gate, trapdoor, gate});
    EXPECT_THAT(namesOf(control), ElementsAre("Pset_Door"));
}

TEST_F(SetsInCommon, AClassThatTheSchemaDoesNotKnowIsReportedOnce)
{
    auto& control = useToy();

    control.setObjects(model.data(), {model.slab("S1"), model.slab("S2"), model.wall("W1")});

    expectReport("Schema entity doesn't exist.", "qev::fc::ui::PropertySetControl::getXmlSets",
                 "UI/FoundationClasses/Controls/PropertySetControl");
    EXPECT_THAT(control.getDefinitions(), IsEmpty());
}

TEST_F(SetsInCommon, SetsOfAnotherKindAreReportedForEachObject)
{
    auto& control = useToy();
    auto const first = model.door("D1");
    auto const second = model.door("D2");
    for (auto const& door : {first, second}) {
        auto const lining = std::make_shared<domain::architecture::FcDoorLiningProperties>();
        lining->Name = "Lining of " + *door->Name.get();
        model.data()->entityAdd(lining, false);
        model.shareSet(lining, door);
    }

    control.setObjects(model.data(), {first, second});

    EXPECT_THAT(takeReportTexts(), ElementsAre("Unknown property set definition type.",
                                               "Unknown property set definition type."));
    EXPECT_THAT(namesOf(control), ElementsAre("Pset_Toy"));
}

/// Reports are left out for as long as this object lives.
class WithoutReports
{
public:
    WithoutReports() { qev::assert::Assert::setEnabled(false); }
    ~WithoutReports() { qev::assert::Assert::setEnabled(true); }
};

TEST_F(SetsInCommon, AreTheSameWhenNothingIsReported)
{
    auto& control = use(toySchemaWith(SetBuilder("Pset_All").applicableTo("IfcProduct").take(),
                                      SetBuilder("Pset_Wall").applicableTo("IfcWall").take()));
    auto const wall = model.wall("W1");
    auto const door = model.door("D1");
    auto const other = model.wall("W2");
    for (auto const& [object, code] :
         {std::pair<Model::Object, char const*>(wall, "A"), {door, "B"}, {other, "C"}})
        model.addSet(object, "Company", {{code, label("1")}});
    model.addQuantities(wall, "CompanyQuantities", {{"A", 1.0}});
    model.addQuantities(door, "CompanyQuantities", {{"B", 1.0}});
    model.addQuantities(other, "CompanyQuantities", {{"C", 1.0}});
    model.addSet(wall, "WallOnly", {{"Code", label("1")}});
    WithoutReports const quiet;

    control.setObjects(model.data(), {wall, other, door});

    ASSERT_THAT(namesOf(control), ElementsAre("Company", "CompanyQuantities", "Pset_All"));
    for (std::size_t const own : {0u, 1u}) {
        ASSERT_THAT(control.getDefinitions()[own]->getProperties(), SizeIs(1));
        EXPECT_EQ(control.getDefinitions()[own]->getProperties().front()->getName(), "A");
    }
    EXPECT_THAT(takeReportTexts(), IsEmpty());
}

} // namespace
