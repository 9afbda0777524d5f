#include "Format/Ifc/Model/IfcFile.h"

#include "FoundationClasses/Core/Kernel/FcObject.h"
#include "FoundationClasses/Core/Kernel/FcProject.h"
#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Core/Kernel/FcRelAssignsToGroup.h"
#include "FoundationClasses/Core/Kernel/FcRelAssociatesClassification.h"
#include "FoundationClasses/Core/Kernel/FcRelDefinesByProperties.h"
#include "FoundationClasses/Core/Kernel/FcRelDefinesByType.h"
#include "FoundationClasses/Core/Kernel/FcTypeObject.h"
#include "FoundationClasses/Core/ProductExtension/FcElementQuantity.h"
#include "FoundationClasses/Resource/Property/FcPropertySingleValue.h"
#include "FoundationClasses/Resource/Utility/FcOwnerHistory.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcDoorType.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "IfcText.h"
#include "TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

using namespace qev;
using fc::core::kernel::FcPropertySet;
using fc::core::kernel::FcRelAssociatesClassification;
using fc::resource::property::FcPropertySingleValue;
using fc::shared::sharedbldgelements::FcWall;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

std::string const wallWithSet =
    "#1=IFCPROJECT('0YvctVUKr0kugbFTf53O9L',$,'P',$,$,$,$,$,$);\n"
    "#5 = IFCWALL ( '2YvctVUKr0kugbFTf53O9L' , $ , 'W1' , $ , $ , $ , $ , 'tag' , .SOLIDWALL. ) ;\n"
    "#6=IFCPROPERTYSET('3YvctVUKr0kugbFTf53O9L',$,'Pset_WallCommon',$,(#7,#8));\n"
    "#7=IFCPROPERTYSINGLEVALUE('FireRating',$,IFCLABEL('F30'),$);\n"
    "#8=IFCPROPERTYSINGLEVALUE('LoadBearing',$,IFCBOOLEAN(.T.),$);\n"
    "#9=IFCRELDEFINESBYPROPERTIES('4YvctVUKr0kugbFTf53O9L',$,$,$,(#5),#6);\n";

std::unique_ptr<ifc::IfcFile> open(std::string const& records, std::string const& schema = "IFC4")
{
    return std::move(ifc::IfcFile::fromText(test::ifcText(schema, records)).file);
}

std::shared_ptr<FcWall> wallOf(ifc::IfcFile const& file)
{
    return fc::entityCast<FcWall>(file.entityFromId(5));
}

std::shared_ptr<FcPropertySingleValue> propertyOf(FcWall& wall, std::string const& name)
{
    auto const set = wall.getPropertySetDefinitionNonConst<FcPropertySet>("Pset_WallCommon");
    for (auto const& property : set->HasProperties.getProperties()) {
        if (property->Name.get() == name)
            return fc::entityCast<FcPropertySingleValue>(property);
    }
    return nullptr;
}

/// The lines that two texts do not share, "-" before those of the first.
std::vector<std::string> difference(std::string const& before, std::string const& after)
{
    auto const linesOf = [](std::string const& text) {
        std::vector<std::string> lines;
        std::istringstream stream(text);
        for (std::string line; std::getline(stream, line);)
            lines.push_back(line);
        return lines;
    };
    auto old = linesOf(before);
    auto now = linesOf(after);
    std::vector<std::string> result;
    for (auto const& line : old) {
        if (std::find(now.begin(), now.end(), line) == now.end())
            result.push_back("-" + line);
    }
    for (auto const& line : now) {
        if (std::find(old.begin(), old.end(), line) == old.end())
            result.push_back("+" + line);
    }
    return result;
}

TEST(IfcFile, ReadsAttributesOfAnEntity)
{
    auto const file = open(wallWithSet);
    auto const wall = wallOf(*file);
    ASSERT_TRUE(wall);
    EXPECT_EQ(wall->Name.get(), "W1");
    EXPECT_EQ(wall->Tag.get(), "tag");
    EXPECT_STREQ(wall->getPredefinedTypeText(), "SOLIDWALL");
    EXPECT_EQ(wall->Description.get(), std::nullopt);
}

