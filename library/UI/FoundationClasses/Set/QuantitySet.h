#pragma once

#include "UI/FoundationClasses/Set/PropertySetDefinition.h"

namespace qev::ifc::def::qto {
class QuantitySetDef;
}

namespace qev::fc::ui {

/// A displayed quantity set. Each quantity of its definition has a row, whatever filter and formatter say.
class QEVFOUNDATIONCLASSESUI_EXPORT QuantitySet final : public PropertySetDefinition
{
public:
    /// The rows follow the definition of \p info, or else the set that the first object has.
    /// \throws std::runtime_error for an unknown type of quantity.
    QuantitySet(PropertySetDefinitionInfo const& info, ObjectsGetter const& objectsGetter,
                std::shared_ptr<PropertyFormatterInterface> const& formatter,
                std::shared_ptr<PropertySetDefinitionFilterInterface> const& filter,
                std::vector<std::string> const& contexts);
    ~QuantitySet() override;

private:
    [[nodiscard]] std::unique_ptr<ifc::def::qto::QuantitySetDef> definitionFromObjects() const;

    /// The definition made from the objects; null when the schema has one.
    std::unique_ptr<ifc::def::xml::SetDef> m_ownDefinition;
};

} // namespace qev::fc::ui
