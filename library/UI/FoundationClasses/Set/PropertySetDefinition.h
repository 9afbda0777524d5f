#pragma once

#include "QevFoundationClassesUiExport.h"
#include "UI/FoundationClasses/Property/PropertyInterface.h"
#include "UI/FoundationClasses/Set/PropertySetDefinitionInfo.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace qev::fc {
class FcBase;
}
namespace qev::unit {
class QuantityPresentationBase;
}

namespace qev::fc::ui {

class PropertyFormatterInterface;
class PropertySetDefinitionFilterInterface;
class PropertyTypePropertySetAndPropertyNameQppOverrideInterface;

/// A displayed set, which owns the displayed properties or quantities in it.
///
/// Built once; its rows do not change. What the objects getter returns may, and the values of the rows follow
/// it.
class QEVFOUNDATIONCLASSESUI_EXPORT PropertySetDefinition
{
public:
    using ObjectsGetter = std::function<std::vector<std::shared_ptr<FcBase>> const&()>;

    /// A `PropertySet` or a `QuantitySet`. Null, with a report, for an unknown type.
    ///
    /// Without \p filter a property set has no rows; \p formatter and \p qppOverride may be null. What
    /// \p objectsGetter refers to outlives the set, as does the definition of \p info.
    [[nodiscard]] static std::unique_ptr<PropertySetDefinition>
    create(PropertySetDefinitionInfo const& info, ObjectsGetter const& objectsGetter,
           std::shared_ptr<PropertyFormatterInterface> const& formatter,
           std::shared_ptr<PropertySetDefinitionFilterInterface> const& filter,
           std::vector<std::string> const& contexts,
           std::shared_ptr<PropertyTypePropertySetAndPropertyNameQppOverrideInterface> const& qppOverride);

    virtual ~PropertySetDefinition();
    PropertySetDefinition(PropertySetDefinition const&) = delete;
    PropertySetDefinition& operator=(PropertySetDefinition const&) = delete;

    [[nodiscard]] std::string const& getName() const { return m_name; }
    [[nodiscard]] PropertySetDefinitionType getType() const { return m_type; }
    /// The schema's definition; null for a set that only objects have.
    [[nodiscard]] ifc::def::xml::SetDef const* getDefinition() const { return m_definition; }
    /// Empty without a definition.
    [[nodiscard]] std::string getDescription() const;
    /// The name in the present language. Without a text, what \p fallback gives, or else the name.
    [[nodiscard]] std::string getLocalizedName(std::function<std::string()> fallback) const;
    /// The description in the present language; empty without a definition. Without a text, what
    /// \p fallback gives, or else the description.
    [[nodiscard]] std::string getLocalizedDescription(std::function<std::string()> fallback) const;

    /// The rows in display order. None is null.
    [[nodiscard]] std::vector<std::unique_ptr<PropertyInterface>> const& getProperties() const
    {
        return m_properties;
    }
    /// From the name of each toggle to that of the value it switches.
    [[nodiscard]] std::map<std::string, std::string> const& getTogglesToValues() const
    {
        return m_togglesToValues;
    }
    [[nodiscard]] std::map<std::string, std::string> const& getValuesToToggles() const
    {
        return m_valuesToToggles;
    }

    /// The objects whose values the rows show.
    [[nodiscard]] std::vector<std::shared_ptr<FcBase>> const& getObjects() const;
    /// Hands the press of a row's button to the formatter; without one that is reported.
    void onPropertyCustomButtonClicked(std::string const& propertyName);
    /// The host's own choice; null when it has none.
    [[nodiscard]] std::unique_ptr<unit::QuantityPresentationBase>
    quantityPresentationOverride(std::string const& propertyType, std::string const& setName,
                                 std::string const& propertyName) const;

protected:
    PropertySetDefinition(
        PropertySetDefinitionInfo const& info, ObjectsGetter objectsGetter,
        std::shared_ptr<PropertyFormatterInterface> formatter,
        std::shared_ptr<PropertySetDefinitionFilterInterface> filter, std::vector<std::string> contexts,
        std::shared_ptr<PropertyTypePropertySetAndPropertyNameQppOverrideInterface> qppOverride);

    [[nodiscard]] PropertyFormatterInterface const* getFormatter() const { return m_formatter.get(); }
    [[nodiscard]] PropertySetDefinitionFilterInterface const* getFilter() const { return m_filter.get(); }
    [[nodiscard]] std::vector<std::string> const& getContexts() const { return m_contexts; }

    /// Appends a row; null is passed over.
    void appendProperty(std::unique_ptr<PropertyInterface> property);
    void relate(std::string const& toggleName, std::string const& valueName);

private:
    std::string m_name;
    ifc::def::xml::SetDef const* m_definition;
    PropertySetDefinitionType m_type;
    std::vector<std::unique_ptr<PropertyInterface>> m_properties;
    std::shared_ptr<PropertyFormatterInterface> m_formatter;
    std::map<std::string, std::string> m_togglesToValues;
    std::map<std::string, std::string> m_valuesToToggles;
    std::shared_ptr<PropertySetDefinitionFilterInterface> m_filter;
    std::shared_ptr<PropertyTypePropertySetAndPropertyNameQppOverrideInterface> m_qppOverride;
    ObjectsGetter m_objectsGetter;
    std::vector<std::string> m_contexts;
};

} // namespace qev::fc::ui
