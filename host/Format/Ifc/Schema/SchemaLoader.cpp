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

namespace qev::ifc {

struct SchemaLoader::Version
{
    std::string name;
    std::string_view (*schemaText)();
    // Null for a version without sets.
    std::string_view (*setsText)();
    std::unique_ptr<def::SchemaPset> schema;
};

namespace {

void addSets(def::SchemaPset& schema, std::string_view text)
{
    def::SetsTextResult result = def::parseSets(text);
    for (def::TextError const& error : result.errors)
        assert::report("Line " + std::to_string(error.line) + ": " + error.message,
                       "qev::ifc::SchemaLoader::pSchemaFromName", "Format/Ifc/Schema/SchemaLoader");
    schema.addDefinitions(result.context, std::move(result.definitions));
}

} // namespace

SchemaLoader::SchemaLoader()
{
    auto const add = [this](char const* name, std::string_view (*schemaText)(),
                            std::string_view (*setsText)()) {
        m_versions.push_back(std::make_unique<Version>(Version{name, schemaText, setsText, nullptr}));
    };
    add("IFC4X3_TC1", embedded::ifc4x3Tc1Schema, embedded::ifc4x3PropertySets);
    add("IFC4X1", embedded::ifc4x1Schema, nullptr);
    add("IFC2X3", embedded::ifc2x3Schema, nullptr);
    add("IFC4", embedded::ifc4Schema, nullptr);
    add("IFC4X2", embedded::ifc4x2Schema, nullptr);
    add("IFC4X3_ADD2", embedded::ifc4x3Add2Schema, nullptr);
}

SchemaLoader::~SchemaLoader() = default;

SchemaLoader& SchemaLoader::curr()
{
    static SchemaLoader instance;
    return instance;
}

def::SchemaPset* SchemaLoader::pSchemaFromName(std::string const& name)
{
    std::scoped_lock const lock(m_mutex);
    for (auto const& version : m_versions) {
        if (version->name != name)
            continue;
        if (!version->schema) {
            auto classes = def::schema::parseSchema(version->schemaText());
            if (!classes)
                return nullptr;
            version->schema = std::make_unique<def::SchemaPset>(std::move(classes));
            if (version->setsText)
                addSets(*version->schema, version->setsText());
        }
        return version->schema.get();
    }
    return nullptr;
}

def::schema::Schema const* SchemaLoader::classesFromName(std::string const& name)
{
    def::SchemaPset const* const schema = pSchemaFromName(name);
    return schema ? &schema->schema() : nullptr;
}

} // namespace qev::ifc
