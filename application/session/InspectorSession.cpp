#include "InspectorSession.h"

#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "FoundationClasses/Core/Kernel/FcRelDefinesByProperties.h"

#include <set>
#include <utility>

namespace qev::application {

namespace {

using fc::core::kernel::FcObjectDefinition;
using fc::core::kernel::FcRelDefinesByProperties;
using step::StepPatch;
using step::StepSaveResult;

} // namespace

InspectorSession::InspectorSession() = default;

InspectorSession::~InspectorSession() { close(); }

bool InspectorSession::open(std::filesystem::path const& path, ifc::IfcFile::Progress const& progress)
{
    auto stamp = platform::fileStamp(path);
    auto opened = ifc::IfcFile::open(path, progress);
    if (!opened.file) {
        m_failedOpening = std::move(opened.messages);
        return false;
    }
    replaceFile(std::move(opened.file), path);
    m_stamp = stamp;
    return true;
}

void InspectorSession::close() { replaceFile(nullptr, {}); }

std::shared_ptr<fc::Data> InspectorSession::getData() const { return m_file ? m_file->data() : nullptr; }

std::vector<step::StepMessage> InspectorSession::getMessages() const
{
    auto messages = m_file ? m_file->messages() : std::vector<step::StepMessage>();
    messages.insert(messages.end(), m_failedOpening.begin(), m_failedOpening.end());
    return messages;
}

std::size_t InspectorSession::getObjectCount() const
{
    return m_file ? m_file->data()->countFromId(FcObjectDefinition::idFirst, FcObjectDefinition::idLast) : 0;
}

void InspectorSession::select(std::shared_ptr<fc::FcBase> object) { m_selection = std::move(object); }

std::shared_ptr<fc::FcBase> InspectorSession::findObject(std::string_view globalId) const
{
    return m_file ? m_file->entityFromGlobalId(globalId) : nullptr;
}

std::size_t InspectorSession::countOthersWithSet(std::string const& setName) const
{
    auto const object = fc::entityCast<FcObjectDefinition>(m_selection);
    if (!object || !m_file)
        return 0;
    auto const& data = *m_file->data();
    auto const slot =
        slotFromName(FcRelDefinesByProperties::staticEntityClass(), "RelatingPropertyDefinition");
    std::set<fc::EntityIndex> others;
    for (auto const& set : object->attachedSets()) {
        if (set->getAttributeAsString("Name").value_or("") != setName)
            continue;
        for (auto const index : data.relating(set->getIndex(), FcRelDefinesByProperties::idFirst,
                                              FcRelDefinesByProperties::idLast, slot))
            if (auto const relation = fc::entityCast<FcRelDefinesByProperties>(data.entity(index)))
                for (auto const& reference : relation->RelatedObjects.get().references())
                    others.insert(reference.index());
    }
    others.erase(object->getIndex());
    others.erase(fc::noEntity);
    return others.size();
}

bool InspectorSession::isModified() const { return m_file && m_file->data()->changes().isModified(); }

bool InspectorSession::canUndo() const { return m_file && m_file->data()->changes().canUndo(); }

bool InspectorSession::canRedo() const { return m_file && m_file->data()->changes().canRedo(); }

void InspectorSession::undo()
{
    if (canUndo())
        m_file->data()->changes().undo();
}

void InspectorSession::redo()
{
    if (canRedo())
        m_file->data()->changes().redo();
}

ifc::SaveResult InspectorSession::save(StepPatch::IfChanged ifChanged)
{
    ifc::SaveResult result;
    if (!m_file) {
        result.status = StepSaveResult::Status::Failed;
        result.text = "No file is open.";
        return result;
    }
    if (ifChanged == StepPatch::IfChanged::Refuse && platform::fileStamp(m_path) != m_stamp) {
        result.status = StepSaveResult::Status::ChangedMeanwhile;
        result.text = "Another program has changed the file since it was read.";
        return result;
    }
    result = m_file->save(m_path, ifChanged);
    if (result.saved())
        m_stamp = platform::fileStamp(m_path);
    return result;
}

ifc::SaveResult InspectorSession::saveAs(std::filesystem::path const& path)
{
    if (!m_file)
        return save();
    // Whoever names a file that is there has agreed to replace it.
    auto result = m_file->save(path, StepPatch::IfChanged::Overwrite);
    if (result.saved()) {
        m_path = path;
        m_stamp = platform::fileStamp(path);
    }
    return result;
}

void InspectorSession::replaceFile(std::unique_ptr<ifc::IfcFile> file, std::filesystem::path path)
{
    if (m_file)
        m_file->data()->changed.vHandlerRemove(m_changeHandler);
    m_selection.reset();
    m_failedOpening.clear();
    m_stamp.reset();
    m_file = std::move(file);
    m_path = std::move(path);
    if (!m_file)
        return;
    m_changeHandler = m_file->data()->changed.iHandlerAdd(
        [this](std::vector<fc::EntityIndex> const& touched) { fireEvents(onModelChanged, touched); });
}

} // namespace qev::application
