#include "FoundationClasses/AllEntities.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "library/kit/SetBuilder.h"
#include "library/kit/ShownSet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev::fc;
using namespace qev::fc::ui;
using namespace qev::test;
using core::kernel::FcPropertySet;
using resource::property::FcProperty;
using testing::IsEmpty;
using testing::SizeIs;

using Property = std::shared_ptr<FcProperty>;

/// A kind of displayed property, with two values that differ.
struct Kind
{
    char const* name;
    /// The class of the display, and the operation that reports null.
    char const* className;
    char const* operation;
    Property (*first)();
    char const* firstText;
    Property (*second)();
    char const* secondText;
    /// A property of the same name and of a class that this kind does not show.
    Property (*foreign)();
};

Property foreignToSingle(char const* name) { return listValue(name, {label("A")}); }
Property foreignToOthers(char const* name) { return singleValue(name, label("A")); }

Kind const kinds[] = {
    {"Code", "FcPropertySingleValue", "getFcValue", [] { return Property(singleValue("Code", label("A"))); },
     "A", [] { return Property(singleValue("Code", label("B"))); }, "B",
     [] { return foreignToSingle("Code"); }},
    {"Real", "FcPropertySingleValue", "getFcValue", [] { return Property(singleValue("Real", real(2.5))); },
     "2.500000", [] { return Property(singleValue("Real", real(-3))); }, "-3.000000",
     [] { return foreignToSingle("Real"); }},
    {"Flag", "FcPropertySingleValue", "getFcValue",
     [] { return Property(singleValue("Flag", boolean(true))); }, "1",
     [] { return Property(singleValue("Flag", boolean(false))); }, "0",
     [] { return foreignToSingle("Flag"); }},
    {"Known", "FcPropertySingleValue", "getFcValue",
     [] { return Property(singleValue("Known", logical(Logical::Unknown))); }, "unknown",
     [] { return Property(singleValue("Known", logical(Logical::True))); }, "true",
     [] { return foreignToSingle("Known"); }},
    {"Status", "FcPropertyEnumeratedValue", "getValue",
     [] { return Property(enumeratedValue("Status", {label("NEW")}, {})); }, "NEW",
     [] { return Property(enumeratedValue("Status", {label("OLD")}, {})); }, "OLD",
     [] { return foreignToOthers("Status"); }},
    {"Range", "FcPropertyBoundedValue", "getValue",
     [] { return Property(boundedValue("Range", real(1), real(2), {})); }, "(1.000000, 2.000000)",
     [] { return Property(boundedValue("Range", {}, {}, real(1))); }, "1.000000",
     [] { return foreignToOthers("Range"); }},
    {"Codes", "FcPropertyListValue", "getValue",
     [] {
         return Property(listValue("Codes", {label("A"), label("B")}));
     },
     "A; B", [] { return Property(listValue("Codes", {label("A")})); }, "A",
     [] { return foreignToOthers("Codes"); }},
};

class EveryKindOfProperty : public testing::TestWithParam<Kind>
{
protected:
    using Object = Model::Object;

    ShownSet show(Entities objects)
    {
        return {SetBuilder("Pset")
                    .single("Code", "IfcLabel")
                    .single("Real", "IfcReal")
                    .single("Flag", "IfcBoolean")
                    .single("Known", "IfcLogical")
                    .enumerated("Status", {"NEW", "OLD"})
                    .bounded("Range", "IfcReal")
                    .list("Codes", "IfcLabel")
                    .take(),
                std::move(objects)};
    }
    std::string shownFor(Entities objects) { return show(std::move(objects))[GetParam().name].getValue(); }
    bool edit(Entities objects, std::string text)
    {
        auto const shown = show(std::move(objects));
        return shown[GetParam().name].updateValue(*model.data(),
                                                  PropertyOrQuantityValue::fromText(std::move(text)));
    }
    Object wallWith(Property const& property)
    {
        auto wall = model.wall("W");
        model.addSet(wall, "Pset")->HasProperties.addProperty(property);
        return wall;
    }
    Object wallWithFirst() { return wallWith(GetParam().first()); }
    void expectNullReport()
    {
        std::string const className = GetParam().className;
        expectReport("Object is nullptr.", "qev::fc::ui::" + className + "::" + GetParam().operation,
                     "UI/FoundationClasses/Property/Types/" + className);
    }

