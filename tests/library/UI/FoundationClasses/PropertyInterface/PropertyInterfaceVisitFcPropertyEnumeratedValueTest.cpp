#include "FoundationClasses/Resource/Property/FcPropertyEnumeratedValue.h"

#include "Core/Utilities/ScopeGuard.h"
#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "library/kit/EntityProperties.h"
#include "library/kit/TranslationScope.h"
#include "UI/FoundationClasses/Property/PropertySettings.h"
#include "UI/FoundationClasses/PropertyInterface/EnumerationText.h"

#include <gtest/gtest.h>

namespace {

using namespace qev;
using namespace qev::test;
using fc::resource::property::FcPropertyEnumeratedValue;
using fc::ui::PropertySettings;
using fc::ui::propertyinterface::enumerationText;
using fc::ui::propertyinterface::possibleForm;
using object::PropertyValue;

using Text = std::optional<std::string>;
using Values = std::optional<std::vector<FcValue>>;

constexpr char id[] = "EnumeratedValue";

struct EnumeratedValueRow : testing::Test
{
    TranslationScope texts;
    Model model;
    std::shared_ptr<fc::shared::sharedbldgelements::FcWall> wall = model.wall("W1");
    std::shared_ptr<fc::core::kernel::FcPropertySet> set = model.addSet(wall, "Own");
    std::shared_ptr<FcPropertyEnumeratedValue> property = enumeratedValue(
        "Status", {label("NEW"), label("OLD")}, {label("NEW"), label("OLD"), label("Not known")});

    EnumeratedValueRow() { set->HasProperties.addProperty(property); }

