#pragma once

#include "UI/FoundationClasses/Quantity/FcQuantityBase.h"

namespace qev::fc::ui {

/// A volume in cubic metres.
class QEVFOUNDATIONCLASSESUI_EXPORT FcQuantityVolume : public FcQuantityBase
{
public:
    FcQuantityVolume(ifc::def::qto::QuantityDef const& definition, QuantitySet& set);
    ~FcQuantityVolume() override;

    [[nodiscard]] std::string getValue() const override;

protected:
    bool setNewValue(std::string const& value, core::productextension::FcElementQuantity& set) override;
};

} // namespace qev::fc::ui