    Model model;
};

// --- Reading ------------------------------------------------------------------------------------

TEST_P(EveryKindOfProperty, ShowsNothingWithoutObjects) { EXPECT_EQ(shownFor({}), ""); }

TEST_P(EveryKindOfProperty, ShowsTheValueOfOneObject)
{
    EXPECT_EQ(shownFor({wallWithFirst()}), GetParam().firstText);
    EXPECT_EQ(shownFor({wallWith(GetParam().second())}), GetParam().secondText);
}

TEST_P(EveryKindOfProperty, ShowsTheValueOnWhichSeveralObjectsAgree)
{
    EXPECT_EQ(shownFor({wallWithFirst(), wallWithFirst(), wallWithFirst()}), GetParam().firstText);
}

TEST_P(EveryKindOfProperty, ShowsNothingWhenOneObjectDiffers)
{
    auto const other = wallWith(GetParam().second());

    EXPECT_EQ(shownFor({wallWithFirst(), other}), "");
    EXPECT_EQ(shownFor({other, wallWithFirst()}), "");
    EXPECT_EQ(shownFor({wallWithFirst(), wallWithFirst(), other}), "");
    EXPECT_EQ(shownFor({wallWithFirst(), other, wallWithFirst()}), "");
}

TEST_P(EveryKindOfProperty, ShowsNothingWhenOneObjectLacksTheSet)
{
    EXPECT_EQ(shownFor({wallWithFirst(), model.wall("W")}), "");
    EXPECT_EQ(shownFor({model.wall("W"), wallWithFirst()}), "");
}

TEST_P(EveryKindOfProperty, ShowsNothingWhenOneObjectLacksTheProperty)
{
    auto const other = wallWith(singleValue("Else", label("A")));

    EXPECT_EQ(shownFor({wallWithFirst(), other}), "");
    EXPECT_EQ(shownFor({other, wallWithFirst()}), "");
}

TEST_P(EveryKindOfProperty, APropertyOfAnotherClassCountsAsAbsent)
{
    auto const other = wallWith(GetParam().foreign());

    EXPECT_EQ(shownFor({other}), "");
    EXPECT_EQ(shownFor({wallWithFirst(), other}), "");
}

TEST_P(EveryKindOfProperty, OnlyTheFirstPropertyOfTheNameIsLookedAt)
{
    auto const object = wallWith(GetParam().foreign());
    model.addSet(object, "Pset")->HasProperties.addProperty(GetParam().first());

    EXPECT_EQ(shownFor({object}), "");
}

TEST_P(EveryKindOfProperty, NamesAreComparedToTheLetter)
{
    auto const wall = model.wall("W");
    model.addSet(wall, "pset")->HasProperties.addProperty(GetParam().first());

    EXPECT_EQ(shownFor({wall}), "");
}

TEST_P(EveryKindOfProperty, AQuantitySetOfTheNameIsNotTheSet)
{
    auto const wall = model.wall("W");
    model.addQuantities(wall, "Pset", {{GetParam().name, 1.0}});
    EXPECT_EQ(shownFor({wall}), "");

    auto const properties = model.addSet(model.wall("W"), "Pset");
    properties->HasProperties.addProperty(GetParam().first());
    model.shareSet(properties, wall);
    EXPECT_EQ(shownFor({wall}), GetParam().firstText);
}

