#include "FoundationClasses/Core/ProductExtension/FcElementQuantity.h"

#include "FoundationClasses/Core/Kernel/FcRelDefinesByProperties.h"
#include "FoundationClasses/Resource/Quantity/FcPhysicalComplexQuantity.h"
#include "FoundationClasses/Resource/Quantity/FcPhysicalSimpleQuantity.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWallType.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "library/kit/EntityProperties.h"
#include "library/kit/TranslationScope.h"
#include "UI/FoundationClasses/PropertyInterface/FcPropertyWrapper.h"

#include <gtest/gtest.h>

namespace {

using namespace qev;
using namespace qev::test;
using fc::core::productextension::FcElementQuantity;
using fc::resource::quantity::FcPhysicalComplexQuantity;
using object::PropertyId;
using object::PropertyValue;

constexpr char folder[] = "UI/FoundationClasses/PropertyInterface/";

struct QuantityRows : testing::Test
{
    TranslationScope texts;
    Model model;
    std::shared_ptr<fc::shared::sharedbldgelements::FcWall> wall = model.wall("W1");
    std::shared_ptr<FcElementQuantity> set =
        model.addQuantities(wall, "Own", {{"Width", 0.3}, {"Area", 12.5, QuantityKind::Area}});
    std::shared_ptr<FcPhysicalComplexQuantity> layers = std::make_shared<FcPhysicalComplexQuantity>();

