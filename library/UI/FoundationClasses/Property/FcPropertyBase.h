#pragma once

#include "UI/FoundationClasses/Property/PropertyInterface.h"

#include <memory>
#include <vector>

namespace qev::ifc::def::pset {
class PropertyDef;
}
namespace qev::fc {
class FcBase;
}
namespace qev::fc::core::kernel {
class FcObjectDefinition;
class FcPropertySet;
} // namespace qev::fc::core::kernel
namespace qev::fc::resource::measure {
class FcValue;
}

namespace qev::fc::ui {

class PropertySet;

/// What all displayed properties of a property set have in common.
///
/// The definition, the set and the localisation contexts are not owned and outlive this object. The
/// objects come from the set at each call.
class QEVFOUNDATIONCLASSESUI_EXPORT FcPropertyBase : public PropertyInterface
{
public:
    FcPropertyBase(ifc::def::pset::PropertyDef& definition, PropertySet& set,
                   std::vector<std::string> const& contexts);
    ~FcPropertyBase() override;

    [[nodiscard]] bool isAllowedToEdit() const override;
    [[nodiscard]] bool isValidValue() const override;
    /// The empty text removes the property from each object, and a set with its last property. Any other
    /// value is stored, in a set that is made where there is none; a refused one leaves no empty set behind.
    bool updateValue(Data& data, PropertyOrQuantityValue const& value) override;
    [[nodiscard]] std::string getName() const override;
    [[nodiscard]] std::string getDescription() const override;
    [[nodiscard]] std::string getLocalizedName() const override;
    [[nodiscard]] std::string getLocalizedDescription() const override;
    [[nodiscard]] std::string getValue() const override;
    [[nodiscard]] std::string getPropertySetName() const override;
    void onPropertyCustomButtonClicked() override;

protected:
    /// The definition that names, texts and values go by at the moment.
    [[nodiscard]] virtual ifc::def::pset::PropertyDef const& getActivePropertyDefinition() const;
    /// Stores \p value in \p set, which is attached to \p object. False when it is refused.
    virtual bool setNewValue(PropertyOrQuantityValue const& value, core::kernel::FcPropertySet& set,
                             core::kernel::FcObjectDefinition& object);

    [[nodiscard]] static resource::measure::FcValue const& getEmptyFcValue();

    [[nodiscard]] PropertySet const& getSet() const { return m_set; }
    [[nodiscard]] std::vector<std::string> const& getContexts() const { return m_contexts; }
    [[nodiscard]] std::vector<std::shared_ptr<FcBase>> const& getObjects() const;

    /// Reports "Unable to create property." for a set that did not take a new one.
    static void reportUncreatedProperty();

private:
    /// The value on which all objects agree; the empty one when they do not.
    [[nodiscard]] virtual resource::measure::FcValue const& getFcValue() const;

    void removeFrom(core::kernel::FcObjectDefinition& object, Data& data);
    bool storeIn(core::kernel::FcObjectDefinition& object, Data& data, PropertyOrQuantityValue const& value);

    ifc::def::pset::PropertyDef& m_definition;
    PropertySet& m_set;
    std::vector<std::string> const& m_contexts;
};

} // namespace qev::fc::ui
