#include "FoundationClasses/Core/Kernel/FcObject.h"

#include "FoundationClasses/Core/Kernel/FcTypeObject.h"
#include "FoundationClasses/Core/ProcessExtension/FcTaskType.h"
#include "FoundationClasses/Core/ProductExtension/FcSite.h"
#include "FoundationClasses/Domain/ConstructionMgmt/FcLaborResourceType.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWallType.h"
#include "kit/ModelBuilder.h"

#include <gtest/gtest.h>

namespace {

using namespace qev;
using namespace qev::test;
using fc::FcWallTypeEnum;

struct TypedWall : testing::Test
{
    Model model;
    std::shared_ptr<fc::shared::sharedbldgelements::FcWall> wall = model.wall("W1");
    std::shared_ptr<fc::shared::sharedbldgelements::FcWallType> type = model.wallType("T1");

    TypedWall() { model.assignType(type, {wall}); }
};

TEST_F(TypedWall, HasItsTypeObject) { EXPECT_EQ(wall->getTypeObject(), type); }

TEST_F(TypedWall, HasNoneOnceTheTypeIsDeleted)
{
    model.data()->entityDelete(type);
    EXPECT_EQ(wall->getTypeObject(), nullptr);
    model.data()->changes().undo();
    EXPECT_EQ(wall->getTypeObject(), type);
}

TEST_F(TypedWall, ShowsItsOwnPredefinedTypeFirst)
{
    wall->PredefinedType = FcWallTypeEnum::PARTITIONING;
    type->PredefinedType = FcWallTypeEnum::SHEAR;
    EXPECT_STREQ(wall->getPredefinedTypeText(), "PARTITIONING");
    EXPECT_EQ(wall->predefinedTypeDerived(), "PARTITIONING");
}

TEST_F(TypedWall, FallsBackOnThePredefinedTypeOfItsType)
{
    type->PredefinedType = FcWallTypeEnum::SHEAR;
    EXPECT_EQ(wall->getPredefinedTypeText(), nullptr);
    EXPECT_EQ(wall->predefinedTypeDerived(), "SHEAR");
    wall->PredefinedType = FcWallTypeEnum::NOTDEFINED;
    EXPECT_EQ(wall->predefinedTypeDerived(), "SHEAR");
}

TEST_F(TypedWall, FallsBackOnTheUserDefinedTypeOfItsType)
{
    EXPECT_EQ(wall->userDefinedTypeDerived(), std::nullopt);
    type->ElementType = "Garden wall";
    EXPECT_EQ(wall->userDefinedTypeDerived(), "Garden wall");
    wall->ObjectType = "Dry stone wall";
    EXPECT_EQ(wall->userDefinedTypeDerived(), "Dry stone wall");
}

TEST(UntypedObject, HasNoTypeObjectAndNoPredefinedType)
{
    Model model;
    auto const wall = model.wall("W1");
    EXPECT_EQ(wall->getTypeObject(), nullptr);
    EXPECT_EQ(wall->predefinedTypeDerived(), "NOTDEFINED");
    EXPECT_EQ(wall->userDefinedTypeDerived(), std::nullopt);
}

TEST(UntypedObject, OfAClassWithoutPredefinedTypeHasNone)
{
    Model model;
    auto const site = model.site("S1");
    EXPECT_EQ(site->getPredefinedTypeText(), nullptr);
    EXPECT_EQ(site->predefinedTypeDerived(), "NOTDEFINED");
}

TEST(TypeObject, ShowsItsOwnTypeTexts)
{
    Model model;
    auto const type = model.wallType("T1");
    type->PredefinedType = FcWallTypeEnum::SHEAR;
    type->ElementType = "Core";
    EXPECT_EQ(type->predefinedTypeDerived(), "SHEAR");
    EXPECT_EQ(type->userDefinedTypeDerived(), "Core");
}

TEST(TypeObject, OfAProcessOrResourceHasATypeTextOfAnotherName)
{
    auto const task = std::make_shared<fc::core::processextension::FcTaskType>();
    task->ProcessType = "Casting";
    EXPECT_EQ(task->userDefinedTypeDerived(), "Casting");
    auto const crew = std::make_shared<fc::domain::constructionmgmt::FcLaborResourceType>();
    crew->ResourceType = "Masons";
    EXPECT_EQ(crew->userDefinedTypeDerived(), "Masons");
}

TEST(FcRoot, KeepsItsGlobalIdAsTheStandardWritesIt)
{
    auto const wall = std::make_shared<fc::shared::sharedbldgelements::FcWall>();
    Guid const guid = Guid::generate();
    wall->setGuid(guid);
    EXPECT_EQ(wall->getGuid(), guid);
    EXPECT_EQ(wall->GlobalId.get(), guid.toString());
}

TEST(FcRoot, AGlobalIdThatIsNoneReadsAsNothingAndStays)
{
    auto const wall = std::make_shared<fc::shared::sharedbldgelements::FcWall>();
    EXPECT_TRUE(wall->getGuid().isNull());
    wall->GlobalId = "no id";
    EXPECT_TRUE(wall->getGuid().isNull());
    EXPECT_EQ(wall->GlobalId.get(), "no id");
}

} // namespace
