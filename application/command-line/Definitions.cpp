#include "Definitions.h"

#include "Core/Localization/LocalizationAdmin.h"
#include "Format/Ifc/Schema/DefinitionTexts.h"
#include "Format/Ifc/Schema/PsdReader.h"
#include "Format/Ifc/Schema/SchemaLoader.h"
#include "Format/Ifc/Schema/SchemaPset.h"

#include <iostream>

namespace qev::application {

bool addDefinitions(std::vector<std::filesystem::path> const& filesOrFolders)
{
    for (auto const& path : filesOrFolders) {
        ifc::def::PsdResult result = ifc::def::readPsd(path);
        for (ifc::def::PsdError const& error : result.errors)
            std::cerr << "qev-ifc: " << error.file.string() << ", line " << error.line << ": "
                      << error.message << '\n';
        if (result.definitions.sets().empty()) {
            std::cerr << "qev-ifc: there are no property-set definitions in " << path.string() << '\n';
            return false;
        }
        ifc::def::addTexts(result.definitions, "IfcProperties", resource::localization::getAdminInstance());
        ifc::SchemaLoader::curr()
            .pSchemaFromName(ifc::SchemaLoader::modelVersion)
            ->addDefinitions(path.string(), std::move(result.definitions));
    }
    return true;
}

} // namespace qev::application
