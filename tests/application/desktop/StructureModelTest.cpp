#include "StructureModel.h"

#include "SmallBuilding.h"

#include <gtest/gtest.h>
#include <QAbstractItemModelTester>

namespace qev::test {
namespace {

using namespace application;

class StructureModelTest : public testing::Test
{
protected:
    StructureModelTest()
        : file(ifc::IfcFile::fromText(smallBuilding).file)
        , tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal)
    {
        tester.setUseFetchMore(false);
        model.setData(file->data());
    }

    std::unique_ptr<ifc::IfcFile> file;
    StructureModel model;
    QAbstractItemModelTester tester;
};

TEST_F(StructureModelTest, LooksBelowAnObjectOnlyWhenAsked)
{
    auto const project = model.index(0, 0);
    EXPECT_EQ(project.data(), "Project");
    EXPECT_TRUE(model.hasChildren(project));
    EXPECT_TRUE(model.canFetchMore(project));
    EXPECT_EQ(model.rowCount(project), 0);
    model.fetchMore(project);
    EXPECT_FALSE(model.canFetchMore(project));
    EXPECT_EQ(model.rowCount(project), 1);
    EXPECT_EQ(model.index(0, 1, project).data(), "IfcBuilding");
}

TEST_F(StructureModelTest, FindsAnObjectThatNobodyHasUnfoldedYet)
{
    auto const object = file->entityFromGlobalId(eastWall)->getIndex();
    auto const index = model.findObject(object);
    ASSERT_TRUE(index.isValid());
    EXPECT_EQ(StructureModel::getObject(index), object);
    EXPECT_EQ(index.parent().data(), "Storey 2");
}

TEST_F(StructureModelTest, ObjectsOutsideOfTheStructureAreNowhere)
{
    auto const set = file->entityFromGlobalId("0000000000000000000051")->getIndex();
    EXPECT_FALSE(model.findObject(set).isValid());
}

TEST_F(StructureModelTest, ChangedNamesShow)
{
    auto const wall = file->entityFromGlobalId(eastWall);
    auto const index = model.findObject(wall->getIndex());
    wall->setAttributeFromString("Other", "Name");
    model.refresh({wall->getIndex()});
    EXPECT_EQ(index.data(), "Other");
}

TEST_F(StructureModelTest, IsEmptyWithoutAModel)
{
    model.setData(nullptr);
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_FALSE(model.findObject(0).isValid());
}

} // namespace
} // namespace qev::test
