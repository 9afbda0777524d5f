#include "UI/FoundationClasses/Controls/PropertySetControl.h"

#include "Core/Localization/LocalizationAdmin.h"
#include "Core/Unit/QuantityPresentation.h"
#include "Format/Ifc/Schema/SchemaLoader.h"
#include "FoundationClasses/AllEntities.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "library/kit/LogFormatter.h"
#include "library/kit/SetBuilder.h"
#include "library/kit/ShownSet.h"
#include "library/kit/ToySchema.h"
#include "UI/FoundationClasses/Set/PropertySetDefinition.h"
#include "UI/FoundationClasses/Set/PropertyTypePropertySetAndPropertyNameQppOverrideInterface.h"
#include "Ui/Window/Window.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

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
using Type = PropertySetControl::PropertyChangedNotificationType;

constexpr char path[] = "UI/FoundationClasses/Controls/PropertySetControl";
constexpr char function[] = "qev::fc::ui::PropertySetControl::";

class ToyWindow : public qev::ui::Window
{
public:
    void show() override { ++shown; }
    void hide() override { ++hidden; }
    int shown = 0;
    int hidden = 0;
};

/// A flavour that puts nothing on the screen and keeps what is asked of it.
class ToyControl : public PropertySetControl
{
public:
    using PropertySetControl::PropertySetControl;

    std::shared_ptr<ToyWindow> window;
    std::vector<std::string> calls;
    std::vector<std::size_t> objectsAtRefresh;

    void reset() override
    {
        calls.emplace_back("reset");
        PropertySetControl::reset();
    }

private:
    void refreshDisplay() override
    {
        calls.emplace_back("refreshDisplay");
        objectsAtRefresh.push_back(getObjects().size());
    }
    std::shared_ptr<qev::ui::Window> getWindow() override { return window; }
};

std::vector<std::string> namesOf(PropertySetControl const& control)
{
    std::vector<std::string> names;
    for (auto const& definition : control.getDefinitions())
        names.push_back(definition ? definition->getName() : "null");
    return names;
}

PropertySetDefinition const* find(PropertySetControl const& control, std::string const& name)
{
    for (auto const& definition : control.getDefinitions()) {
        if (definition && definition->getName() == name)
            return definition.get();
    }
    return nullptr;
}

class PropertySetControlTest : public testing::Test
{
protected:
    ToyControl& use(std::unique_ptr<qev::ifc::def::SchemaPset> schema)
    {
        m_schema = std::move(schema);
        return useSchema(m_schema.get());
    }
    ToyControl& useStandard()
    {
        return useSchema(qev::ifc::SchemaLoader::curr().pSchemaFromName("IFC4X3_TC1"));
    }
    /// A schema in which every product has the set "Pset_Toy" with two labels and a boolean.
    ToyControl& useToy()
    {
        return use(toySchemaWith(SetBuilder("Pset_Toy")
                                     .single("Colour", "IfcLabel")
                                     .single("Size", "IfcLabel")
                                     .single("HasSize", "IfcBoolean")
                                     .applicableTo("IfcProduct")
                                     .take()));
    }
    void logHandlers(std::vector<std::string>& log)
    {
        m_control->propertyChangedHandlers.iHandlerAdd([&log](std::string const& set,
                                                              std::string const& property,
                                                              std::set<std::size_t> const& indices) {
            log.push_back(set + " " + property + " " + testing::PrintToString(indices));
        });
    }

    Model model;
    std::shared_ptr<ToyFilter> filter = std::make_shared<ToyFilter>();
    std::shared_ptr<LogFormatter> formatter = std::make_shared<LogFormatter>();
    std::vector<std::string> contexts;
    std::shared_ptr<PropertyTypePropertySetAndPropertyNameQppOverrideInterface> qppOverride;

private:
    ToyControl& useSchema(qev::ifc::def::SchemaPset const* schema)
    {
        m_control =
            std::make_unique<ToyControl>(schema, nullptr, nullptr, filter, formatter, contexts, qppOverride);
        return *m_control;
    }

