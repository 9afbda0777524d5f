#pragma once

#include "Format/Ifc/Schema/VersionMapping.h"
#include "reference-reader/StepDocument.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace qev::test::samples {

/// Holds records of a file against the schema of the file's own version.
///
/// Rules beyond the declarations (the standard's WHERE clauses) are not looked at.
class SchemaCheck
{
public:
    /// \p document has to outlive the check.
    explicit SchemaCheck(reference::StepDocument const& document);

    /// What is wrong with a record, a line each: an unknown class, a wrong number of arguments, a mandatory
    /// attribute without a value, a value or a reference that the attribute does not take.
    [[nodiscard]] std::vector<std::string> check(reference::StepRecord const& record) const;

private:
    using Argument = reference::StepArgument;
    using DeclaredTypes = ifc::def::schema::DeclaredTypes;

    [[nodiscard]] std::string checkAttribute(ifc::def::schema::Entity const& entity,
                                             ifc::def::schema::Attribute const& attribute,
                                             Argument const& argument) const;
    /// What is wrong with a value of the types from \p level on; empty when nothing is.
    [[nodiscard]] std::string checkLevel(DeclaredTypes const& types, std::size_t level,
                                         Argument const& argument) const;
    [[nodiscard]] std::string checkSimple(ifc::def::schema::ObjectBase const& type,
                                          Argument const& argument) const;
    [[nodiscard]] std::string checkReference(ifc::def::schema::ObjectBase const& target,
                                             Argument const& argument) const;
    [[nodiscard]] std::string checkSelect(ifc::def::schema::Select const& select,
                                          Argument const& argument) const;
    /// The class of a record in the file's version; null for an unknown one.
    [[nodiscard]] ifc::def::schema::Entity const* classOf(std::string_view keyword) const;

    reference::StepDocument const& m_document;
    ifc::VersionSchema const& m_version;
};

} // namespace qev::test::samples
