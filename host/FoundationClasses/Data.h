#pragma once

#include "Core/Utilities/Events/EventHandlerContainer.h"
#include "FoundationClasses/Change/ChangeLog.h"
#include "FoundationClasses/EntityIndex.h"
#include "FoundationClasses/EntityRange.h"
#include "FoundationClasses/EntitySource.h"
#include "FoundationClasses/FcBase.h"
#include "FoundationClasses/InverseIndex.h"
#include "HostFoundationClassesExport.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qev::fc {

/// One building model: its entities, their inverse relations and their changes.
///
/// Entities of a file become objects when first asked for. An object stays until
/// `releaseUnused`, or the end of the model; a changed object stays in any case.
/// Used from one thread.
class HOSTFOUNDATIONCLASSES_EXPORT Data : public std::enable_shared_from_this<Data>
{
public:
    /// An empty model, or the model of a file. Owns \p source.
    static std::shared_ptr<Data> create(std::unique_ptr<EntitySource> source = nullptr);
    ~Data();
    Data(Data const&) = delete;
    Data& operator=(Data const&) = delete;

    /// Registers an entity, and with it every entity that it refers to and that is in no model yet.
    /// An entity that was deleted from this model comes back to its place. The flag is the host
    /// application's own and has no meaning here.
    void entityAdd(std::shared_ptr<FcBase> entity, bool flag);
    /// Takes an entity out of the model. Entities that refer to it keep their reference, which leads
    /// nowhere from then on. False when the entity is not in this model.
    bool entityDelete(std::shared_ptr<FcBase> entity);

    /// The number of places, deleted ones included.
    [[nodiscard]] std::size_t entityCount() const { return m_sourceCount + m_createdClasses.size(); }
    /// The type number at a place; 0 for an entity without a class.
    [[nodiscard]] std::uint16_t classNumber(EntityIndex index) const;
    [[nodiscard]] bool isDeleted(EntityIndex index) const;
    [[nodiscard]] bool isCreated(EntityIndex index) const { return index >= m_sourceCount; }
    /// The entity at a place, made of its record if need be. Null for a deleted entity and one without a
    /// class.
    [[nodiscard]] std::shared_ptr<FcBase> entity(EntityIndex index) const;
    /// The object at a place if there is one already.
    [[nodiscard]] FcBase* existingObject(EntityIndex index) const;

    /// The places of all entities with a type number of \p first to \p last, ascending by class, then by
    /// place.
    [[nodiscard]] std::vector<EntityIndex> indicesFromId(unsigned int first, unsigned int last) const;
    [[nodiscard]] std::size_t countFromId(unsigned int first, unsigned int last) const;

    /// All entities of class \p T and its subclasses.
    template <class T>
    [[nodiscard]] EntityRange<T> entities()
    {
        auto const [begin, end] = rangeFromId(T::idFirst, T::idLast);
        return {begin, end};
    }
    template <class T>
    [[nodiscard]] EntityRange<T const> entities() const
    {
        auto const [begin, end] = rangeFromId(T::idFirst, T::idLast);
        return {begin, end};
    }

    /// Calls \p visit with the place of each entity that the attribute at \p slot of the one at \p index
    /// refers to, in stored order and deleted ones included. Makes no object; a record may name entities of a
    /// class that the attribute does not allow, which an object would leave out.
    void visitReferences(EntityIndex index, unsigned int slot,
                         std::function<void(EntityIndex)> const& visit) const;
    /// The attribute at \p slot of the entity at \p index as text, as `FcBase::getAttributeAsString` has it.
    /// Makes no object where the record tells. No value for an unset attribute and for a deleted entity.
    [[nodiscard]] std::optional<std::string> attributeText(EntityIndex index, unsigned int slot) const;

    /// The places of the entities of \p relationFirst to \p relationLast whose attribute at \p slot refers to
    /// \p target, ascending. Valid until a relation of \p target changes.
    [[nodiscard]] std::vector<EntityIndex> const& relating(EntityIndex target, unsigned int relationFirst,
                                                           unsigned int relationLast,
                                                           unsigned int slot) const;
    /// Tells whether any entity of the model refers to the one at \p target.
    [[nodiscard]] bool isReferenced(EntityIndex target) const;
    /// Deletes an entity that nothing refers to any more; false when something does.
    bool deleteIfUnreferenced(std::shared_ptr<FcBase> const& entity);
    /// Forgets the inverse indexes; they are built again when needed.
    void clearInverseIndexes();

