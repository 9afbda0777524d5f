#include "FoundationClasses/Change/ChangeLog.h"

#include "FoundationClasses/Data.h"
#include "FoundationClasses/FcBase.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

namespace qev::fc {

ChangeLog::Step::Step(ChangeLog& log, std::string name)
    : m_log(log)
{
    m_log.begin(std::move(name));
}

ChangeLog::Step::~Step() { m_log.end(); }

std::string ChangeLog::undoName() const { return canUndo() ? m_steps[m_position - 1].name : std::string(); }

std::string ChangeLog::redoName() const { return canRedo() ? m_steps[m_position].name : std::string(); }

void ChangeLog::begin(std::string name)
{
    if (m_depth++ == 0)
        m_open = StepRecord{std::move(name), {}};
}

void ChangeLog::end()
{
    if (--m_depth > 0)
        return;
    StepRecord step = std::move(*m_open);
    m_open.reset();
    if (step.changes.empty())
        return;
    if (m_savedPosition && *m_savedPosition > m_position)
        m_savedPosition.reset();
    m_steps.resize(m_position);
    auto const entities = touched(step);
    m_steps.push_back(std::move(step));
    ++m_position;
    m_data.notify(entities);
}

void ChangeLog::record(Change change)
{
    Step const step(*this, std::string());
    std::vector<Change>& changes = m_open->changes;
    // Of several changes of one attribute in one step, the value before the first is enough. An action on
    // many objects that share a relation changes it as often as there are objects, so it pays to look back a
    // little.
    constexpr std::ptrdiff_t lookBack = 16;
    auto const recent = changes.end() - std::min<std::ptrdiff_t>(lookBack, std::ssize(changes));
    bool const isKnown = std::any_of(recent, changes.end(), [&change](Change const& other) {
        return change.kind == Kind::Attribute && other.kind == Kind::Attribute && other.slot == change.slot &&
               other.entity == change.entity;
    });
    if (!isKnown)
        changes.push_back(std::move(change));
}

void ChangeLog::undo()
{
    if (!canUndo() || m_open)
        return;
    StepRecord& step = m_steps[--m_position];
    for (auto change = step.changes.rbegin(); change != step.changes.rend(); ++change)
        exchange(*change, true);
    m_data.notify(touched(step));
}

void ChangeLog::redo()
{
    if (!canRedo() || m_open)
        return;
    StepRecord& step = m_steps[m_position++];
    for (Change& change : step.changes)
        exchange(change, false);
    m_data.notify(touched(step));
}

void ChangeLog::exchange(Change& change, bool isUndo)
{
    FcBase& entity = *change.entity;
    if (change.kind != Kind::Attribute) {
        bool const becomesPresent = (change.kind == Kind::Addition) != isUndo;
        m_data.setState(entity.m_index, becomesPresent ? Data::Present : Data::Deleted);
        return;
    }
    AttributeBase& attribute = entity.attribute(change.slot);
    AttributeOperations const& operations = *entity.getEntityClass().attributes[change.slot]->operations;
    auto inForce = operations.snapshot(attribute);
    m_data.indexReferences(entity, change.slot, false);
    operations.restore(attribute, change.value.get());
    m_data.indexReferences(entity, change.slot, true);
    change.value = std::move(inForce);
    std::uint64_t const bit = std::uint64_t{1} << change.slot;
    if (isUndo && !change.wasChangedBefore)
        entity.m_changedSlots &= ~bit;
    else
        entity.m_changedSlots |= bit;
}

std::vector<EntityIndex> ChangeLog::touched(StepRecord const& step) const
{
    std::vector<EntityIndex> entities;
    for (Change const& change : step.changes)
        entities.push_back(change.entity->m_index);
    std::sort(entities.begin(), entities.end());
    entities.erase(std::unique(entities.begin(), entities.end()), entities.end());
    return entities;
}

} // namespace qev::fc
