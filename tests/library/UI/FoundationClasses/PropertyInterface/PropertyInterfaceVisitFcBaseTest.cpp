#include "Core/Unit/QuantityPresentation.h"
#include "FoundationClasses/Core/Kernel/FcRelAssignsToGroup.h"
#include "FoundationClasses/LocalValue.h"
#include "FoundationClasses/Resource/Actor/FcActorRole.h"
#include "FoundationClasses/Resource/Geometry/FcBSplineSurfaceWithKnots.h"
#include "FoundationClasses/Resource/Geometry/FcCartesianPoint.h"
#include "FoundationClasses/Resource/Geometry/FcDirection.h"
#include "FoundationClasses/Resource/Utility/FcOwnerHistory.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcDoor.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcStairFlight.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "FoundationClasses/Tree/FcFileInfo.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "library/kit/PropertyTree.h"
#include "library/kit/TranslationScope.h"
#include "UI/FoundationClasses/PropertyInterface/GetListIndexPrefix.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyAccess.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace {

using namespace qev;
using namespace qev::test;
using namespace fc::resource::geometry;
using namespace fc::ui::propertyinterface;
using fc::LocalValue;
using fc::shared::sharedbldgelements::FcDoor;
using object::PropertyId;
using object::PropertyValue;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

char const* const sourcePath = "UI/FoundationClasses/PropertyInterface/PropertyInterfaceVisitFcBase";

/// A door that exchanges what a test puts in, for values that no attribute of the standard has.
class ScriptedDoor : public FcDoor
{
public:
    LocalValue::Variant answer;
    bool isOptionalAttribute = false;
    mutable std::vector<std::pair<std::string, LocalValue>> written;

    [[nodiscard]] LocalValue getLocalValue(PropertyId const&) const override
    {
        return {{answer, std::nullopt}};
    }
    bool setLocalValue(LocalValue const& value, PropertyId const& id) override
    {
        written.emplace_back(id.text(), value);
        return false;
    }
    [[nodiscard]] bool isOptional(PropertyId const&) const override { return isOptionalAttribute; }
};

/// An entity that the schema does not know.
class ForeignEntity : public fc::FcBase
{
public:
    [[nodiscard]] LocalValue getLocalValue(PropertyId const&) const override
    {
        return {{LocalValue::Unset(), std::nullopt}};
    }
};

struct BaseVisits : testing::Test
{
    TranslationScope texts;
    Model model;
    std::shared_ptr<FcDoor> door = model.door("D1");
    std::shared_ptr<ScriptedDoor> scripted = std::make_shared<ScriptedDoor>();

    PropertyValue value(fc::FcBase const& entity, std::string const& id) const
    {
        return getValue(*model.data(), entity, PropertyId(id), std::nullopt);
    }
    PropertyValue shown(LocalValue::Variant answer) const
    {
        scripted->answer = std::move(answer);
        return value(*scripted, "Name");
    }
    LocalValue::Variant written(PropertyValue const& value) const
    {
        scripted->written.clear();
        setValue(*model.data(), *scripted, PropertyId("Name"), value);
        EXPECT_EQ(scripted->written.size(), 1u);
        EXPECT_EQ(scripted->written.front().first, "Name");
        return scripted->written.front().second.value;
    }
};

LocalValue::List listOf(std::vector<LocalValue::Variant> const& values)
{
    LocalValue::List list;
    for (auto const& value : values)
        list.push_back({value, std::nullopt});
    return list;
}

// --- Rows -------------------------------------------------------------------------------------------

TEST_F(BaseVisits, GiveEachEntityItsGroupWithItsAttributes)
{
    auto const role = std::make_shared<fc::resource::actor::FcActorRole>();

    auto const rows = getProperties(*role);

    EXPECT_EQ(treeText(rows), "ActorRole = FcBaseGroupProperty [group]\n"
                              "  Role\n"
                              "  UserDefinedRole\n"
                              "  Description\n");
    EXPECT_EQ(rows.front()->object, role);
    EXPECT_EQ(rows.front()->children.front()->object, role);
}

TEST_F(BaseVisits, GiveAnEntityWithoutAttributesOfItsOwnItsGroupAlone)
{
    auto const rows = getProperties(*std::make_shared<ForeignEntity>());

    ASSERT_EQ(rows.size(), 1u);
    EXPECT_TRUE(rows.front()->isGroup);
    EXPECT_THAT(rows.front()->children, IsEmpty());
}

