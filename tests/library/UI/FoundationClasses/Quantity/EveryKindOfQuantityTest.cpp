#include "FoundationClasses/AllEntities.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "library/kit/SetBuilder.h"
#include "library/kit/ShownSet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using namespace qev::fc;
using namespace qev::fc::ui;
using namespace qev::test;
using core::productextension::FcElementQuantity;
using testing::IsEmpty;
using testing::SizeIs;

struct Kind
{
    char const* name;
    QuantityKind kind;
    /// The texts of 2 and 3.
    char const* two;
    char const* three;
};

class EveryKindOfQuantity : public testing::TestWithParam<Kind>
{
protected:
    using Object = Model::Object;

    ShownSet show(Entities objects) { return {everyQuantity("Qto"), std::move(objects)}; }
    std::string shownFor(Entities objects) { return show(std::move(objects))[GetParam().name].getValue(); }
    bool edit(Entities objects, std::string text)
    {
        auto const shown = show(std::move(objects));
        return shown[GetParam().name].updateValue(*model.data(),
                                                  PropertyOrQuantityValue::fromText(std::move(text)));
    }
    Object wallWith(double value)
    {
        auto wall = model.wall("W");
        model.addQuantities(wall, "Qto", {{GetParam().name, value, GetParam().kind}});
        return wall;
    }
    /// A quantity of the name and of another class.
    static NamedQuantity foreign()
    {
        bool const isLength = GetParam().kind == QuantityKind::Length;
        return {GetParam().name, 2.0, isLength ? QuantityKind::Area : QuantityKind::Length};
    }
    std::shared_ptr<FcElementQuantity> setOf(Object const& object)
    {
        return object->getPropertySetDefinitionNonConst<FcElementQuantity>("Qto");
    }

    Model model;
};

// --- Reading ------------------------------------------------------------------------------------

TEST_P(EveryKindOfQuantity, ShowsTheValueOnWhichAllObjectsAgree)
{
    EXPECT_EQ(shownFor({}), "");
    EXPECT_EQ(shownFor({wallWith(2)}), GetParam().two);
    EXPECT_EQ(shownFor({wallWith(3), wallWith(3), wallWith(3)}), GetParam().three);
}

TEST_P(EveryKindOfQuantity, ShowsNothingWhenOneObjectDiffersOrLacksIt)
{
    auto const empty = model.wall("W");
    model.addQuantities(empty, "Qto");

    EXPECT_EQ(shownFor({wallWith(2), wallWith(3)}), "");
    EXPECT_EQ(shownFor({wallWith(2), wallWith(2), wallWith(3)}), "");
    EXPECT_EQ(shownFor({wallWith(2), model.wall("W")}), "");
    EXPECT_EQ(shownFor({model.wall("W"), wallWith(2)}), "");
    EXPECT_EQ(shownFor({wallWith(2), empty}), "");
}

TEST_P(EveryKindOfQuantity, TheFirstOfItsNameAndClassCounts)
{
    auto const object = model.wall("W");
    model.addQuantities(object, "Qto", {foreign()});
    EXPECT_EQ(shownFor({object}), "");

    model.addQuantities(object, "Qto",
                        {{GetParam().name, 3.0, GetParam().kind}, {GetParam().name, 2.0, GetParam().kind}});
    EXPECT_EQ(shownFor({object}), GetParam().three);
}

TEST_P(EveryKindOfQuantity, APropertySetOfTheNameIsNotTheSet)
{
    auto const object = model.wall("W");
    model.addSet(object, "Qto", {{GetParam().name, real(2)}});

    EXPECT_EQ(shownFor({object}), "");
}

TEST_P(EveryKindOfQuantity, NullIsReportedAndPassedOverAndOtherEntitiesDoNotCount)
{
    auto const object = wallWith(2);
    std::string const className = "FcQuantity" + std::string(GetParam().name);

    EXPECT_EQ(shownFor({std::shared_ptr<FcBase>(setOf(object)), object, nullptr}), GetParam().two);

    expectReport("Object is nullptr.", "qev::fc::ui::" + className + "::getValue",
                 "UI/FoundationClasses/Quantity/" + className);
    EXPECT_EQ(shownFor({std::shared_ptr<FcBase>(setOf(object))}), "");
}

// --- Writing ------------------------------------------------------------------------------------

TEST_P(EveryKindOfQuantity, OneValueGoesIntoAllObjects)
{
    auto const first = wallWith(2);
    auto const second = model.wall("W");
    auto const type = model.wallType("T");

    EXPECT_TRUE(edit({first, nullptr, std::shared_ptr<FcBase>(setOf(first)), second, type}, "3"));

    EXPECT_EQ(shownFor({first, second, type}), GetParam().three);
    EXPECT_THAT(setOf(first)->Quantities->get(), SizeIs(1));
}

