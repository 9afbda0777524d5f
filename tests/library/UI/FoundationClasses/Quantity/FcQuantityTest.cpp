#include "Format/Ifc/Schema/Qto/QuantityTypeSimple.h"
#include "FoundationClasses/AllEntities.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "library/kit/LogFormatter.h"
#include "library/kit/SetBuilder.h"
#include "library/kit/ShownSet.h"
#include "UI/FoundationClasses/Quantity/FcQuantityFactory.h"
#include "UI/FoundationClasses/Set/QuantitySet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using namespace qev::fc;
using namespace qev::fc::ui;
using namespace qev::test;
using core::productextension::FcElementQuantity;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

PropertyOrQuantityValue text(std::string value)
{
    return PropertyOrQuantityValue::fromText(std::move(value));
}

class Quantities : public testing::Test
{
protected:
    ShownSet show(Entities objects) { return {everyQuantity("Qto"), std::move(objects)}; }

    Model model;
    std::shared_ptr<core::kernel::FcObjectDefinition> wall = model.wall("W1");
    std::shared_ptr<core::kernel::FcObjectDefinition> other = model.wall("W2");
};

TEST_F(Quantities, EachKindIsStoredInItsOwnClassAndShownInSiUnits)
{
    auto const shown = show({wall});
    std::vector<std::string> values;

    for (auto const& name : shown.names()) {
        EXPECT_TRUE(shown[name].updateValue(*model.data(), text("2.5")));
        values.push_back(name + " " + shown[name].getValue());
    }

    EXPECT_THAT(values, ElementsAre("Area 2.500000", "Count 2", "Length 2.500000", "Time 2.500000",
                                    "Volume 2.500000", "Weight 2.500000"));
    auto const set = wall->getPropertySetDefinitionNonConst<FcElementQuantity>("Qto");
    ASSERT_NE(set, nullptr);
    std::vector<std::string> classes;
    for (auto const& quantity : set->Quantities.get().get())
        classes.emplace_back(quantity->getEntityName());
    EXPECT_THAT(classes, ElementsAre("IfcQuantityArea", "IfcQuantityCount", "IfcQuantityLength",
                                     "IfcQuantityTime", "IfcQuantityVolume", "IfcQuantityWeight"));
}

TEST_F(Quantities, MayBeEditedAndAreNotLocalised)
{
    auto definition = everyQuantity("Qto");
    definition->quantityDefs[0]->description = "How large";
    ShownSet const shown(std::move(definition), {wall});

    EXPECT_TRUE(shown["Area"].isAllowedToEdit());
    EXPECT_TRUE(shown["Area"].isValidValue());
    EXPECT_EQ(shown["Area"].getLocalizedName(), "Area");
    EXPECT_EQ(shown["Area"].getDescription(), "How large");
    EXPECT_EQ(shown["Area"].getLocalizedDescription(), "How large");
    EXPECT_EQ(shown["Area"].getPropertySetName(), "Qto");
}

TEST_F(Quantities, ACountIsCutTowardsZero)
{
    auto const shown = show({wall});

    EXPECT_TRUE(shown["Count"].updateValue(*model.data(), text("3.9")));
    EXPECT_EQ(shown["Count"].getValue(), "3");
    EXPECT_TRUE(shown["Count"].updateValue(*model.data(), text("-3.9")));
    EXPECT_EQ(shown["Count"].getValue(), "-3");
}

TEST_F(Quantities, ReadingANumberEndsAtAComma)
{
    auto const shown = show({wall});

    EXPECT_TRUE(shown["Area"].updateValue(*model.data(), text("2,5")));

    EXPECT_EQ(shown["Area"].getValue(), "2.000000");
}

TEST_F(Quantities, NumbersAreReadAsTheStandardLibraryReadsThem)
{
    auto const shown = show({wall});
    auto const stored = [&](std::string const& typed) {
        EXPECT_TRUE(shown["Area"].updateValue(*model.data(), text(typed))) << typed;
        return shown["Area"].getValue();
    };

    EXPECT_EQ(stored(" \t2.5 m2"), "2.500000");
    EXPECT_EQ(stored("+1e2"), "100.000000");
    EXPECT_EQ(stored("-.5"), "-0.500000");
    EXPECT_EQ(stored("0x10"), "16.000000");
    EXPECT_EQ(stored("0xg"), "0.000000");
    EXPECT_EQ(stored("0x-1"), "0.000000");
}

TEST_F(Quantities, ARefusedFirstTextLeavesAQuantityOfZero)
{
    auto const shown = show({wall});

    EXPECT_FALSE(shown["Area"].updateValue(*model.data(), text("large")));

    EXPECT_EQ(shown["Area"].getValue(), "0.000000");
}

TEST_F(Quantities, WhatTheModelCannotHoldIsRefused)
{
    model.addQuantities(wall, "Qto",
                        {{"Area", 2.0, QuantityKind::Area}, {"Count", 2.0, QuantityKind::Count}});
    auto const shown = show({wall});

    for (auto const* const typed : {"nan", "inf", "+-1", "--1", " "})
        EXPECT_FALSE(shown["Area"].updateValue(*model.data(), text(typed))) << typed;
    EXPECT_FALSE(shown["Count"].updateValue(*model.data(), text("1e30")));
    EXPECT_THROW(shown["Area"].updateValue(*model.data(), text("1e999")), std::out_of_range);

    EXPECT_EQ(shown["Area"].getValue(), "2.000000");
    EXPECT_EQ(shown["Count"].getValue(), "2");
}