TEST_F(BaseVisits, RefuseAnEntityThatNothingHolds)
{
    FcDoor const onTheStack;
    EXPECT_THROW(static_cast<void>(getProperties(onTheStack)), std::bad_weak_ptr);
    // The listing that ended so left nothing behind.
    EXPECT_THAT(getProperties(*door), Not(IsEmpty()));
}

TEST_F(BaseVisits, ShowAFileByItsNodeAndItsOwnerHistories)
{
    auto const history = std::make_shared<fc::resource::utility::FcOwnerHistory>();
    model.data()->entityAdd(history, false);
    auto node = std::make_shared<fc::Property>();
    node->id = PropertyId("File");

    auto const rows = getProperties(*std::make_shared<fc::tree::FcFileInfo>(model.data().get(), node));

    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0], node);
    EXPECT_EQ(rows[1]->id.text(), "OwnerHistory");
    EXPECT_EQ(rows[1]->object, history);
    EXPECT_THAT(getProperties(*std::make_shared<fc::tree::FcFileInfo>()), IsEmpty());
    EXPECT_THAT(getProperties(*std::make_shared<fc::tree::FcFileInfo>(nullptr, node)), ElementsAre(node));
}

// --- Reading ----------------------------------------------------------------------------------------

TEST_F(BaseVisits, ShowEachKindOfLocalValue)
{
    texts.addIn("FoundationClassesUi", "LogicalValue_True", "yes");
    texts.addIn("FoundationClassesUi", "LogicalValue_False", "no");
    texts.addIn("FoundationClassesUi", "LogicalValue_Unknown", "perhaps");
    auto const guid = Guid::generate();

    EXPECT_EQ(shown(std::monostate()), PropertyValue());
    EXPECT_EQ(shown(true), PropertyValue(true));
    EXPECT_EQ(shown(2.5), PropertyValue(2.5));
    EXPECT_EQ(shown(std::int64_t(-7)), PropertyValue(-7));
    EXPECT_EQ(shown(std::string("text")), PropertyValue("text"));
    EXPECT_EQ(shown(LocalValue::LogicalNumber{1}), PropertyValue("yes"));
    EXPECT_EQ(shown(LocalValue::LogicalNumber{0}), PropertyValue("no"));
    EXPECT_EQ(shown(LocalValue::LogicalNumber{-1}), PropertyValue("perhaps"));
    EXPECT_EQ(shown(std::vector<std::int64_t>{50, -3, 7}), PropertyValue("(50, -3, 7)"));
    EXPECT_EQ(shown(std::vector<std::int64_t>()), PropertyValue("()"));
    EXPECT_EQ(shown(guid), PropertyValue(guid.toString()));
    EXPECT_EQ(shown(std::array{1.5, -2.0}), PropertyValue("(1.500000, -2.000000)"));
    EXPECT_EQ(shown(std::array{1.0, 2.0, 1e-7}), PropertyValue("(1.000000, 2.000000, 0.000000)"));
    EXPECT_EQ(shown(LocalValue::VectorNumbers{{0.25, 0.0, 1.0}}),
              PropertyValue("(0.250000, 0.000000, 1.000000)"));
}

TEST_F(BaseVisits, ShowAListByItsElements)
{
    texts.addIn("FoundationClassesUi", "LogicalValue_True", "yes");

    EXPECT_EQ(shown(LocalValue::List()), PropertyValue("()"));
    EXPECT_EQ(shown(listOf({std::string("a"), std::int64_t(3), 2.5, true, false})),
              PropertyValue("(a, 3, 2.500000, 1, 0)"));
    EXPECT_EQ(shown(listOf({LocalValue::Unset(), std::monostate(), LocalValue::LogicalNumber{1}})),
              PropertyValue("($, $, yes)"));
    EXPECT_EQ(shown(listOf({listOf({1.0, 2.0}), listOf({})})), PropertyValue("((1.000000, 2.000000), ())"));
    EXPECT_EQ(shown(listOf({std::string(), std::string()})), PropertyValue("(, )"));
}

TEST_F(BaseVisits, ShowNothingAndReportALogicalThatIsNone)
{
    EXPECT_EQ(shown(LocalValue::LogicalNumber{2}), PropertyValue());
    expectReport("Invalid LogicalValue", "qev::fc::ui::propertyinterface::GetValue::visit", sourcePath);
}

