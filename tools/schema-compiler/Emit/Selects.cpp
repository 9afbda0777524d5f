#include "Emit/Selects.h"

#include "Emit/CppType.h"
#include "Model/CppNames.h"
#include "Output/SourceText.h"

namespace qev::schemacompiler {

namespace {

using Role = SelectMemberModel::Role;

constexpr char const* descriptorsHeader = "FoundationClasses/Selects/SelectDescriptors.h";

std::string spaceOf(SelectModel const& select)
{
    return select.group.empty() ? "qev::fc" : "qev::fc::" + groupNamespace(select.group);
}

std::string descriptorName(std::string const& schemaName) { return className(schemaName) + "Descriptor"; }

std::string tags(SelectModel const& select)
{
    std::string result;
    for (SelectMemberModel const& member : select.members)
        result += withoutPrefix(member.name) + ", ";
    return result + "None";
}

std::string selectHeader(ClassModel const& model, SelectModel const& select)
{
    std::string const name = generatedName(select);
    SourceText text(model.source);
    text.line("#pragma once").blank();
    text.includes({"FoundationClasses/ForwardDeclarations.h", "FoundationClasses/Select.h"}).blank();
    text.openNamespace(spaceOf(select));
    if (select.isHandwritten)
        text.line("/// What the schema says of " + select.name + "; " + className(select.name) +
                  " adds its behaviour.");
    else
        text.line("/// " + select.name + ": one of its members, or nothing.");
    text.line("class HOSTFOUNDATIONCLASSES_EXPORT " + name + " : public SelectBase")
        .line("{")
        .line("public:");
    text.line("    enum Tag : unsigned int { " + tags(select) + " };").blank();
    text.line("    " + name + "();");
    for (SelectMemberModel const& member : select.members) {
        if (member.role == Role::Entity)
            text.line("    " + name + "(std::shared_ptr<" +
                      qualified(model.entity(member.name), select.group) + "> const& entity);");
    }
    text.blank();
    for (SelectMemberModel const& member : select.members) {
        if (member.role == Role::Entity)
            text.line("    [[nodiscard]] std::shared_ptr<" +
                      qualified(model.entity(member.name), select.group) + "> get" +
                      withoutPrefix(member.name) + "() const;");
    }
    text.line("    static SelectDescriptor const& staticDescriptor();");
    text.line("};");
    text.closeNamespace(spaceOf(select));
    return text.text();
}

std::string memberRow(ClassModel const& model, SelectMemberModel const& member)
{
    std::string row = "    {.name = \"" + member.name + "\", ";
    switch (member.role) {
    case Role::Entity: {
        EntityModel const& entity = model.entity(member.name);
        row += ".first = " + std::to_string(entity.first) + ", .last = " + std::to_string(entity.last);
        break;
    }
    case Role::Select:
        row += ".select = &" + descriptorName(member.name);
        break;
    case Role::Type:
        row += ".kind = " + valueKind(member.type.kind);
        if (member.type.depth != 0)
            row += ", .isAggregate = true";
        break;
    }
    return row + "},";
}

void emitDescriptor(ClassModel const& model, SelectModel const& select, SourceText& text)
{
    std::string const members = className(select.name) + "MemberTable";
    text.line("constexpr SelectMember " + members + "[] = {");
    for (SelectMemberModel const& member : select.members)
        text.line(memberRow(model, member));
    text.line("};");
    text.line("constexpr SelectDescriptor " + descriptorName(select.name) + " = {\"" + select.name + "\", " +
              members + "};")
        .blank();
}

void emitClass(ClassModel const& model, SelectModel const& select, SourceText& text)
{
    std::string const name = generatedName(select);
    text.openNamespace(spaceOf(select));
    text.line(name + "::" + name + "() : SelectBase(staticDescriptor()) {}").blank();
    for (SelectMemberModel const& member : select.members) {
        if (member.role != Role::Entity)
            continue;
        std::string const entity = qualified(model.entity(member.name), select.group);
        std::string const tag = withoutPrefix(member.name);
        text.line(name + "::" + name + "(std::shared_ptr<" + entity + "> const& entity)");
        text.line("    : SelectBase(staticDescriptor(), " + tag + ", entity)").line("{}").blank();
        text.line("std::shared_ptr<" + entity + "> " + name + "::get" + tag + "() const").line("{");
        text.line("    return std::static_pointer_cast<" + entity + ">(entityOfTag(" + tag + "));")
            .line("}")
            .blank();
    }
    text.line("SelectDescriptor const& " + name + "::staticDescriptor() { return " +
              descriptorName(select.name) + "; }");
    text.closeNamespace(spaceOf(select)).blank();
}

std::set<std::string> sourceIncludes(ClassModel const& model)
{
    std::set<std::string> headers = {descriptorsHeader};
    for (SelectModel const& select : model.selects) {
        if (!select.hasClass)
            continue;
        headers.insert(generatedHeader(select));
        for (SelectMemberModel const& member : select.members) {
            if (member.role == Role::Entity)
                headers.insert(header(model.entity(member.name)));
        }
    }
    return headers;
}

std::string selectsSource(ClassModel const& model)
{
    SourceText text(model.source);
    text.includes(sourceIncludes(model)).blank();
    text.openNamespace("qev::fc").openNamespace("");
    for (SelectModel const& select : model.selects)
        emitDescriptor(model, select, text);
    text.line("constexpr SelectDescriptor const* descriptors[] = {");
    for (SelectModel const& select : model.selects)
        text.line("    &" + descriptorName(select.name) + ",");
    text.line("};").closeNamespace("");
    text.blank().line("std::span<SelectDescriptor const* const> selectDescriptors() { return descriptors; }");
    text.closeNamespace("qev::fc").blank();
    for (SelectModel const& select : model.selects) {
        if (select.hasClass)
            emitClass(model, select, text);
    }
    return text.text();
}

std::string descriptorsHeaderText(ClassModel const& model)
{
    SourceText text(model.source);
    text.line("#pragma once").blank();
    text.includes({"FoundationClasses/EntityClass.h", "HostFoundationClassesExport.h"}).blank();
    text.line("#include <span>").blank();
    text.openNamespace("qev::fc");
    text.line("/// All selects of the schema; one that is a member of another stands before it.");
    text.line("HOSTFOUNDATIONCLASSES_EXPORT std::span<SelectDescriptor const* const> selectDescriptors();");
    text.closeNamespace("qev::fc");
    return text.text();
}

} // namespace

void emitSelects(ClassModel const& model, GeneratedFiles& files)
{
    for (SelectModel const& select : model.selects) {
        if (select.hasClass)
            files.add(generatedHeader(select), selectHeader(model, select));
    }
    files.add(descriptorsHeader, descriptorsHeaderText(model));
    files.add("Selects.cpp", selectsSource(model));
}

} // namespace qev::schemacompiler
