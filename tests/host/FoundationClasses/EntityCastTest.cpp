#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "FoundationClasses/Core/Kernel/FcProduct.h"
#include "FoundationClasses/Core/Kernel/FcTypeObject.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcDoor.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWallStandardCase.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWallType.h"

#include <gtest/gtest.h>

namespace {

using namespace qev::fc;
using core::kernel::FcObject;
using core::kernel::FcObjectDefinition;
using core::kernel::FcProduct;
using core::kernel::FcTypeObject;
using namespace shared::sharedbldgelements;

TEST(EntityCast, GivesTheEntityAsItsOwnClassAndAsEachBase)
{
    std::shared_ptr<FcBase> const wall = std::make_shared<FcWall>();
    EXPECT_EQ(entityCast<FcWall>(wall), wall);
    EXPECT_EQ(entityCast<FcProduct>(wall), wall);
    EXPECT_EQ(entityCast<FcObjectDefinition>(wall), wall);
    EXPECT_EQ(entityCast<FcBase>(wall), wall);
}

TEST(EntityCast, GivesNullForSiblingsSubclassesAndNothing)
{
    std::shared_ptr<FcBase> const wall = std::make_shared<FcWall>();
    EXPECT_EQ(entityCast<FcDoor>(wall), nullptr);
    EXPECT_EQ(entityCast<FcWallStandardCase>(wall), nullptr);
    EXPECT_EQ(entityCast<FcTypeObject>(wall), nullptr);
    EXPECT_EQ(entityCast<FcWall>(std::shared_ptr<FcBase>()), nullptr);
}

TEST(EntityCast, KeepsConstness)
{
    std::shared_ptr<FcBase const> const wall = std::make_shared<FcWall>();
    static_assert(std::is_same_v<decltype(entityCast<FcWall>(wall)), std::shared_ptr<FcWall const>>);
    EXPECT_EQ(entityCast<FcWall>(wall), wall);
}

TEST(EntityCast, GoesAcrossFromOneBranchToAnother)
{
    std::shared_ptr<FcObjectDefinition> const type = std::make_shared<FcWallType>();
    EXPECT_NE(entityCast<FcTypeObject>(type), nullptr);
    EXPECT_EQ(entityCast<FcObject>(type), nullptr);
}

TEST(EntityCast, TheClassTestTakesSubclassesIn)
{
    FcWallStandardCase const standard;
    EXPECT_TRUE(isOfClass<FcWall>(standard));
    EXPECT_TRUE(isOfClass<FcObject>(standard));
    EXPECT_FALSE(isOfClass<FcTypeObject>(standard));
}

TEST(EntityNames, AreThoseOfTheExactClass)
{
    std::shared_ptr<FcBase const> const wall = std::make_shared<FcWallStandardCase>();
    EXPECT_STREQ(wall->getEntityName(), "IfcWallStandardCase");
    EXPECT_STREQ(wall->getEntityNameUpper(), "IFCWALLSTANDARDCASE");
}

TEST(EntityNames, ComeWithTheirHash)
{
    FcWall const wall;
    EXPECT_EQ(wall.getEntityNameHashed().text, "IfcWall");
    EXPECT_EQ(wall.getEntityNameUpperHashed().text, "IFCWALL");
    // FNV-1a of the seven characters, worked out independently.
    EXPECT_EQ(wall.getEntityNameUpperHashed().hash, 0x7BD1647Bu);
    EXPECT_EQ(wall.getEntityNameHashed().hash, 0x99ECC1DBu);
}

} // namespace
