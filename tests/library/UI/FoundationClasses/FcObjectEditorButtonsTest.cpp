#include "Format/Ifc/Model/PropertySetMapping.h"
#include "Format/Ifc/Schema/Pset/PropertySetDef.h"
#include "Format/Ifc/Schema/SchemaLoader.h"
#include "Format/Ifc/Schema/SchemaPset.h"
#include "FoundationClasses/Classification/ClassificationInterface.h"
#include "FoundationClasses/Core/ProductExtension/FcElementQuantity.h"
#include "ObjectEditorTest.h"
#include "Ui/Window/Image.h"

namespace {

using namespace qev;
using namespace qev::test;
using fc::ui::edit::FcObjectEditor;
using object::PropertyId;
using testing::ElementsAre;
using testing::IsEmpty;

/// The key of a button and its picture.
std::string textOf(FcObjectEditor::PropertyButton const& button)
{
    if (!button.tooltip.empty())
        return "a button with a tooltip";
    for (auto const& [name, image] : {std::pair("open", FcObjectEditor::getOpenInExternalAppButtonImage()),
                                      std::pair("add", FcObjectEditor::getAddItemButtonImage()),
                                      std::pair("delete", FcObjectEditor::getDeleteButtonImage()),
                                      std::pair("default", FcObjectEditor::getDefaultButtonImage())}) {
        if (button.image == image)
            return button.key + ":" + name;
    }
    return button.key + ": unknown image";
}

class System final : public classification::ClassificationInterface
{
public:
    [[nodiscard]] std::string getKey() const override { return "Groups"; }
    [[nodiscard]] std::string getDescription() const override { return {}; }
};

struct ObjectEditorButtons : ObjectEditorTest
{
    std::vector<std::string> buttons(std::string const& id) const
    {
        std::vector<std::string> texts;
        for (auto const& button : editor.getButtons(PropertyId(id)))
            texts.push_back(textOf(button));
        return texts;
    }
};

TEST_F(ObjectEditorButtons, AReferenceIsOpenedAlsoWhereNothingCanBeChanged)
{
    addDocument(model, {wall}, "https://example.org/wall.pdf");
    ASSERT_TRUE(wrapper->isReference(PropertyId("Documents.0.Location")));
    EXPECT_THAT(buttons("Documents.0.Location"), ElementsAre(":open"));
    wrapper->setReadOnly(true);
    EXPECT_THAT(buttons("Documents.0.Location"), ElementsAre(":open"));
}

TEST_F(ObjectEditorButtons, ClassificationsAreAdded)
{
    EXPECT_THAT(buttons("Classifications"), ElementsAre(":add"));
    wrapper->setReadOnly(true);
    EXPECT_THAT(buttons("Classifications"), IsEmpty());
}

TEST_F(ObjectEditorButtons, TheHeadingOfClassificationsIsToldByItsPathAlone)
{
    auto const type = std::make_shared<FcPropertyWrapper>(model.data(), set);
    type->setReadOnly(false);
    ASSERT_EQ(std::get<PropertyId>(type->getMappedProperty(PropertyId("Classifications"))), PropertyId());
    FcObjectEditor const other(*type, ui::edit::PropertyGridControlObjectEditorContext::Dialog);
    EXPECT_EQ(other.getButtons(PropertyId("Classifications")).size(), 1u);
}

TEST_F(ObjectEditorButtons, AClassificationIsDeletedOrEdited)
{
    wall->classify(std::make_shared<System>(), {"21"});
    wrapper->clearCache();
    EXPECT_THAT(buttons("Classifications.Groups"), ElementsAre("delete:delete", "edit:default"));
    EXPECT_THAT(buttons("Classifications.Groups.Name"), ElementsAre("delete:delete", "edit:default"));
    wrapper->setReadOnly(true);
    EXPECT_THAT(buttons("Classifications.Groups"), IsEmpty());
}

TEST_F(ObjectEditorButtons, APathThatOnlyBeginsLikeClassificationsIsAPathLikeOthers)
{
    EXPECT_THAT(buttons("ClassificationsOfMine"), IsEmpty());
    EXPECT_THAT(buttons("ClassificationsOfMine.Name"), ElementsAre("delete:delete", "edit:default"));
}

TEST_F(ObjectEditorButtons, SetsAndDocumentsAreAdded)
{
    EXPECT_THAT(buttons("PropertySets"), ElementsAre(":add"));
    EXPECT_THAT(buttons("Documents"), ElementsAre(":add"));
    wrapper->setReadOnly(true);
    EXPECT_THAT(buttons("PropertySets"), IsEmpty());
    EXPECT_THAT(buttons("Documents"), IsEmpty());
}

TEST_F(ObjectEditorButtons, ASetIsDeletedAndTakesWhatItLacks)
{
    auto const common = model.addSet(wall, "Pset_WallCommon", {{"FireRating", label("F30")}});
    wrapper->clearCache();
    EXPECT_THAT(buttons("PropertySets.Pset_WallCommon"), ElementsAre("delete:delete", "add:add"));
    auto const schema = ifc::SchemaLoader::curr().pSchemaFromName("IFC4X3_TC1");
    auto const definition =
        dynamic_cast<ifc::def::pset::PropertySetDef const*>(schema->pXmlSetFromName("Pset_WallCommon"));
    ASSERT_NE(definition, nullptr);
    for (auto const& property : definition->propertyDefs)
        ifc::addSchemaDefToPropertySetDefinition(*property, *common);
    EXPECT_THAT(buttons("PropertySets.Pset_WallCommon"), ElementsAre("delete:delete"));
    wrapper->setReadOnly(true);
    EXPECT_THAT(buttons("PropertySets.Pset_WallCommon"), IsEmpty());
}

TEST_F(ObjectEditorButtons, ASetOfOnesOwnHasAllThatItCanHave)
{
    EXPECT_THAT(buttons("PropertySets.Own"), ElementsAre("delete:delete"));
}

TEST_F(ObjectEditorButtons, ASetOfQuantitiesTakesWhatItLacksToo)
{
    model.addQuantities(wall, "Qto_WallBaseQuantities", {{"Length", 4.0}});
    wrapper->clearCache();
    EXPECT_THAT(buttons("PropertySets.Qto_WallBaseQuantities"), ElementsAre("delete:delete", "add:add"));
}

TEST_F(ObjectEditorButtons, AnEnumerationIsDeletedAndEditedWhereItsUserMay)
{
    EXPECT_THAT(buttons("PropertySets.Own.Status"), ElementsAre("delete:delete"));
    SettingsScope const settings(std::make_shared<GenerousSettings>());
    EXPECT_THAT(buttons("PropertySets.Own.Status"), ElementsAre("delete:delete", "edit:default"));
    EXPECT_THAT(buttons("PropertySets.Own.Other"), ElementsAre("delete:delete"));
    wrapper->setReadOnly(true);
    EXPECT_THAT(buttons("PropertySets.Own.Status"), IsEmpty());
}

TEST_F(ObjectEditorButtons, AnEnumerationInNoNamedSetIsOnlyDeleted)
{
    SettingsScope const settings(std::make_shared<GenerousSettings>());
    auto const alone = enumeratedValue("Status", {label("NEW")}, {label("NEW")});
    model.data()->entityAdd(alone, false);
    FcPropertyWrapper aloneWrapper(model.data(), alone);
    aloneWrapper.setReadOnly(false);
    FcObjectEditor const aloneEditor(aloneWrapper, ui::edit::PropertyGridControlObjectEditorContext::Panel);
    auto const tops = aloneWrapper.getProperties();
    ASSERT_EQ(tops.size(), 1u);
    ASSERT_EQ(std::get<PropertyId>(aloneWrapper.getMappedProperty(tops[0]->id)).text(), "EnumeratedValue");
    auto const found = aloneEditor.getButtons(tops[0]->id);
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(textOf(found[0]), "delete:delete");
}

TEST_F(ObjectEditorButtons, AListIsDeletedOrGrows)
{
    EXPECT_THAT(buttons("PropertySets.Own.List"), ElementsAre("delete:delete", "add:add"));
    wrapper->setReadOnly(true);
    EXPECT_THAT(buttons("PropertySets.Own.List"), IsEmpty());
}

TEST_F(ObjectEditorButtons, BoundsAndTablesAreEditedInPopupsWhateverCanBeChanged)
{
    for (bool const readOnly : {false, true}) {
        wrapper->setReadOnly(readOnly);
        EXPECT_THAT(buttons("PropertySets.Own.Bounded"), ElementsAre("delete:delete", "edit:default"));
        EXPECT_THAT(buttons("PropertySets.Own.Table"), ElementsAre("delete:delete", "edit:default"));
    }
}

TEST_F(ObjectEditorButtons, AllElseHasNone)
{
    EXPECT_THAT(buttons("PropertySets.Own.Single"), IsEmpty());
    EXPECT_THAT(buttons("Name"), IsEmpty());
    EXPECT_THAT(buttons("Unknown"), IsEmpty());
    EXPECT_THAT(buttons(""), IsEmpty());
}

TEST_F(ObjectEditorButtons, AHostMayTakeThemAway)
{
    struct ReadOnlyEditor : FcObjectEditor
    {
        using FcObjectEditor::FcObjectEditor;
        bool isReadOnly(PropertyId const&) const override { return true; }
    };
    ReadOnlyEditor const other(*wrapper, ui::edit::PropertyGridControlObjectEditorContext::Panel);
    EXPECT_THAT(other.getButtons(PropertyId("Documents")), IsEmpty());
    EXPECT_EQ(other.getButtons(PropertyId("PropertySets.Own.Table")).size(), 2u);
}

TEST_F(ObjectEditorButtons, AnEntityThatIsGoneHasNone)
{
    std::shared_ptr<FcPropertyWrapper> gone;
    {
        Model other;
        gone = std::make_shared<FcPropertyWrapper>(other.data(), other.wall("W2"));
        gone->setReadOnly(false);
    }
    FcObjectEditor const goneEditor(*gone, ui::edit::PropertyGridControlObjectEditorContext::Panel);
    EXPECT_THAT(goneEditor.getButtons(PropertyId("Documents")), IsEmpty());
}

} // namespace
