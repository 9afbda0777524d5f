#include "FoundationClasses/Resource/Measure/FcValue.h"

#include "Core/Unit/QuantityPresentation.h"
#include "kit/ModelBuilder.h"
#include "Object/PropertyValue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using namespace qev::fc::resource::measure;
using namespace qev::test;
using qev::fc::Binary;
using qev::fc::Logical;
using qev::fc::Payload;
using qev::fc::ValueKind;
using qev::object::PropertyValue;
using Simple = FcSimpleValue::Types;

std::vector<ValueTypeInfo> allTypes()
{
    std::vector<ValueTypeInfo> all;
    for (auto const table : {simpleValueTypes(), measureValueTypes(), derivedMeasureValueTypes()})
        all.insert(all.end(), table.begin(), table.end());
    return all;
}

bool areEqual(FcValue const& a, FcValue const& b) { return !(a < b) && !(b < a); }

MATCHER(IsNotOfCorrectType, "")
{
    try {
        arg();
    } catch (qev::exception const& error) {
        return std::string(error.what()) == "Not of correct type";
    }
    return false;
}

TEST(FcValue, IsEmptyAtFirst)
{
    FcValue const value;
    EXPECT_EQ(value.discriminator(), 3u);
    EXPECT_TRUE(value.isEmpty());
    EXPECT_EQ(value.typeInfo(), nullptr);
    EXPECT_EQ(value.getAsString(false), std::nullopt);
    EXPECT_EQ(value.valueAsDoubleGet(), std::nullopt);
    EXPECT_EQ(value.createQuantityPresentation(), nullptr);
    EXPECT_EQ(value.getAsPropertyValue(), PropertyValue());
}

TEST(FcValue, TellsItsFamilyByTheDiscriminator)
{
    EXPECT_EQ(number("PowerMeasure", 1).discriminator(), 0u);
    EXPECT_EQ(length(1).discriminator(), 1u);
    EXPECT_EQ(label("a").discriminator(), 2u);
}

TEST(FcValue, FamiliesBeginWithoutAType)
{
    EXPECT_EQ(static_cast<unsigned int>(FcDerivedMeasureValue().type()), 71u);
    EXPECT_EQ(static_cast<unsigned int>(FcMeasureValue().type()), 23u);
    EXPECT_EQ(static_cast<unsigned int>(FcSimpleValue().type()), 14u);
    EXPECT_EQ(FcValue(FcSimpleValue()).typeInfo(), nullptr);
}

TEST(FcValue, NumbersOfTheTypesThatAreTested)
{
    EXPECT_EQ(static_cast<unsigned int>(Simple::Boolean), 1u);
    EXPECT_EQ(static_cast<unsigned int>(Simple::Label), 7u);
}

TEST(FcValue, NamesItsTypesWithoutPrefix)
{
    EXPECT_EQ(FcSimpleValue::nameFromEnum(Simple::Label), "Label");
    EXPECT_EQ(FcMeasureValue::nameFromEnum(FcMeasureValue::Types::LengthMeasure), "LengthMeasure");
    EXPECT_EQ(FcDerivedMeasureValue::nameFromEnum(FcDerivedMeasureValue::Types::PowerMeasure),
              "PowerMeasure");
    EXPECT_EQ(FcSimpleValue::nameFromEnum(Simple::None), "");
}

TEST(FcValue, ASimpleValueOfATypeHasADefaultPayload)
{
    EXPECT_EQ(FcSimpleValue(Simple::Boolean).get<bool>(), false);
    EXPECT_EQ(FcSimpleValue(Simple::Integer).get<std::int64_t>(), 0);
    EXPECT_EQ(FcSimpleValue(Simple::Real).get<double>(), 0.0);
    EXPECT_EQ(FcSimpleValue(Simple::Text).get<std::string>(), "");
    EXPECT_EQ(FcSimpleValue(Simple::Logical).get<Logical>(), Logical::Unknown);
    EXPECT_EQ(FcSimpleValue(Simple::Binary).get<Binary>().digits, "0");
}

