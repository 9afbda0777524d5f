#include "ToySchema.h"

#include "Format/Ifc/Schema/SchemaText.h"
#include "Model/GroupTable.h"
#include "Model/HandwrittenClasses.h"
#include "Model/ModelBuilder.h"

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <vector>

namespace qev::schemacompiler::test {

std::filesystem::path testFolder() { return QEV_SCHEMA_COMPILER_TEST_FOLDER; }

std::filesystem::path schemaFolder() { return QEV_SCHEMA_FOLDER; }

std::filesystem::path handwrittenClassesFile() { return QEV_HANDWRITTEN_CLASSES; }

std::string readText(std::filesystem::path const& path)
{
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

ClassModel modelOf(std::filesystem::path const& schema, std::filesystem::path const& groups,
                   std::filesystem::path const& handwritten)
{
    std::vector<ifc::def::TextError> errors;
    auto const parsed = ifc::def::schema::parseSchema(readText(schema), errors);
    if (!parsed)
        throw std::runtime_error(schema.string() + ":" + std::to_string(errors.front().line) + ": " +
                                 errors.front().message);
    return buildModel(*parsed, GroupTable::parse(readText(groups), groups.filename().string()),
                      groups.filename().string(),
                      HandwrittenClasses::parse(readText(handwritten), handwritten.filename().string()),
                      schema.filename().string());
}

ClassModel toyModel()
{
    return modelOf(testFolder() / "toy.schema", testFolder() / "toy.groups",
                   testFolder() / "toy-handwritten.txt");
}

ClassModel realModel()
{
    return modelOf(schemaFolder() / "IFC4X3_TC1.schema", schemaFolder() / "IFC4X3_TC1.groups",
                   handwrittenClassesFile());
}

} // namespace qev::schemacompiler::test