TEST_F(BaseVisits, ShowAWholeNumberThatIsTooLargeAsANumber)
{
    EXPECT_EQ(shown(std::int64_t(std::numeric_limits<int>::max())),
              PropertyValue(std::numeric_limits<int>::max()));
    EXPECT_EQ(shown(std::int64_t(std::numeric_limits<int>::max()) + 1), PropertyValue(2147483648.0));
    EXPECT_EQ(shown(std::int64_t(std::numeric_limits<int>::min()) - 1), PropertyValue(-2147483649.0));
}

TEST_F(BaseVisits, WrapTheFourPlainKindsOfAnOptionalAttribute)
{
    scripted->isOptionalAttribute = true;

    EXPECT_EQ(shown(true), PropertyValue(std::optional(true)));
    EXPECT_EQ(shown(2.5), PropertyValue(std::optional(2.5)));
    EXPECT_EQ(shown(std::int64_t(7)), PropertyValue(std::optional(7)));
    EXPECT_EQ(shown(std::string("text")), PropertyValue(std::optional<std::string>("text")));
    EXPECT_EQ(shown(std::vector<std::int64_t>{1}), PropertyValue(std::optional<std::string>("(1)")));
    EXPECT_EQ(shown(std::monostate()), PropertyValue());
}

TEST_F(BaseVisits, ReadAttributesByTheirKind)
{
    door->OverallHeight = 2.1;
    EXPECT_EQ(value(*door, "GlobalId"), PropertyValue(door->getGuid().toString()));
    EXPECT_EQ(value(*door, "Name"), PropertyValue(std::optional<std::string>("D1")));
    EXPECT_EQ(value(*door, "OverallHeight"), PropertyValue(std::optional<double>(2.1)));
    EXPECT_EQ(value(*door, "NoSuchAttribute"), PropertyValue());
}

TEST_F(BaseVisits, GiveAnUnsetAttributeTheKindItWouldHave)
{
    EXPECT_EQ(value(*door, "OverallWidth"), PropertyValue(std::optional<double>()));
    EXPECT_EQ(value(*door, "Description"), PropertyValue(std::optional<std::string>()));
    EXPECT_EQ(value(*door, "PredefinedType"), PropertyValue(std::optional<std::string>()));
    EXPECT_EQ(value(*door, "OwnerHistory"), PropertyValue(std::optional<std::string>()));
    EXPECT_EQ(value(fc::resource::geometry::FcBSplineSurfaceWithKnots(), "SelfIntersect").kind(),
              PropertyValue::Kind::String);
    EXPECT_EQ(value(fc::core::kernel::FcRelAssignsToGroup(), "RelatedObjectsType"),
              PropertyValue(std::optional<bool>()));
    EXPECT_EQ(value(fc::shared::sharedbldgelements::FcStairFlight(), "NumberOfRisers"),
              PropertyValue(std::optional<int>()));
}

TEST_F(BaseVisits, ReportAnUnsetAttributeThatTheSchemaDoesNotHave)
{
    EXPECT_EQ(shown(LocalValue::Unset()), PropertyValue(std::optional<std::string>()));
    EXPECT_THAT(takeReports(), IsEmpty());

    EXPECT_EQ(value(*scripted, "NoSuchAttribute"), PropertyValue(std::optional<std::string>()));

    expectReport("Could not find property in schema", "getNulloptPropertyValueFor", sourcePath);
}

TEST_F(BaseVisits, ReportAnEntityThatTheSchemaDoesNotHave)
{
    EXPECT_EQ(value(ForeignEntity(), "Name"), PropertyValue(std::optional<std::string>()));
    expectReport("Could not find entity in ifc schema...", "getNulloptPropertyValueFor", sourcePath);
}

TEST_F(BaseVisits, ReportAnUnsetAttributeWithoutASchema)
{
    EXPECT_EQ(getNulloptPropertyValueFor(*door, PropertyId("OverallWidth"), nullptr),
              PropertyValue(std::optional<std::string>()));
    expectReport("Could not load schema", "getNulloptPropertyValueFor", sourcePath);
}