TEST(FcValue, ALabelBecomesASimpleValue)
{
    FcSimpleValue const value(FcLabel("F30"));
    EXPECT_EQ(value.type(), Simple::Label);
    EXPECT_EQ(value.get<std::string>(), "F30");
    EXPECT_TRUE(areEqual(FcValue(FcSimpleValue(FcLabel("F30"))), label("F30")));
}

TEST(FcValue, ReadingAPayloadOfAnotherKindRaises)
{
    FcSimpleValue const text(FcLabel("F30"));
    EXPECT_THAT([&] { (void)text.get<bool>(); }, IsNotOfCorrectType());
    EXPECT_THAT([&] { (void)text.get<double>(); }, IsNotOfCorrectType());
    EXPECT_THAT([] { FcSimpleValue(Simple::Boolean).set(std::string("x")); }, IsNotOfCorrectType());
}

TEST(FcValue, ReadingAnotherFamilyRaises)
{
    FcValue const value = label("F30");
    EXPECT_EQ(value.simpleValue().get<std::string>(), "F30");
    EXPECT_THAT([&] { (void)value.measureValue(); }, IsNotOfCorrectType());
    EXPECT_THAT([&] { (void)value.derivedMeasureValue(); }, IsNotOfCorrectType());
    EXPECT_THAT([] { (void)FcValue().simpleValue(); }, IsNotOfCorrectType());
    EXPECT_EQ(length(2).measureValue().type(), FcMeasureValue::Types::LengthMeasure);
    EXPECT_EQ(number("PowerMeasure", 2).derivedMeasureValue().get<double>(), 2.0);
}

TEST(FcValue, APayloadCanBeChangedInPlace)
{
    FcValue value = boolean(false);
    value.simpleValue().set(true);
    EXPECT_TRUE(areEqual(value, boolean(true)));
}

TEST(FcValue, CopiesAreIndependent)
{
    FcValue const original = label("a");
    FcValue copy = original;
    EXPECT_TRUE(copy.setValueOnTypeFromString("b"));
    EXPECT_EQ(original.getAsString(false), "a");
    FcValue const moved = std::move(copy);
    EXPECT_EQ(moved.getAsString(false), "b");
}

TEST(FcValue, OrderIsByFamilyThenTypeThenPayload)
{
    EXPECT_LT(number("PowerMeasure", 9), length(1));
    EXPECT_LT(length(9), label("a"));
    EXPECT_LT(label("a"), FcValue());
    EXPECT_LT(number("AreaMeasure", 9), length(1));
    EXPECT_LT(length(1), length(2));
    EXPECT_LT(label("a"), label("b"));
    EXPECT_LT(boolean(false), boolean(true));
}

TEST(FcValue, OrderIsStrict)
{
    std::vector<FcValue> const values{FcValue(),     label("a"), label("b"), text("a"),
                                      boolean(true), length(1),  length(2),  number("PowerMeasure", 1),
                                      integer(1),    real(1)};
    for (FcValue const& a : values) {
        EXPECT_FALSE(a < a);
        for (FcValue const& b : values) {
            EXPECT_FALSE(a < b && b < a);
            EXPECT_EQ(areEqual(a, b), &a == &b);
        }
    }
}

TEST(FcValue, EqualPayloadsOfDifferentTypesDiffer)
{
    EXPECT_FALSE(areEqual(label("a"), text("a")));
    EXPECT_FALSE(areEqual(integer(1), real(1)));
    EXPECT_FALSE(areEqual(length(0), FcValue()));
}

TEST(FcValue, TextIsWhatStandsThere)
{
    EXPECT_EQ(label("F 30 'x' (y)").getAsString(false), "F 30 'x' (y)");
    EXPECT_EQ(label("").getAsString(false), "");
    EXPECT_EQ(boolean(true).getAsString(false), "true");
    EXPECT_EQ(boolean(false).getAsString(false), "false");
    EXPECT_EQ(logical(Logical::Unknown).getAsString(false), "unknown");
    EXPECT_EQ(integer(-7).getAsString(false), "-7");
    EXPECT_EQ(real(0.1).getAsString(false), "0.1");
    EXPECT_EQ(length(2).getAsString(false), "2");
}