TEST(IfcFile, TellsNamesOfSetsFromTheirRecords)
{
    std::string const records =
        "#5=IFCWALL('2YvctVUKr0kugbFTf53O9L',$,$,$,$,$,$,$,$);\n"
        "#6=IFCPROPERTYSET('3YvctVUKr0kugbFTf53O9L',$,'R\\X2\\00E4\\X0\\ume, #5',$,());\n"
        "#7=IFCPROPERTYSET('5YvctVUKr0kugbFTf53O9L',$,$,$,());\n"
        "#8=IFCPROPERTYSET('6YvctVUKr0kugbFTf53O9L',$,7,$,());\n"
        "#9=IFCPROPERTYSET('7YvctVUKr0kugbFTf53O9L'";
    auto const data = open(records + ");\n")->data();
    unsigned int const slot = fc::slotFromName(FcPropertySet::staticEntityClass(), "Name");
    EXPECT_EQ(data->attributeText(1, slot), "R\xC3\xA4ume, #5");
    EXPECT_EQ(data->attributeText(2, slot), std::nullopt);
    EXPECT_EQ(data->objectCount(), 0u);
    // What the record does not tell for sure, the object does.
    EXPECT_EQ(data->attributeText(3, slot), std::nullopt);
    EXPECT_EQ(data->attributeText(4, slot), std::nullopt);
    EXPECT_EQ(data->objectCount(), 2u);
}

TEST(IfcFile, TellsNamesOfSetsInAListOfThem)
{
    auto const file = open(wallWithSet + "#10=IFCPROPERTYSET('8YvctVUKr0kugbFTf53O9L',$,'B',$,());\n"
                                         "#11=IFCELEMENTQUANTITY('9YvctVUKr0kugbFTf53O9L',$,'A',$,$,());\n"
                                         "#12=IFCRELDEFINESBYPROPERTIES('AYvctVUKr0kugbFTf53O9L',$,$,$,(#5),"
                                         "IFCPROPERTYSETDEFINITIONSET((#10,#11)));\n");
    std::vector<std::string> names;
    wallOf(*file)->forEachAttachedSetName([&names](unsigned int, std::optional<std::string> const& name) {
        names.push_back(name.value_or("-"));
        return true;
    });
    EXPECT_THAT(names, testing::ElementsAre("Pset_WallCommon", "B", "A"));
    EXPECT_EQ(file->data()->objectCount(), 1u);
}

TEST(IfcFile, FindsTheRelationsOfVeryManyObjects)
{
    // Enough of them to be read by two threads; every second one is of two walls, one of which is missing.
    constexpr unsigned int count = 6000;
    std::string records;
    for (unsigned int i = 0; i < count; ++i) {
        std::string const wall = "#" + std::to_string(10 * i + 1);
        std::string const related = i % 2 == 0 ? wall : wall + "," + wall + "9999999";
        records += wall + "=IFCWALL('2YvctVUKr0kugbFTf53O9L',$,$,$,$,$,$,$,$);\n#" +
                   std::to_string(10 * i + 2) +
                   "=IFCRELDEFINESBYPROPERTIES('4YvctVUKr0kugbFTf53O9L',$,$,$,(" + related + "),$);\n";
    }
    auto const file = open(records);
    using Relation = fc::core::kernel::FcRelDefinesByProperties;
    unsigned int const slot = fc::slotFromName(Relation::staticEntityClass(), "RelatedObjects");
    for (fc::EntityIndex i = 0; i < count; ++i)
        ASSERT_THAT(file->data()->relating(2 * i, Relation::idFirst, Relation::idLast, slot),
                    testing::ElementsAre(2 * i + 1));
    EXPECT_EQ(file->data()->objectCount(), 0u);
}

TEST(IfcFile, MakesOnlyTheObjectsThatAreAskedFor)
{
    auto const file = open(wallWithSet);
    EXPECT_EQ(file->data()->objectCount(), 0u);
    auto const wall = wallOf(*file);
    EXPECT_EQ(file->data()->objectCount(), 1u);
}

TEST(IfcFile, FindsTheSetsOfAnObjectThroughTheRelation)
{
    auto const file = open(wallWithSet);
    auto const property = propertyOf(*wallOf(*file), "FireRating");
    ASSERT_TRUE(property);
    EXPECT_EQ(property->NominalValue->getAsString(false), "F30");
}

TEST(IfcFile, FindsAnObjectByItsGlobalId)
{
    auto const file = open(wallWithSet);
    EXPECT_EQ(file->entityFromGlobalId("2YvctVUKr0kugbFTf53O9L"), file->entityFromId(5));
    EXPECT_EQ(file->entityFromGlobalId("3YvctVUKr0kugbFTf53O9L"), file->entityFromId(6));
    EXPECT_EQ(file->entityFromGlobalId("unknown"), nullptr);
    EXPECT_EQ(file->entityFromGlobalId("0YvctVUKr0kugbFTf53O9L"), file->entityFromId(1));
    EXPECT_EQ(file->entityFromGlobalId("2YvctVUKr0kugbFTf53O9L"), file->entityFromId(5));
}