    std::unique_ptr<qev::ifc::def::SchemaPset> m_schema;
    std::unique_ptr<ToyControl> m_control;
};

// --- Showing objects ----------------------------------------------------------------------------

TEST_F(PropertySetControlTest, ConstructionTouchesNothing)
{
    auto const& control = useToy();

    EXPECT_THAT(control.calls, IsEmpty());
    EXPECT_THAT(control.getDefinitions(), IsEmpty());
    EXPECT_THAT(formatter->log, IsEmpty());
}

TEST_F(PropertySetControlTest, ResetsThenBuildsTheSetsThenRefreshes)
{
    auto& control = useToy();
    auto const wall = model.wall("W1");

    control.setObjects(model.data(), {wall});

    EXPECT_THAT(control.calls, ElementsAre("reset", "refreshDisplay"));
    EXPECT_THAT(control.objectsAtRefresh, ElementsAre(1u));
    EXPECT_THAT(namesOf(control), ElementsAre("Pset_Toy"));
}

TEST_F(PropertySetControlTest, TellsFormatterAndFilterTheFirstObjectOnly)
{
    auto& control = useToy();
    auto const first = model.wall("W1");
    auto const second = model.wall("W2");

    control.setObjects(model.data(), {first, second});

    EXPECT_THAT(formatter->objects, ElementsAre(std::shared_ptr<FcBase>(first)));
    EXPECT_THAT(filter->objects, ElementsAre(std::shared_ptr<FcBase>(first)));
}

TEST_F(PropertySetControlTest, TellsFormatterAndFilterASingleObjectTwice)
{
    auto& control = useToy();
    std::shared_ptr<FcBase> const wall = model.wall("W1");

    control.setObject(model.data(), wall);

    EXPECT_THAT(formatter->objects, ElementsAre(wall, wall));
    EXPECT_THAT(filter->objects, ElementsAre(wall, wall));
    EXPECT_THAT(control.getObjects(), ElementsAre(wall));
}

TEST_F(PropertySetControlTest, WorksWithoutFilterAndFormatter)
{
    filter.reset();
    formatter.reset();
    auto& control = useToy();

    control.setObject(model.data(), model.wall("W1"));

    EXPECT_THAT(namesOf(control), ElementsAre("Pset_Toy"));
}

TEST_F(PropertySetControlTest, AnEmptyListTellsNobodyAndStillRefreshes)
{
    auto& control = useToy();
    control.setObject(model.data(), model.wall("W1"));
    formatter->log.clear();
    filter->objects.clear();
    control.calls.clear();

    control.setObjects(model.data(), {});

    EXPECT_THAT(formatter->log, IsEmpty());
    EXPECT_THAT(filter->objects, IsEmpty());
    EXPECT_THAT(control.calls, ElementsAre("reset", "refreshDisplay"));
    EXPECT_THAT(control.getDefinitions(), IsEmpty());
    // Building sets without objects would have been reported.
    EXPECT_THAT(takeReportTexts(), IsEmpty());
}

TEST_F(PropertySetControlTest, TakesItsOwnListOfObjects)
{
    auto& control = useToy();
    control.setObjects(model.data(), {model.wall("W1"), model.wall("W2")});

    control.setObjects(model.data(), control.getObjects());

    EXPECT_THAT(control.getObjects(), SizeIs(2));
}

TEST_F(PropertySetControlTest, SetsOfOneObjectDoNotSurviveIntoTheNext)
{
    auto& control = useToy();
    auto const wall = model.wall("W1");
    model.addSet(wall, "Company", {{"Code", label("A")}});
    control.setObject(model.data(), wall);
    ASSERT_THAT(namesOf(control), ElementsAre("Company", "Pset_Toy"));

    control.setObject(model.data(), model.wall("W2"));

    EXPECT_THAT(namesOf(control), ElementsAre("Pset_Toy"));
}

