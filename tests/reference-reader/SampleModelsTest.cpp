#include "reference-reader/ReferenceReader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <string>

namespace {

using namespace qev::test::reference;
using testing::IsEmpty;
using testing::SizeIs;

/// The sample models tell of one building in three versions of the standard and in different units.
class SampleModels : public testing::TestWithParam<std::string>
{
protected:
    SampleModels()
        : reader(ReferenceReader::fromFile(std::string(SAMPLE_FOLDER) + "/" + GetParam(), SCHEMA_FOLDER))
    {
    }

    std::uint64_t objectNamed(std::string const& name) const
    {
        for (std::uint64_t const object : reader.objects()) {
            std::optional<ReferenceAttribute> const attribute = reader.attribute(object, "Name");
            if (attribute && attribute->value && attribute->value->text == name)
                return object;
        }
        ADD_FAILURE() << "no object " << name;
        return 0;
    }

    std::optional<ReferenceProperty> property(std::uint64_t object, std::string const& set,
                                              std::string const& name) const
    {
        for (ReferenceSet const& candidate : reader.sets(object)) {
            for (ReferenceProperty const& found : candidate.properties) {
                if (candidate.name == set && found.name == name)
                    return found;
            }
        }
        return std::nullopt;
    }

    double si(std::string const& set, std::string const& name) const
    {
        std::optional<ReferenceProperty> const found = property(objectNamed("Wall G south"), set, name);
        if (!found || found->values.size() != 1 || !found->values[0].si()) {
            ADD_FAILURE() << "no number " << set << " " << name;
            return 0.0;
        }
        return *found->values[0].si();
    }

