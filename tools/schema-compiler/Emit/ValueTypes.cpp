#include "Emit/ValueTypes.h"

#include "Emit/CppType.h"
#include "Model/CppNames.h"
#include "Output/SourceText.h"

#include <cctype>

namespace qev::schemacompiler {

namespace {

constexpr char const* families[] = {"IfcSimpleValue", "IfcMeasureValue", "IfcDerivedMeasureValue"};
constexpr char const* headerPath = "FoundationClasses/Resource/Measure/ValueTypes.h";
constexpr char const* space = "qev::fc::resource::measure";

/// "IfcSimpleValue" gives "simpleValueTypes".
std::string tableName(std::string const& family)
{
    std::string name = withoutPrefix(family) + "Types";
    name.front() = static_cast<char>(std::tolower(static_cast<unsigned char>(name.front())));
    return name;
}

void emitEnumeration(SelectModel const& family, SourceText& text)
{
    text.blank().line("/// The types of " + family.name +
                      " by character code; `None`, their number, stands for no type.");
    text.line("enum class " + className(family.name) + "Types : unsigned int {");
    for (SelectMemberModel const& member : family.members)
        text.line("    " + withoutPrefix(member.name) + ",");
    text.line("    None,").line("};");
}

void emitTable(SelectModel const& family, SourceText& text)
{
    text.line("std::span<ValueTypeInfo const> " + tableName(family.name) + "()").line("{");
    text.line("    static constexpr ValueTypeInfo types[] = {");
    for (SelectMemberModel const& member : family.members) {
        text.line("        {\"" + withoutPrefix(member.name) + "\", \"" + member.name + "\", " +
                  valueKind(member.type.kind) + ", " + (member.type.depth != 0 ? "true" : "false") + "},");
    }
    text.line("    };").line("    return types;").line("}").blank();
}

} // namespace

void emitValueTypes(ClassModel const& model, GeneratedFiles& files)
{
    SourceText header(model.source);
    header.line("#pragma once").blank();
    header.line(std::string("namespace ") + space + " {");
    SourceText source(model.source);
    source.includes({headerPath, "FoundationClasses/Resource/Measure/TypedValue.h"}).blank();
    source.openNamespace(space);
    for (char const* const family : families) {
        if (!model.selectPositions.contains(family))
            continue;
        emitEnumeration(model.select(family), header);
        emitTable(model.select(family), source);
    }
    header.closeNamespace(space);
    source.line(std::string("} // namespace ") + space);
    files.add(headerPath, header.text());
    files.add("ValueTypes.cpp", source.text());
}

} // namespace qev::schemacompiler
