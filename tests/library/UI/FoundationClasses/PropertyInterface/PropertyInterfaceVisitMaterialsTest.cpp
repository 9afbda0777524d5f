#include "FoundationClasses/Resource/Material/FcMaterial.h"
#include "FoundationClasses/Resource/Material/FcMaterialConstituent.h"
#include "FoundationClasses/Resource/Material/FcMaterialConstituentSet.h"
#include "FoundationClasses/Resource/Material/FcMaterialLayerSet.h"
#include "FoundationClasses/Resource/Material/FcMaterialLayerSetUsage.h"
#include "FoundationClasses/Resource/Material/FcMaterialLayerWithOffsets.h"
#include "FoundationClasses/Resource/Material/FcMaterialProfile.h"
#include "FoundationClasses/Resource/Material/FcMaterialProperties.h"
#include "FoundationClasses/Resource/Property/FcPropertySingleValue.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "library/kit/EntityProperties.h"
#include "library/kit/TranslationScope.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"

#include <gtest/gtest.h>

namespace {

using namespace qev;
using namespace qev::test;
using namespace fc::resource::material;
using object::PropertyValue;

struct MaterialRows : testing::Test
{
    TranslationScope texts;
    Model model;

    template <class T>
    std::shared_ptr<T> add()
    {
        auto entity = std::make_shared<T>();
        model.data()->entityAdd(entity, false);
        return entity;
    }
    std::shared_ptr<FcMaterial> material(std::string const& name)
    {
        auto result = add<FcMaterial>();
        result->Name = name;
        return result;
    }
    std::shared_ptr<FcMaterialLayer> layer(std::shared_ptr<FcMaterial> const& ofMaterial)
    {
        auto result = add<FcMaterialLayer>();
        result->Material = ofMaterial;
        return result;
    }
    EntityProperties of(std::shared_ptr<fc::FcBase> const& entity) const { return {model.data(), entity}; }

