#include "PropertySetControlFixture.h"

namespace {

using namespace qev::fc;
using namespace qev::fc::ui;
using namespace qev::test;
using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

constexpr char path[] = "UI/FoundationClasses/Controls/PropertySetControl";
constexpr char function[] = "qev::fc::ui::PropertySetControl::";

class SetsOfOneObject : public PropertySetControlFixture
{
};

TEST_F(SetsOfOneObject, SetsStandInAscendingOrderOfTheirNames)
{
    auto& control = use(toySchemaWith(SetBuilder("Pset_b").applicableTo("IfcProduct").take(),
                                      SetBuilder("Pset_B").applicableTo("IfcProduct").take(),
                                      SetBuilder("Pset_A").applicableTo("IfcProduct").take(),
                                      SetBuilder("Pset_AB").applicableTo("IfcProduct").take()));

    control.setObject(model.data(), model.wall("W1"));

    EXPECT_THAT(namesOf(control), ElementsAre("Pset_A", "Pset_AB", "Pset_B", "Pset_b"));
}

TEST_F(SetsOfOneObject, ASetOfSchemaAndObjectIsTheSchemasSet)
{
    auto& control = useToy();
    auto const wall = model.wall("W1");
    model.addSet(wall, "Pset_Toy", {{"Own", label("A")}});

    control.setObject(model.data(), wall);

    ASSERT_THAT(namesOf(control), ElementsAre("Pset_Toy"));
    EXPECT_NE(control.getDefinitions().front()->getDefinition(), nullptr);
    EXPECT_THAT(control.getDefinitions().front()->getProperties(), SizeIs(3));
}

TEST_F(SetsOfOneObject, ASetThatOnlyTheObjectHasIsListedWithoutDefinition)
{
    auto& control = useToy();
    auto const wall = model.wall("W1");
    model.addSet(wall, "Company", {{"Code", label("A")}});
    model.addQuantities(wall, "CompanyQuantities", {{"Length", 2.0}});

    control.setObject(model.data(), wall);

    auto const* const properties = findSet(control, "Company");
    ASSERT_NE(properties, nullptr);
    EXPECT_EQ(properties->getDefinition(), nullptr);
    EXPECT_EQ(properties->getType(), PropertySetDefinitionType::PropertySet);
    EXPECT_THAT(properties->getProperties(), SizeIs(1));
    auto const* const quantities = findSet(control, "CompanyQuantities");
    ASSERT_NE(quantities, nullptr);
    EXPECT_EQ(quantities->getType(), PropertySetDefinitionType::QuantitySet);
    EXPECT_THAT(quantities->getProperties(), SizeIs(1));
}

TEST_F(SetsOfOneObject, SetsWithoutANameAreNotShown)
{
    auto& control = useToy();
    auto const wall = model.wall("W1");
    model.addSet(wall, "Company", {{"Code", label("A")}})->Name = std::nullopt;

    control.setObject(model.data(), wall);

    EXPECT_THAT(namesOf(control), ElementsAre("Pset_Toy"));
}

TEST_F(SetsOfOneObject, OneRelationMayBringSeveralSets)
{
    auto& control = useToy();
    auto const wall = model.wall("W1");
    model.addSet(wall, "First", {{"Code", label("A")}});
    auto const second = std::make_shared<core::kernel::FcPropertySet>();
    second->Name = "Second";
    model.data()->entityAdd(second, false);
    auto const relation = wall->IsDefinedBy().front().lock();
    auto const first = relation->RelatingPropertyDefinition.get().entity();
    relation->RelatingPropertyDefinition.edit([&](auto& definition) {
        return definition.setReferences("IfcPropertySetDefinitionSet",
                                        {ReferenceBase(first), ReferenceBase(second)});
    });

    control.setObject(model.data(), wall);

    EXPECT_THAT(namesOf(control), ElementsAre("First", "Pset_Toy", "Second"));
}

TEST_F(SetsOfOneObject, ATypeShowsTheSetsOfItsOccurrenceAndItsOwn)
{
    auto& control = use(toySchemaWith(SetBuilder("Pset_Wall").applicableTo("IfcWall").take(),
                                      SetBuilder("Pset_Door").applicableTo("IfcDoor").take()));
    auto const type = model.wallType("WT1");
    model.addSet(type, "Company", {{"Code", label("A")}});

    control.setObject(model.data(), type);

    EXPECT_THAT(namesOf(control), ElementsAre("Company", "Pset_Wall"));
}

TEST_F(SetsOfOneObject, AClassThatTheSchemaDoesNotKnowIsReportedAndHasNoSet)
{
    auto& control = useToy();
    auto const wall = model.wall("W1");
    auto const slab = model.slab("S1");
    model.addSet(slab, "Company", {{"Code", label("A")}});

    control.setObjects(model.data(), {wall, slab});

    expectReport("Schema entity doesn't exist.", std::string(function) + "getXmlSets", path);
    EXPECT_THAT(control.getDefinitions(), IsEmpty());
}

TEST_F(SetsOfOneObject, ATypeOfNoParticularClassGoesByItsOwnName)
{
    auto& control = useStandard();
    auto const type = model.add<core::kernel::FcTypeObject>("T1");
    model.addSet(type, "Company", {{"Code", label("A")}});

    control.setObject(model.data(), type);

    EXPECT_THAT(namesOf(control), Contains("Company"));
}

// The name of a general type is cut like that of any other, and means no class then.
TEST_F(SetsOfOneObject, ATypeOfAGeneralClassIsReportedAndHasNoSet)
{
    auto& control = useStandard();
    auto const type = model.add<core::kernel::FcTypeProduct>("T1");
    model.addSet(type, "Company", {{"Code", label("A")}});

    control.setObject(model.data(), type);

    expectReport("Schema entity doesn't exist.", std::string(function) + "getXmlSets", path);
    EXPECT_THAT(control.getDefinitions(), IsEmpty());
}

TEST_F(SetsOfOneObject, SetsOfAProjectItselfAreNotShown)
{
    auto& control = useStandard();
    auto const project = model.project("P1");
    model.addSet(project, "Company", {{"Code", label("A")}});

    control.setObject(model.data(), project);
    takeReports();

    EXPECT_THAT(namesOf(control), Not(Contains("Company")));
}

TEST_F(SetsOfOneObject, ASetOfAnotherKindIsReportedTwiceAndStaysAsNull)
{
    auto& control = useToy();
    auto const wall = model.wall("W1");
    auto const lining = std::make_shared<domain::architecture::FcDoorLiningProperties>();
    lining->Name = "Lining";
    model.data()->entityAdd(lining, false);
    model.shareSet(lining, wall);

    control.setObject(model.data(), wall);

    auto const reports = takeReports();
    ASSERT_THAT(reports, SizeIs(3));
    EXPECT_EQ(reports[0].text, "Unknown property set definition type.");
    EXPECT_EQ(reports[0].function, std::string(function) + "getXmlSets::<lambda_2>::operator ()");
    EXPECT_EQ(reports[0].path, path);
    EXPECT_EQ(reports[1].text, "Unknown type");
    EXPECT_EQ(reports[2].text, "Should create grid property object");
    EXPECT_EQ(reports[2].function, std::string(function) + "initSets");
    EXPECT_EQ(reports[2].path, path);
    EXPECT_THAT(namesOf(control), ElementsAre("null", "Pset_Toy"));
    EXPECT_EQ(control.getRelatedPropertyName("Lining", "LiningDepth"), std::nullopt);
}

TEST_F(SetsOfOneObject, OfTwoOwnSetsOfOneNameTheFirstCounts)
{
    auto& control = useToy();
    auto const wall = model.wall("W1");
    model.addQuantities(wall, "Company", {{"Length", 2.0}});
    auto const properties = model.addSet(model.wall("W2"), "Company", {{"Code", label("A")}});
    model.shareSet(properties, wall);

    control.setObject(model.data(), wall);

    ASSERT_THAT(namesOf(control), ElementsAre("Company", "Pset_Toy"));
    EXPECT_EQ(control.getDefinitions().front()->getType(), PropertySetDefinitionType::QuantitySet);
}

TEST_F(SetsOfOneObject, DeletedSetsAndRelationsArePassedOver)
{
    auto& control = useToy();
    auto const wall = model.wall("W1");
    auto const deletedSet = model.addSet(wall, "DeletedSet", {{"Code", label("A")}});
    model.addSet(wall, "DeletedRelation", {{"Code", label("A")}});
    auto const relation = wall->IsDefinedBy().back().lock();
    model.addSet(wall, "Company", {{"Code", label("A")}});
    model.data()->entityDelete(deletedSet);
    model.data()->entityDelete(relation);

    control.setObject(model.data(), wall);

    EXPECT_THAT(namesOf(control), ElementsAre("Company", "Pset_Toy"));
}

TEST_F(SetsOfOneObject, AnObjectInNoModelHasTheSetsOfTheSchema)
{
    auto& control = useToy();

    control.setObject(model.data(), std::make_shared<shared::sharedbldgelements::FcWall>());

    EXPECT_THAT(namesOf(control), ElementsAre("Pset_Toy"));
}

TEST_F(SetsOfOneObject, WithoutASchemaEveryClassIsUnknown)
{
    ToyControl control(nullptr, nullptr, nullptr, filter, formatter, contexts, qppOverride);

    control.setObject(model.data(), model.wall("W1"));

    expectReport("Schema entity doesn't exist.", std::string(function) + "getXmlSets", path);
    EXPECT_THAT(control.getDefinitions(), IsEmpty());
}

// --- Predefined types -------------------------------------------------------------------------------

class PredefinedTypes : public SetsOfOneObject
{
protected:
    void SetUp() override
    {
        m_toy = &use(toySchemaWith(
            SetBuilder("Pset_Gate").applicableTo("IfcDoor", "GATE").take(),
            SetBuilder("Pset_GateOrAny").applicableTo("IfcDoor", "GATE").applicableTo("IfcDoor").take(),
            SetBuilder("Pset_Product").applicableTo("IfcProduct", "GATE").take()));
    }