TEST_F(PropertySetControlTest, ResetForgetsObjectsAndSets)
{
    auto& control = useToy();
    control.setObject(model.data(), model.wall("W1"));

    control.reset();

    EXPECT_THAT(control.getObjects(), IsEmpty());
    EXPECT_THAT(control.getDefinitions(), IsEmpty());
}

TEST_F(PropertySetControlTest, ShowsAndHidesTheWindowOfItsFlavour)
{
    auto& control = useToy();
    control.show();
    control.hide();

    control.window = std::make_shared<ToyWindow>();
    control.show();
    control.show();
    control.hide();

    EXPECT_EQ(control.window->shown, 2);
    EXPECT_EQ(control.window->hidden, 1);
}

/// A formatter that keeps the models it is told of.
class DataFormatter : public LogFormatter
{
public:
    std::vector<std::shared_ptr<Data>> models;
    void setObject(std::shared_ptr<Data> data, std::shared_ptr<FcBase> /*object*/) override
    {
        models.push_back(std::move(data));
    }
};

TEST_F(PropertySetControlTest, TellsTheFormatterTheModelThatTheObjectsCameWith)
{
    auto const dataFormatter = std::make_shared<DataFormatter>();
    formatter = dataFormatter;
    auto& control = useToy();
    auto const wall = model.wall("W1");
    model.addSet(wall, "Pset_Toy", {{"Colour", label("red")}});
    Model other;

    control.setObject(other.data(), other.wall("W2"));
    control.setObjects(model.data(), {wall});
    control.notifyPropertySetPropertyChanged("Pset_Toy", "Colour", {0}, Type::ValueChanged);

    EXPECT_THAT(dataFormatter->models, ElementsAre(other.data(), other.data(), model.data(), model.data()));
}

/// A formatter that empties the control it is told of, between the telling and the building of sets.
class LosingFormatter : public LogFormatter
{
public:
    PropertySetControl* control = nullptr;
    void setObject(std::shared_ptr<Data> /*data*/, std::shared_ptr<FcBase> /*object*/) override
    {
        if (control)
            control->reset();
    }
};

TEST_F(PropertySetControlTest, BuildingSetsWithoutObjectsIsReportedAndGivesNone)
{
    auto const losing = std::make_shared<LosingFormatter>();
    formatter = losing;
    auto& control = useToy();
    losing->control = &control;

    control.setObject(model.data(), model.wall("W1"));

    expectReport("Object list is empty.", std::string(function) + "initSets", path);
    EXPECT_THAT(control.getDefinitions(), IsEmpty());
}

// --- What sets are given ------------------------------------------------------------------------

/// A flavour that has other objects edited than it shows.
class RowControl : public ToyControl
{
public:
    using ToyControl::ToyControl;
    std::vector<std::shared_ptr<FcBase>> row;

private:
    std::vector<std::shared_ptr<FcBase>> const& getObjectsBeingEdited() override { return row; }
};

TEST_F(PropertySetControlTest, SetsHaveTheObjectsShown)
{
    auto& control = useToy();
    std::shared_ptr<FcBase> const first = model.wall("W1");
    std::shared_ptr<FcBase> const second = model.wall("W2");

    control.setObjects(model.data(), {first, second});

    EXPECT_THAT(control.getDefinitions().front()->getObjects(), ElementsAre(first, second));
}

TEST_F(PropertySetControlTest, SetsFollowTheObjectsThatTheFlavourHasEdited)
{
    auto const schema = toySchemaWith(SetBuilder("Pset_Toy").applicableTo("IfcProduct").take());
    RowControl control(schema.get(), nullptr, nullptr, filter, formatter, contexts, qppOverride);
    std::shared_ptr<FcBase> const first = model.wall("W1");
    std::shared_ptr<FcBase> const second = model.wall("W2");
    control.setObjects(model.data(), {first, second});
    auto const& set = *control.getDefinitions().front();

    control.row = {first};
    EXPECT_THAT(set.getObjects(), ElementsAre(first));
    control.row = {second};
    EXPECT_THAT(set.getObjects(), ElementsAre(second));
}

