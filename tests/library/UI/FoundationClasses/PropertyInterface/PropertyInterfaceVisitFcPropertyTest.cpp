#include "FoundationClasses/Resource/Property/FcProperty.h"

#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Resource/Material/FcMaterialProperties.h"
#include "FoundationClasses/Resource/Property/FcComplexProperty.h"
#include "FoundationClasses/Resource/Property/FcPropertySingleValue.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "library/kit/EntityProperties.h"
#include "library/kit/TranslationScope.h"

#include <gtest/gtest.h>

namespace {

using namespace qev;
using namespace qev::test;
using fc::resource::material::FcMaterialProperties;
using fc::resource::property::FcComplexProperty;
using fc::resource::property::FcProperty;
using object::PropertyValue;

constexpr char folder[] = "UI/FoundationClasses/PropertyInterface/";
constexpr char setValueName[] = "qev::fc::ui::propertyinterface::SetValue::visit";

struct PropertyRows : testing::Test
{
    TranslationScope texts;
    Model model;
    std::shared_ptr<fc::core::kernel::FcPropertySet> set = model.addSet(model.wall("W1"), "Own");
    std::shared_ptr<FcComplexProperty> complex = std::make_shared<FcComplexProperty>();

    PropertyRows()
    {
        complex->Name = "Paint";
        complex->UsageName = "Finish";
        complex->HasProperties.edit([](auto& members) {
            members.push_back(singleValue("Z", label("z")));
            members.push_back(singleValue("A", label("a")));
        });
        set->HasProperties.addProperty(complex);
    }

    EntityProperties of(std::shared_ptr<fc::FcBase> const& entity) const { return {model.data(), entity}; }
};

TEST_F(PropertyRows, OfAComplexPropertyHoldItsMembersInTheirOrder)
{
    auto const nodes = of(complex).nodes();

    EXPECT_EQ(treeText(nodes), "Paint = Name\n"
                               "  HasProperties [group] [list]\n"
                               "    Z = Name\n"
                               "    A = Name\n");
    EXPECT_EQ(nodes[0]->object, complex);
    EXPECT_EQ(nodes[0]->children[0]->object, complex);
    EXPECT_EQ(nodes[0]->children[0]->children[1]->object, complex->HasProperties->get()[1]);
}

TEST_F(PropertyRows, OfAComplexPropertyThatIsInItselfEnd)
{
    complex->HasProperties.edit([this](auto& members) { members.push_back(complex); });

    EXPECT_EQ(of(complex).tree(), "Paint = Name\n"
                                  "  HasProperties [group] [list]\n"
                                  "    Z = Name\n"
                                  "    A = Name\n");
}

TEST_F(PropertyRows, OfAComplexPropertyLabelTheirHeading)
{
    EXPECT_EQ(of(complex).name("HasProperties"), "HasProperties");
    EXPECT_EQ(of(complex).description("HasProperties"), "IfcComplexProperty.HasProperties_Description");
    texts.add("IfcComplexProperty.HasProperties", "Members");
    texts.add("IfcComplexProperty.HasProperties_Description", "What belongs together");
    EXPECT_EQ(of(complex).name("HasProperties"), "Members");
    EXPECT_EQ(of(complex).description("HasProperties"), "What belongs together");
    EXPECT_EQ(of(complex).name("UsageName"), "UsageName");
    EXPECT_EQ(of(complex).description("UsageName"), "");
}

TEST_F(PropertyRows, ShowTheNameOfAPropertyWithoutAValueOfItsOwn)
{
    EXPECT_EQ(of(complex).value("Name"), PropertyValue("Paint"));
}

TEST_F(PropertyRows, ReportAnIdThatNoKindOfPropertyKnows)
{
    EXPECT_EQ(of(complex).value("UsageName"), PropertyValue());
    expectReport("Property of IfcComplexProperty has not been implemented.",
                 "qev::fc::ui::propertyinterface::GetValue::visit",
                 std::string(folder) + "PropertyInterfaceVisitFcProperty");
}

TEST_F(PropertyRows, ReportEachVisitFromItsOwnLine)
{
    auto const member = complex->HasProperties->get()[0];
    static_cast<void>(of(complex).value("UsageName"));
    of(member).set("Specification", std::optional<std::string>("agreed"));
    auto const reports = takeReports();
    ASSERT_EQ(reports.size(), 2u);
    EXPECT_EQ(reports[0].path, reports[1].path);
    EXPECT_NE(reports[0].line, reports[1].line);
    EXPECT_EQ(reports[0].kind, 0u);
    EXPECT_EQ(reports[1].kind, 1u);
}

TEST_F(PropertyRows, LabelAPropertyByItsSetAndName)
{
    EXPECT_EQ(of(complex).name("Name"), "Paint");
    EXPECT_EQ(of(complex).description("Name"), "Own.Paint_Description");
    texts.add("Own.Paint", "Anstrich");
    texts.add("Own.Paint_Description", "Farbe und Aufbau");
    EXPECT_EQ(of(complex).name("Name"), "Anstrich");
    EXPECT_EQ(of(complex).description("Name"), "Farbe und Aufbau");
}

TEST_F(PropertyRows, LabelAPropertyByTheFirstOfItsSetsThatHasAName)
{
    texts.add("Second.Paint", "Anstrich");
    auto const second = model.addSet(model.wall("W2"), "Second");
    second->HasProperties.addProperty(complex);
    EXPECT_EQ(of(complex).name("Name"), "Paint");
    set->Name = std::nullopt;
    EXPECT_EQ(of(complex).name("Name"), "Anstrich");
}

TEST_F(PropertyRows, LabelAPropertyThatIsInNoSetByItsName)
{
    auto const member = complex->HasProperties->get()[0];
    EXPECT_EQ(of(member).name("Name"), "Z");
    EXPECT_EQ(of(member).description("Name"), "");
    set->Name = std::nullopt;
    EXPECT_EQ(of(complex).name("Name"), "Paint");
    EXPECT_EQ(of(complex).description("Name"), "");
}

TEST_F(PropertyRows, WriteNothingOfAComplexProperty)
{
    of(complex).set("Name", PropertyValue("Other"));

    expectReport("Not implemented", setValueName,
                 std::string(folder) + "PropertyInterfaceVisitFcComplexProperty");
    EXPECT_EQ(complex->Name.get(), "Paint");
}

TEST_F(PropertyRows, ReportWritingAnAttributeOfAProperty)
{
    auto const member = complex->HasProperties->get()[0];

    of(member).set("Specification", std::optional<std::string>("agreed"));

    expectReport("Not implemented", setValueName, std::string(folder) + "PropertyInterfaceVisitFcProperty");
    EXPECT_EQ(member->Specification.get(), "agreed");
}

struct ExtendedPropertyRows : PropertyRows
{
    std::shared_ptr<FcMaterialProperties> extended = std::make_shared<FcMaterialProperties>();

