#pragma once

#include "UI/FoundationClasses/Quantity/FcQuantityBase.h"

namespace qev::fc::ui {

/// A whole number of things; what is typed is cut towards zero.
class QEVFOUNDATIONCLASSESUI_EXPORT FcQuantityCount : public FcQuantityBase
{
public:
    /// The first whole number that the model cannot hold.
    static constexpr double limit = 9223372036854775808.0;

    FcQuantityCount(ifc::def::qto::QuantityDef const& definition, QuantitySet& set);
    ~FcQuantityCount() override;

    [[nodiscard]] std::string getValue() const override;

protected:
    bool setNewValue(std::string const& value, core::productextension::FcElementQuantity& set) override;
};

} // namespace qev::fc::ui
