#pragma once

#include "UI/FoundationClasses/Quantity/FcQuantityBase.h"

namespace qev::fc::ui {

/// A span of time in seconds.
class QEVFOUNDATIONCLASSESUI_EXPORT FcQuantityTime : public FcQuantityBase
{
public:
    FcQuantityTime(ifc::def::qto::QuantityDef const& definition, QuantitySet& set);
    ~FcQuantityTime() override;

    [[nodiscard]] std::string getValue() const override;

protected:
    bool setNewValue(std::string const& value, core::productextension::FcElementQuantity& set) override;
};

} // namespace qev::fc::ui