TEST(IfcFile, FindsAGlobalIdInItsOwnPlaceOnly)
{
    auto const file = open("#1=IFCWALL('1YvctVUKr0kugbFTf53O9L',$,'2YvctVUKr0kugbFTf53O9L',$,$,$,$,$,$);\n"
                           "#2=IFCWALL('2YvctVUKr0kugbFTf53O9L',$,$,$,$,$,$,$,$);\n"
                           "#3=IFCWALL('2YvctVUKr0kugbFTf53O9L',$,$,$,$,$,$,$,$);\n"
                           "#4=IFCWALL($,$,'4YvctVUKr0kugbFTf53O9L',$,$,$,$,$,$);\n"
                           "#5=IFCWINDOW('2YvctVUKr0kugbFTf53O9L',$,$,$,$,$,$,$,$,$,$,$,$);\n");
    // A global id is looked for at first, and read with those of all objects later.
    for (int time = 0; time < 5; ++time) {
        EXPECT_EQ(file->entityFromGlobalId("2YvctVUKr0kugbFTf53O9L"), file->entityFromId(2));
        EXPECT_EQ(file->entityFromGlobalId("4YvctVUKr0kugbFTf53O9L"), nullptr);
        EXPECT_EQ(file->entityFromGlobalId(""), nullptr);
    }
}

TEST(IfcFile, FindsWhatWasDeletedAndCameBackByItsGlobalId)
{
    auto const file = open(wallWithSet);
    auto const wall = file->entityFromId(5);
    file->data()->entityDelete(wall);
    EXPECT_EQ(file->entityFromGlobalId("2YvctVUKr0kugbFTf53O9L"), nullptr);
    file->data()->changes().undo();
    EXPECT_EQ(file->entityFromGlobalId("2YvctVUKr0kugbFTf53O9L"), wall);
}

TEST(IfcFile, FindsAnObjectByTheGlobalIdThatItHasNow)
{
    auto const file = open(wallWithSet);
    auto const wall = fc::entityCast<FcWall>(file->entityFromId(5));
    wall->GlobalId = std::string("9YvctVUKr0kugbFTf53O9L");
    EXPECT_EQ(file->entityFromGlobalId("9YvctVUKr0kugbFTf53O9L"), wall);
    EXPECT_EQ(file->entityFromGlobalId("2YvctVUKr0kugbFTf53O9L"), nullptr);
    file->data()->changes().undo();
    EXPECT_EQ(file->entityFromGlobalId("2YvctVUKr0kugbFTf53O9L"), wall);
    EXPECT_EQ(file->entityFromGlobalId("9YvctVUKr0kugbFTf53O9L"), nullptr);
}

