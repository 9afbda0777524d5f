#pragma once

#include "UI/FoundationClasses/Property/PropertyInterface.h"

#include <memory>
#include <vector>

namespace qev::ifc::def::qto {
class QuantityDef;
}
namespace qev::fc {
class FcBase;
}
namespace qev::fc::core::kernel {
class FcObjectDefinition;
}
namespace qev::fc::core::productextension {
class FcElementQuantity;
}

namespace qev::fc::ui {

class QuantitySet;

/// What all displayed quantities have in common. They are read and written as text, in SI units.
///
/// Definition and set are not owned and outlive this object.
class QEVFOUNDATIONCLASSESUI_EXPORT FcQuantityBase : public PropertyInterface
{
public:
    FcQuantityBase(ifc::def::qto::QuantityDef const& definition, QuantitySet& set);
    ~FcQuantityBase() override;

    [[nodiscard]] bool isAllowedToEdit() const override;
    [[nodiscard]] bool isValidValue() const override;
    /// The empty text removes the quantity from each object, and a set with its last quantity. A refused
    /// text leaves the quantity that was made for it, with the value 0.
    /// \throws std::out_of_range for a number that `double` cannot hold.
    bool updateValue(Data& data, PropertyOrQuantityValue const& value) override;
    [[nodiscard]] std::string getName() const override;
    [[nodiscard]] std::string getDescription() const override;
    /// Names of quantities are not localised.
    [[nodiscard]] std::string getLocalizedName() const override;
    [[nodiscard]] std::string getLocalizedDescription() const override;
    [[nodiscard]] std::string getPropertySetName() const override;
    void onPropertyCustomButtonClicked() override;

protected:
    /// Stores the number at the start of \p value in the quantity of \p set, which is made if need be. False
    /// for a text without a number.
    virtual bool setNewValue(std::string const& value, core::productextension::FcElementQuantity& set) = 0;

    [[nodiscard]] std::vector<std::shared_ptr<FcBase>> const& getObjects() const;

private:
    void removeFrom(core::kernel::FcObjectDefinition& object, Data& data);
    bool storeIn(core::kernel::FcObjectDefinition& object, Data& data, std::string const& text);

    ifc::def::qto::QuantityDef const& m_definition;
    QuantitySet& m_set;
};

} // namespace qev::fc::ui