TEST_P(EveryKindOfQuantity, AQuantityOfAnotherClassStaysBesideTheNewOne)
{
    auto const object = model.wall("W");
    model.addQuantities(object, "Qto", {foreign()});

    EXPECT_TRUE(edit({object}, "3"));

    EXPECT_EQ(shownFor({object}), GetParam().three);
    EXPECT_THAT(setOf(object)->Quantities->get(), SizeIs(2));
}

TEST_P(EveryKindOfQuantity, TheFirstRefusalEndsTheWorkAndLeavesAZero)
{
    auto const first = model.wall("W");
    auto const second = model.wall("W");

    EXPECT_FALSE(edit({first, second}, "many"));

    ASSERT_NE(setOf(first), nullptr);
    EXPECT_THAT(setOf(first)->Quantities->get(), SizeIs(1));
    EXPECT_EQ(shownFor({first}), shownFor({wallWith(0)}));
    EXPECT_EQ(setOf(second), nullptr);
}

TEST_P(EveryKindOfQuantity, ARefusedTextLeavesAPresentValue)
{
    auto const object = wallWith(2);

    EXPECT_FALSE(edit({object}, "many"));

    EXPECT_EQ(shownFor({object}), GetParam().two);
}

TEST_P(EveryKindOfQuantity, ANumberOutOfRangeReachesTheCallerAndLeavesAZero)
{
    auto const object = model.wall("W");

    EXPECT_THROW(edit({object}, "1e999"), std::out_of_range);

    EXPECT_EQ(shownFor({object}), shownFor({wallWith(0)}));
}

// --- Clearing -----------------------------------------------------------------------------------

TEST_P(EveryKindOfQuantity, TheEmptyTextRemovesItFromAllObjectsAndEmptiedSetsWithIt)
{
    auto const first = wallWith(2);
    auto const second = wallWith(3);
    model.addQuantities(second, "Qto", {{"Else", 1.0}});
    auto const third = model.wall("W");

    EXPECT_TRUE(edit({first, nullptr, second, third}, ""));

    EXPECT_THAT(first->attachedSets(), IsEmpty());
    ASSERT_NE(setOf(second), nullptr);
    EXPECT_THAT(setOf(second)->Quantities->get(), SizeIs(1));
    EXPECT_THAT(third->attachedSets(), IsEmpty());
}

TEST_P(EveryKindOfQuantity, TheFirstOfTheNameIsRemovedWhateverItsClass)
{
    auto const object = model.wall("W");
    model.addQuantities(object, "Qto", {foreign(), {GetParam().name, 3.0, GetParam().kind}});

    EXPECT_TRUE(edit({object}, ""));

    EXPECT_THAT(setOf(object)->Quantities->get(), SizeIs(1));
    EXPECT_EQ(shownFor({object}), GetParam().three);
}

TEST_P(EveryKindOfQuantity, ASetThatIsEmptyAlreadyGoesToo)
{
    auto const object = model.wall("W");
    model.addQuantities(object, "Qto");

    EXPECT_TRUE(edit({object}, ""));

    EXPECT_THAT(object->attachedSets(), IsEmpty());
}

TEST_P(EveryKindOfQuantity, ASharedSetGoesFromAllObjectsWithItsLastQuantity)
{
    auto const object = wallWith(2);
    auto const set = setOf(object);
    auto const joined = model.wall("W");
    model.joinSet(set, joined);

    EXPECT_TRUE(edit({object}, ""));

    EXPECT_THAT(joined->attachedSets(), IsEmpty());
    EXPECT_TRUE(model.data()->isDeleted(set->getIndex()));
}

INSTANTIATE_TEST_SUITE_P(Kinds, EveryKindOfQuantity,
                         testing::Values(Kind{"Area", QuantityKind::Area, "2.000000", "3.000000"},
                                         Kind{"Count", QuantityKind::Count, "2", "3"},
                                         Kind{"Length", QuantityKind::Length, "2.000000", "3.000000"},
                                         Kind{"Time", QuantityKind::Time, "2.000000", "3.000000"},
                                         Kind{"Volume", QuantityKind::Volume, "2.000000", "3.000000"},
                                         Kind{"Weight", QuantityKind::Weight, "2.000000", "3.000000"}),
                         [](auto const& kind) { return std::string(kind.param.name); });

} // namespace
