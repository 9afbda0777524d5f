#include "UI/FoundationClasses/FcEditController.h"

#include "Core/Unit/QuantityPresentation.h"
#include "EditControllerTest.h"
#include "FoundationClasses/Core/Kernel/FcRoot.h"
#include "FoundationClasses/FcVisitorBase.h"
#include "FoundationClasses/Resource/Actor/FcPerson.h"
#include "UI/FoundationClasses/PropertyInterface/GetReference.h"

namespace {

using namespace qev;
using namespace qev::test;
using fc::resource::property::FcPropertyListValue;
using object::PropertyValue;
using testing::ElementsAre;
using testing::IsEmpty;
using ui::edit::EditedObject;
using ui::edit::ObjectPropertyEditControllerBase;

class EditController : public EditControllerTest
{
protected:
    std::shared_ptr<fc::shared::sharedbldgelements::FcWall> wall = model.wall("W1");
    std::shared_ptr<fc::shared::sharedbldgelements::FcWall> second = model.wall("W2");
};

/// An object that is no entity of a model.
std::shared_ptr<EditedObject> otherObject()
{
    class Other : public object::PropertyInterface
    {
    public:
        using Id = object::PropertyId;
        std::set<Id> getAllProperties() const override { return {}; }
        std::string getPropertiesObjectKey() const override { return {}; }
        void setValue(Id const&, PropertyValue const&) override {}
        PropertyValue getValue(Id const&) const override { return {}; }
        bool isValueAllowed(Id const&, PropertyValue const&) const override { return true; }
        bool isEmptyValueAllowed(Id const&) const override { return true; }
        bool hasQuantityPresentation(Id const&) const override { return false; }
        std::unique_ptr<unit::QuantityPresentationBase> createQuantityPresentation(Id const&) const override
        {
            return nullptr;
        }
        bool isLocalValue(Id const&) const override { return false; }
        void resetToGlobalValue(Id const&) override {}
        std::string getPropertyName(Id const&) const override { return {}; }
        std::string getPropertyDescription(Id const&) const override { return {}; }
        std::string getPropertyValueDescription(Id const&) const override { return {}; }
        std::string getListIndexPrefix(Id const&) const override { return {}; }
        bool isReadOnly() const override { return false; }
        bool isPropertyReadOnly(Id const&) const override { return false; }
        bool isReference(Id const&) const override { return false; }
    };
    return std::make_shared<EditedObject>(std::make_shared<Other>());
}

// --- Questions of the grid --------------------------------------------------------------------------

TEST_F(EditController, OffersValuesAsSoonAsOneObjectHasThem)
{
    auto const status = PropertyId("PropertySets.Own.Status");
    model.addSet(wall, "Own");
    model.addSet(second, "Own")
        ->HasProperties.addProperty(enumeratedValue("Status", {label("NEW")}, {label("NEW"), label("OLD")}));
    edit({wall});
    EXPECT_FALSE(controller->hasEnumeratedValues(status));
    edit({wall, second});
    EXPECT_TRUE(controller->hasEnumeratedValues(status));
    EXPECT_THAT(controller->getEnumeratedValues(status), IsEmpty());
    edit({second, wall});
    EXPECT_EQ(controller->getEnumeratedValues(status).size(), 2u);
    edit({});
    EXPECT_FALSE(controller->hasEnumeratedValues(status));
    EXPECT_THAT(controller->getEnumeratedValues(status), IsEmpty());
}

TEST_F(EditController, PassesOverObjectsThatAreNoEntities)
{
    auto const status = PropertyId("PropertySets.Own.Status");
    model.addSet(wall, "Own")
        ->HasProperties.addProperty(enumeratedValue("Status", {label("NEW")}, {label("NEW"), label("OLD")}));
    auto const object = edited(model.data(), wall);
    controller->setObjects({otherObject(), object}, {otherObject(), object});
    EXPECT_EQ(controller->getEnumeratedValues(status).size(), 2u);
    EXPECT_EQ(controller->getFcData(), model.data());
    // The first object tells what a button does, and this one is none.
    click("Documents");
    EXPECT_THAT(wall->HasAssociations(), IsEmpty());
    expectControllerReport("Reference type not implemented.", "onButtonClicked::<lambda_1>::operator ()");
}

TEST_F(EditController, WantsTheObjectAnewAfterEachEdit)
{
    EXPECT_EQ(static_cast<int>(controller->getOnPropertyChangedAction(PropertyId("Name"))), 3);
    EXPECT_EQ(static_cast<int>(controller->getOnPropertyChangedAction(PropertyId("Unknown"))), 3);
}

TEST_F(EditController, LeavesTheOtherStagesOfAnEditAlone)
{
    edit({wall});
    auto const id = PropertyId("Name");
    controller->onPropertyChangedAfterObjectRegen(id, "");
    controller->onAfterPropertyUpdated(id);
    EXPECT_TRUE(controller->onRequestToResetPropertyLocalValue(id));
    controller->onAfterResetPropertyLocalValue(id);
    controller->onResetPropertyLocalValueAfterObjectRegen(id);
    controller->onPropertyDeselected(id);
    EXPECT_THAT(log->entries, IsEmpty());
}

TEST_F(EditController, HasTheModelThatAllObjectsAreOf)
{
    EXPECT_EQ(controller->getFcData(), nullptr);
    edit({wall, second});
    EXPECT_EQ(controller->getFcData(), model.data());
    Model other;
    editWallsOfTwoModels(wall, other, other.wall("W3"));
    EXPECT_EQ(controller->getFcData(), nullptr);
}

TEST_F(EditController, HasNoModelOnceOneOfThemIsGone)
{
    auto const first = edited(model.data(), wall);
    std::shared_ptr<FcPropertyWrapper> gone;
    {
        Model other;
        gone = std::make_shared<FcPropertyWrapper>(other.data(), other.wall("W3"));
    }
    auto const second3 = std::make_shared<EditedObject>(gone);
    controller->setObjects({first, second3}, {});
    EXPECT_EQ(controller->getFcData(), nullptr);
    controller->setObjects({second3, first}, {});
    EXPECT_EQ(controller->getFcData(), nullptr);
}

// --- Edits in a row ---------------------------------------------------------------------------------

TEST_F(EditController, AnEmptiedValueIsAChangeOfTheModel)
{
    for (PropertyValue const& value :
         {PropertyValue(""), PropertyValue(std::optional<bool>()), PropertyValue(std::optional<double>()),
          PropertyValue(std::optional<std::string>())}) {
        edit({wall});
        log->entries.clear();
        controller->onPropertyChanged(PropertyId("Name"), value);
        EXPECT_THAT(log->entries, ElementsAre("edited"));
    }
}

TEST_F(EditController, AnyOtherValueIsNone)
{
    edit({wall});
    for (PropertyValue const& value :
         {PropertyValue(), PropertyValue(0), PropertyValue(0u), PropertyValue(false), PropertyValue(0.0),
          PropertyValue("W9"), PropertyValue(std::optional<int>()),
          PropertyValue(std::optional<std::uint32_t>()), PropertyValue(std::optional<bool>(false)),
          PropertyValue(std::optional<double>(0.0)), PropertyValue(std::optional<std::string>(""))})
        controller->onPropertyChanged(PropertyId("Name"), value);
    EXPECT_THAT(log->entries, IsEmpty());
}

TEST_F(EditController, TellsOfAnEmptiedValueBeforeItReadsTheObjectsAgain)
{
    auto const property = PropertyId("PropertySets.Own.A");
    edit({wall});
    auto const wrapper = std::dynamic_pointer_cast<FcPropertyWrapper>(
        controller->getWritableObjects().front()->getWritablePropertyInterface());
    EXPECT_FALSE(wrapper->getAllProperties().contains(property));
    model.addSet(wall, "Own", {{"A", label("a")}});
    log->onEntry = [&](std::string const&) { EXPECT_FALSE(wrapper->getAllProperties().contains(property)); };

    controller->onPropertyChanged(PropertyId("PropertySets.Own.B"), "");

    EXPECT_TRUE(wrapper->getAllProperties().contains(property));
    EXPECT_THAT(log->entries, ElementsAre("edited"));
}

TEST_F(EditController, ReadsTheObjectsAnewThatCanBeChanged)
{
    auto const property = PropertyId("PropertySets.Own.A");
    auto const shown = edited(model.data(), wall);
    auto const writable = edited(model.data(), wall);
    auto const hasProperty = [&property](EditedObject const& object) {
        return object.getPropertyInterface()->getAllProperties().contains(property);
    };
    controller->setObjects({shown}, {writable});
    EXPECT_FALSE(hasProperty(*shown));
    EXPECT_FALSE(hasProperty(*writable));
    model.addSet(wall, "Own", {{"A", label("a")}});

    controller->onPropertyChanged(PropertyId("PropertySets.Own.B"), "");

    EXPECT_FALSE(hasProperty(*shown));
    EXPECT_TRUE(hasProperty(*writable));
}

// --- The selected reference -------------------------------------------------------------------------

constexpr char location[] = "Documents.0.Location";

TEST_F(EditController, OffersTheOnePathOfTheSelectedProperty)
{
    addDocument(model, {wall}, "a.pdf");
    addDocument(model, {second}, "a.pdf");
    edit({wall, second});
    controller->onPropertySelected(PropertyId(location));
    EXPECT_THAT(log->entries, ElementsAre("reference a.pdf", "enable reference"));
}

TEST_F(EditController, AnObjectWithoutAPathDoesNotMatter)
{
    addDocument(model, {second}, "b.pdf");
    edit({wall, second, model.wall("W3")});
    controller->onPropertySelected(PropertyId(location));
    EXPECT_THAT(log->entries, ElementsAre("reference b.pdf", "enable reference"));
}

TEST_F(EditController, OffersNoneOfSeveralPaths)
{
    auto const third = model.wall("W3");
    addDocument(model, {wall}, "a.pdf");
    addDocument(model, {second}, "b.pdf");
    addDocument(model, {third}, "c.pdf");
    edit({wall, second, third});
    controller->onPropertySelected(PropertyId(location));
    EXPECT_THAT(log->entries, ElementsAre("clear reference"));
}

TEST_F(EditController, OffersNoPathWhereThereIsNone)
{
    model.assignType(model.wallType("T1"), {wall});
    edit({wall});
    controller->onPropertySelected(PropertyId("Name"));
    controller->onPropertySelected(PropertyId("IsTypedBy"));
    edit({});
    controller->onPropertySelected(PropertyId(location));
    EXPECT_THAT(log->entries, ElementsAre("clear reference", "clear reference", "clear reference"));
}

TEST_F(EditController, TellsNobodyOnceTheOwnerIsGone)
{
    addDocument(model, {wall}, "a.pdf");
    edit({wall});
    owner.reset();
    controller->onPropertySelected(PropertyId(location));
    controller->onPropertySelected(PropertyId("Name"));
    controller->onPropertyChanged(PropertyId("Name"), "");
    click(location);
    EXPECT_THAT(log->entries, IsEmpty());
}

// --- Buttons of references --------------------------------------------------------------------------

TEST_F(EditController, OpensTheReferenceOfEachWritableObjectInTurn)
{
    addDocument(model, {wall}, "a.pdf");
    addDocument(model, {second}, "b.pdf");
    edit({second, wall});
    click(location);
    EXPECT_THAT(log->entries, ElementsAre("open b.pdf", "open a.pdf"));
    log->entries.clear();
    auto const objects = controller->getEditedObjects();
    controller->setObjects(objects, {objects[1]});
    click(location);
    EXPECT_THAT(log->entries, ElementsAre("open a.pdf"));
}

TEST_F(EditController, GoesToTheObjectThatAReferenceLeadsTo)
{
    auto const type = model.wallType("T1");
    model.assignType(type, {wall});
    edit({wall});
    ASSERT_TRUE(
        controller->getEditedObjects().front()->getPropertyInterface()->isReference(PropertyId("IsTypedBy")));
    click("IsTypedBy");
    EXPECT_THAT(log->entries, ElementsAre("go to " + type->getGuid().toString()));
}

/// A wall whose every property leads to an entity without a global id.
class WallOfAPerson : public fc::shared::sharedbldgelements::FcWall
{
public:
    using FcWall::accept;
    void accept(fc::FcVisitorBase& visitor) const override
    {
        if (auto* const finder = dynamic_cast<fc::ui::propertyinterface::GetReference*>(&visitor))
            finder->reference = std::shared_ptr<fc::FcBase const>(m_person);
        else
            FcWall::accept(visitor);
    }

private:
    std::shared_ptr<fc::resource::actor::FcPerson> m_person =
        std::make_shared<fc::resource::actor::FcPerson>();
};

TEST_F(EditController, PassesOverAnEntityThatNobodyCanGoTo)
{
    edit({model.add<WallOfAPerson>("W3"), wall});
    click("Name");
    EXPECT_THAT(log->entries, IsEmpty());
    expectControllerReport("Reference type not implemented.", "onButtonClicked::<lambda_1>::operator ()");
}

TEST_F(EditController, ReportsEachObjectWithoutAReferenceAndGoesOn)
{
    addDocument(model, {second}, "b.pdf");
    edit({wall, second});
    click(location);
    EXPECT_THAT(log->entries, ElementsAre("open b.pdf"));
    expectControllerReport("Reference type not implemented.", "onButtonClicked::<lambda_1>::operator ()");
}

TEST_F(EditController, FollowsReferencesEvenWithoutAnEditedObject)
{
    addDocument(model, {wall}, "a.pdf");
    controller->setObjects({}, {edited(model.data(), wall)});
    click("Documents", "add");
    EXPECT_THAT(wall->HasAssociations(), testing::SizeIs(1));
    expectControllerReport("Reference type not implemented.", "onButtonClicked::<lambda_1>::operator ()");
    click(location);
    EXPECT_THAT(log->entries, ElementsAre("open a.pdf"));
}

TEST_F(EditController, AnUnknownKeyBelowClassificationsIsTakenForAReference)
{
    edit({wall});
    click("Classifications.Groups", "other");
    EXPECT_THAT(log->entries, IsEmpty());
    expectControllerReport("Reference type not implemented.", "onButtonClicked::<lambda_1>::operator ()");
}

TEST_F(EditController, KnownKeysOfPathsThatBeginLikeClassificationsAreForClassifications)
{
    edit({wall});
    click("ClassificationsOfMine", "edit");
    EXPECT_THAT(log->entries, IsEmpty());
    expectControllerReport("Unexpected object type in selection set.",
                           "getFcObjectsBeingEdited::<lambda_1>::operator ()");
    click("ClassificationsOfMine", "delete");
    EXPECT_EQ(log->entries, changeAt("ClassificationsOfMine"));
    expectControllerReport("Unexpected object type in selection set.",
                           "getFcObjectsBeingEdited::<lambda_1>::operator ()");
}

// --- Buttons without a meaning ----------------------------------------------------------------------

TEST_F(EditController, UnknownKeysOfSetsAndValuesDoNothing)
{
    auto const set = model.addSet(wall, "Own");
    set->HasProperties.addProperty(enumeratedValue("Status", {label("NEW")}, {label("NEW")}));
    set->HasProperties.addProperty(boundedValue("Bounded", real(1), real(2), FcValue()));
    set->HasProperties.addProperty(listValue("List", {label("a")}));
    set->HasProperties.addProperty(tableValue("Table", {{real(1), real(2)}}));
    edit({wall});
    for (std::string const id : {"PropertySets.Own", "PropertySets.Own.Status", "PropertySets.Own.Bounded",
                                 "PropertySets.Own.List", "PropertySets.Own.Table"}) {
        click(id, "");
        click(id, "other");
    }
    click("PropertySets.Own", "edit");
    click("PropertySets.Own.Status", "add");
    click("PropertySets.Own.Bounded", "add");
    click("PropertySets.Own.List", "edit");
    click("PropertySets.Own.Table", "add");
    EXPECT_THAT(log->entries, IsEmpty());
    EXPECT_EQ(openList(), nullptr);
    EXPECT_THAT(propertyNames(*wall, "Own"), testing::SizeIs(4));
}

// --- Around a change of the model -------------------------------------------------------------------

TEST_F(EditController, ReloadsTheGridBeforeItTellsTheOwner)
{
    edit({wall});
    click("Documents");
    EXPECT_EQ(log->entries, changeAt("Documents"));
}

TEST_F(EditController, UpdatesTheViewOfTheOwnerOfTheGridsController)
{
    auto const otherLog = std::make_shared<EditorLog>();
    auto const other = std::make_shared<ToyObjectEditor>(otherLog, dialog);
    owner->controller->setOwner(other);
    edit({wall});
    click("Documents");
    EXPECT_THAT(log->entries, ElementsAre("reload Documents", "edited"));
    EXPECT_THAT(otherLog->entries, ElementsAre("update"));
}

TEST_F(EditController, TellsAnOwnerThatHasNoGrid)
{
    owner->controller = std::make_shared<ObjectPropertyEditControllerBase>();
    edit({wall});
    click("Documents");
    owner->controller = nullptr;
    click("Documents");
    EXPECT_THAT(log->entries, ElementsAre("edited", "edited"));
}

TEST_F(EditController, ChangesTheModelWithoutAnOwner)
{
    edit({wall});
    owner.reset();
    click("Documents");
    EXPECT_THAT(wall->HasAssociations(), testing::SizeIs(1));
}

} // namespace
