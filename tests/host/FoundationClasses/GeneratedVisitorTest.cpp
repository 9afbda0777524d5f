#include "AllClassesTest.h"

#include "FoundationClasses/AllEntities.h"
#include "FoundationClasses/EntityList.h"
#include "FoundationClasses/FcVisitorBase.h"
#include "FoundationClasses/FcVisitorBaseNonConst.h"

namespace qev::fc {

namespace {

/// Writes down the number of every class whose visit runs, and stops at one of them.
class RecordingVisitor : public FcVisitorBase
{
public:
    explicit RecordingVisitor(unsigned int last = noClass)
        : m_last(last)
    {
    }

    using FcVisitorBase::visit;
    void visit(FcBase const&) override { visited.push_back(FcBase::idFirst); }
#define QEV_RECORD(SPACE, CLASS)                                                                             \
    bool visit(SPACE::CLASS const&) override { return record(SPACE::CLASS::idFirst); }
    QEV_FC_ENTITIES(QEV_RECORD)
#undef QEV_RECORD

    std::vector<unsigned int> visited;

private:
    static constexpr unsigned int noClass = ~0u;

    bool record(unsigned int number)
    {
        visited.push_back(number);
        return number != m_last;
    }

    unsigned int m_last;
};

class RecordingVisitorNonConst : public FcVisitorBaseNonConst
{
public:
    using FcVisitorBaseNonConst::visit;
    void visit(FcBase&) override { visited.push_back(FcBase::idFirst); }
#define QEV_RECORD(SPACE, CLASS)                                                                             \
    bool visit(SPACE::CLASS&) override                                                                       \
    {                                                                                                        \
        visited.push_back(SPACE::CLASS::idFirst);                                                            \
        return true;                                                                                         \
    }
    QEV_FC_ENTITIES(QEV_RECORD)
#undef QEV_RECORD

    std::vector<unsigned int> visited;
};

/// The class, each of its bases, and `FcBase`.
std::vector<unsigned int> chainOf(EntityClass const& entityClass)
{
    std::vector<unsigned int> chain;
    for (EntityClass const* current = &entityClass; current; current = current->supertype)
        chain.push_back(current->idFirst);
    if (chain.back() != FcBase::idFirst)
        chain.push_back(FcBase::idFirst);
    return chain;
}

class DefaultVisitor : public FcVisitorBase
{
};

class BuildingVisitor : public FcVisitorBase
{
public:
    using FcVisitorBase::visit;
    bool visit(core::productextension::FcBuilding const& building) override
    {
        seen = &building;
        return false;
    }
    void visit(FcBase const&) override { reachedBase = true; }

    core::productextension::FcBuilding const* seen = nullptr;
    bool reachedBase = false;
};

class GeneratedVisitor : public test::AllClassesTest
{
};

} // namespace

TEST_P(GeneratedVisitor, AcceptVisitsTheExactClassAndThenEachBaseOnce)
{
    if (entityClass().isAbstract)
        return;
    auto const object = entityClass().create();
    RecordingVisitor visitor;
    std::as_const(*object).accept(visitor);
    EXPECT_EQ(visitor.visited, chainOf(entityClass()));

    RecordingVisitorNonConst changing;
    object->accept(changing);
    EXPECT_EQ(changing.visited, chainOf(entityClass()));
}

TEST_P(GeneratedVisitor, AcceptStopsWhereAVisitReturnsFalse)
{
    EntityClass const* const concrete = test::concreteClass(entityClass().idFirst, entityClass().idLast);
    ASSERT_NE(concrete, nullptr);
    RecordingVisitor visitor(number());
    std::as_const(*concrete->create()).accept(visitor);
    ASSERT_FALSE(visitor.visited.empty());
    EXPECT_EQ(visitor.visited.back(), number());
}

INSTANTIATE_TEST_SUITE_P(Model, GeneratedVisitor, testing::ValuesIn(test::allNumbers()), test::classNameOf);

TEST(GeneratedVisitors, AcceptOfANamedClassRunsTheChainFromThere)
{
    shared::sharedbldgelements::FcWall const wall;
    RecordingVisitor visitor;
    wall.core::productextension::FcElement::accept(visitor);
    EXPECT_EQ(visitor.visited, chainOf(core::productextension::FcElement::staticEntityClass()));
}

TEST(GeneratedVisitors, AVisitorWithoutOverridesGoesThroughToTheEnd)
{
    shared::sharedbldgelements::FcWall const wall;
    DefaultVisitor visitor;
    EXPECT_NO_THROW(wall.accept(visitor));
    EXPECT_TRUE(visitor.visit(wall));
}

TEST(GeneratedVisitors, AVisitGetsTheEntityInItsOwnType)
{
    core::productextension::FcBuilding const building;
    BuildingVisitor visitor;
    building.accept(visitor);
    EXPECT_EQ(visitor.seen, &building);
    EXPECT_FALSE(visitor.reachedBase);
}

} // namespace qev::fc
