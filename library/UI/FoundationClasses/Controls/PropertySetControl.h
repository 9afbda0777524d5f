#pragma once

#include "Core/Utilities/Events/EventHandlerContainer.h"
#include "QevFoundationClassesUiExport.h"
#include "UI/FoundationClasses/Set/PropertySetDefinitionInfo.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace qev::fc {
class Data;
class FcBase;
} // namespace qev::fc
namespace qev::ifc::def {
class SchemaPset;
}
namespace qev::ui {
class Dialog;
class Window;
} // namespace qev::ui

namespace qev::fc::ui {

class PropertyFormatterInterface;
class PropertySetDefinition;
class PropertySetDefinitionFilterInterface;
class PropertyTypePropertySetAndPropertyNameQppOverrideInterface;

/// Shows the property sets and quantity sets of objects, and tells of changes.
///
/// The control works out the sets that all objects have in common, from the schema and from the objects; a
/// flavour puts them on the screen. Until the next `reset` it shares the ownership of the objects.
/// Use from the toolkit's thread.
class QEVFOUNDATIONCLASSESUI_EXPORT PropertySetControl
{
public:
    enum class PropertyChangedNotificationType
    {
        /// An edit, or a click on a check box or toggle.
        ValueChanged = 0,
        /// Values of single objects were given up for the global one.
        ResetToGlobalValue = 1,
    };

    /// Touches no window and builds no set. The schema is not owned and outlives the control; filter,
    /// formatter and override may be null, subject to the flavour.
    PropertySetControl(
        ifc::def::SchemaPset const* schemaPset, std::shared_ptr<Data> const& data,
        std::shared_ptr<qev::ui::Dialog> const& dialog,
        std::shared_ptr<PropertySetDefinitionFilterInterface> const& filter,
        std::shared_ptr<PropertyFormatterInterface> const& formatter,
        std::vector<std::string> const& contexts,
        std::shared_ptr<PropertyTypePropertySetAndPropertyNameQppOverrideInterface> const& qppOverride);
    virtual ~PropertySetControl();
    PropertySetControl(PropertySetControl const&) = delete;
    PropertySetControl& operator=(PropertySetControl const&) = delete;

    /// Forgets objects and sets. The window keeps its rows until the next refresh; nothing may touch
    /// them before.
    virtual void reset();

    /// Shows one object. Filter and formatter are told of it twice.
    void setObject(std::shared_ptr<Data> const& data, std::shared_ptr<FcBase> const& object);
    /// Shows several objects; an empty list empties the window.
    void setObjects(std::shared_ptr<Data> const& data, std::vector<std::shared_ptr<FcBase>> const& objects);

    void show();
    void hide();

    /// The value that the property, a toggle, switches, or the toggle that switches the property. Nothing
    /// for a property without a partner, and for a set that is not shown.
    [[nodiscard]] std::optional<std::string> getRelatedPropertyName(std::string const& setName,
                                                                    std::string const& propertyName) const;

    /// Tells the formatter, for each of the objects at \p objectIndices, and then all handlers that a
    /// property was changed. A reset to global values is told to the handlers alone.
    ///
    /// An index beyond the objects is reported, and ends the work before the handlers. An object without
    /// the set is reported and passed over.
    void notifyPropertySetPropertyChanged(std::string const& setName, std::string const& propertyName,
                                          std::set<std::size_t> const& objectIndices,
                                          PropertyChangedNotificationType type);

    /// Called with the set's name, the property's name, and the positions of the changed objects.
    EventHandlerContainer<void, void, std::string const&, std::string const&, std::set<std::size_t> const&>
        propertyChangedHandlers;

    /// The objects shown, in the order in which they were given.
    [[nodiscard]] std::vector<std::shared_ptr<FcBase>> const& getObjects() const { return m_objects; }
    /// The sets shown, ascending by name. A set of unknown type is null.
    [[nodiscard]] std::vector<std::unique_ptr<PropertySetDefinition>> const& getDefinitions() const
    {
        return m_definitions;
    }

protected:
    /// Builds the sets that the objects have in common.
    virtual void initSets();

    /// Puts another object in the place of one that is shown; the sets stay as they are.
    void replaceObject(std::size_t index, std::shared_ptr<FcBase> object)
    {
        m_objects[index] = std::move(object);
    }
    [[nodiscard]] std::shared_ptr<Data> const& getData() const { return m_data; }
    [[nodiscard]] std::shared_ptr<qev::ui::Dialog> const& getDialog() const { return m_dialog; }
    [[nodiscard]] PropertySetDefinitionFilterInterface* getFilter() const { return m_filter.get(); }
    [[nodiscard]] PropertyFormatterInterface* getFormatter() const { return m_formatter.get(); }
    [[nodiscard]] std::vector<std::string> const& getContexts() const { return m_contexts; }

private:
    virtual void refreshDisplay() = 0;
    /// The window of the flavour; null before it is made.
    [[nodiscard]] virtual std::shared_ptr<qev::ui::Window> getWindow() = 0;
    /// The objects whose values the sets show.
    [[nodiscard]] virtual std::vector<std::shared_ptr<FcBase>> const& getObjectsBeingEdited();

    void tellObject(std::shared_ptr<FcBase> const& object);
    bool notifyFormatter(std::string const& setName, std::string const& propertyName,
                         std::set<std::size_t> const& objectIndices);

    std::shared_ptr<PropertyFormatterInterface> m_formatter;
    std::shared_ptr<Data> m_data;
    std::shared_ptr<qev::ui::Dialog> m_dialog;
    ifc::def::SchemaPset const* m_schemaPset;
    std::vector<std::shared_ptr<FcBase>> m_objects;
    std::vector<std::unique_ptr<PropertySetDefinition>> m_definitions;
    std::shared_ptr<PropertySetDefinitionFilterInterface> m_filter;
    std::shared_ptr<PropertyTypePropertySetAndPropertyNameQppOverrideInterface> m_qppOverride;
    std::vector<std::string> m_contexts;
};

} // namespace qev::fc::ui
