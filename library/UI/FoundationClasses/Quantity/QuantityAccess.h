#pragma once

#include "FoundationClasses/Core/ProductExtension/FcElementQuantity.h"
#include "FoundationClasses/Resource/Quantity/FcPhysicalSimpleQuantity.h"
#include "UI/FoundationClasses/NumberTexts.h"
#include "UI/FoundationClasses/Property/ObjectDefinitions.h"

#include <cmath>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace qev::fc::ui {

/// The first quantity of that name and of class \p Quantity in \p set; null when there is none.
template <class Quantity>
[[nodiscard]] std::shared_ptr<Quantity> findQuantity(core::productextension::FcElementQuantity const& set,
                                                     std::string const& name)
{
    for (auto const& quantity : set.Quantities.get().get()) {
        if (!quantity || quantity->Name.get() != name)
            continue;
        if (auto found = entityCast<Quantity>(std::shared_ptr<FcBase>(quantity)))
            return found;
    }
    return nullptr;
}

/// The text that all of \p objects have for a quantity of their set; empty when they do not agree.
///
/// \p className is that of the displayed quantity, for reports.
template <class Quantity>
[[nodiscard]] std::string commonQuantityText(std::vector<std::shared_ptr<FcBase>> const& objects,
                                             std::string const& className, std::string const& setName,
                                             std::string const& name, std::string (*text)(Quantity const&))
{
    return commonText(
        objects, "qev::fc::ui::" + className + "::getValue", "UI/FoundationClasses/Quantity/" + className,
        [&](core::kernel::FcObjectDefinition& object) -> std::optional<std::string> {
            using core::productextension::FcElementQuantity;
            auto const set = object.getPropertySetDefinitionNonConst<FcElementQuantity>(setName);
            auto const quantity = set ? findQuantity<Quantity>(*set, name) : nullptr;
            if (!quantity)
                return std::nullopt;
            return text(*quantity);
        });
}

/// A quantity's number with six decimals.
template <class Quantity>
[[nodiscard]] std::string sixDecimalQuantityText(Quantity const& quantity)
{
    return sixDecimalText(quantity.getValue());
}

/// The quantity of that name and class; a new one at the end of \p set when there is none.
template <class Quantity>
[[nodiscard]] std::shared_ptr<Quantity> findOrAddQuantity(core::productextension::FcElementQuantity& set,
                                                          std::string const& name)
{
    if (auto found = findQuantity<Quantity>(set, name))
        return found;
    auto created = std::make_shared<Quantity>();
    created->Name = name;
    set.Quantities.edit([&created](auto& quantities) { quantities.push_back(created); });
    return created;
}

/// Stores the number at the start of \p text in the quantity of that name, which is made if need be.
///
/// False, with the quantity as it was, for a text without a number that is below \p limit.
template <class Quantity>
[[nodiscard]] bool storeQuantity(core::productextension::FcElementQuantity& set, std::string const& name,
                                 std::string const& text, double limit = HUGE_VAL)
{
    auto const quantity = findOrAddQuantity<Quantity>(set, name);
    auto const number = leadingNumberBelow(text, limit);
    if (number)
        quantity->setValue(*number);
    return number.has_value();
}

} // namespace qev::fc::ui
