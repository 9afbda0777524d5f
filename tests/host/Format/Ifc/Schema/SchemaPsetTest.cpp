#include "Format/Ifc/Schema/SchemaPset.h"

#include "Format/Ifc/Schema/Pset/PropertySetDef.h"
#include "Format/Ifc/Schema/Pset/TypePropertyEnumeratedValue.h"
#include "Format/Ifc/Schema/Pset/TypePropertySingleValue.h"
#include "Format/Ifc/Schema/Qto/QuantitySetDef.h"
#include "Format/Ifc/Schema/SchemaLoader.h"
#include "Format/Ifc/Schema/SchemaText.h"
#include "Format/Ifc/Schema/SetsText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

namespace {

using namespace qev::ifc;
using namespace qev::ifc::def;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

SchemaPset& standard() { return *SchemaLoader::curr().pSchemaFromName("IFC4X3_TC1"); }

SchemaPropertySetDefinitions const& standardDefinitions()
{
    SchemaPropertySetDefinitions const* definitions = nullptr;
    standard().forEachDefinition([&definitions](auto const&, auto const& all) { definitions = &all; });
    return *definitions;
}

std::vector<std::string> namesOf(std::vector<xml::SetDef const*> const& sets)
{
    std::vector<std::string> names;
    for (xml::SetDef const* const set : sets)
        names.push_back(set->name);
    return names;
}

std::vector<std::string> setsOf(char const* entity, bool withSupertypes = true)
{
    return namesOf(
        standard().getXmlSetsAllToEntity(*standard().schema().findEntity(entity), withSupertypes, {}));
}

TEST(StandardSets, AreCompleteByKind)
{
    std::map<std::string, int> kinds;
    std::size_t propertySets = 0;
    std::size_t applicable = 0;
    std::size_t entries = 0;
    for (auto const& set : standardDefinitions().sets()) {
        propertySets += std::string(set->sKind()) == "PropertySetDef" ? 1U : 0U;
        applicable += set->applicableClasses.size();
        for (xml::Def const* const entry : set->entries()) {
            ++entries;
            ++kinds[entry->typeBase()->sEntityName()];
        }
    }
    EXPECT_EQ(standardDefinitions().sets().size(), 760U);
    EXPECT_EQ(propertySets, 645U);
    EXPECT_EQ(applicable, 1578U);
    EXPECT_EQ(entries, 3988U);
    std::map<std::string, int> const expected{{"IfcPropertySingleValue", 2512},
                                              {"IfcPropertyBoundedValue", 174},
                                              {"IfcPropertyEnumeratedValue", 518},
                                              {"IfcPropertyListValue", 27},
                                              {"IfcPropertyTableValue", 121},
                                              {"IfcPropertyReferenceValue", 290},
                                              {"IfcQuantityArea", 88},
                                              {"IfcQuantityCount", 5},
                                              {"IfcQuantityLength", 103},
                                              {"IfcQuantityTime", 4},
                                              {"IfcQuantityVolume", 49},
                                              {"IfcQuantityWeight", 97}};
    EXPECT_EQ(kinds, expected);
}

TEST(StandardSets, HaveTheirTemplateTypes)
{
    std::map<std::string, int> names;
    for (auto const& set : standardDefinitions().sets())
        ++names[set->templateTypeName];
    std::map<std::string, int> const expected{
        {"PSET_MATERIALDRIVEN", 19},    {"PSET_OCCURRENCEDRIVEN", 105},   {"PSET_PERFORMANCEDRIVEN", 44},
        {"PSET_PROFILEDRIVEN", 3},      {"PSET_TYPEDRIVENOVERRIDE", 474}, {"QTO_OCCURRENCEDRIVEN", 14},
        {"QTO_TYPEDRIVENOVERRIDE", 101}};
    EXPECT_EQ(names, expected);
}

// The sets are those of a later edition, which has a few items that the model's edition lacks.
TEST(StandardSets, FitTheModelButForItemsOfTheLaterEdition)
{
    xml::XmlSetErrors errors;
    bool allFit = true;
    for (auto const& set : standardDefinitions().sets())
        allFit = set->checkForErrors(standard().schema(), errors) && allFit;
    EXPECT_FALSE(allFit);
    std::vector<std::string> places;
    for (auto const& entry : errors.entries)
        places.push_back(entry.place);
    std::vector<std::string> expected(9, "Pset_RailwayTrackStructurePart");
    expected[0] = "Pset_AnnotationContourLine";
    expected[1] = "Pset_AnnotationSurveyArea";
    expected[7] = "Pset_Superelevation";
    expected[8] = "Pset_Width";
    EXPECT_EQ(places, expected);
}

TEST(StandardSets, FitTheLaterEditionAltogether)
{
    xml::XmlSetErrors errors;
    for (auto const& set : standardDefinitions().sets())
        set->checkForErrors(*SchemaLoader::curr().classesFromName("IFC4X3_ADD2"), errors);
    EXPECT_TRUE(errors.entries.empty());
}

TEST(StandardSets, AnAggregateValueTypeIsKeptAsGiven)
{
    auto const* const entry =
        standard().pXmlSetFromName("Pset_TransformerTypeCommon")->findEntry("ShortCircuitVoltage");
    EXPECT_EQ(dynamic_cast<pset::TypePropertySingleValue const&>(*entry->typeBase()).valueType,
              "IfcComplexNumber");
}

TEST(StandardSets, AWallHasItsOwnSetsAndThoseOfItsSuperclasses)
{
    auto const sets = setsOf("IFCWALL");
    EXPECT_THAT(sets, Contains("Pset_WallCommon"));
    EXPECT_THAT(sets, Contains("Qto_WallBaseQuantities"));
    EXPECT_THAT(sets, Contains("Pset_ManufacturerTypeInformation"));
    EXPECT_THAT(sets, Contains("Pset_EnvironmentalImpactIndicators"));
    EXPECT_THAT(sets, Not(Contains("Pset_DoorCommon")));
    EXPECT_EQ(std::set<std::string>(sets.begin(), sets.end()).size(), sets.size());
}

TEST(StandardSets, WithoutSupertypesOnlyTheClassItselfCounts)
{
    auto const sets = setsOf("IFCWALL", false);
    EXPECT_THAT(sets, Contains("Pset_WallCommon"));
    EXPECT_THAT(sets, Not(Contains("Pset_ManufacturerTypeInformation")));
    EXPECT_LT(sets.size(), setsOf("IFCWALL").size());
}

TEST(StandardSets, ATypeClassHasTheSetsThatNameIt)
{
    EXPECT_THAT(setsOf("IFCWALLTYPE"), Contains("Pset_WallCommon"));
    EXPECT_THAT(setsOf("IFCWALLTYPE", false), Not(Contains("Pset_DoorCommon")));
}

TEST(StandardSets, ComeInSchemaOrder)
{
    auto const sets =
        standard().getXmlSetsAllToEntity(*standard().schema().findEntity("IFCSENSOR"), true, {});
    ASSERT_GT(sets.size(), 30U);
    std::size_t position = 0;
    auto const& all = standardDefinitions().sets();
    for (xml::SetDef const* const set : sets) {
        while (position < all.size() && all[position].get() != set)
            ++position;
        ASSERT_LT(position, all.size()) << set->name << " is out of order";
    }
}

// What the look-up gives has to be what a plain walk over all sets gives, for every class there is.
TEST(StandardSets, TheIndexAgreesWithAWalkOverAllSets)
{
    for (schema::Entity const* const entity : standard().schema().entities()) {
        std::set<std::string> classes;
        for (schema::Entity const* level = entity; level; level = level->supertype())
            classes.insert({level->name(), level->name() + "Type", "IfcType" + level->name().substr(3)});
        std::vector<std::string> expected;
        for (auto const& set : standardDefinitions().sets()) {
            auto const& applicable = set->applicableClasses;
            if (std::any_of(applicable.begin(), applicable.end(),
                            [&classes](auto const& one) { return classes.count(one.className) != 0; }))
                expected.push_back(set->name);
        }
        ASSERT_EQ(namesOf(standard().getXmlSetsAllToEntity(*entity, true, {})), expected) << entity->name();
    }
}

TEST(StandardSets, AreFoundByName)
{
    EXPECT_EQ(standard().pXmlSetFromName("Pset_WallCommon")->name, "Pset_WallCommon");
    EXPECT_EQ(standard().pXmlSetFromName("pset_wallcommon"), nullptr);
    EXPECT_EQ(standard().pXmlSetFromName(""), nullptr);
}

// A garden to change in.
class ToySets : public testing::Test
{
protected:
    static std::unique_ptr<SchemaPset> make()
    {
        auto schema = std::make_unique<SchemaPset>(
            schema::parseSchema("schema TOY\nentity IfcPlant\nentity IfcBush : IfcPlant\nentity IfcTree\n"));
        SetsTextResult sets =
            parseSets("sets TOY\nenumeration E IfcLabel = RED GREEN\n"
                      "set Pset_Plant PSET_OCCURRENCEDRIVEN\n  for IfcPlant\n"
                      "  Colour : enum E\n  Size : single IfcReal\n"
                      "set Pset_BushType PSET_TYPEDRIVENOVERRIDE\n  for IfcBushType/LOW\n"
                      "set Qto_Tree QTO_OCCURRENCEDRIVEN\n  for IfcTree\n  Height : length\n");
        schema->addDefinitions(sets.context, std::move(sets.definitions));
        return schema;
    }