TEST_P(EveryKindOfProperty, NullIsReportedAndPassedOver)
{
    EXPECT_EQ(shownFor({nullptr, wallWithFirst()}), GetParam().firstText);
    expectNullReport();
    EXPECT_EQ(shownFor({wallWithFirst(), nullptr}), GetParam().firstText);
    expectNullReport();
    EXPECT_EQ(shownFor({nullptr}), "");
    expectNullReport();
}

TEST_P(EveryKindOfProperty, OtherEntitiesDoNotCount)
{
    auto const object = wallWithFirst();
    std::shared_ptr<FcBase> const set = model.addSet(object, "Pset");
    std::shared_ptr<FcBase> const property = GetParam().first();

    EXPECT_EQ(shownFor({property, object, set}), GetParam().firstText);
    EXPECT_EQ(shownFor({property, set}), "");
}

TEST_P(EveryKindOfProperty, TypesShowTheSetsOfTheirList)
{
    auto const type = model.wallType("T");
    model.addSet(type, "Pset")->HasProperties.addProperty(GetParam().first());

    EXPECT_EQ(shownFor({type, wallWithFirst()}), GetParam().firstText);
}

TEST_P(EveryKindOfProperty, NothingIsKeptBetweenTwoReadings)
{
    auto const object = wallWithFirst();
    auto const shown = show({object});
    ASSERT_EQ(shown[GetParam().name].getValue(), GetParam().firstText);
    auto const set = model.addSet(object, "Pset");

    set->HasProperties.removeProperty(GetParam().name);
    EXPECT_EQ(shown[GetParam().name].getValue(), "");
    set->HasProperties.addProperty(GetParam().second());
    EXPECT_EQ(shown[GetParam().name].getValue(), GetParam().secondText);
}

// --- Clearing -----------------------------------------------------------------------------------

TEST_P(EveryKindOfProperty, TheEmptyTextRemovesItFromAllObjectsAndEmptiedSetsWithIt)
{
    auto const first = wallWithFirst();
    auto const second = wallWith(GetParam().second());
    model.addSet(second, "Pset", {{"Else", label("A")}});
    auto const third = model.wall("W");

    EXPECT_TRUE(edit({first, nullptr, second, third}, ""));

    EXPECT_THAT(first->attachedSets(), IsEmpty());
    auto const kept = second->getPropertySetDefinitionNonConst<FcPropertySet>("Pset");
    ASSERT_NE(kept, nullptr);
    EXPECT_FALSE(kept->hasProperty(GetParam().name));
    EXPECT_TRUE(kept->hasProperty("Else"));
    EXPECT_THAT(third->attachedSets(), IsEmpty());
}

TEST_P(EveryKindOfProperty, TheEmptyTextRemovesAPropertyOfAnotherClassToo)
{
    auto const object = wallWith(GetParam().foreign());

    EXPECT_TRUE(edit({object}, ""));

    EXPECT_THAT(object->attachedSets(), IsEmpty());
}

TEST_P(EveryKindOfProperty, OfTwoPropertiesOfTheNameTheFirstIsRemoved)
{
    auto const object = wallWithFirst();
    auto const set = model.addSet(object, "Pset");
    auto const second = GetParam().second();
    set->HasProperties.addProperty(second);

    EXPECT_TRUE(edit({object}, ""));

    EXPECT_THAT(set->HasProperties.getProperties(), testing::ElementsAre(second));
}

TEST_P(EveryKindOfProperty, ASharedSetGoesFromAllObjectsWithItsLastProperty)
{
    auto const object = wallWithFirst();
    auto const set = model.addSet(object, "Pset");
    auto const joined = model.wall("W");
    model.joinSet(set, joined);
    auto const sharing = model.wall("W");
    model.shareSet(set, sharing);

    EXPECT_TRUE(edit({object, joined}, ""));

    for (auto const& wall : {Object(object), Object(joined), Object(sharing)})
        EXPECT_THAT(wall->attachedSets(), IsEmpty());
    EXPECT_TRUE(model.data()->isDeleted(set->getIndex()));
}