    std::vector<std::string> setsOf(std::optional<FcDoorTypeEnum> type)
    {
        auto const door = model.door("D1");
        door->PredefinedType = type;
        m_toy->setObject(model.data(), door);
        return namesOf(*m_toy);
    }

    ToyControl* m_toy = nullptr;
};

TEST_F(PredefinedTypes, ASetTiedToGatesIsKeptForAGate)
{
    EXPECT_THAT(setsOf(FcDoorTypeEnum::GATE), ElementsAre("Pset_Gate", "Pset_GateOrAny", "Pset_Product"));
}

TEST_F(PredefinedTypes, ASetTiedToGatesIsDroppedForAnotherDoor)
{
    EXPECT_THAT(setsOf(FcDoorTypeEnum::TRAPDOOR), Not(Contains("Pset_Gate")));
}

TEST_F(PredefinedTypes, ASetTiedToGatesIsKeptForADoorWithoutPredefinedType)
{
    EXPECT_THAT(setsOf(std::nullopt), Contains("Pset_Gate"));
}

/// A door whose predefined type is known to be nothing, rather than not known.
class UntypedDoor : public shared::sharedbldgelements::FcDoor
{
public:
    [[nodiscard]] char const* getPredefinedTypeText() const override { return ""; }
};

TEST_F(PredefinedTypes, ASetTiedToGatesIsDroppedForADoorWhosePredefinedTypeIsEmpty)
{
    m_toy->setObject(model.data(), model.add<UntypedDoor>("D1"));

    EXPECT_THAT(namesOf(*m_toy), ElementsAre("Pset_GateOrAny", "Pset_Product"));
}

TEST_F(PredefinedTypes, ATypeGoesByItsOwnPredefinedType)
{
    auto const type = model.doorType("DT1");
    type->PredefinedType = FcDoorTypeEnum::TRAPDOOR;

    m_toy->setObject(model.data(), type);

    EXPECT_THAT(namesOf(*m_toy), ElementsAre("Pset_GateOrAny", "Pset_Product"));
}

TEST_F(PredefinedTypes, AnEntryForAllDoorsKeepsTheSet)
{
    EXPECT_THAT(setsOf(FcDoorTypeEnum::TRAPDOOR), Contains("Pset_GateOrAny"));
}

TEST_F(PredefinedTypes, EntriesOfOtherClassesDoNotCount)
{
    EXPECT_THAT(setsOf(FcDoorTypeEnum::TRAPDOOR), Contains("Pset_Product"));
}

// --- The standard's own schema ----------------------------------------------------------------------

TEST_F(SetsOfOneObject, AWallHasTheStandardsSetsForWalls)
{
    auto& control = useStandard();

    control.setObject(model.data(), model.wall("W1"));
    // Kinds of property that have no row are told when their sets are built.
    EXPECT_THAT(takeReportTexts(), Each(testing::EndsWith(" not implemented.")));

    EXPECT_THAT(namesOf(control), AllOf(Contains("Pset_WallCommon"), Contains("Qto_WallBaseQuantities"),
                                        Not(Contains("Pset_DoorCommon"))));
    auto const* const common = findSet(control, "Pset_WallCommon");
    ASSERT_NE(common, nullptr);
    EXPECT_FALSE(common->getProperties().empty());
}

TEST_F(SetsOfOneObject, AWallTypeHasTheSetsOfWalls)
{
    auto& control = useStandard();

    control.setObject(model.data(), model.wallType("WT1"));
    takeReports();

    EXPECT_THAT(namesOf(control), Contains("Pset_WallCommon"));
}

} // namespace