TEST(FcValue, TextWithTypeNamesTheType)
{
    EXPECT_EQ(label("F30").getAsString(true), "IfcLabel(F30)");
    EXPECT_EQ(length(2.5).getAsString(true), "IfcLengthMeasure(2.5)");
    EXPECT_EQ(FcValue().getAsString(true), std::nullopt);
}

TEST(FcValue, EveryTypeReadsBackTheTextItGives)
{
    for (ValueTypeInfo const& info : allTypes()) {
        FcValue value;
        ASSERT_TRUE(value.setTypeFromString(std::string(info.name))) << info.name;
        if (info.isAggregate) {
            ASSERT_TRUE(value.setValueOnTypeFromString("(1, -2, 3)")) << info.name;
        }
        FcValue again;
        ASSERT_TRUE(again.setTypeFromString(std::string(info.name)));
        EXPECT_TRUE(again.setValueOnTypeFromString(value.getAsString(false).value_or("none"))) << info.name;
        EXPECT_TRUE(areEqual(value, again)) << info.name;
    }
}

TEST(FcValue, TypeComesFromItsNameWithoutPrefix)
{
    FcValue value = label("F30");
    EXPECT_TRUE(value.setTypeFromString("LengthMeasure"));
    EXPECT_EQ(value.typeInfo()->schemaName, "IfcLengthMeasure");
    EXPECT_EQ(value.valueAsDoubleGet(), 0.0);
}

TEST(FcValue, AnUnknownTypeNameChangesNothing)
{
    for (char const* const name : {"IfcLabel", "label", "", "None", "PropertySet"}) {
        FcValue value = label("F30");
        EXPECT_FALSE(value.setTypeFromString(name)) << name;
        EXPECT_TRUE(areEqual(value, label("F30"))) << name;
    }
}

TEST(FcValue, EveryTypeTakesTextsOfItsKind)
{
    for (ValueTypeInfo const& info : allTypes()) {
        FcValue value;
        ASSERT_TRUE(value.setTypeFromString(std::string(info.name)));
        auto const takes = [&value](std::string const& typed) {
            return value.setValueOnTypeFromString(typed);
        };
        if (info.isAggregate)
            continue;
        bool const isTruth = info.kind == ValueKind::Boolean || info.kind == ValueKind::Logical;
        bool const isNumber = info.kind == ValueKind::Integer || info.kind == ValueKind::Real;
        bool const isText = info.kind == ValueKind::Text;
        EXPECT_EQ(takes("true"), isTruth || isText) << info.name;
        EXPECT_EQ(takes("unknown"), info.kind == ValueKind::Logical || isText) << info.name;
        EXPECT_EQ(takes("7"), isNumber || isText) << info.name;
        EXPECT_EQ(takes("2.5"), info.kind == ValueKind::Real || isText) << info.name;
        EXPECT_EQ(takes("2.5 m"), isText) << info.name;
        EXPECT_EQ(takes(""), isText) << info.name;
        EXPECT_EQ(takes("0FF"), info.kind == ValueKind::Binary || isText) << info.name;
    }
}

TEST(FcValue, TruthsAreUnderstoodInSeveralSpellings)
{
    for (char const* const typed : {"true", "True", "TRUE", "1", " true "}) {
        EXPECT_TRUE(areEqual(valueOf("Boolean", typed), boolean(true))) << typed;
        EXPECT_TRUE(areEqual(valueOf("Logical", typed), logical(Logical::True))) << typed;
    }
    for (char const* const typed : {"false", "FALSE", "0"})
        EXPECT_TRUE(areEqual(valueOf("Boolean", typed), boolean(false))) << typed;
    FcValue value = boolean(true);
    EXPECT_FALSE(value.setValueOnTypeFromString("yes"));
    EXPECT_FALSE(value.setValueOnTypeFromString("2"));
}