    /// Expects the texts of a row: first those without a dictionary, then those that stand in one.
    void expectTexts(std::shared_ptr<fc::FcBase> const& entity, std::string const& id, std::string const& key,
                     std::string const& name, std::string const& description)
    {
        EXPECT_EQ(of(entity).name(id), name);
        EXPECT_EQ(of(entity).description(id), description);
        texts.add(key, "label of " + key);
        texts.add(key + "_Description", "about " + key);
        EXPECT_EQ(of(entity).name(id), "label of " + key);
        EXPECT_EQ(of(entity).description(id), "about " + key);
        EXPECT_EQ(of(entity).name("Description"), "Description");
        EXPECT_EQ(of(entity).description("Description"), "");
    }
    void expectNotImplemented(std::string const& entityClass) const
    {
        expectReport("Not implemented", "qev::fc::ui::propertyinterface::SetValue::visit",
                     "UI/FoundationClasses/PropertyInterface/PropertyInterfaceVisit" + entityClass);
    }
};

// --- Materials --------------------------------------------------------------------------------------

TEST_F(MaterialRows, OfAMaterialHoldItsProperties)
{
    auto const brick = material("Brick");
    for (char const* const name : {"Pset_MaterialThermal", "Pset_MaterialCommon"}) {
        auto const set = add<FcMaterialProperties>();
        set->Name = name;
        set->Material = brick;
        set->Properties.edit([name](auto& members) { members.push_back(singleValue(name, real(1))); });
    }

    auto const nodes = of(brick).nodes();

    EXPECT_EQ(treeText(nodes), "Material = FcBaseGroupProperty [group]\n"
                               "  Name\n"
                               "  Description\n"
                               "  Category\n"
                               "  Properties [group] [list]\n"
                               "    MaterialProperties = FcBaseGroupProperty [group]\n"
                               "      Name\n"
                               "      Description\n"
                               "      Properties [group] [list]\n"
                               "        Pset_MaterialThermal = Name\n"
                               "    MaterialProperties = FcBaseGroupProperty [group]\n"
                               "      Name\n"
                               "      Description\n"
                               "      Properties [group] [list]\n"
                               "        Pset_MaterialCommon = Name\n");
    EXPECT_EQ(nodes[0]->children[3]->object, brick);
}

TEST_F(MaterialRows, OfAMaterialHaveAHeadingForNoProperties)
{
    EXPECT_EQ(of(material("Brick")).tree(), "Material = FcBaseGroupProperty [group]\n"
                                            "  Name\n"
                                            "  Description\n"
                                            "  Category\n"
                                            "  Properties [group] [list]\n");
}

TEST_F(MaterialRows, LabelTheProperties)
{
    expectTexts(material("Brick"), "Properties", "IfcMaterial.HasProperties", "HasProperties",
                "Properties of the material");
}

// --- Layers -----------------------------------------------------------------------------------------

TEST_F(MaterialRows, OfALayerHoldItsMaterial)
{
    EXPECT_EQ(of(layer(material("Brick"))).tree(), "MaterialLayer = FcBaseGroupProperty [group]\n"
                                                   "  LayerThickness\n"
                                                   "  IsVentilated\n"
                                                   "  Name [part]\n"
                                                   "  Description\n"
                                                   "  Category\n"
                                                   "  Priority\n"
                                                   "  Material = FcBaseGroupProperty [group]\n"
                                                   "    Name\n"
                                                   "    Description\n"
                                                   "    Category\n"
                                                   "    Properties [group] [list]\n");
}

TEST_F(MaterialRows, OfALayerWithoutAMaterialAreItsAttributes)
{
    EXPECT_EQ(of(layer(nullptr)).tree(), "MaterialLayer = FcBaseGroupProperty [group]\n"
                                         "  LayerThickness\n"
                                         "  IsVentilated\n"
                                         "  Name [part]\n"
                                         "  Description\n"
                                         "  Category\n"
                                         "  Priority\n");
}

TEST_F(MaterialRows, HeadALayerByItsName)
{
    auto const outer = layer(nullptr);
    expectTexts(outer, "FcBaseGroupProperty", "IfcMaterialLayer", "IfcMaterialLayer", "Material layer");
    outer->Name = "Outer";
    EXPECT_EQ(of(outer).name("FcBaseGroupProperty"), "Outer");
    EXPECT_EQ(of(add<FcMaterialLayerWithOffsets>()).name("FcBaseGroupProperty"), "label of IfcMaterialLayer");
}

TEST_F(MaterialRows, OfALayerSetHoldItsLayers)
{
    auto const set = add<FcMaterialLayerSet>();
    EXPECT_EQ(of(set).tree(), "MaterialLayerSet = FcBaseGroupProperty [group]\n"
                              "  LayerSetName\n"
                              "  Description\n"
                              "  MaterialLayers [group] [list]\n");
    auto const first = layer(nullptr);
    auto const second = layer(nullptr);
    set->MaterialLayers.edit([&](auto& layers) {
        layers.push_back(first);
        layers.push_back(second);
    });

    auto const nodes = of(set).nodes();

    auto const list = nodeAt(nodes, "MaterialLayerSet/MaterialLayers");
    EXPECT_EQ(list->object, set);
    EXPECT_EQ(childIds(*list), (std::vector<std::string>{"MaterialLayer", "MaterialLayer"}));
    EXPECT_EQ(list->children[1]->object, second);
}

TEST_F(MaterialRows, ShowALayerSetByNameAndDescription)
{
    auto const set = add<FcMaterialLayerSet>();
    set->MaterialLayers.edit([this](auto& layers) { layers.push_back(layer(nullptr)); });
    EXPECT_EQ(of(set).value("MaterialLayers"), PropertyValue(""));
    set->Description = "two leaves";
    EXPECT_EQ(of(set).value("MaterialLayers"), PropertyValue("two leaves"));
    set->LayerSetName = "Cavity wall";
    EXPECT_EQ(of(set).value("MaterialLayers"), PropertyValue("Cavity wall - two leaves"));
    set->Description = std::nullopt;
    EXPECT_EQ(of(set).value("MaterialLayers"), PropertyValue("Cavity wall"));
    EXPECT_EQ(of(set).value("LayerSetName"), PropertyValue(std::optional<std::string>("Cavity wall")));
}

TEST_F(MaterialRows, SendTheQuestionForLayersAloneOnToTheBaseClass)
{
    fc::ui::propertyinterface::GetValue layers(*model.data(), object::PropertyId("MaterialLayers"), {});
    EXPECT_TRUE(layers.visit(*add<FcMaterialLayerSet>()));
    EXPECT_EQ(layers.value, PropertyValue(""));
    fc::ui::propertyinterface::GetValue constituents(*model.data(),
                                                     object::PropertyId("MaterialConstituents"), {});
    EXPECT_FALSE(constituents.visit(*add<FcMaterialConstituentSet>()));
    EXPECT_EQ(constituents.value, PropertyValue(""));
}

TEST_F(MaterialRows, LabelTheLayers)
{
    expectTexts(add<FcMaterialLayerSet>(), "MaterialLayers", "IfcMaterialLayerSet.MaterialLayers",
                "MaterialLayers", "Material layers");
}

TEST_F(MaterialRows, OfAUsageHoldItsLayerSet)
{
    auto const usage = add<FcMaterialLayerSetUsage>();
    EXPECT_EQ(of(usage).tree(), "MaterialLayerSetUsage = FcBaseGroupProperty [group]\n"
                                "  LayerSetDirection\n"
                                "  DirectionSense\n"
                                "  OffsetFromReferenceLine\n"
                                "  ReferenceExtent\n"
                                "  ForLayerSet [group] [list]\n");
    auto const set = add<FcMaterialLayerSet>();
    usage->ForLayerSet = set;

    auto const nodes = of(usage).nodes();

    auto const list = nodeAt(nodes, "MaterialLayerSetUsage/ForLayerSet");
    EXPECT_EQ(list->object, usage);
    EXPECT_EQ(childIds(*list), std::vector<std::string>{"MaterialLayerSet"});
    EXPECT_EQ(list->children[0]->object, set);
    EXPECT_EQ(of(usage).name("ForLayerSet"), "ForLayerSet");
}

// --- Constituents -----------------------------------------------------------------------------------

TEST_F(MaterialRows, OfAConstituentHoldItsMaterial)
{
    auto const frame = add<FcMaterialConstituent>();
    EXPECT_EQ(of(frame).tree(), "MaterialConstituent = FcBaseGroupProperty [group]\n"
                                "  Name [part]\n"
                                "  Description\n"
                                "  Fraction\n"
                                "  Category\n");
    frame->Material = material("Oak");
    EXPECT_EQ(childIds(*of(frame).nodes()[0]).back(), "Material");
}

TEST_F(MaterialRows, HeadAConstituentByItsName)
{
    auto const frame = add<FcMaterialConstituent>();
    expectTexts(frame, "FcBaseGroupProperty", "IfcMaterialConstituent", "IfcMaterialConstituent",
                "Material constituent");
    frame->Name = "Frame";
    EXPECT_EQ(of(frame).name("FcBaseGroupProperty"), "Frame");
}

TEST_F(MaterialRows, OfAConstituentSetHoldItsConstituents)
{
    auto const set = add<FcMaterialConstituentSet>();
    EXPECT_EQ(of(set).tree(), "MaterialConstituentSet = FcBaseGroupProperty [group]\n"
                              "  Name\n"
                              "  Description\n"
                              "  MaterialConstituents [group] [list]\n");
    auto const frame = add<FcMaterialConstituent>();
    set->MaterialConstituents = fc::ReferenceList<FcMaterialConstituent>({frame});

    auto const nodes = of(set).nodes();

    auto const list = nodeAt(nodes, "MaterialConstituentSet/MaterialConstituents");
    EXPECT_EQ(list->object, set);
    ASSERT_EQ(list->children.size(), 1U);
    EXPECT_EQ(list->children[0]->object, frame);
}

TEST_F(MaterialRows, ShowAConstituentSetByNameAndDescription)
{
    auto const set = add<FcMaterialConstituentSet>();
    EXPECT_EQ(of(set).value("MaterialConstituents"), PropertyValue(""));
    set->Name = "Window";
    set->Description = "wood and glass";
    EXPECT_EQ(of(set).value("MaterialConstituents"), PropertyValue("Window - wood and glass"));
    EXPECT_EQ(of(set).value("Name"), PropertyValue(std::optional<std::string>("Window")));
}

TEST_F(MaterialRows, LabelTheConstituents)
{
    expectTexts(add<FcMaterialConstituentSet>(), "MaterialConstituents",
                "IfcMaterialConstituentSet.MaterialConstituents", "MaterialConstituents", "Material layers");
}

// --- Profiles ---------------------------------------------------------------------------------------

TEST_F(MaterialRows, OfAProfileHoldItsMaterial)
{
    auto const beam = add<FcMaterialProfile>();
    EXPECT_EQ(of(beam).tree(), "Name = FcBaseGroupProperty [group]\n"
                               "  Name\n"
                               "  Description\n"
                               "  Priority\n"
                               "  Category\n");
    beam->Material = material("Steel");
    EXPECT_EQ(childIds(*of(beam).nodes()[0]).back(), "Material");
}

TEST_F(MaterialRows, HeadAProfileByItsName)
{
    auto const beam = add<FcMaterialProfile>();
    expectTexts(beam, "FcBaseGroupProperty", "IfcMaterialProfile", "IfcMaterialProfile", "Material profile");
    beam->Name = "IPE 200";
    EXPECT_EQ(of(beam).name("FcBaseGroupProperty"), "IPE 200");
}

// --- Edits ------------------------------------------------------------------------------------------

TEST_F(MaterialRows, ReportWritingToSetsUsagesAndProfiles)
{
    PropertyValue const value = std::optional<std::string>("x");
    of(add<FcMaterialLayerSet>()).set("MaterialLayers", value);
    expectNotImplemented("FcMaterialLayerSet");
    of(add<FcMaterialLayerSetUsage>()).set("ForLayerSet", value);
    expectNotImplemented("FcMaterialLayerSetUsage");
    of(add<FcMaterialConstituentSet>()).set("MaterialConstituents", value);
    expectNotImplemented("FcMaterialConstituentSet");
    of(add<FcMaterialProfile>()).set("Material", value);
    expectNotImplemented("FcMaterialProfile");
}

TEST_F(MaterialRows, StillWriteTheAttributesThatWereReported)
{
    auto const set = add<FcMaterialLayerSet>();
    of(set).set("LayerSetName", std::optional<std::string>("Cavity wall"));
    expectNotImplemented("FcMaterialLayerSet");
    EXPECT_EQ(set->LayerSetName.get(), "Cavity wall");

    auto const usage = add<FcMaterialLayerSetUsage>();
    of(usage).set("ReferenceExtent", std::optional(2.5));
    expectNotImplemented("FcMaterialLayerSetUsage");
    EXPECT_EQ(usage->ReferenceExtent.get(), 2.5);

    auto const constituents = add<FcMaterialConstituentSet>();
    of(constituents).set("Name", std::optional<std::string>("Window"));
    expectNotImplemented("FcMaterialConstituentSet");
    EXPECT_EQ(constituents->Name.get(), "Window");

    auto const profile = add<FcMaterialProfile>();
    of(profile).set("Category", std::optional<std::string>("LoadBearing"));
    expectNotImplemented("FcMaterialProfile");
    EXPECT_EQ(profile->Category.get(), "LoadBearing");
}

TEST_F(MaterialRows, WriteTheAttributesOfALayer)
{
    auto const outer = layer(nullptr);
    of(outer).set("Name", std::optional<std::string>("Outer"));
    of(outer).set("LayerThickness", 0.1);
    EXPECT_EQ(outer->Name.get(), "Outer");
    EXPECT_EQ(outer->LayerThickness.get(), 0.1);
}

} // namespace
