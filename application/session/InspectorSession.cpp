#include "InspectorSession.h"

#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "SharedSets.h"

#include <utility>

namespace qev::application {

namespace {

using fc::core::kernel::FcObjectDefinition;
using step::StepPatch;
using step::StepSaveResult;

} // namespace

InspectorSession::InspectorSession() = default;

InspectorSession::~InspectorSession() { close(); }

bool InspectorSession::open(std::filesystem::path const& path, ifc::IfcFile::Progress const& progress)
{
    auto opened = ifc::IfcFile::open(path, progress);
    if (!opened.file) {
        m_failedOpening = std::move(opened.messages);
        return false;
    }
    replaceFile(std::move(opened.file));
    return true;
}

void InspectorSession::close() { replaceFile(nullptr); }

std::filesystem::path InspectorSession::getPath() const
{
    return m_file ? m_file->path() : std::filesystem::path();
}

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
    return object ? application::countOthersWithSet(*object, setName) : 0;
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

ifc::SaveResult InspectorSession::save(StepPatch::IfChanged ifChanged, ifc::IfcFile::Progress const& progress)
{
    return saveTo(getPath(), ifChanged, progress);
}

ifc::SaveResult InspectorSession::saveAs(std::filesystem::path const& path,
                                         ifc::IfcFile::Progress const& progress)
{
    // Whoever names a file that is there has agreed to replace it.
    return saveTo(path, StepPatch::IfChanged::Overwrite, progress);
}

ifc::SaveResult InspectorSession::saveTo(std::filesystem::path const& path, StepPatch::IfChanged ifChanged,
                                         ifc::IfcFile::Progress const& progress)
{
    if (m_file)
        return m_file->save(path, ifChanged, progress);
    ifc::SaveResult result;
    result.status = StepSaveResult::Status::Failed;
    result.text = "No file is open.";
    return result;
}

void InspectorSession::replaceFile(std::unique_ptr<ifc::IfcFile> file)
{
    if (m_file)
        m_file->data()->changed.vHandlerRemove(m_changeHandler);
    m_selection.reset();
    m_failedOpening.clear();
    m_file = std::move(file);
    if (!m_file)
        return;
    m_changeHandler = m_file->data()->changed.iHandlerAdd(
        [this](std::vector<fc::EntityIndex> const& touched) { fireEvents(onModelChanged, touched); });
}

} // namespace qev::application
