#include "UI/FoundationClasses/FcObjectEditor.h"

#include "ObjectEditorTest.h"

namespace {

using namespace qev;
using namespace qev::test;
using fc::core::kernel::FcDefinitionSelect;
using fc::core::kernel::FcRelAssociatesClassification;
using fc::resource::externalreference::FcClassification;
using fc::resource::externalreference::FcClassificationReference;
using fc::resource::externalreference::FcClassificationReferenceSelect;
using fc::resource::externalreference::FcClassificationSelect;
using fc::ui::edit::FcObjectEditor;
using object::PropertyId;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using EditProperty = ui::edit::Property;

/// One line a row, indented by depth, with its flags.
std::string textOf(std::vector<EditProperty> const& rows, std::size_t depth = 0)
{
    std::string text;
    for (auto const& row : rows) {
        text += std::string(2 * depth, ' ') + row.id.text();
        text += row.isGroup ? " [group]" : "";
        text += row.isPartial ? " [partial]" : "";
        text += row.kind != 0 || row.labelAndDescription || row.fixedText ? " [more]" : "";
        text += '\n' + textOf(row.children, depth + 1);
    }
    return text;
}

struct ObjectEditor : ObjectEditorTest
{
    std::string rows() const { return textOf(editor.getPropertiesToBeEdited({})); }
};

TEST_F(ObjectEditor, ShowsTheTreeOfAnObject)
{
    EXPECT_EQ(rows(), "Wall [group] [partial]\n"
                      "  Name\n"
                      "  Description\n"
                      "  ObjectType\n"
                      "  Tag\n"
                      "  PredefinedType\n"
                      "  Documents [group]\n"
                      "  Classifications [group]\n"
                      "  PropertySets [group] [partial]\n"
                      "    PropertySets.Own [group] [partial]\n"
                      "      PropertySets.Own.Bounded\n"
                      "      PropertySets.Own.List [group] [partial]\n"
                      "        PropertySets.Own.List.0\n"
                      "        PropertySets.Own.List.1\n"
                      "      PropertySets.Own.Other\n"
                      "      PropertySets.Own.Single\n"
                      "      PropertySets.Own.Status\n"
                      "      PropertySets.Own.Table [group] [partial]\n"
                      "        PropertySets.Own.Table.0\n");
}

TEST_F(ObjectEditor, LeavesOutWhatHasNoValueWhereNothingCanBeChanged)
{
    wrapper->setReadOnly(true);
    auto const text = rows();
    EXPECT_THAT(text, HasSubstr("  Name\n"));
    EXPECT_THAT(text, Not(HasSubstr("  Description\n")));
    EXPECT_THAT(text, Not(HasSubstr("  Tag\n")));
    EXPECT_THAT(text, HasSubstr("  Documents [group]\n"));
    wall->Description = "A wall";
    EXPECT_THAT(rows(), HasSubstr("  Description\n"));
}

TEST_F(ObjectEditor, ShowsTheGlobalIdWhereTheHostWantsIt)
{
    EXPECT_THAT(rows(), Not(HasSubstr("GlobalId")));
    SettingsScope const settings(std::make_shared<GenerousSettings>());
    EXPECT_THAT(rows(), HasSubstr("  GlobalId\n"));
}

TEST_F(ObjectEditor, RowsAreEnabledAndHaveTheColoursOfTheGrid)
{
    EXPECT_TRUE(editor.isEnabled(PropertyId("Name")));
    EXPECT_TRUE(editor.isEnabled(PropertyId("Unknown")));
    EXPECT_EQ(editor.getTextColour(PropertyId("Name")), std::nullopt);
    EXPECT_EQ(editor.getBackgroundColour(PropertyId("Name")), std::nullopt);
}

TEST_F(ObjectEditor, RowsAreDisabledWhereAnObjectCannotBeEditedWithOthers)
{
    class LoneWrapper : public FcPropertyWrapper
    {
    public:
        using FcPropertyWrapper::FcPropertyWrapper;
        [[nodiscard]] bool isEditableWithOthers() const override { return false; }
    };
    LoneWrapper const lone(model.data(), wall);
    FcObjectEditor const loneEditor(lone, ui::edit::PropertyGridControlObjectEditorContext::Panel);
    EXPECT_FALSE(loneEditor.isEnabled(PropertyId("Name")));
}

TEST_F(ObjectEditor, BoundsAreNeverEditedInTheirRow)
{
    EXPECT_TRUE(editor.isReadOnly(PropertyId("PropertySets.Own.Bounded")));
    EXPECT_FALSE(editor.isReadOnly(PropertyId("PropertySets.Own.Single")));
    EXPECT_FALSE(editor.isReadOnly(PropertyId("Unknown")));
    wrapper->setReadOnly(true);
    EXPECT_TRUE(editor.isReadOnly(PropertyId("PropertySets.Own.Single")));
}

TEST_F(ObjectEditor, ShowsNothingOfAnEntityThatIsGone)
{
    std::shared_ptr<FcPropertyWrapper> gone;
    {
        Model other;
        gone = std::make_shared<FcPropertyWrapper>(other.data(), other.wall("W2"));
    }
    FcObjectEditor const goneEditor(*gone, ui::edit::PropertyGridControlObjectEditorContext::Panel);
    EXPECT_THAT(goneEditor.getPropertiesToBeEdited({}), IsEmpty());
    EXPECT_THAT(goneEditor.getDynamicProperties(), IsEmpty());
}

// --- Classifications --------------------------------------------------------------------------------

struct ObjectEditorClassifications : ObjectEditor
{
    std::shared_ptr<FcClassification> system(std::string const& name)
    {
        auto const created = std::make_shared<FcClassification>();
        created->Name = name;
        model.data()->entityAdd(created, false);
        return created;
    }
    void classify(Model::Object const& object, FcClassificationSelect const& classification)
    {
        auto const relation = model.add<FcRelAssociatesClassification>("");
        relation->RelatingClassification = classification;
        relation->setRelatedObjects({FcDefinitionSelect(object)});
    }
    void classify(Model::Object const& object, std::string const& systemName, std::string const& code)
    {
        auto const reference = std::make_shared<FcClassificationReference>();
        reference->Identification = code;
        reference->ReferencedSource = FcClassificationReferenceSelect(system(systemName));
        classify(object, FcClassificationSelect(reference));
    }
    /// Each key with its rows below it.
    static std::string textOfMap(FcObjectEditor const& objectEditor)
    {
        std::string text;
        for (auto const& [key, rows] : objectEditor.getDynamicProperties())
            text += key + ":\n" + textOf(rows, 1);
        return text;
    }
};

TEST_F(ObjectEditorClassifications, AreRowsByNameUnderThreeKeys)
{
    classify(wall, "Groups", "21");
    classify(wall, "Rooms", "B.1");
    EXPECT_EQ(textOfMap(editor), "Classifications:\n"
                                 "  Instance.Classifications [group] [partial]\n"
                                 "    Instance.Classifications.Groups\n"
                                 "    Instance.Classifications.Rooms\n"
                                 "Classifications.Identification:\n"
                                 "  Instance.Classifications [group] [partial]\n"
                                 "    Instance.Classifications.Groups.Identification\n"
                                 "    Instance.Classifications.Rooms.Identification\n"
                                 "Classifications.Name:\n"
                                 "  Instance.Classifications [group] [partial]\n"
                                 "    Instance.Classifications.Groups.Name\n"
                                 "    Instance.Classifications.Rooms.Name\n");
}

TEST_F(ObjectEditorClassifications, StandInTheTreeByTheirOwnRowAlone)
{
    classify(wall, "Groups", "21");
    EXPECT_TRUE(wrapper->getAllProperties().contains(PropertyId("Classifications.Groups.Name")));
    EXPECT_THAT(rows(), HasSubstr("  Classifications [group] [partial]\n"
                                  "    Classifications.Groups\n"
                                  "  PropertySets [group]"));
}

TEST_F(ObjectEditorClassifications, HaveAHeadingOnAnObjectWithoutAny)
{
    EXPECT_EQ(textOfMap(editor), "Classifications:\n"
                                 "  Instance.Classifications [group]\n"
                                 "Classifications.Identification:\n"
                                 "  Instance.Classifications [group]\n"
                                 "Classifications.Name:\n"
                                 "  Instance.Classifications [group]\n");
}

TEST_F(ObjectEditorClassifications, OfATypeAreThereOnceItHasSome)
{
    auto const type = model.wallType("T1");
    FcPropertyWrapper const typeWrapper(model.data(), type);
    FcObjectEditor const typeEditor(typeWrapper, ui::edit::PropertyGridControlObjectEditorContext::Panel);
    EXPECT_THAT(typeEditor.getDynamicProperties(), IsEmpty());
    classify(type, "Groups", "21");
    EXPECT_EQ(typeEditor.getDynamicProperties().size(), 3u);
}

TEST_F(ObjectEditorClassifications, AreOfNoOtherEntity)
{
    FcPropertyWrapper const setWrapper(model.data(), set);
    FcObjectEditor const setEditor(setWrapper, ui::edit::PropertyGridControlObjectEditorContext::Panel);
    EXPECT_THAT(setEditor.getDynamicProperties(), IsEmpty());
}

TEST_F(ObjectEditorClassifications, AWholeSystemBringsItsOwnRows)
{
    auto const groups = system("Groups");
    groups->Edition = "2";
    classify(wall, FcClassificationSelect(groups));
    EXPECT_EQ(textOfMap(editor), "Classifications:\n"
                                 "  Instance.Classifications [group] [partial]\n"
                                 "    Instance.Classifications [group] [partial]\n"
                                 "      Instance.Classifications.Source\n"
                                 "      Instance.Classifications.Edition\n"
                                 "      Instance.Classifications.EditionDate\n"
                                 "      Instance.Classifications.Name\n"
                                 "      Instance.Classifications.Description\n"
                                 "      Instance.Classifications.Specification\n"
                                 "      Instance.Classifications.ReferenceTokens\n"
                                 "Classifications.Identification:\n"
                                 "  Instance.Classifications [group]\n"
                                 "Classifications.Name:\n"
                                 "  Instance.Classifications [group]\n");
}

TEST_F(ObjectEditorClassifications, OtherAssociationsAreNone)
{
    addDocument(model, {wall}, "https://example.org/wall.pdf");
    EXPECT_EQ(textOfMap(editor),
              textOfMap(FcObjectEditor(*std::make_shared<FcPropertyWrapper>(model.data(), model.wall("W2")),
                                       ui::edit::PropertyGridControlObjectEditorContext::Panel)));
}

TEST_F(ObjectEditorClassifications, OfADeletedRelationAreGone)
{
    classify(wall, "Groups", "21");
    model.data()->entityDelete(wall->HasAssociations()[0].lock());
    EXPECT_THAT(editor.getDynamicProperties().at("Classifications").front().children, IsEmpty());
}

} // namespace
