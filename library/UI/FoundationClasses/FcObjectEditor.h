#pragma once

#include "Edit/ObjectPropertyEditInterface.h"
#include "QevFoundationClassesUiExport.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qev::fc {
class FcBase;
struct Property;
} // namespace qev::fc
namespace qev::fc::ui::propertyinterface {
class FcPropertyWrapper;
}
namespace qev::ui::edit {
enum class PropertyGridControlObjectEditorContext : int;
}

namespace qev::fc::ui::edit {

/// Tells the generic object editor which rows and buttons an entity of the model has.
///
/// Everything is asked of the entity's wrapper anew at each call. `FcEditController` carries out the clicks
/// on the buttons. Once the entity is gone there are no rows and no buttons.
///
/// Ownership: the editor refers to the wrapper, which has to outlive it.
class QEVFOUNDATIONCLASSESUI_EXPORT FcObjectEditor : public qev::ui::edit::ObjectPropertyEditInterface
{
public:
    using Property = qev::ui::edit::Property;

    /// The rows are the same in every context.
    FcObjectEditor(propertyinterface::FcPropertyWrapper const& wrapper,
                   qev::ui::edit::PropertyGridControlObjectEditorContext context);
    ~FcObjectEditor() override;

    bool isEnabled(PropertyId const& id) const override;
    /// True as well for a bounded value, whose only editor is a popup.
    bool isReadOnly(PropertyId const& id) const override;
    std::vector<PropertyButton> getButtons(PropertyId const& id) const override;
    std::optional<attr::Colour> getTextColour(PropertyId const& id) override;
    std::optional<attr::Colour> getBackgroundColour(PropertyId const& id) override;
    /// The rows of the entity. A read-only one has no rows without a value.
    std::vector<Property> getPropertiesToBeEdited(PropertiesToBeEditedParams const& params) const override;
    /// The classifications of an object, or of a type that has some: their rows, their identifications and
    /// their names, under "Classifications", "Classifications.Identification" and "Classifications.Name".
    /// Below the one row of each stand those of the classifications.
    std::map<std::string, std::vector<Property>> getDynamicProperties() const override;

private:
    [[nodiscard]] std::optional<std::vector<PropertyButton>> getButtonsOfWritable(PropertyId const& id) const;
    [[nodiscard]] bool shouldShow(fc::Property const& node) const;
    [[nodiscard]] Property buildProperty(fc::Property const& node) const;
    [[nodiscard]] static Property buildDynamicProperty(fc::Property const& node, std::string const& name,
                                                       bool topLevel, std::string_view suffix);

    propertyinterface::FcPropertyWrapper const& m_wrapper;
};

} // namespace qev::fc::ui::edit