TEST(IfcFile, TellsProgressOfReadingAndThenOfFindingRecords)
{
    test::TemporaryFolder const folder;
    std::string records;
    for (int i = 1; i <= 40'000; ++i)
        records += "#" + std::to_string(i) + "=IFCCARTESIANPOINT((0.,0.));\n";
    auto const path = folder.write("many.ifc", test::ifcText("IFC4", records));
    std::vector<std::uint64_t> beginnings;
    std::uint64_t last = ~std::uint64_t{0};
    auto const opened = ifc::IfcFile::open(path, [&](std::uint64_t done, std::uint64_t total) {
        EXPECT_LE(done, total);
        if (done < last)
            beginnings.push_back(done);
        last = done;
        return true;
    });
    EXPECT_EQ(beginnings.size(), 2u);
}

/// Walls 5 and 6 and a group 7, relations \p assigned, and many further ones of the second wall.
std::string wallsInGroups(std::string const& assigned)
{
    constexpr int further = 1200;
    std::string records = "#5=IFCWALL('1YvctVUKr0kugbFTf53O9L',$,$,$,$,$,$,$,$);\n"
                          "#6=IFCWALL('2YvctVUKr0kugbFTf53O9L',$,$,$,$,$,$,$,$);\n"
                          "#7=IFCGROUP('3YvctVUKr0kugbFTf53O9L',$,$,$,$);\n" +
                          assigned;
    for (int i = 0; i < further; ++i)
        records += "#" + std::to_string(1000 + i) + "=IFCRELASSIGNSTOGROUP('x',$,$,$,(#6),$,#7);\n";
    return records;
}

std::vector<step::InstanceId> assignmentsOf(ifc::IfcFile const& file, step::InstanceId object)
{
    using fc::core::kernel::FcRelAssigns;
    using fc::core::kernel::FcRelAssignsToGroup;
    std::vector<step::InstanceId> ids;
    auto const slot = fc::slotFromName(FcRelAssigns::staticEntityClass(), "RelatedObjects");
    for (fc::EntityIndex const relation :
         file.data()->relating(file.entityFromId(object)->getIndex(), FcRelAssignsToGroup::idFirst,
                               FcRelAssignsToGroup::idLast, slot))
        ids.push_back(file.idOf(relation));
    return ids;
}

TEST(IfcFile, FindsTheRelationsOfOneObjectAmongMany)
{
    auto const file = open(wallsInGroups("#10=IFCRELASSIGNSTOGROUP('#5',$,'#5',$,(#6),$,#5);\n"
                                         "#11=IFCRELASSIGNSTOGROUP('a',$,$,$,(#6,#5),$,#7);\n"
                                         "#12=IFCRELASSIGNSTOGROUP('b',$,$,$,( /* #6 */ #005),$,#7);\n"
                                         "#13=IFCRELASSIGNSTOGROUP('c',$,$,$,(#55,#50),$,#7);\n"));
    // They are looked for at first, and come from an index of all later.
    for (int time = 0; time < 2; ++time) {
        EXPECT_THAT(assignmentsOf(*file, 5), ElementsAre(11u, 12u));
        EXPECT_EQ(assignmentsOf(*file, 6).size(), 1202u);
        EXPECT_THAT(assignmentsOf(*file, 7), IsEmpty());
        for (step::InstanceId relation = 1000; relation < 1020; ++relation)
            EXPECT_THAT(assignmentsOf(*file, relation), IsEmpty());
        file->data()->clearInverseIndexes();
        for (step::InstanceId relation = 1000; relation < 1020; ++relation)
            EXPECT_THAT(assignmentsOf(*file, relation), IsEmpty());
    }
}

TEST(IfcFile, FindsTheTypeOfEachOfThousandsOfObjects)
{
    constexpr int walls = 2000;
    std::string records = "#1=IFCWALLTYPE('0YvctVUKr0kugbFTf53O9L',$,'T',$,$,$,$,$,$,.SOLIDWALL.);\n"
                          "#2=IFCRELDEFINESBYTYPE('1YvctVUKr0kugbFTf53O9L',$,$,$,(#10";
    for (int i = 1; i < walls; ++i)
        records += ",#" + std::to_string(10 + i);
    records += "),#1);\n";
    for (int i = 0; i < walls; ++i)
        records += "#" + std::to_string(10 + i) + "=IFCWALL('x',$,$,$,$,$,$,$,$);\n";
    auto const file = open(records);
    auto const typeOf = [&file](step::InstanceId id) {
        return fc::entityCast<fc::core::kernel::FcObject>(file->entityFromId(id))->getTypeObject();
    };
    for (step::InstanceId id = 10; id < 10 + walls; ++id)
        ASSERT_EQ(typeOf(id), file->entityFromId(1));

    auto const relation = fc::entityCast<fc::core::kernel::FcRelDefinesByType>(file->entityFromId(2));
    relation->RelatingType = nullptr;
    EXPECT_EQ(typeOf(10), nullptr);
    file->data()->changes().undo();
    EXPECT_EQ(typeOf(10), file->entityFromId(1));
}

TEST(IfcFile, FindsNoRelationsOfARecordWhoseIdIsTakenAlready)
{
    auto const file = open(wallsInGroups("#5=IFCWALL('4YvctVUKr0kugbFTf53O9L',$,$,$,$,$,$,$,$);\n"
                                         "#11=IFCRELASSIGNSTOGROUP('a',$,$,$,(#5),$,#7);\n"));
    auto const second = file->entityFromGlobalId("4YvctVUKr0kugbFTf53O9L");
    ASSERT_TRUE(second);
    using fc::core::kernel::FcRelAssigns;
    using fc::core::kernel::FcRelAssignsToGroup;
    auto const slot = fc::slotFromName(FcRelAssigns::staticEntityClass(), "RelatedObjects");
    EXPECT_THAT(file->data()->relating(second->getIndex(), FcRelAssignsToGroup::idFirst,
                                       FcRelAssignsToGroup::idLast, slot),
                IsEmpty());
    EXPECT_THAT(assignmentsOf(*file, 5), ElementsAre(11u));
}

TEST(IfcFile, WithoutAnEditTheTextIsTheSame)
{
    auto const file = open(wallWithSet);
    propertyOf(*wallOf(*file), "FireRating");
    EXPECT_EQ(file->toText(), test::ifcText("IFC4", wallWithSet));
}

TEST(IfcFile, AnEditedValueChangesItsArgumentOnly)
{
    auto const file = open(wallWithSet);
    propertyOf(*wallOf(*file), "FireRating")->NominalValue.edit([](auto& value) {
        return value.setValueOnTypeFromString("It's F90");
    });
    EXPECT_THAT(difference(test::ifcText("IFC4", wallWithSet), file->toText()),
                testing::ElementsAre("-#7=IFCPROPERTYSINGLEVALUE('FireRating',$,IFCLABEL('F30'),$);",
                                     "+#7=IFCPROPERTYSINGLEVALUE('FireRating',$,IFCLABEL('It''s F90'),$);"));
}

TEST(IfcFile, AnEditedArgumentLeavesTheBlanksAroundIt)
{
    auto const file = open(wallWithSet);
    wallOf(*file)->Name = "W2";
    EXPECT_THAT(file->toText(), HasSubstr("#5 = IFCWALL ( '2YvctVUKr0kugbFTf53O9L' , $ , 'W2' , $ ,"));
}

TEST(IfcFile, AnUndoneEditLeavesTheTextAsItWas)
{
    auto const file = open(wallWithSet);
    wallOf(*file)->Name = "W2";
    file->data()->changes().undo();
    EXPECT_EQ(file->toText(), test::ifcText("IFC4", wallWithSet));
}

TEST(IfcFile, NewRecordsFollowTheLastOneWithTheNextIds)
{
    auto const file = open(wallWithSet);
    auto const wall = wallOf(*file);
    auto const set = wall->getOrCreatePropertySetDefinition<FcPropertySet>(*file->data(), "My set");
    auto const property = std::make_shared<FcPropertySingleValue>();
    property->Name = "Colour";
    property->NominalValue =
        fc::resource::measure::FcValue(fc::resource::measure::FcSimpleValue(std::string("red")));
    set->HasProperties.addProperty(property);
    auto const text = file->toText();
    EXPECT_THAT(text, HasSubstr("IFCPROPERTYSINGLEVALUE('Colour',$,IFCLABEL('red'),$);"));
    auto const reopened = ifc::IfcFile::fromText(text);
    EXPECT_TRUE(reopened.messages.empty());
    auto const again = wallOf(*reopened.file);
    auto const found = again->getPropertySetDefinitionNonConst<FcPropertySet>("My set");
    ASSERT_TRUE(found);
    EXPECT_TRUE(found->hasProperty("Colour"));
    EXPECT_EQ(reopened.file->recordCount(), 9u);
}

TEST(IfcFile, ADeletedSetGoesWithItsRelationAndProperties)
{
    auto const file = open(wallWithSet);
    EXPECT_TRUE(wallOf(*file)->deletePropertySetDefinition("Pset_WallCommon"));
    auto const text = file->toText();
    for (char const* const record : {"#6=", "#7=", "#8=", "#9="})
        EXPECT_THAT(text, Not(HasSubstr(record)));
    EXPECT_THAT(text, HasSubstr("#5 = IFCWALL"));
}

TEST(IfcFile, ARemovedPropertyLeavesTheOthersWhereTheyAre)
{
    auto const file = open(wallWithSet);
    auto const set = wallOf(*file)->getPropertySetDefinitionNonConst<FcPropertySet>("Pset_WallCommon");
    EXPECT_TRUE(set->HasProperties.removeProperty("FireRating"));
    EXPECT_THAT(file->toText(), HasSubstr("'Pset_WallCommon',$,(#8));"));
    EXPECT_THAT(file->toText(), Not(HasSubstr("#7=")));
}

std::string const classifiedWall =
    wallWithSet + "#10=IFCCLASSIFICATIONREFERENCE($,'21',$,$,$,$);\n"
                  "#11=IFCRELASSOCIATESCLASSIFICATION('5YvctVUKr0kugbFTf53O9L',$,$,$,(#5),#10);\n";

std::shared_ptr<FcRelAssociatesClassification> associationOf(ifc::IfcFile const& file)
{
    return fc::entityCast<FcRelAssociatesClassification>(file.entityFromId(11));
}

TEST(IfcFile, ARelationThatLostItsObjectsIsNotInTheFile)
{
    auto const file = open(classifiedWall);
    auto const relation = associationOf(*file);
    relation->eraseRelatedObjects(fc::core::kernel::FcDefinitionSelect(wallOf(*file)));
    EXPECT_EQ(difference(test::ifcText("IFC4", classifiedWall), file->toText()),
              std::vector<std::string>{
                  "-#11=IFCRELASSOCIATESCLASSIFICATION('5YvctVUKr0kugbFTf53O9L',$,$,$,(#5),#10);"});
    EXPECT_EQ(file->entityFromId(11), relation);
    file->data()->changes().undo();
    EXPECT_EQ(file->toText(), test::ifcText("IFC4", classifiedWall));
    file->data()->changes().redo();
    EXPECT_THAT(file->toText(), Not(HasSubstr("#11=")));
}

TEST(IfcFile, ANewRelationWithoutObjectsIsNotInTheFile)
{
    auto const file = open(classifiedWall);
    auto const relation = std::make_shared<FcRelAssociatesClassification>();
    relation->setGuid(Guid::generate());
    relation->RelatingClassification = associationOf(*file)->RelatingClassification.get();
    file->data()->entityAdd(relation, false);
    EXPECT_EQ(file->toText(), test::ifcText("IFC4", classifiedWall));
    relation->setRelatedObjects({fc::core::kernel::FcDefinitionSelect(wallOf(*file))});
    EXPECT_THAT(file->toText(), HasSubstr("#12=IFCRELASSOCIATESCLASSIFICATION("));
}

TEST(IfcFile, ARelationThatCameWithoutObjectsStaysInTheFile)
{
    std::string const records =
        "#10=IFCCLASSIFICATIONREFERENCE($,'21',$,$,$,$);\n"
        "#11=IFCRELASSOCIATESCLASSIFICATION('5YvctVUKr0kugbFTf53O9L',$,$,$,(),#10);\n";
    auto const file = open(records);
    associationOf(*file)->Name = "Kept";
    EXPECT_THAT(file->toText(),
                HasSubstr("#11=IFCRELASSOCIATESCLASSIFICATION('5YvctVUKr0kugbFTf53O9L',$,'Kept',$,(),#10);"));
}

TEST(IfcFile, ClassesThatLaterVersionsDroppedBecomeTheirNearestAndKeepTheirName)
{
    std::string const style =
        "#2=IFCDOORSTYLE('2YvctVUKr0kugbFTf53O9L',$,'D',$,$,$,$,$,.SINGLE_SWING_LEFT.,.WOOD.,.F.,.F.);\n";
    auto const file = open(style, "IFC2X3");
    auto const type = fc::entityCast<fc::shared::sharedbldgelements::FcDoorType>(file->entityFromId(2));
    ASSERT_TRUE(type);
    EXPECT_EQ(type->Name.get(), "D");
    type->Name = "E";
    EXPECT_THAT(
        file->toText(),
        HasSubstr(
            "#2=IFCDOORSTYLE('2YvctVUKr0kugbFTf53O9L',$,'E',$,$,$,$,$,.SINGLE_SWING_LEFT.,.WOOD.,.F.,.F.);"));
    EXPECT_EQ(file->countsByClass().at("IfcDoorStyle"), 1u);
}

TEST(IfcFile, UnknownEntitiesAreKeptAndTold)
{
    auto const file = open("#2=IFCNOTHINGKNOWN('x',#3);\n#3=IFCLABELLED($);\n" + wallWithSet);
    EXPECT_TRUE(wallOf(*file));
    file->check();
    auto const messages = file->messages();
    ASSERT_FALSE(messages.empty());
    EXPECT_THAT(messages.front().text, HasSubstr("IFCNOTHINGKNOWN"));
    EXPECT_EQ(messages.front().record, 2u);
    EXPECT_EQ(messages.front().line, 8u);
    EXPECT_THAT(file->toText(), HasSubstr("#2=IFCNOTHINGKNOWN('x',#3);"));
}

TEST(IfcFile, ADanglingReferenceIsUnsetAndTold)
{
    auto const file = open("#5=IFCWALL('2YvctVUKr0kugbFTf53O9L',#99,'W1',$,$,$,$,$,$);\n");
    auto const wall = wallOf(*file);
    ASSERT_TRUE(wall);
    EXPECT_EQ(wall->OwnerHistory->get(), nullptr);
    ASSERT_EQ(file->messages().size(), 1u);
    EXPECT_THAT(file->messages().front().text,
                HasSubstr("OwnerHistory: expected a reference to an existing record, found #99"));
}

TEST(IfcFile, AReferenceToTheWrongClassIsUnsetAndTold)
{
    auto const file = open("#5=IFCWALL('2YvctVUKr0kugbFTf53O9L',#5,'W1',$,$,$,$,$,$);\n");
    EXPECT_EQ(wallOf(*file)->OwnerHistory->get(), nullptr);
    ASSERT_EQ(file->messages().size(), 1u);
    EXPECT_THAT(file->messages().front().text, HasSubstr("IfcOwnerHistory"));
}

TEST(IfcFile, AWrongNumberOfArgumentsIsTold)
{
    auto const file = open("#5=IFCWALL('2YvctVUKr0kugbFTf53O9L',$,'W1');\n");
    EXPECT_EQ(wallOf(*file)->Name.get(), "W1");
    ASSERT_EQ(file->messages().size(), 1u);
    EXPECT_THAT(file->messages().front().text, HasSubstr("expected 9 arguments of IfcWall, found 3"));
}

TEST(IfcFile, AValueOfTheWrongKindIsUnsetAndTold)
{
    auto const file = open("#5=IFCWALL('2YvctVUKr0kugbFTf53O9L',$,7,$,$,$,$,$,.NOSUCHITEM.);\n");
    EXPECT_EQ(wallOf(*file)->Name.get(), std::nullopt);
    ASSERT_EQ(file->messages().size(), 2u);
    EXPECT_THAT(file->messages()[0].text, HasSubstr("Name: expected a text"));
    EXPECT_THAT(file->messages()[1].text,
                HasSubstr("PredefinedType: expected an item of IfcWallTypeEnum, found .NOSUCHITEM."));
}

TEST(IfcFile, WhatTheFilesOwnVersionAllowsIsNoFault)
{
    auto const file = open("#1=IFCSTYLEDITEM($,(#2),$);\n#2=IFCPRESENTATIONSTYLEASSIGNMENT((#3));\n"
                           "#3=IFCCURVESTYLE($,$,$,$);\n"
                           "#5=IFCAIRTERMINALTYPE('2YvctVUKr0kugbFTf53O9L',$,$,$,$,$,$,$,$,.EYEBALL.);\n",
                           "IFC2X3");
    file->check();
    for (step::StepMessage const& message : file->messages())
        EXPECT_EQ(message.record, 5u) << message.toString();
}

TEST(IfcFile, MessagesOfTheHeaderComeOnce)
{
    std::string text = test::ifcText("IFC4", wallWithSet);
    text.erase(0, text.find("HEADER"));
    auto const opened = ifc::IfcFile::fromText(text);
    ASSERT_TRUE(opened.file);
    EXPECT_THAT(opened.messages, testing::SizeIs(1));
    EXPECT_THAT(opened.file->messages(), testing::SizeIs(1));
}

TEST(IfcFile, MessagesOfARecordComeOnce)
{
    auto const file = open("#5=IFCWALL('2YvctVUKr0kugbFTf53O9L',$,7,$,$,$,$,$,$);\n");
    EXPECT_TRUE(wallOf(*file));
    file->data()->releaseUnused();
    EXPECT_TRUE(wallOf(*file));
    file->check();
    EXPECT_EQ(file->messages().size(), 1u);
}

TEST(IfcFile, ASchemaThatNobodyKnowsIsTold)
{
    auto const opened = ifc::IfcFile::fromText(test::ifcText("NO_SUCH_SCHEMA", wallWithSet));
    ASSERT_TRUE(opened.file);
    ASSERT_FALSE(opened.messages.empty());
    EXPECT_THAT(opened.messages.front().text, HasSubstr("NO_SUCH_SCHEMA"));
}

TEST(IfcFile, ATextThatIsNoStepFileIsRefused)
{
    auto const opened = ifc::IfcFile::fromText("PK\x03\x04 something else");
    EXPECT_FALSE(opened.file);
    ASSERT_FALSE(opened.messages.empty());
    EXPECT_EQ(opened.messages.front().severity, step::StepMessage::Severity::Refused);
}

TEST(IfcFile, ADateRecordOfAnOlderVersionReadsAsText)
{
    auto const file =
        open("#2=IFCCLASSIFICATION('S','1',#3,'Uniclass');\n#3=IFCCALENDARDATE(5,3,2009);\n", "IFC2X3");
    auto const classification = file->entityFromId(2);
    ASSERT_TRUE(classification);
    EXPECT_EQ(classification->getAttributeAsString("EditionDate"), "2009-03-05");
}

class SavedFile : public testing::Test
{
protected:
    [[nodiscard]] std::filesystem::path const& path() const { return m_path; }
    [[nodiscard]] std::string content() const { return test::readFile(m_path); }

private:
    test::TemporaryFolder m_folder;
    std::filesystem::path m_path = m_folder.write("model.ifc", test::ifcText("IFC4", wallWithSet));
};

TEST_F(SavedFile, TakesThePlaceOfTheOldOneAndMayBeSavedAgain)
{
    auto const file = std::move(ifc::IfcFile::open(path()).file);
    wallOf(*file)->Name = "W2";
    EXPECT_TRUE(file->data()->changes().isModified());
    EXPECT_TRUE(file->save(path()).saved());
    EXPECT_FALSE(file->data()->changes().isModified());
    EXPECT_THAT(content(), HasSubstr("'W2'"));
    wallOf(*file)->Name = "W3";
    EXPECT_TRUE(file->save(path()).saved());
    EXPECT_THAT(content(), HasSubstr("'W3'"));
    EXPECT_THAT(content(), Not(HasSubstr("'W2'")));
}

TEST_F(SavedFile, HasARelationAgainWhoseObjectsAreBack)
{
    auto const file = std::move(ifc::IfcFile::open(path()).file);
    auto const relation = fc::entityCast<fc::core::kernel::FcRelDefinesByProperties>(file->entityFromId(9));
    auto const before = content();
    relation->RelatedObjects = fc::ReferenceList<fc::core::kernel::FcObjectDefinition>();
    EXPECT_TRUE(file->save(path()).saved());
    EXPECT_THAT(content(), Not(HasSubstr("#9=")));
    file->data()->changes().undo();
    EXPECT_TRUE(file->save(path()).saved());
    EXPECT_EQ(content(), before);
}

TEST_F(SavedFile, KeepsTheIdsOfNewRecordsFromSaveToSave)
{
    auto const file = std::move(ifc::IfcFile::open(path()).file);
    EXPECT_TRUE(wallOf(*file)->getOrCreatePropertySetDefinition<FcPropertySet>(*file->data(), "My set"));
    EXPECT_TRUE(file->save(path()).saved());
    auto const first = content();
    wallOf(*file)->Name = "W2";
    EXPECT_TRUE(file->save(path()).saved());
    EXPECT_EQ(difference(first, content()).size(), 2u);
}

TEST(IfcFile, OpeningThatIsStoppedIsCancelledWhateverWasWrongBefore)
{
    test::TemporaryFolder const folder;
    std::string records;
    for (int id = 1; id <= 20000; ++id)
        records += "#" + std::to_string(id) + "=IFCCARTESIANPOINT((0.,0.));\n";
    std::string text = test::ifcText("IFC4", records);
    text.erase(0, text.find("HEADER"));
    auto const path = folder.write("model.ifc", text);
    // The last call for the bytes has both numbers the same; those for the records come after it.
    auto const opened =
        ifc::IfcFile::open(path, [](std::uint64_t done, std::uint64_t total) { return done == total; });
    EXPECT_EQ(opened.file, nullptr);
    EXPECT_TRUE(opened.cancelled);
    EXPECT_THAT(opened.messages, testing::SizeIs(1));
}

TEST_F(SavedFile, IsRefusedWhenAnotherProgramWroteTheFileMeanwhile)
{
    auto const file = std::move(ifc::IfcFile::open(path()).file);
    wallOf(*file)->Name = "W2";
    std::ofstream(path(), std::ios::binary | std::ios::app) << "\n";
    EXPECT_EQ(file->save(path()).status, step::StepSaveResult::Status::ChangedMeanwhile);
    EXPECT_THAT(content(), Not(HasSubstr("'W2'")));
    EXPECT_TRUE(file->data()->changes().isModified());
    EXPECT_TRUE(file->save(path(), step::StepPatch::IfChanged::Overwrite).saved());
    EXPECT_THAT(content(), HasSubstr("'W2'"));
}

TEST_F(SavedFile, StaysAsItWasWhenTheFolderOfTheTargetIsMissing)
{
    auto const file = std::move(ifc::IfcFile::open(path()).file);
    wallOf(*file)->Name = "W2";
    auto const result = file->save(path().parent_path() / "missing" / "model.ifc");
    EXPECT_EQ(result.status, step::StepSaveResult::Status::Failed);
    EXPECT_FALSE(result.text.empty());
    EXPECT_TRUE(file->data()->changes().isModified());
}

} // namespace
