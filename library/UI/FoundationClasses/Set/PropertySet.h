#pragma once

#include "UI/FoundationClasses/Set/PropertySetDefinition.h"

namespace qev::ifc::def::pset {
class PropertyDef;
class PropertySetDef;
} // namespace qev::ifc::def::pset

namespace qev::fc::ui {

/// A displayed property set.
class QEVFOUNDATIONCLASSESUI_EXPORT PropertySet final : public PropertySetDefinition
{
public:
    /// The rows follow the definition of \p info, or else the set that the first object has. What
    /// \p filter leaves out has no row; a value and its toggle, joined by \p formatter, have one row at
    /// the place of the toggle.
    PropertySet(
        PropertySetDefinitionInfo const& info, ObjectsGetter const& objectsGetter,
        std::shared_ptr<PropertyFormatterInterface> const& formatter,
        std::shared_ptr<PropertySetDefinitionFilterInterface> const& filter,
        std::vector<std::string> const& contexts,
        std::shared_ptr<PropertyTypePropertySetAndPropertyNameQppOverrideInterface> const& qppOverride);
    ~PropertySet() override;

private:
    [[nodiscard]] std::unique_ptr<ifc::def::pset::PropertySetDef> definitionFromObjects() const;
    [[nodiscard]] bool isIncluded(ifc::def::pset::PropertySetDef const& definition,
                                  ifc::def::pset::PropertyDef const& property) const;
    void populateProperties(ifc::def::pset::PropertySetDef const& definition);
    void populatePropertiesByQueryingFormatterAndFilter(ifc::def::pset::PropertySetDef const& definition);
    [[nodiscard]] std::unique_ptr<PropertyInterface>
    createToggleProperty(ifc::def::pset::PropertyDef* value, ifc::def::pset::PropertyDef* toggle);

    /// The definition made from the objects; null when the schema has one.
    std::unique_ptr<ifc::def::xml::SetDef> m_ownDefinition;
};

} // namespace qev::fc::ui
