#pragma once

#include "UI/FoundationClasses/Quantity/FcQuantityBase.h"

namespace qev::fc::ui {

/// A mass in kilograms.
class QEVFOUNDATIONCLASSESUI_EXPORT FcQuantityWeight : public FcQuantityBase
{
public:
    FcQuantityWeight(ifc::def::qto::QuantityDef const& definition, QuantitySet& set);
    ~FcQuantityWeight() override;

    [[nodiscard]] std::string getValue() const override;

protected:
    bool setNewValue(std::string const& value, core::productextension::FcElementQuantity& set) override;
};

} // namespace qev::fc::ui