    static SchemaPropertySetDefinitions definitions(std::string_view text)
    {
        return std::move(parseSets(text).definitions);
    }

    [[nodiscard]] std::vector<std::string> setsFor(char const* entity,
                                                   SchemaPset::ContextFilter const& filter = {}) const
    {
        return namesOf(schema->getXmlSetsAllToEntity(*schema->schema().findEntity(entity), true, filter));
    }

    std::unique_ptr<SchemaPset> schema = make();
};

TEST_F(ToySets, TheSetsOfATypeClassCountForItsOccurrences)
{
    EXPECT_THAT(setsFor("IFCBUSH"), ElementsAre("Pset_Plant", "Pset_BushType"));
    EXPECT_THAT(setsFor("IFCPLANT"), ElementsAre("Pset_Plant"));
}

TEST_F(ToySets, ASetWithoutClassesAppliesToEverything)
{
    schema->addDefinitions("Company", definitions("set Pset_Any PSET_OCCURRENCEDRIVEN\n"));
    EXPECT_THAT(setsFor("IFCTREE"), ElementsAre("Qto_Tree", "Pset_Any"));
}

TEST_F(ToySets, AddedSetsMakeAContextOfTheirOwn)
{
    schema->addDefinitions("Company", definitions("set Pset_New PSET_OCCURRENCEDRIVEN\n  for IfcTree\n"));
    schema->addDefinitions("Company", definitions("set Pset_Newer PSET_OCCURRENCEDRIVEN\n  for IfcTree\n"));
    std::vector<std::string> contexts;
    schema->forEachDefinition([&contexts](auto const& context, auto const& sets) {
        contexts.push_back(context.name + " " + std::to_string(sets.sets().size()) +
                           (context.isStandard ? " standard" : ""));
    });
    EXPECT_THAT(contexts, ElementsAre("TOY 3 standard", "Company 2"));
}

TEST_F(ToySets, AFilterAdmitsContexts)
{
    schema->addDefinitions("Company", definitions("set Pset_New PSET_OCCURRENCEDRIVEN\n  for IfcTree\n"));
    auto const company = [](SchemaPropertySetDefinitionsContext const& context) {
        return !context.isStandard;
    };
    EXPECT_THAT(setsFor("IFCTREE"), ElementsAre("Qto_Tree", "Pset_New"));
    EXPECT_THAT(setsFor("IFCTREE", company), ElementsAre("Pset_New"));
    EXPECT_EQ(schema->pXmlSetFromName("Pset_Plant", company), nullptr);
    EXPECT_NE(schema->pXmlSetFromName("Pset_New", company), nullptr);
    int calls = 0;
    schema->forEachDefinition([&calls](auto const&, auto const&) { ++calls; }, company);
    EXPECT_EQ(calls, 1);
}

TEST_F(ToySets, AKnownSetGainsTextsAndKeepsItsShape)
{
    auto const german = qev::locale::Locale::get(2);
    auto added = definitions("enumeration E IfcLabel = GREEN BLUE\n"
                             "set Pset_Plant PSET_TYPEDRIVENONLY\n  for IfcTree\n  Colour : enum E\n"
                             "  Other : single IfcReal\n");
    auto& set = dynamic_cast<pset::PropertySetDef&>(*added.find("Pset_Plant"));
    set.description = "A plant.";
    set.definitionAliases.set(german, "Eine Pflanze.");
    pset::PropertyDef& colour = *set.propertyDefs[0];
    colour.description = "Its colour.";
    colour.nameAliases.set(german, "Farbe");
    auto& items = dynamic_cast<pset::TypePropertyEnumeratedValue&>(*colour.propertyType);
    items.items["GREEN"].description = "Like grass.";
    items.items["BLUE"].description = "Like the sky.";
    items.valueAliases.push_back({"GREEN", {}});
    items.valueAliases.back().nameAliases.set(german, "Grün");

    xml::SetDef const* const before = schema->pXmlSetFromName("Pset_Plant");
    schema->addDefinitions("Company", std::move(added));

    xml::SetDef const* const known = schema->pXmlSetFromName("Pset_Plant");
    EXPECT_EQ(known, before);
    EXPECT_EQ(known->description, "A plant.");
    EXPECT_EQ(known->definitionAliases.sValueFromLanguage(german), "Eine Pflanze.");
    EXPECT_EQ(known->templateType, xml::TemplateType::PsetOccurrenceDriven);
    EXPECT_THAT(known->applicableClasses, ElementsAre(xml::ApplicableClass{"IfcPlant", ""}));
    EXPECT_EQ(known->findEntry("Other"), nullptr);
    xml::Def const* const entry = known->findEntry("Colour");
    EXPECT_EQ(entry->description, "Its colour.");
    EXPECT_EQ(entry->nameAliases.sValueFromLanguage(german), "Farbe");
    auto const& type = dynamic_cast<pset::TypePropertyEnumeratedValue const&>(*entry->typeBase());
    EXPECT_THAT(type.values, ElementsAre("RED", "GREEN"));
    EXPECT_EQ(type.items.at("GREEN").description, "Like grass.");
    EXPECT_EQ(type.items.count("BLUE"), 0U);
    EXPECT_EQ(type.valueAliases.at(0).nameAliases.sValueFromLanguage(german), "Grün");

    int contexts = 0;
    schema->forEachDefinition([&contexts](auto const&, auto const&) { ++contexts; });
    EXPECT_EQ(contexts, 1);
}

TEST_F(ToySets, AnEmptyTextReplacesNothing)
{
    auto first = definitions("set Qto_Tree QTO_OCCURRENCEDRIVEN\n  Height : length\n");
    dynamic_cast<qto::QuantitySetDef&>(*first.find("Qto_Tree")).quantityDefs[0]->description = "How tall.";
    schema->addDefinitions("Company", std::move(first));
    schema->addDefinitions("Company", definitions("set Qto_Tree QTO_OCCURRENCEDRIVEN\n  Height : length\n"));
    EXPECT_EQ(schema->pXmlSetFromName("Qto_Tree")->findEntry("Height")->description, "How tall.");
}

TEST_F(ToySets, ASetOfAnotherKindUnderAKnownNameIsLeftAlone)
{
    schema->addDefinitions("Company", definitions("set Pset_Plant QTO_OCCURRENCEDRIVEN\n  Size : length\n"));
    EXPECT_STREQ(schema->pXmlSetFromName("Pset_Plant")->sKind(), "PropertySetDef");
    EXPECT_EQ(schema->pXmlSetFromName("Pset_Plant")->entries().size(), 2U);
}

} // namespace
