#pragma once

#include "FoundationClasses/AttributeReader.h"
#include "FoundationClasses/AttributeWriter.h"
#include "FoundationClasses/EntityClass.h"
#include "FoundationClasses/Payload.h"
#include "FoundationClasses/Reference.h"
#include "FoundationClasses/Resource/Measure/FcValue.h"
#include "FoundationClasses/Select.h"
#include "HostFoundationClassesExport.h"

#include <concepts>
#include <functional>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

/// How each C++ type that an attribute may have is read from a record, written to one and shown as text.
/// The overloads for aggregates and optionals build on those for their element.
namespace qev::fc::values {

using step::StepValue;

// --- Plain values -------------------------------------------------------------------------------

HOSTFOUNDATIONCLASSES_EXPORT bool read(std::string&, AttributeDescriptor const&, StepValue const&,
                                       AttributeReader&);
HOSTFOUNDATIONCLASSES_EXPORT bool read(double&, AttributeDescriptor const&, StepValue const&,
                                       AttributeReader&);
HOSTFOUNDATIONCLASSES_EXPORT bool read(std::int64_t&, AttributeDescriptor const&, StepValue const&,
                                       AttributeReader&);
HOSTFOUNDATIONCLASSES_EXPORT bool read(bool&, AttributeDescriptor const&, StepValue const&, AttributeReader&);
HOSTFOUNDATIONCLASSES_EXPORT bool read(Logical&, AttributeDescriptor const&, StepValue const&,
                                       AttributeReader&);
HOSTFOUNDATIONCLASSES_EXPORT bool read(Binary&, AttributeDescriptor const&, StepValue const&,
                                       AttributeReader&);
HOSTFOUNDATIONCLASSES_EXPORT bool read(ReferenceBase&, AttributeDescriptor const&, StepValue const&,
                                       AttributeReader&);
HOSTFOUNDATIONCLASSES_EXPORT bool read(ReferenceListBase&, AttributeDescriptor const&, StepValue const&,
                                       AttributeReader&);
HOSTFOUNDATIONCLASSES_EXPORT bool read(SelectBase&, AttributeDescriptor const&, StepValue const&,
                                       AttributeReader&);
HOSTFOUNDATIONCLASSES_EXPORT bool read(resource::measure::FcValue&, AttributeDescriptor const&,
                                       StepValue const&, AttributeReader&);
HOSTFOUNDATIONCLASSES_EXPORT StepValue write(std::string const&, AttributeDescriptor const&,
                                             AttributeWriter const&);
HOSTFOUNDATIONCLASSES_EXPORT StepValue write(double const&, AttributeDescriptor const&,
                                             AttributeWriter const&);
HOSTFOUNDATIONCLASSES_EXPORT StepValue write(std::int64_t const&, AttributeDescriptor const&,
                                             AttributeWriter const&);
HOSTFOUNDATIONCLASSES_EXPORT StepValue write(bool const&, AttributeDescriptor const&, AttributeWriter const&);
HOSTFOUNDATIONCLASSES_EXPORT StepValue write(Logical const&, AttributeDescriptor const&,
                                             AttributeWriter const&);
HOSTFOUNDATIONCLASSES_EXPORT StepValue write(Binary const&, AttributeDescriptor const&,
                                             AttributeWriter const&);
HOSTFOUNDATIONCLASSES_EXPORT StepValue write(ReferenceBase const&, AttributeDescriptor const&,
                                             AttributeWriter const&);
HOSTFOUNDATIONCLASSES_EXPORT StepValue write(ReferenceListBase const&, AttributeDescriptor const&,
                                             AttributeWriter const&);
HOSTFOUNDATIONCLASSES_EXPORT StepValue write(SelectBase const&, AttributeDescriptor const&,
                                             AttributeWriter const&);
HOSTFOUNDATIONCLASSES_EXPORT StepValue write(resource::measure::FcValue const&, AttributeDescriptor const&,
                                             AttributeWriter const&);

using Text = std::optional<std::string>;
HOSTFOUNDATIONCLASSES_EXPORT Text text(std::string const&, AttributeDescriptor const&);
HOSTFOUNDATIONCLASSES_EXPORT Text text(double const&, AttributeDescriptor const&);
HOSTFOUNDATIONCLASSES_EXPORT Text text(std::int64_t const&, AttributeDescriptor const&);
HOSTFOUNDATIONCLASSES_EXPORT Text text(bool const&, AttributeDescriptor const&);
HOSTFOUNDATIONCLASSES_EXPORT Text text(Logical const&, AttributeDescriptor const&);
HOSTFOUNDATIONCLASSES_EXPORT Text text(Binary const&, AttributeDescriptor const&);
HOSTFOUNDATIONCLASSES_EXPORT Text text(ReferenceBase const&, AttributeDescriptor const&);
HOSTFOUNDATIONCLASSES_EXPORT Text text(ReferenceListBase const&, AttributeDescriptor const&);
HOSTFOUNDATIONCLASSES_EXPORT Text text(SelectBase const&, AttributeDescriptor const&);
HOSTFOUNDATIONCLASSES_EXPORT Text text(resource::measure::FcValue const&, AttributeDescriptor const&);

using Visit = std::function<void(ReferenceBase const&)>;
HOSTFOUNDATIONCLASSES_EXPORT void visitReferences(ReferenceBase const&, Visit const&);
HOSTFOUNDATIONCLASSES_EXPORT void visitReferences(ReferenceListBase const&, Visit const&);
HOSTFOUNDATIONCLASSES_EXPORT void visitReferences(SelectBase const&, Visit const&);

inline void leaveModel(ReferenceBase& reference) { reference.leaveModel(); }
template <class T>
void leaveModel(ReferenceList<T>& list)
{
    list.leaveModel();
}
inline void leaveModel(SelectBase& select) { select.leaveModel(); }

inline bool isUnset(ReferenceBase const& reference) { return !reference.isSet(); }
inline bool isUnset(SelectBase const& select) { return !select.isSet(); }
inline bool isUnset(resource::measure::FcValue const& value) { return value.isEmpty(); }

// --- Plain values that refer to nothing ----------------------------------------------------------

template <class T>
concept EntityLink = std::derived_from<T, ReferenceBase> || std::derived_from<T, ReferenceListBase> ||
    std::derived_from<T, SelectBase>;

template <class T>
requires(!EntityLink<T>) void visitReferences(T const&, Visit const&) {}
template <class T>
requires(!EntityLink<T>) void leaveModel(T&) {}
template <class T>
requires(!std::derived_from<T, ReferenceBase> && !std::derived_from<T, SelectBase>) bool isUnset(T const&)
{
    return false;
}

// --- Items of enumerations, by their position in the schema -----------------------------------------

/// No value when the record has none, or has no item of \p attribute.enumeration.
HOSTFOUNDATIONCLASSES_EXPORT std::optional<std::uint16_t> readItem(AttributeDescriptor const& attribute,
                                                                   StepValue const&, AttributeReader&);
HOSTFOUNDATIONCLASSES_EXPORT StepValue writeItem(std::optional<std::uint16_t> item,
                                                 AttributeDescriptor const&);
HOSTFOUNDATIONCLASSES_EXPORT Text textOfItem(std::optional<std::uint16_t> item, AttributeDescriptor const&);
inline void visitNoReferences(AttributeBase const&, Visit const&) {}
inline void leaveNoModel(AttributeBase&) {}

// --- Optionals and aggregates --------------------------------------------------------------------

template <class T>
bool read(std::optional<T>& value, AttributeDescriptor const& attribute, StepValue const& from,
          AttributeReader& reader);
template <class T>
bool read(std::vector<T>& values, AttributeDescriptor const& attribute, StepValue const& from,
          AttributeReader& reader);
template <class T>
StepValue write(std::optional<T> const& value, AttributeDescriptor const& attribute,
                AttributeWriter const& writer);
template <class T>
StepValue write(std::vector<T> const& values, AttributeDescriptor const& attribute,
                AttributeWriter const& writer);
template <class T>
Text text(std::optional<T> const& value, AttributeDescriptor const& attribute);
template <class T>
Text text(std::vector<T> const& values, AttributeDescriptor const& attribute);
template <class T>
void visitReferences(std::optional<T> const& value, Visit const& visit);
template <class T>
void visitReferences(std::vector<T> const& values, Visit const& visit);
template <class T>
void leaveModel(std::optional<T>& value);
template <class T>
void leaveModel(std::vector<T>& values);
template <class T>
bool isUnset(std::optional<T> const& value)
{
    return !value.has_value();
}

template <class T>
bool read(std::optional<T>& value, AttributeDescriptor const& attribute, StepValue const& from,
          AttributeReader& reader)
{
    T element{};
    if (!read(element, attribute, from, reader))
        return false;
    value = std::move(element);
    return true;
}

template <class T>
bool read(std::vector<T>& values, AttributeDescriptor const& attribute, StepValue const& from,
          AttributeReader& reader)
{
    if (from.kind() != StepValue::Kind::List) {
        reader.mismatch(attribute, "a list", from);
        return false;
    }
    values.reserve(from.items().size());
    for (StepValue const& item : from.items()) {
        T element{};
        if (read(element, attribute, item, reader))
            values.push_back(std::move(element));
    }
    return true;
}

template <class T>
StepValue write(std::optional<T> const& value, AttributeDescriptor const& attribute,
                AttributeWriter const& writer)
{
    return value ? write(*value, attribute, writer) : StepValue();
}

template <class T>
StepValue write(std::vector<T> const& values, AttributeDescriptor const& attribute,
                AttributeWriter const& writer)
{
    std::vector<StepValue> items;
    items.reserve(values.size());
    for (T const& value : values)
        items.push_back(write(value, attribute, writer));
    return StepValue::list(std::move(items));
}

template <class T>
Text text(std::optional<T> const& value, AttributeDescriptor const& attribute)
{
    return value ? text(*value, attribute) : std::nullopt;
}

template <class T>
Text text(std::vector<T> const& values, AttributeDescriptor const& attribute)
{
    std::string joined = "(";
    bool isFirst = true;
    for (T const& value : values) {
        if (!isFirst)
            joined += ", ";
        isFirst = false;
        joined += text(value, attribute).value_or("");
    }
    return joined + ")";
}

template <class T>
void visitReferences(std::optional<T> const& value, Visit const& visit)
{
    if (value)
        visitReferences(*value, visit);
}

template <class T>
void visitReferences(std::vector<T> const& values, Visit const& visit)
{
    for (T const& value : values)
        visitReferences(value, visit);
}

template <class T>
void leaveModel(std::optional<T>& value)
{
    if (value)
        leaveModel(*value);
}

template <class T>
void leaveModel(std::vector<T>& values)
{
    if constexpr (!std::same_as<T, bool>) {
        for (T& value : values)
            leaveModel(value);
    }
}

} // namespace qev::fc::values
