#include "Format/Ifc/Model/IfcFile.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/EntityClass.h"
#include "FoundationClasses/InverseIndex.h"
#include "SampleFiles.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace {

using namespace qev;
using namespace qev::test::samples;
using fc::EntityIndex;
using fc::InverseKey;

class Relations : public testing::TestWithParam<SampleFile>
{
};

INSTANTIATE_TEST_SUITE_P(Samples, Relations, testing::ValuesIn(allFiles()),
                         [](auto const& file) { return file.param.name; });

/// All that have a relation of theirs in \p data, among the inverse attributes of all classes.
std::set<InverseKey> inverseAttributes(fc::Data const& data)
{
    std::set<InverseKey> keys;
    for (unsigned int number = 1; number <= fc::FcBase::idLast; ++number) {
        for (fc::InverseDescriptor const& inverse : fc::entityClassFromNumber(number)->inverses)
            keys.insert({inverse.relationFirst, inverse.relationLast, inverse.slot});
    }
    std::erase_if(keys, [&data](InverseKey const& key) {
        return data.countFromId(key.relationFirst, key.relationLast) == 0;
    });
    return keys;
}

using Relating = std::map<EntityIndex, std::vector<EntityIndex>>;

/// By each target, the relations found when every one of them is asked.
Relating relatingByTarget(fc::Data const& data, InverseKey const& key)
{
    std::map<EntityIndex, std::set<EntityIndex>> sets;
    for (EntityIndex const relation : data.indicesFromId(key.relationFirst, key.relationLast))
        data.visitReferences(relation, key.slot, [&](EntityIndex target) { sets[target].insert(relation); });
    Relating relating;
    for (auto const& [target, relations] : sets)
        relating[target].assign(relations.begin(), relations.end());
    return relating;
}

/// Some of the targets, from the first to the last, and one that has no relation.
std::vector<EntityIndex> someTargets(fc::Data const& data, Relating const& relating)
{
    constexpr std::size_t most = 20;
    std::vector<EntityIndex> targets;
    std::size_t const step = relating.size() / most + 1;
    std::size_t at = 0;
    for (auto const& [target, relations] : relating) {
        if (at++ % step == 0)
            targets.push_back(target);
    }
    EntityIndex other = 0;
    while (other < data.entityCount() && relating.contains(other))
        ++other;
    if (other < data.entityCount())
        targets.push_back(other);
    return targets;
}

TEST_P(Relations, AreTheSameForOneTargetAndForAll)
{
    auto const opened = ifc::IfcFile::open(GetParam().path);
    if (!opened.file)
        GTEST_SKIP() << "refused";
    fc::Data& data = *opened.file->data();
    for (InverseKey const& key : inverseAttributes(data)) {
        SCOPED_TRACE(std::string(fc::entityClassFromNumber(key.relationFirst)->name) + ", attribute " +
                     std::to_string(key.slot));
        Relating expected = relatingByTarget(data, key);
        auto const relating = [&](EntityIndex target) {
            return data.relating(target, key.relationFirst, key.relationLast, key.slot);
        };
        auto const targets = someTargets(data, expected);
        for (EntityIndex const target : targets) {
            data.clearInverseIndexes();
            ASSERT_EQ(relating(target), expected[target]) << "for #" << opened.file->idOf(target);
        }
        for (EntityIndex const target : targets)
            ASSERT_EQ(relating(target), expected[target]) << "for #" << opened.file->idOf(target);
    }
}

} // namespace