    /// Lets go of objects that are unchanged and used by nobody else. Call it between two tasks:
    /// plain references to entities do not survive it, shared pointers do.
    void releaseUnused();
    /// The number of objects in memory.
    [[nodiscard]] std::size_t objectCount() const { return m_objectCount; }

    [[nodiscard]] EntitySource* source() const { return m_source.get(); }
    [[nodiscard]] ChangeLog& changes() { return m_changes; }
    [[nodiscard]] ChangeLog const& changes() const { return m_changes; }
    /// The places of all entities that were created, changed or deleted since the model was made, ascending.
    [[nodiscard]] std::vector<EntityIndex> touchedEntities() const;

    /// Called after every change, undo and redo, with the places of the entities touched.
    EventHandlerContainer<void, void, std::vector<EntityIndex> const&> changed;

protected:
    [[nodiscard]] std::pair<EntityIterator, EntityIterator> rangeFromId(unsigned int first,
                                                                        unsigned int last);
    [[nodiscard]] std::pair<EntityIterator, EntityIterator> rangeFromId(unsigned int first,
                                                                        unsigned int last) const;

private:
    friend class AttributeBase;
    friend class ChangeLog;

    /// Small, for the records of a property view lie scattered between those of geometry.
    static constexpr std::size_t pageSize = 256;
    struct Page
    {
        std::shared_ptr<FcBase> objects[pageSize];
    };
    enum State : std::uint8_t
    {
        Present,
        Deleted
    };

    struct PendingChange
    {
        ChangeLog::Change change;
        /// What the attribute referred to before.
        std::vector<EntityIndex> targets;
    };

    explicit Data(std::unique_ptr<EntitySource> source);

    void adopt(std::shared_ptr<FcBase> const& entity);
    void adoptReferences(FcBase const& entity, AttributeBase const& attribute);
    void setObject(EntityIndex index, std::shared_ptr<FcBase> object) const;
    void setState(EntityIndex index, State state);
    void attributeWillChange(FcBase& entity, unsigned int slot);
    void attributeDidChange(FcBase& entity, unsigned int slot);
    void notify(std::vector<EntityIndex> const& entities);
    /// Moves those of \p entities that are objects by now to the front. \returns how many these are.
    [[nodiscard]] std::size_t objectsFirst(std::vector<EntityIndex>& entities) const;
    [[nodiscard]] std::vector<std::pair<EntityIndex, EntityIndex>>
    allReferences(std::vector<EntityIndex> relations, unsigned int slot) const;
    [[nodiscard]] std::vector<EntityIndex> referring(EntityIndex target, std::vector<EntityIndex> relations,
                                                     unsigned int slot) const;
    /// What an attribute refers to now.
    [[nodiscard]] static std::vector<EntityIndex> targetsOf(FcBase const& entity, unsigned int slot);
    /// Tells the inverse indexes that an attribute refers to \p targets, or does so no more.
    void indexTargets(FcBase const& entity, unsigned int slot, std::vector<EntityIndex> const& targets,
                      bool add) const;
    /// The same for what the attribute refers to now, and for all attributes.
    void indexReferences(FcBase const& entity, unsigned int slot, bool add) const;
    void indexAllReferences(FcBase const& entity, bool add) const;

    std::unique_ptr<EntitySource> m_source;
    std::size_t m_sourceCount = 0;
    /// The type numbers of what came after the source's records.
    std::vector<std::uint16_t> m_createdClasses;
    std::vector<bool> m_deleted;
    mutable std::vector<std::unique_ptr<Page>> m_pages;
    mutable std::size_t m_objectCount = 0;
    std::map<std::uint16_t, std::vector<EntityIndex>> m_createdByClass;
    mutable std::map<InverseKey, InverseIndex> m_inverseIndexes;
    ChangeLog m_changes;
    /// Changes that have begun and not yet ended, innermost last.
    std::vector<PendingChange> m_pending;
};

} // namespace qev::fc
