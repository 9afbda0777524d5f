#pragma once

#include "Core/Utilities/Events/EventHandlerContainer.h"
#include "Format/Ifc/Model/IfcFile.h"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace qev::application {

/// One file at work: what is open, what is selected, whether it differs from what is on the disk.
///
/// Knows nothing of windows. Use from one thread.
class InspectorSession
{
public:
    InspectorSession();
    ~InspectorSession();
    InspectorSession(InspectorSession const&) = delete;
    InspectorSession& operator=(InspectorSession const&) = delete;

    /// Opens a file in place of the present one. False, with the reasons in `getMessages`, when it cannot be
    /// used or \p progress asked to stop; the present file then stays open.
    bool open(std::filesystem::path const& path, ifc::IfcFile::Progress const& progress = {});
    /// Closes the file without saving.
    void close();

    [[nodiscard]] bool isOpen() const { return m_file != nullptr; }
    /// The file; null when none is open.
    [[nodiscard]] ifc::IfcFile* getFile() const { return m_file.get(); }
    /// The model; null when no file is open.
    [[nodiscard]] std::shared_ptr<fc::Data> getData() const;
    /// Where the file is saved to: where it was opened from, or where it was last saved under another name.
    /// Empty when no file is open.
    [[nodiscard]] std::filesystem::path getPath() const;
    /// What was wrong with the file, and with one that could not be opened after it.
    [[nodiscard]] std::vector<step::StepMessage> getMessages() const;
    [[nodiscard]] std::size_t getObjectCount() const;

    /// Selects an object; nothing is selected when it is null.
    void select(std::shared_ptr<fc::FcBase> object);
    [[nodiscard]] std::shared_ptr<fc::FcBase> const& getSelection() const { return m_selection; }
    /// The object with that GlobalId; null when there is none or no file is open.
    [[nodiscard]] std::shared_ptr<fc::FcBase> findObject(std::string_view globalId) const;
    /// How many other objects have the very property set or quantity set that the selected object has under
    /// this name: an edit of it changes them too.
    [[nodiscard]] std::size_t countOthersWithSet(std::string const& setName) const;

    [[nodiscard]] bool isModified() const;
    [[nodiscard]] bool canUndo() const;
    [[nodiscard]] bool canRedo() const;
    void undo();
    void redo();

    /// Saves to where the file is. Another program's changes since are only overwritten when \p ifChanged
    /// says so. When \p progress asks to stop, file and model stay as they were.
    ifc::SaveResult save(step::StepPatch::IfChanged ifChanged = step::StepPatch::IfChanged::Refuse,
                         ifc::IfcFile::Progress const& progress = {});
    /// Saves to another place, which is the place of the file from then on.
    ifc::SaveResult saveAs(std::filesystem::path const& path, ifc::IfcFile::Progress const& progress = {});

    /// Fired after each change of the model, with the places of the entities touched.
    EventHandlerContainer<void, void, std::vector<fc::EntityIndex> const&> onModelChanged;

private:
    ifc::SaveResult saveTo(std::filesystem::path const& path, step::StepPatch::IfChanged ifChanged,
                           ifc::IfcFile::Progress const& progress);
    void replaceFile(std::unique_ptr<ifc::IfcFile> file);

    std::unique_ptr<ifc::IfcFile> m_file;
    std::vector<step::StepMessage> m_failedOpening;
    std::shared_ptr<fc::FcBase> m_selection;
    int m_changeHandler = 0;
};

} // namespace qev::application
