#include "Emit/Enumerations.h"

#include "Model/CppNames.h"
#include "Output/SourceText.h"

namespace qev::schemacompiler {

namespace {

std::string enumerationHeaderText(ClassModel const& model, EnumerationModel const& enumeration)
{
    std::string const name = className(enumeration.name);
    SourceText text(model.source);
    text.line("#pragma once").blank();
    text.includes({"HostFoundationClassesExport.h"}).blank();
    text.line("#include <cstdint>").blank();
    text.openNamespace("qev::fc");
    text.line("struct EnumerationDescriptor;").blank();
    text.line("/// " + enumeration.name + ", in the order of the schema.");
    text.line("enum class " + name + " : std::uint16_t {");
    for (std::string const& item : enumeration.items)
        text.line("    " + enumerator(item) + ",");
    text.line("};").blank();
    text.line("/// The names of the items; the value of the argument does not matter.");
    text.line("HOSTFOUNDATIONCLASSES_EXPORT EnumerationDescriptor const& enumerationDescriptor(" + name +
              ");");
    text.closeNamespace("qev::fc");
    return text.text();
}

void emitItems(EnumerationModel const& enumeration, SourceText& text)
{
    std::string const name = className(enumeration.name);
    text.line("EnumerationDescriptor const& enumerationDescriptor(" + name + ")").line("{");
    text.line("    static constexpr std::string_view items[] = {");
    for (std::string const& item : enumeration.items)
        text.line("        \"" + item + "\",");
    text.line("    };");
    text.line("    static constexpr EnumerationDescriptor descriptor = {\"" + enumeration.name +
              "\", items};");
    text.line("    return descriptor;").line("}").blank();
}

} // namespace

void emitEnumerations(ClassModel const& model, GeneratedFiles& files)
{
    std::set<std::string> headers = {"FoundationClasses/EntityClass.h"};
    for (EnumerationModel const& enumeration : model.enumerations) {
        headers.insert(enumerationHeader(enumeration.name));
        files.add(enumerationHeader(enumeration.name), enumerationHeaderText(model, enumeration));
    }
    SourceText text(model.source);
    text.includes(headers).blank();
    text.openNamespace("qev::fc");
    for (EnumerationModel const& enumeration : model.enumerations)
        emitItems(enumeration, text);
    text.line("} // namespace qev::fc");
    files.add("Enumerations.cpp", text.text());
}

} // namespace qev::schemacompiler