    ReferenceReader reader;
};

INSTANTIATE_TEST_SUITE_P(Office, SampleModels,
                         testing::Values("office-IFC2X3.ifc", "office-IFC4.ifc", "office-IFC4X3.ifc"),
                         [](auto const& file) { return file.param.substr(7, file.param.size() - 11); });

TEST_P(SampleModels, AreReadWithoutAMessage)
{
    EXPECT_THAT(reader.document().messages(), IsEmpty());
    EXPECT_EQ(reader.document().originatingSystem(), "Qev samples");
}

TEST_P(SampleModels, ReferToRecordsThatExist)
{
    auto const check = [&](auto const& self, StepRecord const& record, StepArgument const& argument) -> void {
        if (argument.kind == StepArgument::Kind::Reference) {
            EXPECT_NE(reader.document().find(argument.reference), nullptr) << "#" << record.id;
        }
        for (StepArgument const& item : argument.items)
            self(self, record, item);
    };
    for (StepRecord const& record : reader.document().records()) {
        for (StepArgument const& argument : record.arguments)
            check(check, record, argument);
    }
}

TEST_P(SampleModels, HaveOneObjectForEachGlobalId)
{
    std::set<std::string> ids;
    for (std::uint64_t const object : reader.objects())
        EXPECT_TRUE(ids.insert(reader.globalId(object)).second) << "#" << object;
    EXPECT_GT(ids.size(), 50u);
}

TEST_P(SampleModels, HaveAnArgumentForEachAttribute)
{
    for (std::uint64_t const object : reader.objects())
        EXPECT_THAT(reader.attributes(object), SizeIs(reader.document().find(object)->arguments.size()))
            << "#" << object;
}

TEST_P(SampleModels, AgreeInSiUnits)
{
    EXPECT_NEAR(si("Sample_SingleValues", "Length"), -0.125, 1e-6);
    EXPECT_NEAR(si("Sample_SingleValues", "Positive length"), 2.5, 1e-6);
    EXPECT_NEAR(si("Sample_SingleValues", "Area"), 35.4, 1e-6);
    EXPECT_NEAR(si("Sample_SingleValues", "Volume"), 12.9, 1e-6);
    EXPECT_NEAR(si("Sample_SingleValues", "Plane angle"), 0.39269908169872414, 1e-12);
    EXPECT_NEAR(si("Sample_SingleValues", "Temperature"), 294.65, 1e-9);
    EXPECT_NEAR(si("Sample_SingleValues", "Power"), 2500.0, 1e-9);
    EXPECT_NEAR(si("Sample_SingleValues", "Flow"), 0.05, 1e-12);
    EXPECT_NEAR(si("Sample_SingleValues", "Thermal transmittance"), 0.24, 1e-12);
    EXPECT_NEAR(si("Sample_SingleValues", "Duration in units of time"), 5400.0, 1e-9);
    EXPECT_NEAR(si("Sample_SingleValues", "Mass"), 480.0, 1e-9);
}

TEST_P(SampleModels, HonourUnitsOfSingleProperties)
{
    EXPECT_NEAR(si("Sample_OwnUnits", "Nominal width"), 0.3683, 1e-12);
    EXPECT_NEAR(si("Sample_OwnUnits", "Nominal height"), 2.8956, 1e-12);
    EXPECT_NEAR(si("Sample_OwnUnits", "Joint"), 0.012, 1e-12);
    EXPECT_NEAR(si("Sample_OwnUnits", "Sample weight"), 0.25, 1e-12);
    EXPECT_NEAR(si("Sample_OwnUnits", "Drying time"), 129600.0, 1e-6);
    EXPECT_NEAR(si("Sample_OwnUnits", "Air change"), 0.05, 1e-12);
    EXPECT_NEAR(si("Sample_OwnUnits", "Heater"), 1200.0, 1e-9);
    EXPECT_NEAR(si("Sample_OwnUnits", "Occupants"), 4.0, 1e-12);
}

TEST_P(SampleModels, HoldEveryKindOfProperty)
{
    std::set<ReferenceProperty::Kind> kinds;
    for (ReferenceSet const& set : reader.sets(objectNamed("Wall G south"))) {
        for (ReferenceProperty const& found : set.properties)
            kinds.insert(found.kind);
    }
    EXPECT_THAT(kinds, SizeIs(14)) << "seven kinds of property, six of quantity and the composed one";
}

TEST_P(SampleModels, HoldTextsOutsideAscii)
{
    std::uint64_t const wall = objectNamed("Wall G east");
    std::string const set = "Sample texts, \u00dcbersicht";
    auto const text = [&](std::string const& name) {
        std::optional<ReferenceProperty> const found = property(wall, set, name);
        return found && found->values.size() == 1 ? found->values[0].text : "missing";
    };
    EXPECT_EQ(text("Umlauts"), "\u00c4\u00d6\u00dc \u00e4\u00f6\u00fc\u00df");
    EXPECT_EQ(text("\u4e2d\u6587\u540d\u79f0"), "\u5899\u4f53 (wall)");
    EXPECT_EQ(text("Quotes"), "It's 5'4\" wide, 'quoted'");
    EXPECT_EQ(text("Backslash"), "C:\\plans\\wall.ifc");
    EXPECT_EQ(text(" blank before and behind "), "  two blanks on each side  ");
    EXPECT_EQ(text("Beyond the plane"), "\U00020bb7\u91ce");
    EXPECT_EQ(text("Code page"), "\u041c\u043e\u0441\u043a\u0432\u0430");
    EXPECT_GT(text("Instructions").size(), 2000u);
}

TEST_P(SampleModels, HoldSetsThatNeedCare)
{
    std::uint64_t const wall = objectNamed("Wall G east");
    int unnamed = 0;
    int twice = 0;
    for (ReferenceSet const& set : reader.sets(wall)) {
        unnamed += set.name ? 0 : 1;
        twice += set.name == "Sample_Twice" ? 1 : 0;
    }
    EXPECT_EQ(unnamed, 1);
    EXPECT_EQ(twice, 2);
    bool const setsInPairs = reader.document().schemaName() != "IFC2X3";
    EXPECT_EQ(property(objectNamed("Column 2"), "Sample_Second", "Name").has_value(), setsInPairs);
}

TEST_P(SampleModels, GiveTypesSetsOfTheirOwn)
{
    std::uint64_t const wall = objectNamed("Wall G south");
    std::optional<std::uint64_t> const type = reader.typeOf(wall);
    ASSERT_TRUE(type);
    EXPECT_EQ(property(*type, "Pset_WallCommon", "FireRating")->values.at(0).text, "F30");
    EXPECT_EQ(property(wall, "Pset_WallCommon", "FireRating")->values.at(0).text, "F90");
    std::optional<ReferenceProperty> const weight =
        property(*reader.typeOf(objectNamed("Desk 1")), "Sample_TypeQuantities", "Weight");
    EXPECT_EQ(weight->values.at(0).si(), 38.5);
    EXPECT_NEAR(*reader.attribute(objectNamed("Entrance"), "OverallHeight")->value->si(), 2.26, 1e-6);
}

} // namespace
