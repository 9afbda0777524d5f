#pragma once

#include "Format/Ifc/Schema/SchemaPropertySetDefinitions.h"
#include "Format/Ifc/Schema/SchemaPropertySetDefinitionsContext.h"

#include <functional>

namespace qev::ifc::def {

/// A version of the standard: its classes, and the property and quantity sets known for them.
///
/// The contexts are searched in the order in which they were added, the standard's own first.
class HOSTIFCSCHEMA_EXPORT SchemaPset
{
public:
    /// Says which contexts to look in; an empty filter admits all.
    using ContextFilter = std::function<bool(SchemaPropertySetDefinitionsContext const&)>;
    using DefinitionVisitor =
        std::function<void(SchemaPropertySetDefinitionsContext const&, SchemaPropertySetDefinitions const&)>;

    /// \p schema must not be null.
    explicit SchemaPset(std::unique_ptr<schema::Schema const> schema);
    ~SchemaPset();
    SchemaPset(SchemaPset const&) = delete;
    SchemaPset& operator=(SchemaPset const&) = delete;

    [[nodiscard]] schema::Schema const& schema() const { return *m_schema; }

    /// The set of that name in the first admitted context that has one; null when none has.
    [[nodiscard]] xml::SetDef const* pXmlSetFromName(std::string const& name,
                                                     ContextFilter const& filter = {}) const;

    /// The sets that apply to \p entity, in schema order; of sets with one name the first.
    ///
    /// A set applies when the entity is among its applicable classes, or with \p withSupertypes one of the
    /// entity's supertypes. A type class counts for its occurrence class too ("IfcWallType" for IfcWall): the
    /// sets of a type are asked for by way of its occurrence. A set without an applicable class applies to
    /// everything.
    [[nodiscard]] std::vector<xml::SetDef const*> getXmlSetsAllToEntity(schema::Entity const& entity,
                                                                        bool withSupertypes,
                                                                        ContextFilter const& filter) const;

    /// Calls \p visitor once for each admitted context.
    void forEachDefinition(DefinitionVisitor const& visitor, ContextFilter const& filter = {}) const;

    /// Adds sets read from elsewhere.
    ///
    /// A set that is known already gains what it lacks: descriptions, texts in other languages, entries for
    /// enumeration values. Its properties, their types and its applicable classes stay as they are. All other
    /// sets go to the context \p contextName, which is made when it is new.
    ///
    /// Use before the sets are shown: it must not run beside a look-up.
    void addDefinitions(std::string const& contextName, SchemaPropertySetDefinitions definitions);
    void addDefinitions(SchemaPropertySetDefinitionsContext const& context,
                        SchemaPropertySetDefinitions definitions);

private:
    struct Context
    {
        SchemaPropertySetDefinitionsContext description;
        SchemaPropertySetDefinitions definitions;
    };

    [[nodiscard]] xml::SetDef* findSet(std::string const& name);
    Context& contextNamed(SchemaPropertySetDefinitionsContext const& description);

    std::unique_ptr<schema::Schema const> m_schema;
    std::vector<std::unique_ptr<Context>> m_contexts;
};

} // namespace qev::ifc::def
