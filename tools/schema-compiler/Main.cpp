#include "Emit/Generate.h"
#include "Format/Ifc/Schema/SchemaText.h"
#include "Model/GroupTable.h"
#include "Model/HandwrittenClasses.h"
#include "Model/InputError.h"
#include "Model/ModelBuilder.h"

#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>

namespace {

using namespace qev::schemacompiler;

std::string readFile(std::filesystem::path const& path)
{
    std::ifstream file(path, std::ios::binary);
    std::string text((std::istreambuf_iterator<char>(file)), {});
    if (!file)
        throw std::runtime_error("cannot read " + path.string());
    return text;
}

std::unique_ptr<qev::ifc::def::schema::Schema> readSchema(std::filesystem::path const& path)
{
    std::vector<qev::ifc::def::TextError> errors;
    auto schema = qev::ifc::def::schema::parseSchema(readFile(path), errors);
    if (!errors.empty())
        throw InputError(path.string(), static_cast<unsigned int>(errors.front().line),
                         errors.front().message);
    return schema;
}

void compile(std::filesystem::path const& schemaPath, std::filesystem::path const& groupPath,
             std::filesystem::path const& handwrittenPath, std::filesystem::path const& folder)
{
    auto const schema = readSchema(schemaPath);
    auto const groups = GroupTable::parse(readFile(groupPath), groupPath.string());
    auto const handwritten = HandwrittenClasses::parse(readFile(handwrittenPath), handwrittenPath.string());
    auto const model =
        buildModel(*schema, groups, groupPath.string(), handwritten, schemaPath.filename().string());
    std::filesystem::create_directories(folder);
    generate(model).writeTo(folder);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 5) {
        std::cerr << "usage: schema-compiler SCHEMA GROUPS HANDWRITTEN-CLASSES OUTPUT-FOLDER\n";
        return 2;
    }
    try {
        compile(argv[1], argv[2], argv[3], argv[4]);
    } catch (std::exception const& error) {
        std::cerr << "schema-compiler: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
