#pragma once

#include "UI/FoundationClasses/Quantity/FcQuantityBase.h"

namespace qev::fc::ui {

/// An area in square metres.
class QEVFOUNDATIONCLASSESUI_EXPORT FcQuantityArea : public FcQuantityBase
{
public:
    FcQuantityArea(ifc::def::qto::QuantityDef const& definition, QuantitySet& set);
    ~FcQuantityArea() override;

    [[nodiscard]] std::string getValue() const override;

protected:
    bool setNewValue(std::string const& value, core::productextension::FcElementQuantity& set) override;
};

} // namespace qev::fc::ui