/// Has no presentation of its own, and keeps what it is asked for.
class AskedOverride : public PropertyTypePropertySetAndPropertyNameQppOverrideInterface
{
public:
    std::vector<std::string> asked;
    std::unique_ptr<qev::unit::QuantityPresentationBase>
    createQuantityPresentation(std::string type, std::string set, std::string property) override
    {
        asked.push_back(type + " " + set + " " + property);
        return nullptr;
    }
};

TEST_F(PropertySetControlTest, SetsAreGivenTheOverrideOfPresentations)
{
    auto const asked = std::make_shared<AskedOverride>();
    qppOverride = asked;
    auto& control = useToy();
    control.setObject(model.data(), model.wall("W1"));
    asked->asked.clear();

    EXPECT_EQ(control.getDefinitions().front()->quantityPresentationOverride("Real", "Pset_Toy", "Size"),
              nullptr);

    EXPECT_THAT(asked->asked, ElementsAre("Real Pset_Toy Size"));
}

TEST_F(PropertySetControlTest, SetsAreGivenTheContextsOfTexts)
{
    auto& admin = qev::resource::localization::getAdminInstance();
    auto const language = admin.language();
    admin.setLanguage(qev::locale::Locale("de", ""));
    contexts = qev::localization::Dictionaries::getContexts("IFC");
    auto& control = use(toySchemaWith(SetBuilder("Pset_WallCommon").applicableTo("IfcWall").take()));

    control.setObject(model.data(), model.wall("W1"));

    EXPECT_EQ(control.getDefinitions().front()->getLocalizedName({}), "Wand allgemein");
    admin.setLanguage(language);
}

// --- Which sets ---------------------------------------------------------------------------------

TEST_F(PropertySetControlTest, SetsStandInAscendingOrderOfTheirNames)
{
    auto& control = use(toySchemaWith(SetBuilder("Pset_b").applicableTo("IfcProduct").take(),
                                      SetBuilder("Pset_B").applicableTo("IfcProduct").take(),
                                      SetBuilder("Pset_A").applicableTo("IfcProduct").take(),
                                      SetBuilder("Pset_AB").applicableTo("IfcProduct").take()));

    control.setObject(model.data(), model.wall("W1"));

    EXPECT_THAT(namesOf(control), ElementsAre("Pset_A", "Pset_AB", "Pset_B", "Pset_b"));
}

TEST_F(PropertySetControlTest, SeveralObjectsShowWhatAllOfThemHave)
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

TEST_F(PropertySetControlTest, OneObjectWithoutAnySetLeavesNone)
{
    auto& control = use(toySchemaWith(SetBuilder("Pset_Wall").applicableTo("IfcWall").take()));

    control.setObjects(model.data(), {model.wall("W1"), model.space("S1"), model.wall("W2")});

    EXPECT_THAT(control.getDefinitions(), IsEmpty());
}

TEST_F(PropertySetControlTest, WhatIsNoObjectDefinitionIsIgnored)
{
    auto& control = useToy();
    auto const wall = model.wall("W1");
    auto const set = model.addSet(wall, "Company", {{"Code", label("A")}});
    std::shared_ptr<FcBase> const property = set->HasProperties.getProperties().front();

    control.setObjects(model.data(), {property, wall, nullptr, set});

    EXPECT_THAT(namesOf(control), ElementsAre("Company", "Pset_Toy"));
}

TEST_F(PropertySetControlTest, NothingButOtherEntitiesShowsNoSetAndReportsNothing)
{
    auto& control = useToy();

    control.setObject(model.data(), std::shared_ptr<FcBase>(singleValue("Code", label("A"))));

    EXPECT_THAT(control.getDefinitions(), IsEmpty());
    EXPECT_THAT(takeReportTexts(), IsEmpty());
}