    ExtendedPropertyRows()
    {
        extended->Name = "Pset_MaterialCommon";
        extended->Properties.edit([](auto& members) {
            members.push_back(singleValue("Z", label("z")));
            members.push_back(singleValue("A", label("a")));
        });
        model.data()->entityAdd(extended, false);
    }
};

TEST_F(ExtendedPropertyRows, AddThePropertiesToTheAttributes)
{
    auto const nodes = of(extended).nodes();

    EXPECT_EQ(treeText(nodes), "MaterialProperties = FcBaseGroupProperty [group]\n"
                               "  Name\n"
                               "  Description\n"
                               "  Properties [group] [list]\n"
                               "    Z = Name\n"
                               "    A = Name\n");
    EXPECT_EQ(nodes[0]->children[2]->object, extended);
}

TEST_F(ExtendedPropertyRows, LabelTheirHeading)
{
    EXPECT_EQ(of(extended).name("Properties"), "Properties");
    EXPECT_EQ(of(extended).description("Properties"), "IfcExtendedProperties.Properties_Description");
    texts.add("IfcExtendedProperties.Properties", "Values");
    texts.add("IfcExtendedProperties.Properties_Description", "Of the material");
    EXPECT_EQ(of(extended).name("Properties"), "Values");
    EXPECT_EQ(of(extended).description("Properties"), "Of the material");
    EXPECT_EQ(of(extended).name("Description"), "Description");
    EXPECT_EQ(of(extended).description("Description"), "");
}

TEST_F(ExtendedPropertyRows, WriteNothing)
{
    of(extended).set("Name", std::optional<std::string>("Other"));

    expectReport("Not implemented", setValueName,
                 std::string(folder) + "PropertyInterfaceVisitFcExtendedProperties");
    EXPECT_EQ(extended->Name.get(), "Pset_MaterialCommon");
}

} // namespace
