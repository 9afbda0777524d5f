#include "Emit/Visitors.h"

#include "Model/CppNames.h"
#include "Output/SourceText.h"

namespace qev::schemacompiler {

namespace {

std::string visitorHeader(ClassModel const& model, std::string const& name, std::string const& suffix)
{
    SourceText text(model.source);
    text.line("#pragma once").blank();
    text.includes({"FoundationClasses/ForwardDeclarations.h", "HostFoundationClassesExport.h"}).blank();
    text.openNamespace("qev::fc");
    text.line("/// One visit for each class of the model. An entity's `accept` runs the visit of its exact "
              "class and");
    text.line("/// then that of each base class, for as long as the visits return true, as those here do.");
    text.line("/// A class that overrides some of them brings in the others with a using declaration.");
    text.line("class HOSTFOUNDATIONCLASSES_EXPORT " + name).line("{").line("public:");
    text.line("    virtual ~" + name + "();").blank();
    text.line("    /// The last stop of every entity.");
    text.line("    virtual void visit(FcBase" + suffix + " entity);").blank();
    for (EntityModel const& entity : model.entities)
        text.line("    virtual bool visit(" + qualified(entity, "") + suffix + " entity);");
    text.blank().line("protected:");
    text.line("    " + name + "() = default;");
    text.line("    " + name + "(" + name + " const&) = default;");
    text.line("    " + name + "& operator=(" + name + " const&) = default;");
    text.line("};");
    text.closeNamespace("qev::fc");
    return text.text();
}

std::string visitorSource(ClassModel const& model, std::string const& name, std::string const& suffix)
{
    SourceText text(model.source);
    text.includes({"FoundationClasses/" + name + ".h"}).blank();
    text.openNamespace("qev::fc");
    text.line(name + "::~" + name + "() = default;").blank();
    text.line("void " + name + "::visit(FcBase" + suffix + ") {}").blank();
    for (EntityModel const& entity : model.entities)
        text.line("bool " + name + "::visit(" + qualified(entity, "") + suffix + ") { return true; }");
    text.closeNamespace("qev::fc");
    return text.text();
}

void emitVisitor(ClassModel const& model, std::string const& name, std::string const& suffix,
                 GeneratedFiles& files)
{
    files.add("FoundationClasses/" + name + ".h", visitorHeader(model, name, suffix));
    files.add(name + ".cpp", visitorSource(model, name, suffix));
}

} // namespace

void emitVisitors(ClassModel const& model, GeneratedFiles& files)
{
    emitVisitor(model, "FcVisitorBase", " const&", files);
    emitVisitor(model, "FcVisitorBaseNonConst", "&", files);
}

} // namespace qev::schemacompiler