TEST(FcValue, NumbersAreReadWholeOrNotAtAll)
{
    FcValue value = length(4);
    for (char const* const typed : {"2,5", "1e400", "nan", "inf", "0x10", "2.5.1", "2 5", "-"}) {
        EXPECT_FALSE(value.setValueOnTypeFromString(typed)) << typed;
        EXPECT_EQ(value.valueAsDoubleGet(), 4.0) << typed;
    }
    EXPECT_TRUE(value.setValueOnTypeFromString(" -1.5e3 "));
    EXPECT_EQ(value.valueAsDoubleGet(), -1500.0);
}

TEST(FcValue, IntegersKeepAllTheirDigits)
{
    FcValue value = integer(0);
    EXPECT_TRUE(value.setValueOnTypeFromString("9223372036854775807"));
    EXPECT_EQ(value.getAsString(false), "9223372036854775807");
    EXPECT_FALSE(value.setValueOnTypeFromString("9223372036854775808"));
    EXPECT_FALSE(value.setValueOnTypeFromString("1.0"));
    EXPECT_TRUE(value.setValueOnTypeFromString("+5"));
    EXPECT_EQ(value.getAsString(false), "5");
}

TEST(FcValue, ListsAreReadInBrackets)
{
    FcValue value;
    ASSERT_TRUE(value.setTypeFromString("CompoundPlaneAngleMeasure"));
    EXPECT_TRUE(value.setValueOnTypeFromString("(48, 8,0)"));
    EXPECT_EQ(value.payload(), Payload(std::vector<std::int64_t>{48, 8, 0}));
    for (char const* const typed : {"48, 8, 0", "(48, 8", "()", "(48,)", "(a)", "(1.5)"})
        EXPECT_FALSE(value.setValueOnTypeFromString(typed)) << typed;
    EXPECT_EQ(value.getAsString(false), "(48, 8, 0)");
}

TEST(FcValue, BinariesAreHexadecimal)
{
    FcValue value;
    ASSERT_TRUE(value.setTypeFromString("Binary"));
    EXPECT_TRUE(value.setValueOnTypeFromString("1C0"));
    for (char const* const typed : {"", "4FF", "0xF", "0f"})
        EXPECT_FALSE(value.setValueOnTypeFromString(typed)) << typed;
    EXPECT_EQ(value.getAsString(false), "1C0");
}

TEST(FcValue, AnEmptyValueTakesNoText) { EXPECT_FALSE(FcValue().setValueOnTypeFromString("7")); }

TEST(FcValue, GivesTheNumberOfNumericValuesAlone)
{
    EXPECT_EQ(length(2.5).valueAsDoubleGet(), 2.5);
    EXPECT_EQ(integer(7).valueAsDoubleGet(), 7.0);
    EXPECT_EQ(number("PowerMeasure", 3).valueAsDoubleGet(), 3.0);
    EXPECT_EQ(label("2.5").valueAsDoubleGet(), std::nullopt);
    EXPECT_EQ(boolean(true).valueAsDoubleGet(), std::nullopt);
}

TEST(FcValue, StoresNumbersInNumericTypesAlone)
{
    FcValue value = length(1);
    EXPECT_TRUE(value.setDoubleValue(2.5));
    EXPECT_EQ(value.valueAsDoubleGet(), 2.5);
    EXPECT_EQ(value.typeInfo()->name, "LengthMeasure");
    for (FcValue other : {label("a"), boolean(true), logical(Logical::True), FcValue()}) {
        FcValue const before = other;
        EXPECT_FALSE(other.setDoubleValue(1.0));
        EXPECT_TRUE(areEqual(other, before));
    }
}

TEST(FcValue, StoresWholeNumbersAloneInIntegers)
{
    FcValue value = integer(1);
    EXPECT_TRUE(value.setDoubleValue(7.0));
    EXPECT_EQ(value.simpleValue().get<std::int64_t>(), 7);
    for (double const refused : {7.5, 1e30, std::nan("")}) {
        EXPECT_FALSE(value.setDoubleValue(refused));
        EXPECT_EQ(value.valueAsDoubleGet(), 7.0);
    }
}

