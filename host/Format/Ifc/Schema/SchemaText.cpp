#include "Format/Ifc/Schema/SchemaText.h"

#include "Core/Assert/Assert.h"
#include "Format/Ifc/Schema/SchemaTextReader.h"

namespace qev::ifc::def::schema {

std::unique_ptr<Schema> parseSchema(std::string_view text, std::vector<TextError>& errors)
{
    return SchemaTextReader(text, errors).read();
}

std::unique_ptr<Schema> parseSchema(std::string_view text)
{
    std::vector<TextError> errors;
    auto schema = parseSchema(text, errors);
    if (!schema)
        assert::report("Line " + std::to_string(errors.front().line) + ": " + errors.front().message,
                       "qev::ifc::def::schema::parseSchema", "Format/Ifc/Schema/SchemaText");
    return schema;
}

} // namespace qev::ifc::def::schema
