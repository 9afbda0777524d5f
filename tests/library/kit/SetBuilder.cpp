#include "library/kit/SetBuilder.h"

#include "Format/Ifc/Schema/Pset/TypeComplexProperty.h"
#include "Format/Ifc/Schema/Pset/TypePropertyBoundedValue.h"
#include "Format/Ifc/Schema/Pset/TypePropertyEnumeratedValue.h"
#include "Format/Ifc/Schema/Pset/TypePropertyListValue.h"
#include "Format/Ifc/Schema/Pset/TypePropertyTableValue.h"

#include <utility>

namespace qev::test {

using namespace ifc::def::pset;

SetBuilder::SetBuilder(std::string const& name)
    : m_set(std::make_unique<PropertySetDef>(name))
{
}

SetBuilder::SetBuilder(SetBuilder&&) noexcept = default;

SetBuilder::~SetBuilder() = default;

SetBuilder& SetBuilder::single(std::string const& name, std::string const& valueType)
{
    return property(name, std::make_unique<TypePropertySingleValue>(valueType));
}

SetBuilder& SetBuilder::enumerated(std::string const& name, std::vector<std::string> const& values)
{
    return property(name, std::make_unique<TypePropertyEnumeratedValue>("PEnum_" + name, values));
}

SetBuilder& SetBuilder::bounded(std::string const& name, std::string const& valueType)
{
    return property(name, std::make_unique<TypePropertyBoundedValue>(valueType));
}

SetBuilder& SetBuilder::list(std::string const& name, std::string const& valueType)
{
    return property(name, std::make_unique<TypePropertyListValue>(valueType));
}

SetBuilder& SetBuilder::table(std::string const& name)
{
    return property(name, std::make_unique<TypePropertyTableValue>());
}

SetBuilder& SetBuilder::reference(std::string const& name)
{
    return property(name, std::make_unique<TypePropertyReferenceValue>("IfcPerson"));
}

SetBuilder& SetBuilder::complex(std::string const& name)
{
    return property(name, std::make_unique<TypeComplexProperty>("Usage"));
}

SetBuilder& SetBuilder::withoutType(std::string const& name) { return property(name, nullptr); }

SetBuilder& SetBuilder::property(std::string const& name, std::unique_ptr<PropertyType> type)
{
    m_set->propertyDefs.push_back(std::make_unique<PropertyDef>(*m_set, name, std::move(type)));
    return *this;
}

SetBuilder& SetBuilder::applicableTo(std::string const& className, std::string const& predefinedType)
{
    m_set->applicableClasses.push_back({className, predefinedType});
    return *this;
}

SetBuilder& SetBuilder::description(std::string const& text)
{
    m_set->description = text;
    return *this;
}

std::unique_ptr<PropertySetDef> SetBuilder::take() { return std::move(m_set); }

std::unique_ptr<ifc::def::qto::QuantitySetDef> everyQuantity(std::string const& name,
                                                             std::string const& applicableClass)
{
    using namespace ifc::def::qto;
    auto set = std::make_unique<QuantitySetDef>(name);
    if (!applicableClass.empty())
        set->applicableClasses.push_back({applicableClass, {}});
    for (auto const* const kind : {"Area", "Count", "Length", "Time", "Volume", "Weight"}) {
        std::string kindText = "Q_";
        for (char const* letter = kind; *letter != 0; ++letter)
            kindText += static_cast<char>(*letter >= 'a' ? *letter - 'a' + 'A' : *letter);
        set->quantityDefs.push_back(
            std::make_unique<QuantityDef>(*set, kind, quantityTypeFromKind(kindText)));
    }
    return set;
}

} // namespace qev::test
