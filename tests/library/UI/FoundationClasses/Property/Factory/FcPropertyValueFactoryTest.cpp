#include "UI/FoundationClasses/Property/Factory/FcPropertyValueFactory.h"

#include "FoundationClasses/FcBase.h"
#include "kit/ReportRecorder.h"
#include "library/kit/LogFormatter.h"
#include "library/kit/SetBuilder.h"
#include "library/kit/ShownSet.h"
#include "UI/FoundationClasses/Property/PropertySettings.h"
#include "UI/FoundationClasses/Property/Types/FcPropertyBoundedValue.h"
#include "UI/FoundationClasses/Property/Types/FcPropertyEnumeratedValue.h"
#include "UI/FoundationClasses/Property/Types/FcPropertyListValue.h"
#include "UI/FoundationClasses/Property/Types/FcPropertyLogicalType.h"
#include "UI/FoundationClasses/Property/Types/FcPropertySingleValueWithBooleanToggle.h"
#include "UI/FoundationClasses/Set/PropertySet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <typeinfo>

namespace {

using namespace qev::fc::ui;
using namespace qev::test;
using qev::ifc::def::pset::PropertySetDef;

constexpr char path[] = "UI/FoundationClasses/Property/Factory/FcPropertyValueFactory";

class FcPropertyValueFactoryTest : public testing::Test
{
protected:
    /// Makes the presentation of the first property of a definition.
    std::unique_ptr<PropertyInterface> create(SetBuilder& builder)
    {
        m_definition = builder.take();
        return FcPropertyValueFactory::create(*m_definition->propertyDefs.at(0), set(), m_contexts);
    }
    /// Makes a row of the first property, switched by the second.
    std::unique_ptr<PropertyInterface> createToggle(SetBuilder& builder)
    {
        m_definition = builder.take();
        return FcPropertyValueFactory::createWithToggleProperty(
            *m_definition->propertyDefs.at(0), *m_definition->propertyDefs.at(1), set(), m_contexts);
    }

private:
    PropertySet& set() { return dynamic_cast<PropertySet&>(m_shown.set()); }