TEST(FcValue, StoresFiniteNumbersAlone)
{
    FcValue value = length(1);
    EXPECT_FALSE(value.setDoubleValue(std::numeric_limits<double>::infinity()));
    EXPECT_FALSE(value.setDoubleValue(std::nan("")));
    EXPECT_EQ(value.valueAsDoubleGet(), 1.0);
}

TEST(FcValue, MakesAPresentationWhereItsTypeHasAQuantity)
{
    EXPECT_NE(length(2).createQuantityPresentation(), nullptr);
    EXPECT_NE(number("ThermodynamicTemperatureMeasure", 293.15).createQuantityPresentation(), nullptr);
    EXPECT_EQ(label("a").createQuantityPresentation(), nullptr);
    EXPECT_EQ(boolean(true).createQuantityPresentation(), nullptr);
}

TEST(FcValue, GoesToTheGenericEditorByItsKind)
{
    EXPECT_EQ(label("a").getAsPropertyValue(), PropertyValue("a"));
    EXPECT_EQ(length(2.5).getAsPropertyValue(), PropertyValue(2.5));
    EXPECT_EQ(integer(7).getAsPropertyValue(), PropertyValue(7));
    EXPECT_EQ(boolean(true).getAsPropertyValue(), PropertyValue(true));
    EXPECT_EQ(logical(Logical::Unknown).getAsPropertyValue(), PropertyValue("unknown"));
    EXPECT_EQ(integer(5000000000).getAsPropertyValue(), PropertyValue("5000000000"));
}

TEST(FcValue, ComesBackFromTheGenericEditor)
{
    for (FcValue const& value : {label("a"), length(2.5), integer(7), boolean(true),
                                 logical(Logical::Unknown), integer(5000000000), number("PowerMeasure", 4)}) {
        FcValue target;
        ASSERT_TRUE(target.setTypeFromString(std::string(value.typeInfo()->name)));
        EXPECT_TRUE(target.updateValueFromPropertyValue(value.getAsPropertyValue()))
            << *value.getAsString(true);
        EXPECT_TRUE(areEqual(target, value)) << *value.getAsString(true);
    }
}

TEST(FcValue, TakesOptionalsOfTheGenericEditorThatAreSet)
{
    FcValue value = length(1);
    EXPECT_TRUE(value.updateValueFromPropertyValue(std::optional<double>(3.0)));
    EXPECT_EQ(value.valueAsDoubleGet(), 3.0);
    EXPECT_TRUE(value.updateValueFromPropertyValue(std::uint32_t{4}));
    EXPECT_EQ(value.valueAsDoubleGet(), 4.0);
    EXPECT_FALSE(value.updateValueFromPropertyValue(std::optional<double>()));
    EXPECT_FALSE(value.updateValueFromPropertyValue(PropertyValue()));
    EXPECT_EQ(value.valueAsDoubleGet(), 4.0);
}

TEST(FcValue, RefusesWhatDoesNotFitItsType)
{
    FcValue value = length(1);
    EXPECT_FALSE(value.updateValueFromPropertyValue("long"));
    EXPECT_FALSE(value.updateValueFromPropertyValue(true));
    FcValue named = label("a");
    EXPECT_FALSE(named.updateValueFromPropertyValue(2.5));
    EXPECT_FALSE(named.updateValueFromPropertyValue(true));
    EXPECT_FALSE(FcValue().updateValueFromPropertyValue("a"));
    EXPECT_EQ(named.getAsString(false), "a");
}

TEST(FcValue, IsAssignedByTheSchemaName)
{
    FcValue value;
    EXPECT_TRUE(value.assign("IfcLabel", std::string("a")));
    EXPECT_TRUE(areEqual(value, label("a")));
    EXPECT_FALSE(value.assign("Label", std::string("b")));
    EXPECT_TRUE(areEqual(value, label("a")));
}

} // namespace
