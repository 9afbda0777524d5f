#include "FoundationClasses/Core/Kernel/FcRelAssociatesDocument.h"

#include "FoundationClasses/Resource/ExternalReference/FcDocumentInformation.h"
#include "FoundationClasses/Resource/ExternalReference/FcDocumentReference.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcDoor.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "kit/ModelBuilder.h"

#include <gtest/gtest.h>

namespace {

using namespace qev;
using namespace qev::test;
using fc::core::kernel::FcDefinitionSelect;
using fc::core::kernel::FcRelAssociatesDocument;
using namespace fc::resource::externalreference;

struct DocumentRelation : testing::Test
{
    Model model;
    std::shared_ptr<FcRelAssociatesDocument> relation = model.add<FcRelAssociatesDocument>("");
    std::shared_ptr<fc::shared::sharedbldgelements::FcWall> wall = model.wall("W1");
    std::shared_ptr<fc::shared::sharedbldgelements::FcDoor> door = model.door("D1");
};

TEST_F(DocumentRelation, RelatesObjectsToADocument)
{
    auto const document = std::make_shared<FcDocumentReference>();
    model.data()->entityAdd(document, false);
    relation->setRelatingDocument(FcDocumentSelect(document));
    relation->setRelatedObjects({FcDefinitionSelect(wall), FcDefinitionSelect(door)});
    EXPECT_EQ(relation->RelatingDocument->getDocumentReference(), document);
    ASSERT_EQ(wall->HasAssociations().size(), 1u);
    EXPECT_EQ(wall->HasAssociations()[0].lock(), relation);
    EXPECT_EQ(door->HasAssociations().size(), 1u);
    EXPECT_EQ(document->DocumentRefForObjects().size(), 1u);
}

TEST_F(DocumentRelation, TakesInformationOnADocumentToo)
{
    relation->setRelatingDocument(FcDocumentSelect(std::make_shared<FcDocumentInformation>()));
    EXPECT_EQ(relation->RelatingDocument->tag(), 0u);
    relation->setRelatingDocument(FcDocumentSelect(std::make_shared<FcDocumentReference>()));
    EXPECT_EQ(relation->RelatingDocument->tag(), 1u);
}

TEST_F(DocumentRelation, SettingObjectsReplacesTheFormerOnes)
{
    relation->setRelatedObjects({FcDefinitionSelect(wall)});
    relation->setRelatedObjects({FcDefinitionSelect(door)});
    EXPECT_TRUE(wall->HasAssociations().empty());
    EXPECT_EQ(door->HasAssociations().size(), 1u);
}

TEST_F(DocumentRelation, ErasesOneObject)
{
    relation->setRelatedObjects(
        {FcDefinitionSelect(wall), FcDefinitionSelect(door), FcDefinitionSelect(wall)});
    relation->eraseRelatedObjects(FcDefinitionSelect(wall));
    ASSERT_EQ(relation->RelatedObjects->size(), 1u);
    EXPECT_EQ(relation->RelatedObjects->front().getObjectDefinition(), door);
    EXPECT_TRUE(wall->HasAssociations().empty());
}

TEST_F(DocumentRelation, StaysInTheModelWithoutObjects)
{
    relation->setRelatedObjects({FcDefinitionSelect(wall)});
    relation->eraseRelatedObjects(FcDefinitionSelect(wall));
    EXPECT_TRUE(relation->RelatedObjects->empty());
    EXPECT_FALSE(model.data()->isDeleted(relation->getIndex()));
}

TEST_F(DocumentRelation, ErasingAnObjectThatIsNotThereIsNoChange)
{
    relation->setRelatedObjects({FcDefinitionSelect(wall)});
    model.data()->changes().setSaved();
    relation->eraseRelatedObjects(FcDefinitionSelect(door));
    EXPECT_FALSE(model.data()->changes().isModified());
}

} // namespace