    std::unique_ptr<PropertySetDef> m_definition;
    std::vector<std::string> m_contexts;
    ShownSet m_shown{SetBuilder("Pset").take(), {}};
};

template <class T>
testing::AssertionResult isExactly(std::unique_ptr<PropertyInterface> const& property)
{
    if (!property)
        return testing::AssertionFailure() << "nothing was made";
    auto const& made = *property;
    return typeid(made) == typeid(T) ? testing::AssertionSuccess()
                                     : testing::AssertionFailure() << typeid(made).name();
}

TEST_F(FcPropertyValueFactoryTest, EachKindHasItsClass)
{
    EXPECT_TRUE(isExactly<FcPropertySingleValue>(create(SetBuilder("S").single("P", "IfcLabel"))));
    EXPECT_TRUE(isExactly<FcPropertyBooleanType>(create(SetBuilder("S").single("P", "IfcBoolean"))));
    EXPECT_TRUE(isExactly<FcPropertyLogicalType>(create(SetBuilder("S").single("P", "IfcLogical"))));
    EXPECT_TRUE(isExactly<FcPropertyEnumeratedValue>(create(SetBuilder("S").enumerated("P", {"A"}))));
    EXPECT_TRUE(isExactly<FcPropertyBoundedValue>(create(SetBuilder("S").bounded("P", "IfcReal"))));
    EXPECT_TRUE(isExactly<FcPropertyListValue>(create(SetBuilder("S").list("P", "IfcReal"))));
}

TEST_F(FcPropertyValueFactoryTest, KindsWithoutARowAreReported)
{
    struct Case
    {
        SetBuilder builder;
        char const* text;
        unsigned int kind;
    };
    std::vector<Case> cases;
    cases.push_back({SetBuilder("S"), "IfcPropertyReferenceValue not implemented.", 1});
    cases.back().builder.reference("P");
    cases.push_back({SetBuilder("S"), "IfcPropertyTableValue not implemented.", 1});
    cases.back().builder.table("P");
    cases.push_back({SetBuilder("S"), "IfcComplexProperty not implemented.", 0});
    cases.back().builder.complex("P");

    for (auto& [builder, text, kind] : cases) {
        EXPECT_EQ(create(builder), nullptr);
        auto const reports = takeReports();
        ASSERT_EQ(reports.size(), 1u) << text;
        EXPECT_EQ(reports[0].text, text);
        EXPECT_EQ(reports[0].kind, kind);
        EXPECT_EQ(reports[0].function, "qev::fc::ui::FcPropertyValueFactory::create");
        EXPECT_EQ(reports[0].path, path);
    }
}

TEST_F(FcPropertyValueFactoryTest, WhereNothingIsKnownOfTheValueThereIsNoRow)
{
    EXPECT_EQ(create(SetBuilder("S").withoutType("P")), nullptr);
}

TEST_F(FcPropertyValueFactoryTest, AValueOfAnyTypeMayHaveABooleanToggle)
{
    for (auto const* const type : {"IfcLabel", "IfcBoolean", "IfcLogical", "IfcLengthMeasure"})
        EXPECT_TRUE(isExactly<FcPropertySingleValueWithBooleanToggle>(
            createToggle(SetBuilder("S").single("P", type).single("T", "IfcBoolean"))));
}

TEST_F(FcPropertyValueFactoryTest, AToggleThatIsNoBooleanIsReported)
{
    EXPECT_EQ(createToggle(SetBuilder("S").single("P", "IfcLabel").single("T", "IfcLogical")), nullptr);
    expectReport("Toggle property must be an IfcBoolean property.",
                 "qev::fc::ui::FcPropertySingleValueFactory::createWithToggleProperty",
                 "UI/FoundationClasses/Property/Factory/FcPropertySingleValueFactory");
    EXPECT_EQ(createToggle(SetBuilder("S").single("P", "IfcLabel").enumerated("T", {"A"})), nullptr);
    expectReport("Toggle property must be an IfcBoolean property.",
                 "qev::fc::ui::FcPropertySingleValueFactory::createWithToggleProperty",
                 "UI/FoundationClasses/Property/Factory/FcPropertySingleValueFactory");
}

TEST_F(FcPropertyValueFactoryTest, AnEnumeratedValueCannotHaveAToggle)
{
    EXPECT_EQ(createToggle(SetBuilder("S").enumerated("P", {"A"}).single("T", "IfcBoolean")), nullptr);
    expectReport("Only single value properties support being accompanied by a boolean toggle property.",
                 "qev::fc::ui::FcPropertyValueFactory::createWithToggleProperty", path);
}

TEST_F(FcPropertyValueFactoryTest, AReportOfAToggleIsOfABrokenRule)
{
    EXPECT_EQ(createToggle(SetBuilder("S").enumerated("P", {"A"}).single("T", "IfcBoolean")), nullptr);
    EXPECT_EQ(createToggle(SetBuilder("S").single("P", "IfcLabel").single("T", "IfcLabel")), nullptr);

    auto const reports = takeReports();
    ASSERT_EQ(reports.size(), 2u);
    EXPECT_EQ(reports[0].kind, 0u);
    EXPECT_EQ(reports[1].kind, 0u);
}

class StrangeType : public qev::ifc::def::pset::PropertyType
{
public:
    [[nodiscard]] std::string sEntityName() const override { return "IfcPropertyOfTaste"; }
    bool checkForErrors(qev::ifc::def::schema::Schema const& /*schema*/,
                        qev::ifc::def::xml::XmlSetErrors& /*errors*/) const override
    {
        return true;
    }
    void vExport(qev::xml::Element& /*parent*/, qev::ifc::def::xml::ExtraExportInfo* /*info*/) const override
    {
    }
};

TEST_F(FcPropertyValueFactoryTest, AnyOtherKindHasNoRowAndNoReport)
{
    EXPECT_EQ(create(SetBuilder("S").property("P", std::make_unique<StrangeType>())), nullptr);
}

// --- Settings -----------------------------------------------------------------------------------

class ToySettings : public PropertySettingsInterface
{
public:
    bool showGlobalId() const override { return true; }
    bool isUserEditableEnumeration(std::string_view set, std::string_view) const override
    {
        return set == "Pset";
    }
};

TEST(PropertySettingsTest, ByDefaultNothingIsShownOrEditedBeyondTheUsual)
{
    EXPECT_FALSE(PropertySettings::getInstance()->showGlobalId());
    EXPECT_FALSE(PropertySettings::getInstance()->isUserEditableEnumeration("Pset", "P"));
}

TEST(PropertySettingsTest, TheHostInstallsItsOwnAndNullBringsTheUsualOnesBack)
{
    auto const usual = PropertySettings::getInstance();
    auto const own = std::make_shared<ToySettings>();

    EXPECT_EQ(PropertySettings::setInstance(own), usual);
    EXPECT_TRUE(PropertySettings::getInstance()->showGlobalId());
    EXPECT_EQ(PropertySettings::setInstance(nullptr), own);

    ASSERT_NE(PropertySettings::getInstance(), nullptr);
    EXPECT_NE(PropertySettings::getInstance(), usual);
    EXPECT_FALSE(PropertySettings::getInstance()->showGlobalId());
}

} // namespace
