#include "FoundationClasses/Classification/ClassificationInterface.h"
#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "FoundationClasses/Core/Kernel/FcRelAssociatesClassification.h"
#include "FoundationClasses/Core/Kernel/FcTypeObject.h"
#include "FoundationClasses/Resource/ExternalReference/FcClassification.h"
#include "FoundationClasses/Resource/ExternalReference/FcClassificationReference.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWallType.h"
#include "kit/ModelBuilder.h"

#include <gtest/gtest.h>

namespace {

using namespace qev;
using namespace qev::test;
using fc::core::kernel::FcDefinitionSelect;
using fc::core::kernel::FcRelAssociatesClassification;
using fc::resource::externalreference::FcClassification;
using fc::resource::externalreference::FcClassificationReference;
using fc::resource::externalreference::FcClassificationReferenceSelect;
using fc::resource::externalreference::FcClassificationSelect;

class System final : public classification::ClassificationInterface
{
public:
    explicit System(std::string key)
        : m_key(std::move(key))
    {
    }
    [[nodiscard]] std::string getKey() const override { return m_key; }
    [[nodiscard]] std::string getDescription() const override { return "A system"; }

private:
    std::string m_key;
};

template <class T>
std::size_t countOf(Model const& model)
{
    return model.data()->countFromId(T::idFirst, T::idLast);
}

struct Classify : testing::Test
{
    Model model;
    std::shared_ptr<System> system = std::make_shared<System>("Groups");
    std::shared_ptr<fc::shared::sharedbldgelements::FcWall> wall = model.wall("W1");
};

TEST_F(Classify, AttachesTheChosenCodeBelowItsGroups)
{
    auto const classification = wall->classify(system, {"21", "21.10"});
    ASSERT_NE(classification, nullptr);
    EXPECT_EQ(classification->Name.get(), "Groups");
    auto const reference = wall->getClassification(*system);
    ASSERT_NE(reference, nullptr);
    EXPECT_EQ(reference->Identification.get(), "21.10");
    auto const group = reference->ReferencedSource->getClassificationReference();
    EXPECT_EQ(group->Identification.get(), "21");
    EXPECT_EQ(group->ReferencedSource->getClassification(), classification);
}

TEST_F(Classify, UsesAgainWhatTheModelHas)
{
    auto const other = model.wall("W2");
    auto const first = wall->classify(system, {"21", "21.10"});
    EXPECT_EQ(other->classify(system, {"21", "21.10"}), first);
    EXPECT_EQ(other->classify(system, {"21", "21.20"}), first);
    EXPECT_EQ(countOf<FcClassification>(model), 1u);
    EXPECT_EQ(countOf<FcClassificationReference>(model), 3u);
    EXPECT_EQ(countOf<FcRelAssociatesClassification>(model), 2u);
}

TEST_F(Classify, TheSameCodeTwiceIsThereOnce)
{
    wall->classify(system, {"21"});
    wall->classify(system, {"21"});
    EXPECT_EQ(wall->HasAssociations().size(), 1u);
    auto const relation = fc::entityCast<FcRelAssociatesClassification>(wall->HasAssociations()[0].lock());
    EXPECT_EQ(relation->RelatedObjects->size(), 1u);
}

TEST_F(Classify, FindsACodeWhereverItStandsInItsSystem)
{
    wall->classify(system, {"21.10"});
    auto const reference = wall->getClassification(*system);
    auto const other = model.wall("W2");
    other->classify(system, {"21", "21.10"});
    EXPECT_EQ(other->getClassification(*system), reference);
    EXPECT_EQ(countOf<FcClassificationReference>(model), 2u);
}

/// A system that tells more than its name.
class PublishedSystem final : public classification::ClassificationInterface
{
public:
    [[nodiscard]] std::string getKey() const override { return "Published"; }
    [[nodiscard]] std::string getDescription() const override { return {}; }
    [[nodiscard]] std::string getTitle(std::string_view code) const override
    {
        return "Title of " + std::string(code);
    }
    [[nodiscard]] std::string getSource() const override { return "Institute"; }
    [[nodiscard]] std::string getEdition() const override { return "2"; }
};

TEST_F(Classify, WritesWhatTheSystemTellsOfItselfAndOfItsCodes)
{
    auto const classification = wall->classify(std::make_shared<PublishedSystem>(), {"21"});
    EXPECT_EQ(classification->Source.get(), "Institute");
    EXPECT_EQ(classification->Edition.get(), "2");
    EXPECT_EQ(wall->getClassification(PublishedSystem())->Name.get(), "Title of 21");
    auto const plain = wall->classify(system, {"21"});
    EXPECT_EQ(plain->Source.get(), std::nullopt);
    EXPECT_EQ(wall->getClassification(*system)->Name.get(), std::nullopt);
}

TEST_F(Classify, SystemsDoNotMix)
{
    System const other("Others");
    wall->classify(system, {"21"});
    EXPECT_EQ(wall->getClassification(other), nullptr);
    EXPECT_NE(wall->getClassification(*system), nullptr);
}

TEST_F(Classify, WorksForTypes)
{
    auto const type = model.wallType("T1");
    type->classify(system, {"21"});
    EXPECT_NE(type->getClassification(*system), nullptr);
    EXPECT_EQ(wall->getClassification(*system), nullptr);
}

TEST_F(Classify, WithoutCodesSystemOrModelDoesNothing)
{
    EXPECT_EQ(wall->classify(system, {}), nullptr);
    EXPECT_EQ(wall->classify(nullptr, {"21"}), nullptr);
    EXPECT_EQ(std::make_shared<fc::shared::sharedbldgelements::FcWall>()->classify(system, {"21"}), nullptr);
    EXPECT_EQ(countOf<FcClassification>(model), 0u);
}

TEST_F(Classify, IsTakenBackByOneUndo)
{
    wall->classify(system, {"21", "21.10"});
    model.data()->changes().undo();
    EXPECT_EQ(wall->getClassification(*system), nullptr);
    EXPECT_EQ(countOf<FcClassification>(model), 0u);
    EXPECT_EQ(countOf<FcClassificationReference>(model), 0u);
}

TEST_F(Classify, AnObjectThatIsRelatedToTheSystemItselfHasNoReference)
{
    auto const classification = std::make_shared<FcClassification>();
    classification->Name = "Groups";
    auto const relation = model.add<FcRelAssociatesClassification>("");
    relation->RelatingClassification = FcClassificationSelect(classification);
    relation->setRelatedObjects({FcDefinitionSelect(wall)});
    EXPECT_EQ(wall->getClassification(*system), nullptr);
}

TEST(ClassificationName, IsThatOfTheSystemAtTheEndOfTheSources)
{
    Model model;
    auto const wall = model.wall("W1");
    wall->classify(std::make_shared<System>("Groups"), {"1", "2", "3"});
    EXPECT_EQ(wall->getClassification(System("Groups"))->getClassificationName(), "Groups");
}

TEST(ClassificationName, IsEmptyWithoutASystem)
{
    auto const reference = std::make_shared<FcClassificationReference>();
    EXPECT_EQ(reference->getClassificationName(), "");
    auto const group = std::make_shared<FcClassificationReference>();
    reference->ReferencedSource = FcClassificationReferenceSelect(group);
    EXPECT_EQ(reference->getClassificationName(), "");
}

TEST(ClassificationName, IsEmptyForSourcesThatRunInACircle)
{
    Model model;
    auto const a = std::make_shared<FcClassificationReference>();
    auto const b = std::make_shared<FcClassificationReference>();
    model.data()->entityAdd(a, false);
    model.data()->entityAdd(b, false);
    a->ReferencedSource = FcClassificationReferenceSelect(b);
    b->ReferencedSource = FcClassificationReferenceSelect(a);
    EXPECT_EQ(a->getClassificationName(), "");
    EXPECT_EQ(b->getClassificationName(), "");
}

} // namespace
