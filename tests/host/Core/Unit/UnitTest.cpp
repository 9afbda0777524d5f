#include "Core/Unit/Unit.h"

#include "Core/Exception.h"
#include "Core/Unit/QppBase.h"
#include "Core/Unit/Quantity.h"
#include "ReportRecorder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

namespace {

using namespace qev;
using namespace qev::unit;

/// A quantity that nothing but these tests knows.
class ToyQuantity final : public QuantityBase
{
public:
    ToyQuantity()
        : QuantityBase(static_cast<QuantityId>(9000))
    {
        addUnit(std::unique_ptr<UnitBase>(new SiUnit<9000, ToyQuantity>(*this)));
        addUnit(std::unique_ptr<UnitBase>(new Unit<9001, ToyQuantity>(*this)));
    }

    static std::string typeName() { return "Toy"; }
    std::string sXmlName() const override { return "toy"; }
    std::string sName() const override { return "Toy"; }
    std::string sDescription() const override { return ""; }
};

TEST(Unit, TheFirstUseRegistersTheQuantityAndFindsItsUnit)
{
    ASSERT_EQ(QuantityBase::registered().get(typeid(ToyQuantity)), nullptr);
    auto const& unit = SiUnit<9000, ToyQuantity>::get();
    auto const* const quantity = QuantityBase::registered().get(typeid(ToyQuantity));
    ASSERT_NE(quantity, nullptr);
    EXPECT_EQ(&unit.quantity(), quantity);
    EXPECT_EQ(&(SiUnit<9000, ToyQuantity>::get()), &unit);
    EXPECT_EQ((Unit<9001, ToyQuantity>::get().id()), 9001);
    EXPECT_EQ(QuantityBase::registered().get(typeid(ToyQuantity)), quantity);
}

TEST(Unit, AnSiUnitThatItsQuantityLacksIsReportedAndRaised)
{
    using Missing = SiUnit<999, QuantityOf<QuantityId::Length>>;
    EXPECT_THROW(
        {
            try {
                Missing::get();
            } catch (qev::exception const& error) {
                EXPECT_STREQ(error.what(), "unit not registered");
                throw;
            }
        },
        qev::exception);
    test::expectReport("Si unit not registered",
                       "qev::unit::SiUnit<999,class qev::unit::Quantity<1,1,0,0,0,0,0,0> >::get",
                       "Core/Unit/Unit");
}

TEST(Unit, AFurtherUnitThatItsQuantityLacksIsReportedAndRaised)
{
    using Missing = Unit<999, QuantityOf<QuantityId::PlaneAngle>>;
    EXPECT_THROW(Missing::get(), qev::exception);
    test::expectReport("Unit not registered",
                       "qev::unit::Unit<999,class qev::unit::Quantity<5,0,0,0,0,0,0,0> >::get",
                       "Core/Unit/Unit");
}

TEST(Unit, TheInstancesWithFixedNumbersExist)
{
    EXPECT_EQ((SiUnit<0, Quantity<0, 0, 0, 1, 0, 0, 0, 0>>::get().symbol()), "s");
    EXPECT_EQ((SiUnit<4, Quantity<1, 1, 0, 0, 0, 0, 0, 0>>::get().symbol()), "m");
    EXPECT_EQ((SiUnit<11, Quantity<2, 2, 0, 0, 0, 0, 0, 0>>::get().symbol()), "m²");
    EXPECT_EQ((SiUnit<14, Quantity<3, 3, 0, 0, 0, 0, 0, 0>>::get().symbol()), "m³");
    EXPECT_EQ((SiUnit<17, Quantity<5, 0, 0, 0, 0, 0, 0, 0>>::get().symbol()), "rad");
    EXPECT_EQ((Unit<18, Quantity<5, 0, 0, 0, 0, 0, 0, 0>>::get().symbol()), "°");
    EXPECT_EQ((SiUnit<19, Quantity<6, 0, 0, 0, 0, 0, 0, 0>>::get().symbol()), "");
    EXPECT_EQ((SiUnit<21, Quantity<8, 0, 0, 0, 0, 0, 0, 0>>::get().symbol()), "");
    EXPECT_EQ((SiUnit<37, Quantity<9, 0, 0, 0, 0, 1, 0, 0>>::get().symbol()), "K");
    EXPECT_EQ((SiUnit<46, Quantity<11, 2, 1, -3, 0, 0, 0, 0>>::get().symbol()), "W");
    EXPECT_EQ((SiUnit<49, Quantity<12, 0, 1, -3, 0, -1, 0, 0>>::get().symbol()), "W/(m²·K)");
    EXPECT_EQ((SiUnit<33, Quantity<16, 3, 0, -1, 0, 0, 0, 0>>::get().symbol()), "m³/s");
}

TEST(Unit, AQuantityAnswersWithTheTextsOfItsNumber)
{
    auto const& length = LengthUnit::get().quantity();
    EXPECT_EQ(length.sXmlName(), "length");
    EXPECT_EQ(length.sName(), QuantityBase::sNameFromId(QuantityId::Length));
    EXPECT_EQ(length.sDescription(), QuantityBase::sDescriptionFromId(QuantityId::Length));
    EXPECT_EQ(QuantityBase::sXmlNameFromId(static_cast<QuantityId>(12345)), "");
}

TEST(Unit, EveryUnitTakesItsValuesToTheSiUnitAndBack)
{
    for (auto const& facts : unitFacts) {
        double const si = (7.25 + facts.offset) * facts.numerator / facts.denominator;
        double const back = si * facts.denominator / facts.numerator - facts.offset;
        EXPECT_NEAR(back, 7.25, 1e-12 * (1 + std::abs(facts.offset))) << facts.symbol;
    }
    auto const& length = LengthUnit::get().quantity();
    EXPECT_EQ(length.unitFromText("mm")->toSi(250), 0.25);
    EXPECT_EQ(length.unitFromText("ft")->toSi(10), 3.048);
    EXPECT_EQ(length.unitFromText("feet"), length.unitFromText("ft"));
    EXPECT_EQ(length.unitFromText("acre"), nullptr);
    auto const& temperature = TemperatureUnit::get().quantity();
    EXPECT_DOUBLE_EQ(temperature.unitFromText("°C")->toSi(20), 293.15);
    EXPECT_DOUBLE_EQ(temperature.unitFromText("°F")->toSi(212), 373.15);
}

TEST(Unit, NumbersAndSpellingsAreUniqueAndEachQuantityHasItsUnits)
{
    std::set<int> ids;
    std::set<std::pair<QuantityId, std::string>> spellings;
    for (auto const& facts : unitFacts) {
        EXPECT_TRUE(ids.insert(facts.id).second) << facts.id;
        EXPECT_TRUE(spellings.insert({facts.quantity, facts.symbol}).second) << facts.symbol;
    }
    for (auto const& facts : quantityFacts) {
        EXPECT_EQ(factsOfUnit(facts.siUnit).quantity, facts.id) << facts.xmlName;
        EXPECT_EQ(factsOfUnit(facts.siUnit).numerator / factsOfUnit(facts.siUnit).denominator, 1.0)
            << facts.xmlName;
        EXPECT_EQ(factsOfUnit(facts.displayUnit).quantity, facts.id) << facts.xmlName;
    }
}

TEST(QuantityRegistration, KeepsTheFirstQuantityOfAClass)
{
    QuantityBase::Registration registration;
    auto first = std::make_unique<ToyQuantity>();
    auto const* const address = first.get();
    EXPECT_EQ(&registration.registerQuantity(std::move(first)), address);
    EXPECT_EQ(&registration.registerQuantity(std::make_unique<ToyQuantity>()), address);
    EXPECT_EQ(registration.get(typeid(ToyQuantity)), address);
    EXPECT_EQ(registration.get(static_cast<QuantityId>(9000)), address);
    EXPECT_EQ(registration.get(typeid(int)), nullptr);
}

TEST(QppRegistration, HasOneDefaultForEachQuantity)
{
    ToyQuantity const quantity;
    QppRegistration registration;
    QppBase& parameters = registration.defaultOf(quantity);
    EXPECT_EQ(&registration.defaultOf(quantity), &parameters);
    EXPECT_EQ(&parameters.quantity(), &quantity);
    EXPECT_EQ(std::distance(registration.begin(), registration.end()), 1);
}

TEST(QppBase, AContextWithoutSettingsHasTheDefaultOnes)
{
    auto const& quantity = LengthUnit::get().quantity();
    QuantityQpp parameters{QppSettings(quantity)};
    QppSettings millimetres(quantity);
    millimetres.setDisplayUnit(*quantity.unitFromText("mm"));
    EXPECT_TRUE(parameters.setSettings("drawing", millimetres));

    EXPECT_EQ(parameters.settingsFromContext("drawing").displayUnit().symbol(), "mm");
    EXPECT_EQ(parameters.settingsFromContext("other").displayUnit().symbol(), "m");
    EXPECT_EQ(parameters.settingsFromContext("").displayUnit().symbol(), "m");
    EXPECT_TRUE(parameters.setSettings("", millimetres));
    EXPECT_EQ(parameters.settingsFromContext("other").displayUnit().symbol(), "mm");
}

TEST(QppBase, SettingsOfAnotherQuantityAreRefused)
{
    QuantityQpp parameters{QppSettings(LengthUnit::get().quantity())};
    EXPECT_FALSE(parameters.setSettings("", QppSettings(AreaUnit::get().quantity())));
    EXPECT_EQ(&parameters.settingsFromContext("").quantity(), &LengthUnit::get().quantity());
}

} // namespace