TEST_F(Quantities, ACountTakesWhatItsWholeNumberCanHold)
{
    model.addQuantities(wall, "Qto", {{"Count", 2.0, QuantityKind::Count}});
    auto const shown = show({wall});

    EXPECT_TRUE(shown["Count"].updateValue(*model.data(), text("9100000000000000000")));
    EXPECT_EQ(shown["Count"].getValue(), "9100000000000000000");
    EXPECT_TRUE(shown["Count"].updateValue(*model.data(), text("-9223372036854774784")));
    EXPECT_EQ(shown["Count"].getValue(), "-9223372036854774784");
    EXPECT_FALSE(shown["Count"].updateValue(*model.data(), text("9223372036854775808")));
}

TEST_F(Quantities, ClearingTheLastQuantityLeavesAPropertySetOfThatName)
{
    model.addSet(wall, "Qto", {{"Area", label("2")}});
    model.addQuantities(wall, "Qto", {{"Area", 2.0, QuantityKind::Area}});

    EXPECT_TRUE(show({wall})["Area"].updateValue(*model.data(), text("")));

    using core::kernel::FcPropertySet;
    ASSERT_THAT(wall->attachedSets(), SizeIs(1));
    EXPECT_NE(wall->getPropertySetDefinitionNonConst<FcPropertySet>("Qto"), nullptr);
}

TEST_F(Quantities, EqualTextsAreOneValueAndAMissingQuantityLeavesNone)
{
    model.addQuantities(wall, "Qto", {{"Area", 2.0000001, QuantityKind::Area}});
    model.addQuantities(other, "Qto", {{"Area", 2.0000002, QuantityKind::Area}});

    EXPECT_EQ(show({wall, other})["Area"].getValue(), "2.000000");
    EXPECT_EQ(show({wall, model.wall("W3")})["Area"].getValue(), "");
    EXPECT_EQ(show({})["Area"].getValue(), "");
}

TEST_F(Quantities, AQuantityOfAnotherClassDoesNotCount)
{
    model.addQuantities(wall, "Qto",
                        {{"Area", 1.0, QuantityKind::Length}, {"Area", 2.0, QuantityKind::Area}});

    EXPECT_EQ(show({wall})["Area"].getValue(), "2.000000");
}

TEST_F(Quantities, NullIsReportedAndPassedOver)
{
    model.addQuantities(wall, "Qto", {{"Area", 2.0, QuantityKind::Area}});
    auto const shown = show({nullptr, wall});

    EXPECT_EQ(shown["Area"].getValue(), "2.000000");
    expectReport("Object is nullptr.", "qev::fc::ui::FcQuantityArea::getValue",
                 "UI/FoundationClasses/Quantity/FcQuantityArea");
    for (auto const* const name : {"Count", "Length", "Time", "Volume", "Weight"}) {
        EXPECT_EQ(shown[name].getValue(), "");
        expectReport("Object is nullptr.", "qev::fc::ui::FcQuantity" + std::string(name) + "::getValue",
                     "UI/FoundationClasses/Quantity/FcQuantity" + std::string(name));
    }
}

TEST_F(Quantities, WithoutObjectsNothingIsWritten)
{
    EXPECT_FALSE(show({})["Area"].updateValue(*model.data(), text("1")));
}

TEST_F(Quantities, ClearingTheLastQuantityRemovesTheSet)
{
    model.addQuantities(wall, "Qto", {{"Area", 1.0, QuantityKind::Area}, {"Length", 2.0}});
    auto const shown = show({wall, other});

    EXPECT_TRUE(shown["Area"].updateValue(*model.data(), text("")));
    EXPECT_THAT(wall->attachedSets(), SizeIs(1));
    EXPECT_TRUE(shown["Length"].updateValue(*model.data(), text("")));
    EXPECT_THAT(wall->attachedSets(), IsEmpty());
    EXPECT_THAT(other->attachedSets(), IsEmpty());
}

TEST_F(Quantities, ANumberIsReportedAndClears)
{
    model.addQuantities(wall, "Qto", {{"Area", 1.0, QuantityKind::Area}});

    EXPECT_TRUE(show({wall})["Area"].updateValue(*model.data(), PropertyOrQuantityValue::fromNumber(2.0)));

    expectReport("Not a string value.", "qev::fc::ui::PropertyOrQuantityValue::getStringValue",
                 "Ui/FoundationClasses/PropertyOrQuantityValue");
    EXPECT_THAT(wall->attachedSets(), IsEmpty());
}

TEST_F(Quantities, TheButtonOfARowReachesTheFormatter)
{
    auto const formatter = std::make_shared<LogFormatter>();
    ShownSet::Options options;
    options.formatter = formatter;
    ShownSet const shown(everyQuantity("Qto"), {wall}, options);

    shown["Area"].onPropertyCustomButtonClicked();

    EXPECT_THAT(formatter->log, ElementsAre("button Qto Area"));
}

class StrangeType : public qev::ifc::def::qto::QuantityTypeSimple
{
public:
    std::string sEntityName() const override { return "IfcQuantityTaste"; }
    std::string sKind() const override { return "Q_TASTE"; }
    std::string sValueAttribute() const override { return "TasteValue"; }
    std::string sMeasure() const override { return "IfcTasteMeasure"; }
};

TEST_F(Quantities, AnUnknownTypeOfQuantityRaises)
{
    auto definition = everyQuantity("Qto");
    definition->quantityDefs[2]->quantityType = std::make_unique<StrangeType>();

    try {
        ShownSet const shown(std::move(definition), {wall});
        ADD_FAILURE() << "nothing was raised";
    } catch (std::runtime_error const& error) {
        EXPECT_STREQ(error.what(), "Not supported!");
    }
}

} // namespace