TEST_F(BaseVisits, ReportEachFaultFromItsOwnLine)
{
    static_cast<void>(getNulloptPropertyValueFor(*door, PropertyId("OverallWidth"), nullptr));
    value(ForeignEntity(), "Name");
    auto const reports = takeReports();
    ASSERT_EQ(reports.size(), 2u);
    EXPECT_NE(reports[0].line, reports[1].line);
}

TEST_F(BaseVisits, ShowPointsAndDirectionsAsText)
{
    auto const point = std::make_shared<FcCartesianPoint>();
    auto const direction = std::make_shared<FcDirection>();
    auto const shownEntity = [this](std::shared_ptr<fc::FcBase> entity) { return shown(std::move(entity)); };

    point->Coordinates = std::vector<double>{1, 2};
    EXPECT_EQ(shownEntity(point), PropertyValue("(1.000000, 2.000000)"));
    point->Coordinates = std::vector<double>{1, 2, 3};
    EXPECT_EQ(shownEntity(point), PropertyValue("(1.000000, 2.000000, 3.000000)"));
    direction->DirectionRatios = std::vector<double>{3, 4};
    EXPECT_EQ(shownEntity(direction), PropertyValue("(3.000000, 4.000000)"));
    direction->DirectionRatios = std::vector<double>{0, 3, 4};
    EXPECT_EQ(shownEntity(direction), PropertyValue("(0.000000, 0.600000, 0.800000)"));
    direction->DirectionRatios = std::vector<double>{0, 0, 0};
    EXPECT_EQ(shownEntity(direction), PropertyValue("(0.000000, 0.000000, 0.000000)"));
    direction->DirectionRatios = std::vector<double>{0, 0, 1e-12};
    EXPECT_EQ(shownEntity(direction), PropertyValue("(0.000000, 0.000000, 0.000000)"));
    EXPECT_EQ(shownEntity(nullptr), PropertyValue(""));
    EXPECT_EQ(shown(listOf({std::shared_ptr<fc::FcBase>(direction), std::int64_t(1)})),
              PropertyValue("((0.000000, 0.000000, 0.000000), 1)"));
}

TEST_F(BaseVisits, ReportOtherEntitiesAsValues)
{
    EXPECT_EQ(shown(std::shared_ptr<fc::FcBase>(model.wall("W1"))), PropertyValue(""));
    expectReport("Not implemented toString for IfcWall",
                 "qev::fc::ui::propertyinterface::GetValue::visit::<lambda_2>::operator ()", sourcePath);
}

// --- Writing ----------------------------------------------------------------------------------------

TEST_F(BaseVisits, WriteEachKindOfValueAsItsLocalValue)
{
    EXPECT_EQ(std::get<std::string>(written("text")), "text");
    EXPECT_EQ(std::get<std::string>(written(std::optional<std::string>("text"))), "text");
    EXPECT_EQ(std::get<double>(written(2.5)), 2.5);
    EXPECT_EQ(std::get<double>(written(std::optional(2.5))), 2.5);
    EXPECT_EQ(std::get<bool>(written(true)), true);
    EXPECT_EQ(std::get<bool>(written(std::optional(false))), false);
    EXPECT_EQ(std::get<std::int64_t>(written(7)), 7);
    EXPECT_EQ(std::get<std::int64_t>(written(std::optional(7))), 7);
    for (PropertyValue const& unset :
         {PropertyValue(std::optional<std::string>()), PropertyValue(std::optional<double>()),
          PropertyValue(std::optional<bool>()), PropertyValue(std::optional<int>())})
        EXPECT_TRUE(std::holds_alternative<LocalValue::Unset>(written(unset)));
}

TEST_F(BaseVisits, ReportWhatCannotBeWritten)
{
    for (PropertyValue const& refused :
         {PropertyValue(), PropertyValue(std::uint32_t(1)), PropertyValue(std::optional<std::uint32_t>(1)),
          PropertyValue(std::optional<std::uint32_t>())}) {
        EXPECT_TRUE(std::holds_alternative<std::monostate>(written(refused)));
        expectReport("Could not set the value", "anyToLocalValue", sourcePath);
    }
}

