#pragma once

#include "FoundationClasses/EntityIndex.h"
#include "HostFoundationClassesExport.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace qev::fc {

class Data;
class FcBase;

/// Everything that was changed in a model, in steps that can be undone and redone.
///
/// A change outside any open step is a step of its own.
class HOSTFOUNDATIONCLASSES_EXPORT ChangeLog
{
public:
    explicit ChangeLog(Data& data)
        : m_data(data)
    {
    }

    /// Collects the changes of one action of the user into one step, until the object ends.
    class HOSTFOUNDATIONCLASSES_EXPORT Step
    {
    public:
        Step(ChangeLog& log, std::string name);
        ~Step();
        Step(Step const&) = delete;
        Step& operator=(Step const&) = delete;

    private:
        ChangeLog& m_log;
    };

    [[nodiscard]] bool canUndo() const { return m_position > 0; }
    [[nodiscard]] bool canRedo() const { return m_position < m_steps.size(); }
    /// The name of the step that `undo` takes back or `redo` brings back.
    [[nodiscard]] std::string undoName() const;
    [[nodiscard]] std::string redoName() const;
    void undo();
    void redo();

    /// Tells whether the model differs from what was last saved or opened.
    [[nodiscard]] bool isModified() const { return m_savedPosition != m_position; }
    void setSaved() { m_savedPosition = m_position; }

private:
    friend class Data;

    enum class Kind
    {
        Attribute,
        Addition,
        Deletion
    };

    /// One change. For an attribute, `value` is the value that is not in force: the former one
    /// while the change stands, the later one while it is undone.
    struct Change
    {
        Kind kind;
        std::shared_ptr<FcBase> entity;
        unsigned int slot = 0;
        std::shared_ptr<void const> value = nullptr;
        bool wasChangedBefore = false;
    };
    struct StepRecord
    {
        std::string name;
        std::vector<Change> changes;
    };

    void record(Change change);
    void begin(std::string name);
    void end();
    void exchange(Change& change, bool isUndo);
    [[nodiscard]] std::vector<EntityIndex> touched(StepRecord const& step) const;

    Data& m_data;
    std::vector<StepRecord> m_steps;
    std::size_t m_position = 0;
    std::optional<std::size_t> m_savedPosition = 0;
    unsigned int m_depth = 0;
    std::optional<StepRecord> m_open;
};

} // namespace qev::fc