TEST_F(PropertySetControlTest, ASetOfSchemaAndObjectIsTheSchemasSet)
{
    auto& control = useToy();
    auto const wall = model.wall("W1");
    model.addSet(wall, "Pset_Toy", {{"Own", label("A")}});

    control.setObject(model.data(), wall);

    ASSERT_THAT(namesOf(control), ElementsAre("Pset_Toy"));
    EXPECT_NE(control.getDefinitions().front()->getDefinition(), nullptr);
    EXPECT_THAT(control.getDefinitions().front()->getProperties(), SizeIs(3));
}

TEST_F(PropertySetControlTest, ASetThatOnlyTheObjectHasIsListedWithoutDefinition)
{
    auto& control = useToy();
    auto const wall = model.wall("W1");
    model.addSet(wall, "Company", {{"Code", label("A")}});
    model.addQuantities(wall, "CompanyQuantities", {{"Length", 2.0}});

    control.setObject(model.data(), wall);

    auto const* const properties = find(control, "Company");
    ASSERT_NE(properties, nullptr);
    EXPECT_EQ(properties->getDefinition(), nullptr);
    EXPECT_EQ(properties->getType(), PropertySetDefinitionType::PropertySet);
    EXPECT_THAT(properties->getProperties(), SizeIs(1));
    auto const* const quantities = find(control, "CompanyQuantities");
    ASSERT_NE(quantities, nullptr);
    EXPECT_EQ(quantities->getType(), PropertySetDefinitionType::QuantitySet);
    EXPECT_THAT(quantities->getProperties(), SizeIs(1));
}

TEST_F(PropertySetControlTest, SetsWithoutANameAreNotShown)
{
    auto& control = useToy();
    auto const wall = model.wall("W1");
    model.addSet(wall, "Company", {{"Code", label("A")}})->Name = std::nullopt;

    control.setObject(model.data(), wall);

    EXPECT_THAT(namesOf(control), ElementsAre("Pset_Toy"));
}

TEST_F(PropertySetControlTest, OneRelationMayBringSeveralSets)
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

TEST_F(PropertySetControlTest, ATypeShowsTheSetsOfItsOccurrenceAndItsOwn)
{
    auto& control = use(toySchemaWith(SetBuilder("Pset_Wall").applicableTo("IfcWall").take(),
                                      SetBuilder("Pset_Door").applicableTo("IfcDoor").take()));
    auto const type = model.wallType("WT1");
    model.addSet(type, "Company", {{"Code", label("A")}});

    control.setObject(model.data(), type);

    EXPECT_THAT(namesOf(control), ElementsAre("Company", "Pset_Wall"));
}

TEST_F(PropertySetControlTest, AClassThatTheSchemaDoesNotKnowIsReportedAndHasNoSet)
{
    auto& control = useToy();
    auto const wall = model.wall("W1");
    auto const slab = model.slab("S1");
    model.addSet(slab, "Company", {{"Code", label("A")}});

    control.setObjects(model.data(), {wall, slab});

    expectReport("Schema entity doesn't exist.", std::string(function) + "getXmlSets", path);
    EXPECT_THAT(control.getDefinitions(), IsEmpty());
}

TEST_F(PropertySetControlTest, ATypeOfNoParticularClassGoesByItsOwnName)
{
    auto& control = useStandard();
    auto const type = model.add<core::kernel::FcTypeObject>("T1");
    model.addSet(type, "Company", {{"Code", label("A")}});

    control.setObject(model.data(), type);

    EXPECT_THAT(namesOf(control), Contains("Company"));
}

// The name of a general type is cut like that of any other, and means no class then.
TEST_F(PropertySetControlTest, ATypeOfAGeneralClassIsReportedAndHasNoSet)
{
    auto& control = useStandard();
    auto const type = model.add<core::kernel::FcTypeProduct>("T1");
    model.addSet(type, "Company", {{"Code", label("A")}});

    control.setObject(model.data(), type);

    expectReport("Schema entity doesn't exist.", std::string(function) + "getXmlSets", path);
    EXPECT_THAT(control.getDefinitions(), IsEmpty());
}

