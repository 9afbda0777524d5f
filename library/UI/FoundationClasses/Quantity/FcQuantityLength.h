#pragma once

#include "UI/FoundationClasses/Quantity/FcQuantityBase.h"

namespace qev::fc::ui {

/// A length in metres.
class QEVFOUNDATIONCLASSESUI_EXPORT FcQuantityLength : public FcQuantityBase
{
public:
    FcQuantityLength(ifc::def::qto::QuantityDef const& definition, QuantitySet& set);
    ~FcQuantityLength() override;

    [[nodiscard]] std::string getValue() const override;

protected:
    bool setNewValue(std::string const& value, core::productextension::FcElementQuantity& set) override;
};

} // namespace qev::fc::ui
