#include "Emit/AttributeTypes.h"

#include "Emit/CppType.h"
#include "Model/CppNames.h"
#include "Output/SourceText.h"

#include <map>

namespace qev::schemacompiler {

namespace {

/// So many that a machine with several cores shares the work.
constexpr std::size_t sourceCount = 4;

/// The headers each type needs, by its name as seen from `qev::fc`.
std::map<std::string, std::set<std::string>> attributeTypes(ClassModel const& model)
{
    std::map<std::string, std::set<std::string>> types;
    for (EntityModel const& entity : model.entities) {
        for (AttributeModel const& attribute : entity.attributes) {
            std::set<std::string> headers = memberHeaders(model, attribute);
            headers.erase(attribute.memberHeader);
            if (attribute.type.kind == Kind::Reference)
                headers.insert(header(model.entity(attribute.type.name)));
            types[attributeType(model, attribute, "")].merge(headers);
        }
    }
    return types;
}

} // namespace

std::vector<std::string> attributeTypesSources()
{
    std::vector<std::string> paths;
    for (std::size_t i = 1; i <= sourceCount; ++i)
        paths.push_back("AttributeTypes" + std::to_string(i) + ".cpp");
    return paths;
}

void emitAttributeTypes(ClassModel const& model, GeneratedFiles& files)
{
    auto const types = attributeTypes(model);
    auto const paths = attributeTypesSources();
    std::size_t const share = (types.size() + paths.size() - 1) / paths.size();
    auto next = types.begin();
    for (std::string const& path : paths) {
        std::set<std::string> headers = {"FoundationClasses/AttributeOperationsOf.h"};
        std::vector<std::string> names;
        for (; next != types.end() && names.size() < share; ++next) {
            names.push_back(next->first);
            headers.insert(next->second.begin(), next->second.end());
        }
        SourceText text(model.source);
        text.includes(headers).blank().openNamespace("qev::fc");
        for (std::string const& name : names)
            text.line("template AttributeOperations const& attributeOperations<" + name + ">();");
        text.closeNamespace("qev::fc");
        files.add(path, text.text());
    }
}

} // namespace qev::schemacompiler