    EntityProperties of(std::shared_ptr<fc::FcBase> const& entity) const { return {model.data(), entity}; }
    void addLayers()
    {
        layers->Name = "Layers";
        layers->Discrimination = "layer";
        layers->HasQuantities.edit([](auto& parts) {
            parts.push_back(quantity({"Brick", 0.2}));
            parts.push_back(quantity({"Air", 0.1}));
        });
        set->Quantities.edit([this](auto& members) { members.push_back(layers); });
    }
};

// --- Rows -------------------------------------------------------------------------------------------

TEST_F(QuantityRows, StandBelowAHeadingOfTheSetsName)
{
    auto const nodes = of(set).nodes();

    EXPECT_EQ(treeText(nodes), "Own = PropertySetDefinitionPsets [group]\n"
                               "  Area\n"
                               "  Width\n");
    EXPECT_EQ(nodes[0]->object, set);
    EXPECT_EQ(nodes[0]->children[0]->object, set);
}

TEST_F(QuantityRows, StandInTheOrderOfTheDefinition)
{
    auto const base =
        model.addQuantities(wall, "Qto_WallBaseQuantities",
                            {{"Height", 2.5}, {"Area", 1.0, QuantityKind::Area}, {"Length", 4.0}});

    EXPECT_EQ(of(base).tree(), "Qto_WallBaseQuantities = PropertySetDefinitionPsets [group]\n"
                               "  Length\n"
                               "  Height\n"
                               "  Area\n");
}

TEST_F(QuantityRows, OfAComplexQuantityHoldItsParts)
{
    addLayers();

    auto const nodes = of(set).nodes();

    EXPECT_EQ(treeText(nodes), "Own = PropertySetDefinitionPsets [group]\n"
                               "  Area\n"
                               "  Layers [group] [list]\n"
                               "    PhysicalComplexQuantity = FcBaseGroupProperty [group]\n"
                               "      Name\n"
                               "      Description\n"
                               "      Discrimination\n"
                               "      Quality\n"
                               "      Usage\n"
                               "      Air\n"
                               "      Brick\n"
                               "  Width\n");
    EXPECT_EQ(nodeAt(nodes, "Own/Layers")->object, set);
    EXPECT_EQ(nodeAt(nodes, "Own/Layers/PhysicalComplexQuantity/Air")->object, layers);
}

TEST_F(QuantityRows, OfASetWithoutANameAreNone)
{
    set->Name = std::nullopt;
    EXPECT_EQ(of(set).tree(), "");
    EXPECT_EQ(of(set).name("PropertySetDefinitionPsets"), "");
}

TEST_F(QuantityRows, OfAnEmptySetSayThatItIsEmpty)
{
    texts.add("emptyProperty", "not asked for");
    auto const empty = model.addQuantities(wall, "Empty");

    auto const nodes = of(empty).nodes();

    EXPECT_EQ(treeText(nodes), "Empty = PropertySetDefinitionPsets [group]\n"
                               "  emptyProperty\n");
    EXPECT_EQ(nodes[0]->children[0]->object, empty);
    EXPECT_EQ(of(empty).name("emptyProperty"), "Empty quantity set");
    EXPECT_EQ(of(empty).value("emptyProperty"), PropertyValue());
}

TEST_F(QuantityRows, AreReachedByPaths)
{
    addLayers();
    fc::ui::propertyinterface::FcPropertyWrapper wrapper(model.data(), wall);

    EXPECT_EQ(wrapper.getValue(PropertyId("PropertySets.Own.Width")), PropertyValue(std::optional(0.3)));
    EXPECT_EQ(wrapper.getValue(PropertyId("PropertySets.Own.Layers.0.Air")),
              PropertyValue(std::optional(0.1)));
    EXPECT_EQ(wrapper.getPropertyName(PropertyId("PropertySets.Own")), "Own");
}

// --- Answers ----------------------------------------------------------------------------------------

TEST_F(QuantityRows, ShowTheValuesOfSimpleMembers)
{
    addLayers();
    EXPECT_EQ(of(set).value("Area"), PropertyValue(std::optional(12.5)));
    EXPECT_EQ(of(layers).value("Brick"), PropertyValue(std::optional(0.2)));
    EXPECT_EQ(of(set).value("Name"), PropertyValue(std::optional<std::string>("Own")));
    EXPECT_EQ(of(layers).value("Discrimination"), PropertyValue("layer"));
}

TEST_F(QuantityRows, ReportAReadOfAComplexMember)
{
    addLayers();
    auto const inner = std::make_shared<FcPhysicalComplexQuantity>();
    inner->Name = "Inner";
    layers->HasQuantities.edit([&inner](auto& parts) { parts.push_back(inner); });
    constexpr char text[] = "GetValue not implemented for FcPhysicalComplexQuantity";
    constexpr char function[] = "qev::fc::ui::propertyinterface::GetValue::visit";

    EXPECT_EQ(of(set).value("Layers"), PropertyValue());
    expectReport(text, function, std::string(folder) + "PropertyInterfaceVisitFcElementQuantity");
    EXPECT_EQ(of(layers).value("Inner"), PropertyValue());
    expectReport(text, function, std::string(folder) + "PropertyInterfaceVisitFcPhysicalComplexQuantity");
}

TEST_F(QuantityRows, AreLabelledBySetAndName)
{
    addLayers();
    EXPECT_EQ(of(set).name("Width"), "Width");
    texts.add("Own.Width", "Breite");
    EXPECT_EQ(of(set).name("Width"), "Breite");
    EXPECT_EQ(of(set).name("Layers"), "Layers");
    EXPECT_EQ(of(layers).name("Air"), "Air");
    EXPECT_EQ(of(set).name("MethodOfMeasurement"), "MethodOfMeasurement");
    EXPECT_EQ(of(layers).name("Usage"), "Usage");
}

TEST_F(QuantityRows, DescribeMembersInTheirOwnWords)
{
    addLayers();
    EXPECT_EQ(of(set).description("Width"), "");
    EXPECT_EQ(of(layers).description("Air"), "");
    set->Quantities->get()[0]->Description = "Of the core";
    layers->HasQuantities->get()[1]->Description = "Between";
    EXPECT_EQ(of(set).description("Width"), "Of the core");
    EXPECT_EQ(of(layers).description("Air"), "Between");
    EXPECT_EQ(of(set).description("MethodOfMeasurement"), "");
    EXPECT_EQ(of(layers).description("Usage"), "");
}

TEST_F(QuantityRows, HaveThePresentationOfTheirMeasure)
{
    addLayers();
    EXPECT_TRUE(of(set).hasQuantity("Width"));
    EXPECT_TRUE(of(set).hasQuantity("anything"));
    EXPECT_TRUE(of(layers).hasQuantity("Air"));
    EXPECT_TRUE(of(layers).hasQuantity("anything"));
    EXPECT_EQ(of(set).quantity("Width"), 0.3);
    EXPECT_EQ(of(layers).quantity("Air"), 0.1);
    EXPECT_EQ(of(set).quantity("Layers"), std::nullopt);
    EXPECT_EQ(of(set).quantity("anything"), std::nullopt);
    EXPECT_EQ(of(layers).quantity("anything"), std::nullopt);
}

// --- Edits ------------------------------------------------------------------------------------------

TEST_F(QuantityRows, WriteSimpleMembers)
{
    of(set).set("Area", std::optional(20.0));
    EXPECT_EQ(of(set).value("Area"), PropertyValue(std::optional(20.0)));
    EXPECT_EQ(of(set).value("Width"), PropertyValue(std::optional(0.3)));
}

TEST_F(QuantityRows, GoWithTheirValue)
{
    of(set).set("Area", std::optional<double>());
    EXPECT_EQ(of(set).tree(), "Own = PropertySetDefinitionPsets [group]\n"
                              "  Width\n");
    EXPECT_EQ(wall->getPropertySetDefinitionNonConst<FcElementQuantity>("Own"), set);
}

TEST_F(QuantityRows, TakeTheSetAlongWhenTheyAreTheLast)
{
    auto const type = model.wallType("T1");
    type->HasPropertySets = fc::ReferenceList<fc::core::kernel::FcPropertySetDefinition>({set});
    auto const relation = set->DefinesOccurrence().at(0).lock();

    of(set).set("Area", std::optional<double>());
    of(set).set("Width", std::optional<double>());

    EXPECT_FALSE(of(set).isPresent());
    EXPECT_FALSE(of(relation).isPresent());
    EXPECT_EQ(type->HasPropertySets.get(), std::nullopt);
    EXPECT_EQ(wall->getPropertySetDefinitionNonConst<FcElementQuantity>("Own"), nullptr);
    model.data()->changes().undo();
    EXPECT_EQ(of(set).tree(), "Own = PropertySetDefinitionPsets [group]\n"
                              "  Width\n");
    EXPECT_EQ(wall->getPropertySetDefinitionNonConst<FcElementQuantity>("Own"), set);
}

TEST_F(QuantityRows, GoAfterAReportWithAValueOfAnotherKind)
{
    of(set).set("Width", 5.0);
    expectReport("Property value doesn't hold the given type.", "qev::object::PropertyValue::get",
                 "Object/PropertyValue");
    EXPECT_EQ(of(set).tree(), "Own = PropertySetDefinitionPsets [group]\n"
                              "  Area\n");
}

TEST_F(QuantityRows, ReportWritingAComplexMember)
{
    addLayers();
    of(set).set("Layers", std::optional(5.0));
    expectReport("SetValue not implemented for FcPhysicalComplexQuantity",
                 "qev::fc::ui::propertyinterface::SetValue::visit",
                 std::string(folder) + "PropertyInterfaceVisitFcElementQuantity");
}

TEST_F(QuantityRows, WriteNothingOfAComplexQuantity)
{
    addLayers();
    of(layers).set("Air", std::optional(5.0));
    of(layers).set("Name", "Other");
    EXPECT_EQ(of(layers).value("Air"), PropertyValue(std::optional(0.1)));
    EXPECT_EQ(layers->Name.get(), "Layers");
}

TEST_F(QuantityRows, LeaveOtherIdsToTheAttributes)
{
    of(set).set("MethodOfMeasurement", std::optional<std::string>("by hand"));
    EXPECT_EQ(set->MethodOfMeasurement.get(), "by hand");
}

} // namespace
