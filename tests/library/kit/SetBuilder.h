#pragma once

#include "Format/Ifc/Schema/Pset/PropertySetDef.h"
#include "Format/Ifc/Schema/Qto/QuantitySetDef.h"

#include <memory>
#include <string>
#include <vector>

namespace qev::test {

/// Makes the definition of a property set.
///
/// \code
/// auto definition = SetBuilder("Pset_Toy").single("FireRating", "IfcLabel").list("Codes",
/// "IfcLabel").take(); \endcode
class SetBuilder
{
public:
    explicit SetBuilder(std::string const& name);
    SetBuilder(SetBuilder&&) noexcept;
    ~SetBuilder();

    SetBuilder& single(std::string const& name, std::string const& valueType);
    SetBuilder& enumerated(std::string const& name, std::vector<std::string> const& values);
    SetBuilder& bounded(std::string const& name, std::string const& valueType);
    SetBuilder& list(std::string const& name, std::string const& valueType);
    SetBuilder& table(std::string const& name);
    SetBuilder& reference(std::string const& name);
    SetBuilder& complex(std::string const& name);
    SetBuilder& withoutType(std::string const& name);
    SetBuilder& property(std::string const& name, std::unique_ptr<ifc::def::pset::PropertyType> type);
    /// Ties the set to a class, and to one predefined type of it unless that is empty.
    SetBuilder& applicableTo(std::string const& className, std::string const& predefinedType = {});
    SetBuilder& description(std::string const& text);

    [[nodiscard]] std::unique_ptr<ifc::def::pset::PropertySetDef> take();

private:
    std::unique_ptr<ifc::def::pset::PropertySetDef> m_set;
};

/// A quantity set with one quantity of each kind: Area, Count, Length, Time, Volume and Weight.
[[nodiscard]] std::unique_ptr<ifc::def::qto::QuantitySetDef>
everyQuantity(std::string const& name, std::string const& applicableClass = {});

} // namespace qev::test