    EntityProperties row() const { return {model.data(), property}; }
    Values written(PropertyValue const& value)
    {
        row().set(id, value);
        return property->EnumerationValues;
    }
};

TEST_F(EnumeratedValueRow, IsALeafOfItsOwnId)
{
    auto const nodes = row().nodes();
    EXPECT_EQ(treeText(nodes), "Status = EnumeratedValue\n");
    EXPECT_EQ(nodes[0]->object, property);
}

TEST_F(EnumeratedValueRow, ShowsTheChosenValues)
{
    EXPECT_EQ(row().value(id), PropertyValue("NEW, OLD"));
    property->EnumerationValues = std::vector{label("OLD")};
    EXPECT_EQ(row().value(id), PropertyValue("OLD"));
    property->EnumerationValues = std::vector{integer(3), real(2.5)};
    EXPECT_EQ(row().value(id), PropertyValue("3, 2.5"));
    EXPECT_EQ(row().value("Name"), PropertyValue("Status"));
}

TEST_F(EnumeratedValueRow, ShowsABlankForNoValues)
{
    property->EnumerationValues = std::vector<FcValue>();
    EXPECT_EQ(row().value(id), PropertyValue(" "));
    property->EnumerationValues = std::nullopt;
    EXPECT_EQ(row().value(id), PropertyValue(" "));
}

TEST_F(EnumeratedValueRow, StoresValuesInTheirPossibleForm)
{
    EXPECT_EQ(written("OLD"), Values({label("OLD")}));
    EXPECT_EQ(written(Text("OLD, NEW")), Values({label("OLD"), label("NEW")}));
    EXPECT_EQ(written("new,not Known "), Values({label("NEW"), label("Not known")}));
}

TEST_F(EnumeratedValueRow, LeavesOutWhatIsNotPossible)
{
    EXPECT_EQ(written("OLD, Broken"), Values({label("OLD")}));
    EXPECT_EQ(written("Broken"), std::nullopt);
}

TEST_F(EnumeratedValueRow, StoresLabelsWhateverThereWas)
{
    property->EnumerationValues = std::vector{identifier("NEW")};
    EXPECT_EQ(written("OLD"), Values({label("OLD")}));
}

TEST_F(EnumeratedValueRow, HasNoListWithoutValues)
{
    EXPECT_EQ(written(" "), std::nullopt);
    property->EnumerationValues = std::vector<FcValue>();
    EXPECT_EQ(written(""), Values(std::vector<FcValue>()));
}

TEST_F(EnumeratedValueRow, GoesWithItsValue)
{
    row().set(id, Text());

    EXPECT_FALSE(row().isPresent());
    EXPECT_TRUE(wall->getPropertySetDefinitions<fc::core::kernel::FcPropertySet>().empty());
}

TEST_F(EnumeratedValueRow, ReportsAValueThatIsNoText)
{
    EXPECT_EQ(written(2.5), Values({label("NEW"), label("OLD")}));
    expectReport("Property value doesn't hold the given type.", "qev::object::PropertyValue::get",
                 "Object/PropertyValue");
}

TEST_F(EnumeratedValueRow, ReportsWritingAnythingElse)
{
    row().set("Specification", Text("agreed"));
    expectReport("Not implemented", "qev::fc::ui::propertyinterface::SetValue::visit",
                 "UI/FoundationClasses/PropertyInterface/PropertyInterfaceVisitFcProperty");
    EXPECT_EQ(property->EnumerationValues.get(), Values({label("NEW"), label("OLD")}));
}

TEST_F(EnumeratedValueRow, AllowsPossibleValuesAndNone)
{
    EXPECT_TRUE(row().allows(id, "NEW"));
    EXPECT_TRUE(row().allows(id, "NEW, Not known"));
    EXPECT_TRUE(row().allows(id, Text("old")));
    EXPECT_TRUE(row().allows(id, ""));
    EXPECT_TRUE(row().allows(id, " "));
    EXPECT_TRUE(row().allows(id, Text()));
}

TEST_F(EnumeratedValueRow, RefusesOtherValues)
{
    EXPECT_FALSE(row().allows(id, "Broken"));
    EXPECT_FALSE(row().allows(id, "NEW, Broken"));
    EXPECT_FALSE(row().allows(id, "NEW,"));
    EXPECT_FALSE(row().allows(id, "  "));
    EXPECT_FALSE(row().allows(id, 2.5));
    EXPECT_FALSE(row().allows(id, std::optional<double>()));
    EXPECT_FALSE(row().allows(id, PropertyValue()));
    EXPECT_TRUE(row().allows("Name", 2.5));
}

TEST_F(EnumeratedValueRow, OffersThePossibleValues)
{
    texts.add("Own.Status.OLD", "alt");

    EXPECT_TRUE(row().hasChoices(id));
    EXPECT_FALSE(row().hasChoices("Name"));
    EXPECT_TRUE(row().choices("Name").empty());
    auto const choices = row().choices(id);
    ASSERT_EQ(choices.size(), 3U);
    EXPECT_EQ(choices[0].text, "NEW");
    EXPECT_EQ(choices[0].value, PropertyValue(Text("NEW")));
    EXPECT_EQ(choices[1].text, "alt");
    EXPECT_EQ(choices[1].value, PropertyValue(Text("OLD")));
    EXPECT_EQ(choices[2].value, PropertyValue(Text("Not known")));
}

TEST_F(EnumeratedValueRow, OffersPossibleValuesOutsideAnySet)
{
    set->Name = std::nullopt;
    auto const choices = row().choices(id);
    ASSERT_EQ(choices.size(), 3U);
    EXPECT_EQ(choices[0].text, "NEW");
}

/// Settings of a host by which the user may edit one enumeration.
class OneEditableEnumeration : public fc::ui::PropertySettings
{
public:
    bool isUserEditableEnumeration(std::string_view setName, std::string_view propertyName) const override
    {
        return setName == "Own" && propertyName == "Status";
    }
};

TEST_F(EnumeratedValueRow, IsFreeTextWhereItsUserMayEditTheEnumeration)
{
    auto const before = PropertySettings::setInstance(std::make_shared<OneEditableEnumeration>());
    ScopeGuard const guard([&before] { PropertySettings::setInstance(before); });

    EXPECT_FALSE(row().hasChoices(id));
    property->Name = "Other";
    EXPECT_TRUE(row().hasChoices(id));
    property->Name = "Status";
    set->Name = std::nullopt;
    EXPECT_TRUE(row().hasChoices(id));
}

TEST_F(EnumeratedValueRow, IsLabelledAsAProperty)
{
    texts.add("Own.Status", "Zustand");
    texts.add("Own.Status_Description", "Neu oder alt");

    EXPECT_EQ(row().name(id), "Zustand");
    EXPECT_EQ(row().description(id), "Neu oder alt");
    EXPECT_EQ(row().name("Name"), "Zustand");
    EXPECT_EQ(row().name("Specification"), "Specification");
    EXPECT_EQ(row().description("Specification"), "");
}

TEST_F(EnumeratedValueRow, HasNoPresentation)
{
    property->EnumerationValues = std::vector{length(2.5)};
    EXPECT_FALSE(row().hasQuantity(id));
    EXPECT_EQ(row().quantity(id), std::nullopt);
}

TEST(EnumerationTextOf, AnAttributeHasOneBlankBehindEachComma)
{
    EXPECT_EQ(enumerationText("(A, B)"), "A, B");
    EXPECT_EQ(enumerationText("(A,\t\n B ,C)"), "A, B , C");
    EXPECT_EQ(enumerationText("(A, , B)"), "A, , B");
    EXPECT_EQ(enumerationText("A"), "A");
    EXPECT_EQ(enumerationText("()"), " ");
    EXPECT_EQ(enumerationText(""), " ");
    EXPECT_EQ(enumerationText(std::nullopt), " ");
}

TEST(PossibleForm, IsTheSameTextBeforeAnyOther)
{
    EXPECT_EQ(possibleForm("new", {"NEW", "new"}), "new");
    EXPECT_EQ(possibleForm(" New", {"NEW", "new"}), "NEW");
    EXPECT_EQ(possibleForm("", {"NEW"}), std::nullopt);
    EXPECT_EQ(possibleForm("NEWER", {"NEW"}), std::nullopt);
}

} // namespace
