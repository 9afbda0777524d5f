#include "Format/Ifc/Schema/VersionMapping.h"

#include "Core/String/Ascii.h"
#include "Format/Ifc/Schema/SchemaLoader.h"

#include "ifc2x3Mapping.h"
#include "ifc4Mapping.h"
#include "ifc4x1Mapping.h"
#include "ifc4x2Mapping.h"
#include "ifc4x3Add2Mapping.h"

namespace qev::ifc {

namespace {

using Certainty = VersionMapping::Certainty;

constexpr char const* modelVersion = SchemaLoader::modelVersion;

struct Choice
{
    std::vector<std::string> versions;
    Certainty certainty;
};

std::string normalised(std::string_view name)
{
    std::size_t const start = name.find_first_not_of(' ');
    name = start == std::string_view::npos ? std::string_view() : name.substr(start);
    return str::toUpper(name.substr(0, name.find_first_of(" {")));
}

Choice chooseVersions(std::string const& name)
{
    // The first two differ in georeferencing only, and files under the short name have been written by both.
    if (name == "IFC4X3" || name == modelVersion)
        return {{modelVersion, "IFC4X3_ADD2"}, Certainty::Exact};
    if (name == "IFC4X3_ADD1" || name == "IFC4X3_ADD2")
        return {{"IFC4X3_ADD2"}, Certainty::Exact};
    if (name == "IFC4X2" || name == "IFC4X1" || name == "IFC4" || name == "IFC2X3")
        return {{name}, Certainty::Exact};
    if (name.starts_with("IFC4X3"))
        return {{modelVersion, "IFC4X3_ADD2", "IFC4X2", "IFC4X1"}, Certainty::Close};
    if (name.starts_with("IFC4X2"))
        return {{"IFC4X2"}, Certainty::Close};
    if (name.starts_with("IFC4X1"))
        return {{"IFC4X1"}, Certainty::Close};
    if (name.starts_with("IFC4") && !name.starts_with("IFC4X"))
        return {{"IFC4"}, Certainty::Close};
    if (name.starts_with("IFC2X"))
        return {{"IFC2X3"}, Certainty::Close};
    return {{modelVersion, "IFC4X3_ADD2", "IFC4X2", "IFC4X1", "IFC4", "IFC2X3"}, Certainty::Unknown};
}

std::string_view mappingTextOf(std::string_view version)
{
    if (version == "IFC2X3")
        return embedded::ifc2x3Mapping();
    if (version == "IFC4")
        return embedded::ifc4Mapping();
    if (version == "IFC4X1")
        return embedded::ifc4x1Mapping();
    if (version == "IFC4X2")
        return embedded::ifc4x2Mapping();
    return version == "IFC4X3_ADD2" ? embedded::ifc4x3Add2Mapping() : std::string_view();
}

} // namespace

VersionMapping::VersionMapping(SchemaLoader& loader)
    : m_loader(loader)
{
}

VersionMapping::~VersionMapping() = default;

VersionMapping& VersionMapping::curr()
{
    static VersionMapping instance(SchemaLoader::curr());
    return instance;
}

VersionMapping::Version VersionMapping::fromFileSchema(std::string_view name)
{
    Choice const choice = chooseVersions(normalised(name));
    std::scoped_lock const lock(m_mutex);
    return {&schemaOf(choice.versions), choice.certainty};
}

VersionSchema const& VersionMapping::schemaOf(std::vector<std::string> const& versions)
{
    std::unique_ptr<VersionSchema>& schema = m_schemas[versions];
    if (!schema) {
        std::vector<VersionSchema::Source> sources;
        for (std::string const& version : versions)
            sources.push_back({m_loader.classesFromName(version), mappingTextOf(version)});
        schema = std::make_unique<VersionSchema>(*m_loader.classesFromName(modelVersion), sources);
    }
    return *schema;
}

} // namespace qev::ifc