TEST_F(PropertySetControlTest, SetsOfAProjectItselfAreNotShown)
{
    auto& control = useStandard();
    auto const project = model.project("P1");
    model.addSet(project, "Company", {{"Code", label("A")}});

    control.setObject(model.data(), project);
    takeReports();

    EXPECT_THAT(namesOf(control), Not(Contains("Company")));
}

TEST_F(PropertySetControlTest, ASetOfAnotherKindIsReportedTwiceAndStaysAsNull)
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

// --- Predefined types ---------------------------------------------------------------------------

class PredefinedTypes : public PropertySetControlTest
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

private:
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

TEST_F(PredefinedTypes, AnEntryForAllDoorsKeepsTheSet)
{
    EXPECT_THAT(setsOf(FcDoorTypeEnum::TRAPDOOR), Contains("Pset_GateOrAny"));
}

TEST_F(PredefinedTypes, EntriesOfOtherClassesDoNotCount)
{
    EXPECT_THAT(setsOf(FcDoorTypeEnum::TRAPDOOR), Contains("Pset_Product"));
}

// --- The standard's own schema ------------------------------------------------------------------

TEST_F(PropertySetControlTest, AWallHasTheStandardsSetsForWalls)
{
    auto& control = useStandard();

    control.setObject(model.data(), model.wall("W1"));
    // Kinds of property that have no row are told when their sets are built.
    EXPECT_THAT(takeReportTexts(), Each(testing::EndsWith(" not implemented.")));

    EXPECT_THAT(namesOf(control), AllOf(Contains("Pset_WallCommon"), Contains("Qto_WallBaseQuantities"),
                                        Not(Contains("Pset_DoorCommon"))));
    auto const* const common = find(control, "Pset_WallCommon");
    ASSERT_NE(common, nullptr);
    EXPECT_FALSE(common->getProperties().empty());
}

TEST_F(PropertySetControlTest, AWallTypeHasTheSetsOfWalls)
{
    auto& control = useStandard();

    control.setObject(model.data(), model.wallType("WT1"));
    takeReports();

    EXPECT_THAT(namesOf(control), Contains("Pset_WallCommon"));
}

// --- Values and toggles -------------------------------------------------------------------------

TEST_F(PropertySetControlTest, APairIsFoundFromEitherSide)
{
    formatter->related["HasSize"] = "Size";
    auto& control = useToy();
    control.setObject(model.data(), model.wall("W1"));

    EXPECT_EQ(control.getRelatedPropertyName("Pset_Toy", "HasSize"), "Size");
    EXPECT_EQ(control.getRelatedPropertyName("Pset_Toy", "Size"), "HasSize");
    EXPECT_EQ(control.getRelatedPropertyName("Pset_Toy", "Colour"), std::nullopt);
    EXPECT_EQ(control.getRelatedPropertyName("Pset_Other", "Size"), std::nullopt);
}

// --- Telling of changes -------------------------------------------------------------------------

class Notifications : public PropertySetControlTest
{
protected:
    void SetUp() override
    {
        toy = &useToy();
        first = model.wall("W1");
        second = model.wall("W2");
        model.addSet(first, "Pset_Toy", {{"Colour", label("red")}});
        model.addSet(second, "Pset_Toy", {{"Colour", label("blue")}});
        toy->setObjects(model.data(), {first, second});
        logHandlers(handled);
        formatter->log.clear();
        formatter->objects.clear();
    }

    ToyControl* toy = nullptr;
    std::shared_ptr<core::kernel::FcObjectDefinition> first;
    std::shared_ptr<core::kernel::FcObjectDefinition> second;
    std::vector<std::string> handled;
};

