#include "Definitions.h"

#include "Core/Localization/LocalizationAdmin.h"
#include "Core/String/Utf8.h"
#include "Format/Ifc/Schema/DefinitionTexts.h"
#include "Format/Ifc/Schema/PsdReader.h"
#include "Format/Ifc/Schema/SchemaLoader.h"
#include "Format/Ifc/Schema/SchemaPset.h"

#include <utility>

namespace qev::application {

DefinitionsResult addDefinitions(std::filesystem::path const& fileOrFolder)
{
    DefinitionsResult result;
    auto read = ifc::def::readPsd(fileOrFolder);
    for (auto const& error : read.errors)
        result.messages.push_back(str::utf8FromPath(error.file) + ", line " + std::to_string(error.line) +
                                  ": " + error.message);
    result.isAnyFound = !read.definitions.sets().empty();
    if (!result.isAnyFound) {
        result.messages.push_back("there are no property-set definitions in " +
                                  str::utf8FromPath(fileOrFolder));
        return result;
    }
    ifc::def::addTexts(read.definitions, "IfcProperties", resource::localization::getAdminInstance());
    ifc::SchemaLoader::curr()
        .pSchemaFromName(ifc::SchemaLoader::modelVersion)
        ->addDefinitions(str::utf8FromPath(fileOrFolder), std::move(read.definitions));
    return result;
}

} // namespace qev::application
