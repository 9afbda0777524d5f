#include "UI/FoundationClasses/PropertyInterface/FcPropertyWrapper.h"

#include "FcPropertyWrapperTest.h"
#include "FoundationClasses/Core/ProductExtension/FcRelSpaceBoundary.h"
#include "FoundationClasses/Resource/Actor/FcActorRole.h"
#include "FoundationClasses/Resource/ExternalReference/FcClassification.h"
#include "FoundationClasses/Resource/ExternalReference/FcClassificationReference.h"
#include "FoundationClasses/Resource/Property/FcPropertyBoundedValue.h"
#include "FoundationClasses/Resource/Property/FcPropertyTableValue.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcDoor.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWallType.h"
#include "library/kit/PresentationScope.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyAccess.h"

namespace {

using namespace qev;
using namespace qev::test;
using fc::ui::propertyinterface::EntityReference;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

// --- Paths ------------------------------------------------------------------------------------------

TEST_F(PropertyWrapper, LeavesTheTopLevelOutOfPaths)
{
    model.addSet(wall, "Pset_WallCommon", {{"FireRating", label("F30")}});

    auto const tree = wrapper->getProperties();

    ASSERT_THAT(tree, testing::SizeIs(1));
    EXPECT_EQ(tree.front()->id.text(), "Wall");
    EXPECT_EQ(treeText(tree), "Wall\n"
                              "  GlobalId\n"
                              "  Name\n"
                              "  Description\n"
                              "  ObjectType\n"
                              "  Tag\n"
                              "  PredefinedType\n"
                              "  Documents [group]\n"
                              "  Classifications [group]\n"
                              "  PropertySets [group]\n"
                              "    PropertySets.Pset_WallCommon [group]\n"
                              "      PropertySets.Pset_WallCommon.FireRating\n");
}

TEST_F(PropertyWrapper, BeginsPathsWithTheTopLevelWhereToldSo)
{
    drawn->beginsWithTop = true;
    drawn->nodes = {node("Top", wall, {node("A", wall, {node("B", wall)})})};

    EXPECT_EQ(treeText(drawn->getProperties()), "Top\n"
                                                "  Top.A\n"
                                                "    Top.A.B\n");
}

TEST_F(PropertyWrapper, TellsElementsOfAListByTheirPosition)
{
    auto list = node("List", wall, {node("A", wall), node("B", other), node("C", nullptr)});
    list->isList = true;
    drawn->nodes = {node("Top", wall, {list})};

    EXPECT_EQ(treeText(drawn->getProperties()), "Top\n"
                                                "  List\n"
                                                "    List.0\n"
                                                "    List.1\n"
                                                "    List.2\n");
}

TEST_F(PropertyWrapper, TellsElementsOfAListByTheirPrefixWhereTheyHaveOne)
{
    using fc::resource::externalreference::FcClassificationReference;
    auto const system = std::make_shared<fc::resource::externalreference::FcClassification>();
    system->Name = "System";
    auto const code = std::make_shared<FcClassificationReference>();
    code->ReferencedSource = fc::resource::externalreference::FcClassificationReferenceSelect(system);
    // The prefix belongs to the row's own id, whatever id it is asked by.
    auto mapped = node("ClassificationReference", code);
    mapped->mappedId = PropertyId("Sort");
    auto list = node("List", wall, {node("A", wall), mapped, node("Sort", code)});
    list->isList = true;
    drawn->nodes = {node("Top", wall, {list})};

    EXPECT_EQ(treeText(drawn->getProperties()), "Top\n"
                                                "  List\n"
                                                "    List.0\n"
                                                "    List.System\n"
                                                "    List.2\n");
}

TEST_F(PropertyWrapper, TellsElementsOfATopLevelListWithoutADotInFront)
{
    auto top = node("Top", wall, {node("A", wall), node("B", wall, {node("C", wall)})});
    top->isList = true;
    drawn->nodes = {top};

    EXPECT_EQ(treeText(drawn->getProperties()), "Top\n"
                                                "  0\n"
                                                "  1\n"
                                                "    1.C\n");
}

TEST_F(PropertyWrapper, CopiesWhatIsForDisplayAlone)
{
    auto child = node("A", wall, {node("B", wall)});
    child->isGroup = true;
    child->isList = true;
    child->standalone = false;
    child->mappedId = PropertyId("local");
    auto top = node("Top", wall, {child});
    top->isGroup = true;
    drawn->nodes = {top};

    auto const tree = drawn->getProperties();

    EXPECT_FALSE(tree[0]->isGroup);
    EXPECT_EQ(tree[0]->object, nullptr);
    auto const& copy = *tree[0]->children[0];
    EXPECT_TRUE(copy.isGroup);
    EXPECT_FALSE(copy.isList);
    EXPECT_FALSE(copy.standalone);
    EXPECT_EQ(copy.mappedId, std::nullopt);
    EXPECT_EQ(copy.object, wall);
    EXPECT_NE(tree[0]->children[0], child);
}

TEST_F(PropertyWrapper, ListsTheLeavesAlone)
{
    auto group = node("Group", wall);
    group->isGroup = true;
    auto leafOfTop = node("TopLeaf", wall);
    drawn->nodes = {node("Top", wall, {node("B", wall), node("A", wall, {node("C", wall)}), group}),
                    leafOfTop};

    EXPECT_THAT(textsOf(drawn->getAllProperties()), ElementsAre("A.C", "B", "TopLeaf"));
}

TEST_F(PropertyWrapper, OfAnEntityWithoutPropertiesHasItsGroupAlone)
{
    auto top = node("Top", wall);
    top->isGroup = true;
    drawn->nodes = {top};

    EXPECT_THAT(drawn->getProperties(), testing::SizeIs(1));
    EXPECT_THAT(drawn->getAllProperties(), IsEmpty());
}

TEST_F(PropertyWrapper, KeepsTheLaterOfTwoNodesWithOnePath)
{
    auto const door = model.door("D1");
    auto second = node("A", door);
    second->mappedId = PropertyId("Name");
    drawn->nodes = {node("Top", wall, {node("A", wall), second})};

    EXPECT_THAT(childIds(*drawn->getProperties().front()), ElementsAre("A", "A"));
    auto const [entity, interface, localId] = drawn->getMappedProperty(PropertyId("A"));
    EXPECT_EQ(entity, door);
    EXPECT_EQ(localId.text(), "Name");
    EXPECT_THAT(textsOf(drawn->getAllProperties()), ElementsAre("A"));
}

// --- Caches -----------------------------------------------------------------------------------------

TEST_F(PropertyWrapper, BuildsItsTreeOnceForAllQuestions)
{
    drawn->nodes = {node("Top", wall, {node("A", wall)})};
    drawn->getAllProperties();
    drawn->getMappedProperty(PropertyId("A"));
    drawn->getMappedId(PropertyId("A"), wall);
    drawn->getMappedData(PropertyId("A"));
    drawn->getValue(PropertyId("A"));
    EXPECT_EQ(drawn->listings, 1);

    drawn->getProperties();
    EXPECT_EQ(drawn->listings, 2);
    drawn->clearCache();
    EXPECT_EQ(drawn->listings, 2);
    drawn->getAllProperties();
    EXPECT_EQ(drawn->listings, 3);
}

TEST_F(PropertyWrapper, BuildsAgainAfterAListingThatCameBeforeTheFirstQuestion)
{
    drawn->nodes = {node("Top", wall, {node("A", wall)})};
    drawn->getProperties();
    drawn->getAllProperties();
    EXPECT_EQ(drawn->listings, 2);
}

TEST_F(PropertyWrapper, HearsOfNewPropertiesOnlyWhenTold)
{
    EXPECT_EQ(wrapper->getValue(PropertyId("PropertySets.Own.A")), PropertyValue());
    model.addSet(wall, "Own", {{"A", label("a")}});
    EXPECT_THAT(textsOf(wrapper->getAllProperties()), Not(Contains("PropertySets.Own.A")));
    wrapper->clearCache();
    EXPECT_THAT(textsOf(wrapper->getAllProperties()), Contains("PropertySets.Own.A"));
}

TEST_F(PropertyWrapper, ShowsAChangedValueAtOnce)
{
    EXPECT_EQ(wrapper->getValue(PropertyId("Name")), PropertyValue(std::optional<std::string>("W1")));
    wrapper->setValue(PropertyId("Name"), std::optional<std::string>("W2"));
    EXPECT_EQ(wrapper->getValue(PropertyId("Name")), PropertyValue(std::optional<std::string>("W2")));
    EXPECT_EQ(wall->Name.get(), "W2");
}

// --- Who answers ------------------------------------------------------------------------------------

TEST_F(PropertyWrapper, KnowsWhoAnswersForAPath)
{
    auto mapped = node("A", wall);
    mapped->mappedId = PropertyId("Name");
    drawn->nodes = {node("Top", wall, {mapped, node("B", other), node("C", nullptr)})};

    EXPECT_EQ(drawn->getMappedProperty(PropertyId("A")), std::tuple(wall, nullptr, PropertyId("Name")));
    EXPECT_EQ(drawn->getMappedProperty(PropertyId("B")), std::tuple(nullptr, other, PropertyId("B")));
    EXPECT_EQ(drawn->getMappedProperty(PropertyId("C")), std::tuple(nullptr, nullptr, PropertyId("C")));
    EXPECT_EQ(drawn->getMappedProperty(PropertyId("D")), std::tuple(nullptr, nullptr, PropertyId()));
    EXPECT_EQ(drawn->getMappedProperty(PropertyId("Top")), std::tuple(wall, nullptr, PropertyId("Top")));
}

TEST_F(PropertyWrapper, HasNobodyToAnswerForAnObjectThatIsGone)
{
    drawn->nodes = {node("Top", std::make_shared<OtherObject>())};
    drawn->getAllProperties();
    drawn->nodes.clear();
    PropertyId const top("Top");

    EXPECT_EQ(drawn->getMappedProperty(top), std::tuple(nullptr, nullptr, top));
    EXPECT_EQ(drawn->getMappedData(top), std::nullopt);
    EXPECT_FALSE(drawn->hasMappedId(top, nullptr));
    EXPECT_EQ(drawn->getValue(top), PropertyValue());
}

TEST_F(PropertyWrapper, FindsThePathOfALocalId)
{
    auto const door = model.door("D1");
    auto first = node("Z", wall);
    first->mappedId = PropertyId("Name");
    auto second = node("A", wall);
    second->mappedId = PropertyId("Name");
    drawn->nodes = {node("Top", wall, {first, second})};

    EXPECT_EQ(drawn->getMappedId(PropertyId("Name"), wall), PropertyId("A"));
    EXPECT_TRUE(drawn->hasMappedId(PropertyId("Name"), wall));
    EXPECT_EQ(drawn->getMappedId(PropertyId("Name"), door), std::nullopt);
    EXPECT_FALSE(drawn->hasMappedId(PropertyId("Name"), door));
    EXPECT_FALSE(drawn->hasMappedId(PropertyId("Tag"), wall));
}

TEST_F(PropertyWrapper, GivesWhatStandsBehindAPathOfItsTree)
{
    auto mapped = node("A", wall);
    mapped->mappedId = PropertyId("Name");
    drawn->nodes = {node("Top", wall, {mapped})};

    auto const data = drawn->getMappedData(PropertyId("A"));
    ASSERT_TRUE(data);
    EXPECT_EQ(data->first, PropertyId("Name"));
    EXPECT_EQ(data->second, wall);
    EXPECT_EQ(drawn->getMappedData(PropertyId("B")), std::nullopt);
}

TEST_F(PropertyWrapper, GivesNothingBehindAPathWithoutItsModel)
{
    auto data = fc::Data::create();
    DrawnWrapper ofLostModel(data, wall);
    ofLostModel.nodes = {node("Top", wall, {node("A", wall)})};
    EXPECT_TRUE(ofLostModel.getMappedData(PropertyId("A")));
    data.reset();

    EXPECT_EQ(ofLostModel.getMappedData(PropertyId("A")), std::nullopt);
    EXPECT_EQ(ofLostModel.getMappedProperty(PropertyId("A")), std::tuple(wall, nullptr, PropertyId("A")));
}

// --- Through references -----------------------------------------------------------------------------

TEST_F(PropertyWrapper, RunsOnThroughAReference)
{
    auto const type = model.wallType("T1");
    model.assignType(type, {wall});

    EXPECT_THAT(textsOf(wrapper->getAllProperties()), Not(Contains("IsTypedBy.Name")));
    EXPECT_EQ(wrapper->getMappedProperty(PropertyId("IsTypedBy.Name")),
              std::tuple(type, nullptr, PropertyId("Name")));
    EXPECT_EQ(wrapper->getValue(PropertyId("IsTypedBy.Name")),
              PropertyValue(std::optional<std::string>("T1")));
    wrapper->setValue(PropertyId("IsTypedBy.Name"), std::optional<std::string>("T2"));
    EXPECT_EQ(type->Name.get(), "T2");
    EXPECT_EQ(wrapper->getMappedProperty(PropertyId("IsTypedBy.NoSuchId")),
              std::tuple(nullptr, nullptr, PropertyId()));
    EXPECT_EQ(wrapper->getMappedProperty(PropertyId("Name.Name")),
              std::tuple(nullptr, nullptr, PropertyId()));
}

TEST_F(PropertyWrapper, EndsAtAReferenceWithoutItsModel)
{
    auto const type = model.wallType("T1");
    model.assignType(type, {wall});
    auto data = fc::Data::create();
    DrawnWrapper const ofLostModel(data, wall);
    PropertyId const id("IsTypedBy.Name");
    EXPECT_EQ(ofLostModel.getMappedProperty(id), std::tuple(type, nullptr, PropertyId("Name")));
    data.reset();

    EXPECT_EQ(ofLostModel.getMappedProperty(id), std::tuple(nullptr, nullptr, PropertyId()));
}

TEST_F(PropertyWrapper, RunsOnThroughReferenceAfterReference)
{
    auto const type = model.wallType("T1");
    model.assignType(type, {wall});
    auto const boundary = model.add<fc::core::productextension::FcRelSpaceBoundary>("B1");
    boundary->RelatedBuildingElement = wall;
    FcPropertyWrapper const ofBoundary(model.data(), boundary);

    EXPECT_EQ(ofBoundary.getMappedProperty(PropertyId("RelatedBuildingElement.IsTypedBy.Name")),
              std::tuple(type, nullptr, PropertyId("Name")));
}

TEST_F(PropertyWrapper, EndsAtAReferenceThatLeadsOutOfTheModel)
{
    auto const system = std::make_shared<fc::resource::externalreference::FcClassification>();
    system->Specification = "https://example.org/codes";
    model.data()->entityAdd(system, false);
    FcPropertyWrapper const ofSystem(model.data(), system);

    EXPECT_EQ(ofSystem.getReference(PropertyId("Specification")),
              EntityReference("https://example.org/codes"));
    EXPECT_TRUE(ofSystem.isReference(PropertyId("Specification")));
    EXPECT_EQ(ofSystem.getMappedProperty(PropertyId("Specification.Name")),
              std::tuple(nullptr, nullptr, PropertyId()));
}

// --- Answers ----------------------------------------------------------------------------------------

TEST_F(PropertyWrapper, AsksAnotherObjectWhereNoEntityAnswers)
{
    auto mapped = node("A", other);
    mapped->mappedId = PropertyId("local");
    drawn->nodes = {node("Top", wall, {mapped})};
    PropertyId const id("A");

    EXPECT_EQ(drawn->getValue(id), PropertyValue("value of local"));
    drawn->setValue(id, "x");
    EXPECT_THAT(other->calls, ElementsAre("set local"));
    EXPECT_TRUE(drawn->isValueAllowed(id, "good"));
    EXPECT_FALSE(drawn->isValueAllowed(id, "bad"));
    EXPECT_TRUE(drawn->hasQuantityPresentation(id));
    EXPECT_EQ(drawn->createQuantityPresentation(id)->value(), 3.5);
    EXPECT_EQ(drawn->getPropertyName(id), "name of local");
    EXPECT_EQ(drawn->getPropertyDescription(id), "about local");
    EXPECT_FALSE(drawn->hasEnumeratedValues(id));
    EXPECT_THAT(drawn->getEnumeratedValues(id), IsEmpty());
    EXPECT_EQ(drawn->getReference(id), EntityReference());
    EXPECT_FALSE(drawn->isReference(id));
}

TEST_F(PropertyWrapper, GivesNeutralAnswersForAnUnknownPath)
{
    PropertyId const id("NoSuchPath");
    EXPECT_EQ(wrapper->getValue(id), PropertyValue());
    wrapper->setValue(id, "x");
    EXPECT_TRUE(wrapper->isValueAllowed(id, "x"));
    EXPECT_FALSE(wrapper->hasQuantityPresentation(id));
    EXPECT_EQ(wrapper->createQuantityPresentation(id), nullptr);
    EXPECT_EQ(wrapper->getPropertyName(id), "");
    EXPECT_EQ(wrapper->getPropertyDescription(id), "");
    EXPECT_FALSE(wrapper->hasEnumeratedValues(id));
    EXPECT_THAT(wrapper->getEnumeratedValues(id), IsEmpty());
    EXPECT_EQ(wrapper->getReference(id), EntityReference());
    EXPECT_FALSE(wrapper->isReference(id));
}

TEST_F(PropertyWrapper, HasFixedAnswersToWhatEntitiesDoNotHave)
{
    PropertyId const id("Name");
    EXPECT_EQ(wrapper->getPropertiesObjectKey(), "");
    EXPECT_FALSE(wrapper->isLocalValue(id));
    wrapper->resetToGlobalValue(id);
    EXPECT_EQ(wrapper->getPropertyValueDescription(id), "");
    EXPECT_EQ(wrapper->getListIndexPrefix(id), "");
    EXPECT_THAT(wrapper->getDependentProperties(id), IsEmpty());
    EXPECT_THAT(wrapper->getSearchWords(id), IsEmpty());
    EXPECT_THAT(wrapper->getSuggestedValues(id), IsEmpty());
    EXPECT_EQ(wrapper->getDefaultValue(id), std::nullopt);
    EXPECT_THAT(wrapper->getMessages(id), IsEmpty());
    EXPECT_TRUE(wrapper->isEditableWithOthers());
    EXPECT_EQ(wall->Name.get(), "W1");
}

TEST_F(PropertyWrapper, ForwardsToTheEntity)
{
    auto const door = model.door("D1");
    FcPropertyWrapper const ofDoor(model.data(), door);

    EXPECT_TRUE(ofDoor.hasQuantityPresentation(PropertyId("OverallHeight")));
    EXPECT_NE(ofDoor.createQuantityPresentation(PropertyId("OverallHeight")), nullptr);
    EXPECT_TRUE(ofDoor.hasEnumeratedValues(PropertyId("PredefinedType")));
    EXPECT_THAT(ofDoor.getEnumeratedValues(PropertyId("PredefinedType")), Not(IsEmpty()));
    EXPECT_TRUE(ofDoor.isValueAllowed(PropertyId("Name"), "x"));
    texts.add("IfcDoor.Name", "Label");
    texts.add("IfcDoor.Name_Description", "About");
    EXPECT_EQ(ofDoor.getPropertyName(PropertyId("Name")), "Label");
    EXPECT_EQ(ofDoor.getPropertyDescription(PropertyId("Name")), "About");
    auto const type = model.wallType("T1");
    model.assignType(type, {wall});
    EXPECT_TRUE(wrapper->isReference(PropertyId("IsTypedBy")));
    EXPECT_FALSE(wrapper->isReference(PropertyId("Name")));
}

TEST_F(PropertyWrapper, NamesTheSetThatAPathLeadsThrough)
{
    PresentationScope const bounds("Own.Bounds");
    PresentationScope const steps("Own.Steps");
    auto const set = model.addSet(wall, "Own");
    set->HasProperties.addProperty(boundedValue("Bounds", real(1), real(3), {}));
    set->HasProperties.addProperty(tableValue("Steps", {{real(4), real(5)}}));

    EXPECT_EQ(wrapper->getValue(PropertyId("PropertySets.Own.Bounds")), PropertyValue("[1 m/s, 3 m/s]"));
    EXPECT_EQ(wrapper->getPropertyName(PropertyId("PropertySets.Own.Steps.0")), "4 m/s");
    EXPECT_NE(wrapper->createQuantityPresentation(PropertyId("PropertySets.Own.Steps.0")), nullptr);
}

TEST_F(PropertyWrapper, NamesNoSetWhereAPathDoesNotBeginWithTheSets)
{
    PresentationScope const bounds("Own.Bounds");
    auto const type = model.wallType("T1");
    model.assignType(type, {wall});
    model.addSet(type, "Own")->HasProperties.addProperty(boundedValue("Bounds", real(1), real(3), {}));

    EXPECT_EQ(wrapper->getValue(PropertyId("IsTypedBy.PropertySets.Own.Bounds")), PropertyValue("[1, 3]"));
}

TEST_F(PropertyWrapper, AllowsEmptyValuesForWhatIsBelowASet)
{
    EXPECT_TRUE(wrapper->isEmptyValueAllowed(PropertyId("PropertySets.Own.A")));
    EXPECT_TRUE(wrapper->isEmptyValueAllowed(PropertyId("IsTypedBy.PropertySets.Own.A")));
    EXPECT_FALSE(wrapper->isEmptyValueAllowed(PropertyId("PropertySets")));
    EXPECT_FALSE(wrapper->isEmptyValueAllowed(PropertyId("Name")));
}

TEST_F(PropertyWrapper, LabelsAPropertyThatIsNotThereByItsNames)
{
    texts.add("Pset_Y.X", "Label");

    EXPECT_EQ(wrapper->getPropertyName(PropertyId("PropertySets.Pset_Y.X")), "Label");
    EXPECT_EQ(wrapper->getPropertyName(PropertyId("PropertySets.Pset_Z.X")), "Pset_Z.X");
    EXPECT_EQ(wrapper->getPropertyName(PropertyId("IsTypedBy.PropertySets.Pset_Y.X")), "Label");
    EXPECT_EQ(wrapper->getPropertyName(PropertyId("PropertySets.Pset_Y")), "");
    EXPECT_EQ(wrapper->getPropertyName(PropertyId("PropertySets.A.B.C")), "");
    EXPECT_EQ(wrapper->getPropertyName(PropertyId("IsTypedBy.PropertySets")), "");
}

// --- Life -------------------------------------------------------------------------------------------

TEST_F(PropertyWrapper, KeepsNothingAlive)
{
    auto entity = std::make_shared<fc::resource::actor::FcActorRole>();
    FcPropertyWrapper ofEntity(model.data(), entity);
    entity.reset();

    EXPECT_THAT(ofEntity.getProperties(), IsEmpty());
    EXPECT_THAT(ofEntity.getAllProperties(), IsEmpty());
    EXPECT_EQ(ofEntity.getValue(PropertyId("Role")), PropertyValue());
    EXPECT_EQ(ofEntity.getValue(PropertyId("A.B")), PropertyValue());
    EXPECT_TRUE(ofEntity.isValueAllowed(PropertyId("Role"), "x"));
}

TEST_F(PropertyWrapper, GivesNeutralAnswersWithoutItsModel)
{
    auto const entity = std::make_shared<fc::resource::actor::FcActorRole>();
    entity->Description = "about";
    auto data = fc::Data::create();
    FcPropertyWrapper ofEntity(data, entity);
    PropertyId const id("Description");
    EXPECT_NE(ofEntity.getValue(id), PropertyValue());
    data.reset();

    EXPECT_EQ(ofEntity.getValue(id), PropertyValue());
    ofEntity.setValue(id, "changed");
    EXPECT_EQ(entity->Description.get(), "about");
    EXPECT_TRUE(ofEntity.isValueAllowed(id, "x"));
    EXPECT_EQ(ofEntity.createQuantityPresentation(id), nullptr);
    EXPECT_EQ(ofEntity.getPropertyName(id), "");
    EXPECT_EQ(ofEntity.getMappedProperty(id), std::tuple(entity, nullptr, id));
}

TEST_F(PropertyWrapper, AnswersWithoutItsModelWhatTheEntityKnowsByItself)
{
    using fc::resource::externalreference::FcClassification;
    texts.add("IfcDoor.OverallHeight_Description", "From sill to lintel");
    auto const door = std::make_shared<fc::shared::sharedbldgelements::FcDoor>();
    auto const system = std::make_shared<FcClassification>();
    system->Specification = "https://example.org/codes";
    auto data = fc::Data::create();
    FcPropertyWrapper const ofDoor(data, door);
    FcPropertyWrapper const ofSystem(data, system);
    data.reset();

    EXPECT_TRUE(ofDoor.hasQuantityPresentation(PropertyId("OverallHeight")));
    EXPECT_EQ(ofDoor.getPropertyDescription(PropertyId("OverallHeight")), "From sill to lintel");
    EXPECT_TRUE(ofDoor.hasEnumeratedValues(PropertyId("PredefinedType")));
    EXPECT_THAT(ofDoor.getEnumeratedValues(PropertyId("PredefinedType")), Not(IsEmpty()));
    EXPECT_EQ(ofSystem.getReference(PropertyId("Specification")),
              EntityReference("https://example.org/codes"));
    EXPECT_TRUE(ofSystem.isReference(PropertyId("Specification")));
}

TEST_F(PropertyWrapper, LabelsAPropertyByItsNamesWithoutItsModel)
{
    texts.add("Own.A", "Label");
    auto data = fc::Data::create();
    DrawnWrapper ofLostModel(data, wall);
    auto property = node("A", singleValue("A", label("a")));
    ofLostModel.nodes = {node("Top", wall, {node("PropertySets", wall, {node("Own", wall, {property})})})};
    PropertyId const id("PropertySets.Own.A");
    EXPECT_EQ(ofLostModel.getPropertyName(id), "A");
    data.reset();

    EXPECT_EQ(ofLostModel.getPropertyName(id), "Label");
}

TEST_F(PropertyWrapper, OwnedStronglyKeepsModelAndEntityAlive)
{
    auto data = fc::Data::create();
    auto entity = std::make_shared<fc::resource::actor::FcActorRole>();
    entity->Description = "about";
    std::weak_ptr<fc::Data> const weakData = data;
    std::weak_ptr<fc::FcBase> const weakEntity = entity;
    auto owning = FcPropertyWrapper::createStrongOwningFcPropertyWrapper(std::move(data), std::move(entity));

    EXPECT_EQ(owning->getValue(PropertyId("Description")),
              PropertyValue(std::optional<std::string>("about")));
    owning.reset();
    EXPECT_TRUE(weakData.expired());
    EXPECT_TRUE(weakEntity.expired());
}

TEST_F(PropertyWrapper, OwnedStronglyKnowsItselfWithoutModelAndEntity)
{
    auto data = fc::Data::create();
    std::weak_ptr<fc::Data> const weakData = data;
    auto owning = FcPropertyWrapper::createStrongOwningFcPropertyWrapper(
        std::move(data), std::make_shared<fc::resource::actor::FcActorRole>());

    auto itself = owning->shared_from_this();
    EXPECT_EQ(itself, owning);
    owning.reset();
    EXPECT_TRUE(weakData.expired());
    EXPECT_THAT(itself->getProperties(), IsEmpty());
    std::weak_ptr<FcPropertyWrapper> const last = itself;
    itself.reset();
    EXPECT_TRUE(last.expired());
}

} // namespace
