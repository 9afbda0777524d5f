#pragma once

#include "Edit/ObjectPropertyEditControllerBase.h"
#include "FoundationClasses/ForwardDeclarations.h"
#include "QevFoundationClassesUiExport.h"
#include "Ui/Window/Geometry.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qev::classification {
class ClassificationInterface;
}
namespace qev::fc {
class Data;
}
namespace qev::fc::ui {
class AddClassificationPopupController;
class AddPropertyPopupController;
class AddPsetPopupController;
class EditBoundedValuePropertyPopupController;
class EditPropertyEnumerationPopupController;
class EditPropertyTablePopupController;
} // namespace qev::fc::ui
namespace qev::fc::ui::propertyinterface {
class FcPropertyWrapper;
}
namespace qev::ifc::def::xml {
class Def;
class SetDef;
} // namespace qev::ifc::def::xml
namespace qev::ui {
class ListControl;
template <class Control>
class PopupControl;
} // namespace qev::ui

namespace qev::fc::ui::edit {

/// Does what the buttons of `FcObjectEditor` stand for: opens popups, writes their results to the model,
/// reloads the grid and tells the owner.
///
/// Works on all edited objects, in the order of the selection; objects that are no entities of a model are
/// passed over. A program derives its controller from this one. Edits in the rows themselves do not pass
/// through here.
///
/// Ownership: owns the popup of each kind that was opened last. It keeps the owner neither itself nor through
/// a popup, as the owner may be what keeps the controller. An operation that finds the owner gone ends; where
/// a popup was to be opened this is reported.
class QEVFOUNDATIONCLASSESUI_EXPORT FcEditController : public qev::ui::edit::ObjectPropertyEditControllerBase
{
public:
    using Owner = qev::ui::edit::ObjectPropertyEditControllerOwnerInterface;
    using ClassificationCallback =
        std::function<void(std::shared_ptr<classification::ClassificationInterface>)>;

    FcEditController();
    ~FcEditController() override;

    /// Whether any of the objects offers values.
    bool hasEnumeratedValues(PropertyId const& id) const override;
    /// Those of the first object.
    std::vector<EnumeratedValue> getEnumeratedValues(PropertyId const& id) const override;
    /// What a button does is told by the first object. A button of no other meaning follows the references of
    /// the writable objects, one after the other; an object without one is reported.
    void onButtonClicked(PropertyId const& id, std::string const& key) override;
    OnPropertyChangedAction getOnPropertyChangedAction(PropertyId const& id) const override;
    /// A value that was emptied may have taken its property and set with it.
    void onPropertyChanged(PropertyId const& id, PropertyValue const& value) override;
    void onPropertyChangedAfterObjectRegen(PropertyId const& id, PropertyValue const& value) override;
    void onAfterPropertyUpdated(PropertyId const& id) override;
    bool onRequestToResetPropertyLocalValue(PropertyId const& id) override;
    void onAfterResetPropertyLocalValue(PropertyId const& id) override;
    void onResetPropertyLocalValueAfterObjectRegen(PropertyId const& id) override;
    /// Tells the owner the one path or address that the objects have there, or that they have none in common.
    /// Objects without one do not matter.
    void onPropertySelected(PropertyId const& id) override;
    void onPropertyDeselected(PropertyId const& id) override;

    /// Shows the list of classification systems over \p owner. \p popup must not be null; without a \p
    /// callback the list is made, but not shown.
    static void popupClassificationClicked(PropertyId id, std::shared_ptr<Owner> owner,
                                           AddClassificationPopupController* popup,
                                           ClassificationCallback callback);

protected:
    /// The model of all objects; null when they are of different models, or their model is gone.
    [[nodiscard]] std::shared_ptr<Data> getFcData() const;

private:
    using Wrapper = propertyinterface::FcPropertyWrapper;
    using ListPopupControl = qev::ui::PopupControl<qev::ui::ListControl>;
    using Objects = std::vector<std::shared_ptr<core::kernel::FcObjectDefinition>>;

    /// The objects that answer for \p id. Empty, with a report, when one of them is no \p T.
    template <class T>
    [[nodiscard]] std::vector<std::shared_ptr<T>> getFcObjectsBeingEdited(PropertyId const& id) const;
    [[nodiscard]] std::vector<std::shared_ptr<Wrapper const>> getEditedWrappers() const;
    [[nodiscard]] std::vector<std::shared_ptr<Wrapper>> getWritableWrappers() const;

    /// Null, with a report, without an owner.
    [[nodiscard]] static std::unique_ptr<ListPopupControl>
    createListPopupControl(std::string popupId, std::shared_ptr<Owner> const& owner,
                           std::optional<qev::ui::Position> position = std::nullopt);

    /// False when the button has no meaning for the first object.
    bool dispatchButton(PropertyId const& id, std::string const& key);
    bool dispatchValueButton(std::string_view mappedId, PropertyId const& id, std::string const& key);
    void followReference(Wrapper const& wrapper, PropertyId const& id) const;

    void addPsetClicked(PropertyId id);
    void onPsetChosen(ifc::def::xml::SetDef const& definition, Objects const& objects, PropertyId const& id,
                      std::optional<qev::ui::Position> position);
    void addPsetValueClicked(PropertyId id);
    void deletePsetsClicked(PropertyId id);

    void addClassificationClicked(PropertyId id);
    void onClassificationChosen(std::shared_ptr<classification::ClassificationInterface> const& system,
                                Objects const& objects, PropertyId const& id);
    void editClassificationClicked(PropertyId id);
    void deleteClassificationClicked(PropertyId id);

    void addDocumentClicked(PropertyId id);
    void editEnumerationValueClicked(PropertyId id);
    void editBoundedValueClicked(PropertyId const& id);
    void editTableValueClicked(PropertyId id);
    void addListValueClicked(PropertyId id);
    void deletePropertyClicked(PropertyId id);

    void clearCaches() const;
    void reloadEditedProperty(PropertyId const& id) const;
    void notifyObjectsEdited() const;
    /// Both, as after every change of the model.
    void reloadAndNotify(PropertyId const& id) const;

    std::unique_ptr<AddPropertyPopupController> m_addPropertyPopup;
    std::unique_ptr<AddClassificationPopupController> m_addClassificationPopup;
    std::unique_ptr<AddPsetPopupController> m_addPsetPopup;
    std::unique_ptr<EditPropertyEnumerationPopupController> m_editEnumerationPopup;
    std::unique_ptr<EditPropertyTablePopupController> m_editTablePopup;
    std::unique_ptr<EditBoundedValuePropertyPopupController> m_editBoundedValuePopup;
};

} // namespace qev::fc::ui::edit
