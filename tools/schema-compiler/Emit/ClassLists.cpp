#include "Emit/ClassLists.h"

#include "Model/CppNames.h"
#include "Output/SourceText.h"

#include <algorithm>

namespace qev::schemacompiler {

namespace {

std::string forwardDeclarations(ClassModel const& model)
{
    SourceText text(model.source);
    text.line("#pragma once").blank();
    text.openNamespace("qev::fc");
    text.line("class FcBase;").line("class FcVisitorBase;").line("class FcVisitorBaseNonConst;");
    text.closeNamespace("qev::fc");
    for (std::string const& group : model.groups) {
        std::string const space = "qev::fc::" + groupNamespace(group);
        std::vector<std::string> names;
        for (EntityModel const& entity : model.entities) {
            if (entity.group == group)
                names.push_back(className(entity.name));
        }
        std::sort(names.begin(), names.end());
        text.blank().openNamespace(space);
        for (std::string const& name : names)
            text.line("class " + name + ";");
        text.closeNamespace(space);
    }
    return text.text();
}

std::set<std::string> allHeaders(ClassModel const& model)
{
    std::set<std::string> headers;
    for (EntityModel const& entity : model.entities)
        headers.insert(header(entity));
    return headers;
}

/// A macro with one line for each of \p lines.
void emitListMacro(std::string const& comment, std::string const& head, std::vector<std::string> const& lines,
                   SourceText& text)
{
    text.blank().line(comment).line("#define " + head + " \\");
    for (std::size_t i = 0; i < lines.size(); ++i)
        text.line("    " + lines[i] + (i + 1 < lines.size() ? " \\" : ""));
}

std::string entityList(ClassModel const& model)
{
    std::vector<std::string> entities;
    std::vector<std::string> attributes;
    for (EntityModel const& entity : model.entities) {
        std::string const names = groupNamespace(entity.group) + ", " + className(entity.name);
        entities.push_back("ENTITY(" + names + ")");
        for (AttributeModel const& attribute : entity.attributes)
            attributes.push_back("ATTRIBUTE(" + names + ", " + attribute.name + ")");
    }
    SourceText text(model.source);
    text.line("#pragma once");
    emitListMacro("/// Every class by type number: its namespace inside `qev::fc`, and its name.",
                  "QEV_FC_ENTITIES(ENTITY)", entities, text);
    emitListMacro("/// Every attribute with the class that declares it: namespace, class, attribute.",
                  "QEV_FC_ATTRIBUTES(ATTRIBUTE)", attributes, text);
    return text.text();
}

std::string entityClassesSource(ClassModel const& model)
{
    SourceText text(model.source);
    text.includes({"FoundationClasses/AllEntities.h", "FoundationClasses/EntityClass.h"}).blank();
    text.line("#include <iterator>").blank();
    text.openNamespace("qev::fc").openNamespace("");
    text.line("/// The position is the type number.");
    text.line("constexpr EntityClass const& (*classes[])() = {");
    text.line("    &FcBase::staticEntityClass,");
    for (EntityModel const& entity : model.entities)
        text.line("    &" + groupNamespace(entity.group) + "::" + generatedName(entity) +
                  "::staticEntityClass,");
    text.line("};").closeNamespace("");
    text.blank().line("EntityClass const* entityClassFromNumber(unsigned int number)").line("{");
    text.line("    return number < std::size(classes) ? &classes[number]() : nullptr;").line("}");
    text.closeNamespace("qev::fc");
    return text.text();
}

} // namespace

void emitClassLists(ClassModel const& model, GeneratedFiles& files)
{
    files.add("FoundationClasses/ForwardDeclarations.h", forwardDeclarations(model));
    SourceText all(model.source);
    all.line("#pragma once").blank().includes(allHeaders(model));
    files.add("FoundationClasses/AllEntities.h", all.text());
    files.add("FoundationClasses/EntityList.h", entityList(model));
    files.add("EntityClasses.cpp", entityClassesSource(model));
}

} // namespace qev::schemacompiler