TEST_F(Notifications, TheFormatterHearsOfEachObjectAndThenTheHandlers)
{
    std::vector<std::string> formatterLogAtHandler;
    toy->propertyChangedHandlers.iHandlerAdd(
        [&](auto const&, auto const&, auto const&) { formatterLogAtHandler = formatter->log; });

    toy->notifyPropertySetPropertyChanged("Pset_Toy", "Colour", {1, 0}, Type::ValueChanged);

    EXPECT_THAT(formatterLogAtHandler,
                ElementsAre("setObject", "changed Pset_Toy Colour", "setObject", "changed Pset_Toy Colour"));
    EXPECT_THAT(formatter->objects,
                ElementsAre(std::shared_ptr<FcBase>(first), std::shared_ptr<FcBase>(second)));
    EXPECT_THAT(handled, ElementsAre("Pset_Toy Colour { 0, 1 }"));
}

TEST_F(Notifications, HandlersRunInTheOrderInWhichTheyWereAdded)
{
    std::vector<int> order;
    for (int const number : {1, 2, 3})
        toy->propertyChangedHandlers.iHandlerAdd(
            [&order, number](auto const&, auto const&, auto const&) { order.push_back(number); });

    toy->notifyPropertySetPropertyChanged("Pset_Toy", "Colour", {0}, Type::ValueChanged);

    EXPECT_THAT(order, ElementsAre(1, 2, 3));
}

TEST_F(Notifications, AnIndexBeyondTheObjectsEndsTheWorkBeforeTheHandlers)
{
    toy->notifyPropertySetPropertyChanged("Pset_Toy", "Colour", {0, 2, 3}, Type::ValueChanged);

    expectReport("Object index out of range.", std::string(function) + "notifyPropertySetPropertyChanged",
                 path);
    EXPECT_THAT(formatter->objects, ElementsAre(std::shared_ptr<FcBase>(first)));
    EXPECT_THAT(handled, IsEmpty());
}

TEST_F(Notifications, AnObjectWithoutTheSetIsReportedAndPassedOver)
{
    first->deletePropertySetDefinition("Pset_Toy");

    toy->notifyPropertySetPropertyChanged("Pset_Toy", "Colour", {0, 1}, Type::ValueChanged);

    expectReport("Property set doesn't exist.", std::string(function) + "notifyPropertySetPropertyChanged",
                 path);
    EXPECT_THAT(formatter->log, ElementsAre("setObject", "setObject", "changed Pset_Toy Colour"));
    EXPECT_THAT(handled, SizeIs(1));
}

TEST_F(Notifications, WhatIsNoObjectDefinitionIsPassedOver)
{
    toy->setObjects(model.data(), {std::shared_ptr<FcBase>(singleValue("Code", label("A"))), second});
    formatter->log.clear();

    toy->notifyPropertySetPropertyChanged("Pset_Toy", "Colour", {0, 1}, Type::ValueChanged);

    EXPECT_THAT(formatter->log, ElementsAre("setObject", "setObject", "changed Pset_Toy Colour"));
    EXPECT_THAT(handled, SizeIs(1));
}

TEST_F(Notifications, AResetToGlobalValuesIsToldToTheHandlersAloneWhateverTheIndices)
{
    toy->notifyPropertySetPropertyChanged("Pset_Toy", "Colour", {0, 99}, Type::ResetToGlobalValue);

    EXPECT_THAT(formatter->log, IsEmpty());
    EXPECT_THAT(handled, ElementsAre("Pset_Toy Colour { 0, 99 }"));
}

TEST_F(PropertySetControlTest, WithoutFormatterIndicesAreNotLookedAt)
{
    formatter.reset();
    auto& control = useToy();
    control.setObject(model.data(), model.wall("W1"));
    std::vector<std::string> handled;
    logHandlers(handled);

    control.notifyPropertySetPropertyChanged("Pset_Toy", "Colour", {5}, Type::ValueChanged);

    EXPECT_THAT(handled, ElementsAre("Pset_Toy Colour { 5 }"));
}

TEST_F(Notifications, AnEmptyHandlerRaisesTheStandardException)
{
    toy->propertyChangedHandlers.iHandlerAdd({});

    EXPECT_THROW(toy->notifyPropertySetPropertyChanged("Pset_Toy", "Colour", {0}, Type::ValueChanged),
                 std::bad_function_call);
}

} // namespace
