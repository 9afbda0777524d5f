#include "Format/Ifc/Schema/SchemaLoader.h"

#include "Core/Assert/Assert.h"
#include "Format/Ifc/Schema/SchemaText.h"
#include "Format/Ifc/Schema/SetsText.h"

#include "ifc2x3Schema.h"
#include "ifc4Schema.h"
#include "ifc4x1Schema.h"
#include "ifc4x2Schema.h"
#include "ifc4x3Add2Schema.h"
#include "ifc4x3PropertySets.h"
#include "ifc4x3Tc1Schema.h"

#include <algorithm>

namespace qev::ifc {

struct SchemaLoader::Version
{
    std::string name;
    std::string_view (*schemaText)();
    // Null for a version without sets.
    std::string_view (*setsText)();
    std::unique_ptr<def::SchemaPset> schema;
    bool hasSets = false;

    /// The schema, without its sets until `addSets`; null when its text is broken.
    def::SchemaPset* classes();
    void addSets();
};

def::SchemaPset* SchemaLoader::Version::classes()
{
    if (!schema) {
        if (auto parsed = def::schema::parseSchema(schemaText()))
            schema = std::make_unique<def::SchemaPset>(std::move(parsed));
    }
    return schema.get();
}

void SchemaLoader::Version::addSets()
{
    if (hasSets || !setsText)
        return;
    def::SetsTextResult result = def::parseSets(setsText());
    for (def::TextError const& error : result.errors)
        assert::report("Line " + std::to_string(error.line) + ": " + error.message,
                       "qev::ifc::SchemaLoader::pSchemaFromName", "Format/Ifc/Schema/SchemaLoader");
    schema->addDefinitions(result.context, std::move(result.definitions));
    hasSets = true;
}

SchemaLoader::SchemaLoader()
{
    auto const add = [this](char const* name, std::string_view (*schemaText)(),
                            std::string_view (*setsText)()) {
        m_versions.push_back(std::make_unique<Version>(Version{name, schemaText, setsText, nullptr, false}));
    };
    add(modelVersion, embedded::ifc4x3Tc1Schema, embedded::ifc4x3PropertySets);
    add("IFC4X1", embedded::ifc4x1Schema, nullptr);
    add("IFC2X3", embedded::ifc2x3Schema, nullptr);
    add("IFC4", embedded::ifc4Schema, nullptr);
    add("IFC4X2", embedded::ifc4x2Schema, nullptr);
    add("IFC4X3_ADD2", embedded::ifc4x3Add2Schema, nullptr);
}

SchemaLoader::~SchemaLoader() = default;

SchemaLoader& SchemaLoader::curr()
{
    // Never taken to pieces: at the end of a program that takes longer than most of its work.
    static SchemaLoader& instance = *new SchemaLoader;
    return instance;
}

SchemaLoader::Version* SchemaLoader::find(std::string const& name)
{
    auto const found = std::find_if(m_versions.begin(), m_versions.end(),
                                    [&name](auto const& version) { return version->name == name; });
    return found == m_versions.end() ? nullptr : found->get();
}

def::SchemaPset* SchemaLoader::pSchemaFromName(std::string const& name)
{
    std::scoped_lock const lock(m_mutex);
    Version* const version = find(name);
    if (!version || !version->classes())
        return nullptr;
    version->addSets();
    return version->schema.get();
}

def::schema::Schema const* SchemaLoader::classesFromName(std::string const& name)
{
    // The sets take as long to read as the classes, and opening a file does not need them.
    std::scoped_lock const lock(m_mutex);
    Version* const version = find(name);
    return version && version->classes() ? &version->schema->schema() : nullptr;
}

} // namespace qev::ifc