TEST_F(BaseVisits, WriteAttributesAndDropWhatTheyDoNotTake)
{
    setValue(*model.data(), *door, PropertyId("Name"), std::optional<std::string>("D2"));
    EXPECT_EQ(door->Name.get(), "D2");
    setValue(*model.data(), *door, PropertyId("Name"), std::optional<std::string>());
    EXPECT_EQ(door->Name.get(), std::nullopt);
    setValue(*model.data(), *door, PropertyId("OverallHeight"), 2.5);
    EXPECT_EQ(door->OverallHeight.get(), 2.5);
    setValue(*model.data(), *door, PropertyId("OverallHeight"), "high");
    EXPECT_EQ(door->OverallHeight.get(), 2.5);
    setValue(*model.data(), *door, PropertyId("NoSuchAttribute"), "text");
}

TEST_F(BaseVisits, AllowEveryValue)
{
    EXPECT_TRUE(isValueAllowed(*model.data(), *door, PropertyId("OverallHeight"), "high"));
    EXPECT_TRUE(isValueAllowed(*model.data(), *door, PropertyId("NoSuchAttribute"), PropertyValue()));
}

// --- Texts and the rest -----------------------------------------------------------------------------

TEST_F(BaseVisits, LabelTheGroupByTheEntity)
{
    auto const name = [this](std::string const& id) {
        return getPropertyName(*model.data(), *door, PropertyId(id), std::nullopt);
    };
    auto const description = [this](std::string const& id) {
        return getPropertyDescription(*door, PropertyId(id));
    };
    EXPECT_EQ(name("FcBaseGroupProperty"), "IfcDoor");
    EXPECT_EQ(description("FcBaseGroupProperty"), "IfcDoor");
    EXPECT_EQ(name("Name"), "Name");
    EXPECT_EQ(description("Name"), "");

    texts.add("IfcDoor", "Door");
    texts.add("IfcDoor_Description", "A way in");
    texts.add("IfcDoor.Name", "Called");
    texts.add("IfcDoor.Name_Description", "What it is called");

    EXPECT_EQ(name("FcBaseGroupProperty"), "Door");
    EXPECT_EQ(description("FcBaseGroupProperty"), "A way in");
    EXPECT_EQ(name("Name"), "Called");
    EXPECT_EQ(description("Name"), "What it is called");
}

TEST_F(BaseVisits, TakeTheFirstContextThatHasAText)
{
    texts.addIn("IfcProperties", "IfcDoor", "second");
    EXPECT_EQ(getPropertyName(*model.data(), *door, PropertyId("FcBaseGroupProperty"), std::nullopt),
              "second");
    texts.addIn("Ifc", "IfcDoor", "first");
    EXPECT_EQ(getPropertyName(*model.data(), *door, PropertyId("FcBaseGroupProperty"), std::nullopt),
              "first");
}

TEST_F(BaseVisits, ListTheItemsOfAnEnumeration)
{
    EXPECT_TRUE(hasEnumeratedValues(*door, PropertyId("PredefinedType")));
    EXPECT_FALSE(hasEnumeratedValues(*door, PropertyId("Name")));
    EXPECT_THAT(getEnumeratedValues(*door, PropertyId("Name")), IsEmpty());

    auto const values = getEnumeratedValues(*door, PropertyId("PredefinedType"));

    qev::ui::edit::ObjectPropertyEditControllerBase::EnumeratedValue const gate{"GATE", std::nullopt};
    EXPECT_THAT(values, Contains(gate));
    EXPECT_EQ(values.size(), door->getEnumeratedValuesLocal(PropertyId("PredefinedType")).size());
}

TEST_F(BaseVisits, PresentMeasures)
{
    EXPECT_TRUE(hasQuantityPresentation(*door, PropertyId("OverallHeight")));
    EXPECT_FALSE(hasQuantityPresentation(*door, PropertyId("Name")));
    auto const presentation =
        createQuantityPresentation(*model.data(), *door, PropertyId("OverallHeight"), std::nullopt);
    ASSERT_TRUE(presentation);
    EXPECT_EQ(presentation->value(), 0.0);
    EXPECT_EQ(createQuantityPresentation(*model.data(), *door, PropertyId("Name"), std::nullopt), nullptr);
}

TEST_F(BaseVisits, LeadNowhereAndHaveNoPrefix)
{
    EXPECT_EQ(getReference(*door, PropertyId("OwnerHistory")), EntityReference());
    GetListIndexPrefix visitor{PropertyId("Name")};
    static_cast<fc::FcBase const&>(*door).accept(visitor);
    EXPECT_EQ(visitor.prefix, "");
}

} // namespace