TEST_P(EveryKindOfProperty, ClearingIsTakenBackByUndo)
{
    auto const object = wallWithFirst();
    {
        ChangeLog::Step const step(model.data()->changes(), "Clear");
        EXPECT_TRUE(edit({object}, ""));
    }

    model.data()->changes().undo();

    EXPECT_EQ(shownFor({object}), GetParam().firstText);
}

TEST_P(EveryKindOfProperty, WithoutObjectsNothingIsWritten)
{
    EXPECT_FALSE(edit({}, ""));
    EXPECT_FALSE(edit({}, "1"));
}

INSTANTIATE_TEST_SUITE_P(Kinds, EveryKindOfProperty, testing::ValuesIn(kinds),
                         [](auto const& kind) { return std::string(kind.param.name); });

// --- Writing ------------------------------------------------------------------------------------

/// Kinds that take values.
class EveryKindThatIsWritten : public EveryKindOfProperty
{
protected:
    /// The text that gives a property its second value. It reads as it is shown.
    static std::string typed() { return GetParam().secondText; }
};

TEST_P(EveryKindThatIsWritten, OneValueGoesIntoAllObjects)
{
    auto const first = wallWithFirst();
    auto const second = model.wall("W");
    auto const type = model.wallType("T");

    EXPECT_TRUE(edit({first, nullptr, second, type}, typed()));

    EXPECT_EQ(shownFor({first, second, type}), GetParam().secondText);
    EXPECT_THAT(first->attachedSets(), SizeIs(1));
    EXPECT_THAT(second->attachedSets(), SizeIs(1));
    EXPECT_THAT(type->attachedSets(), SizeIs(1));
}

TEST_P(EveryKindThatIsWritten, APropertyOfAnotherClassStaysBesideTheNewOne)
{
    auto const object = wallWith(GetParam().foreign());

    EXPECT_TRUE(edit({object}, typed()));

    EXPECT_THAT(model.addSet(object, "Pset")->HasProperties.getProperties(), SizeIs(2));
}

TEST_P(EveryKindThatIsWritten, AnEditIsTakenBackByUndo)
{
    auto const object = model.wall("W");
    {
        ChangeLog::Step const step(model.data()->changes(), "Edit");
        EXPECT_TRUE(edit({object}, typed()));
    }
    ASSERT_EQ(shownFor({object}), GetParam().secondText);

    model.data()->changes().undo();

    EXPECT_THAT(object->attachedSets(), IsEmpty());
}

/// A host that takes back every property that is added to a set.
class TakingBack
{
public:
    explicit TakingBack(Model& model)
        : m_data(model.data())
    {
        m_data->changed.iHandlerAdd([this](std::vector<EntityIndex> const&) { takeBack(); });
    }

private:
    void takeBack()
    {
        if (m_isBusy)
            return;
        m_isBusy = true;
        for (auto const& set : m_data->entities<FcPropertySet>()) {
            if (!set->HasProperties.getProperties().empty())
                set->HasProperties = ReferenceList<FcProperty>();
        }
        m_isBusy = false;
    }

    std::shared_ptr<Data> m_data;
    bool m_isBusy = false;
};

TEST_P(EveryKindThatIsWritten, APropertyThatTheSetDoesNotTakeIsReportedAndLeavesNoSet)
{
    auto const object = model.wall("W");
    TakingBack const host(model);

    EXPECT_FALSE(edit({object}, typed()));

    expectReport("Unable to create property.", "qev::fc::ui::FcPropertyBase::getProperty",
                 "UI/FoundationClasses/Property/FcPropertyBase");
    EXPECT_THAT(object->attachedSets(), IsEmpty());
}

std::vector<Kind> writtenKinds() { return {kinds[0], kinds[1], kinds[2], kinds[3], kinds[4]}; }

INSTANTIATE_TEST_SUITE_P(Kinds, EveryKindThatIsWritten, testing::ValuesIn(writtenKinds()),
                         [](auto const& kind) { return std::string(kind.param.name); });

} // namespace
