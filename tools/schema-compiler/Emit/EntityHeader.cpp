#include "Emit/EntityHeader.h"

#include "Emit/CppType.h"
#include "Model/CppNames.h"
#include "Output/SourceText.h"

namespace qev::schemacompiler {

namespace {

std::set<std::string> headerIncludes(ClassModel const& model, EntityModel const& entity)
{
    std::set<std::string> headers = {"FoundationClasses/ForwardDeclarations.h"};
    headers.insert(entity.supertype.empty() ? "FoundationClasses/FcBase.h"
                                            : header(model.entity(entity.supertype)));
    for (AttributeModel const& attribute : entity.attributes)
        headers.merge(memberHeaders(model, attribute));
    return headers;
}

void emitComment(EntityModel const& entity, SourceText& text)
{
    if (entity.isHandwritten)
        text.line("/// What the schema says of " + entity.name + "; " + className(entity.name) +
                  " adds its behaviour.");
    else
        text.line("/// " + entity.name + (entity.isAbstract ? ", abstract." : "."));
}

void emitMembers(ClassModel const& model, EntityModel const& entity, SourceText& text)
{
    for (AttributeModel const& attribute : entity.attributes) {
        text.line("    " + memberType(model, attribute, entity.group) + " " + attribute.name + "{this, " +
                  std::to_string(attribute.slot) + "};");
    }
    if (!entity.attributes.empty())
        text.blank();
}

void emitInverses(ClassModel const& model, EntityModel const& entity, SourceText& text)
{
    for (InverseModel const& inverse : entity.inverses) {
        text.line("    [[nodiscard]] std::vector<std::weak_ptr<" +
                  qualified(model.entity(inverse.relation), entity.group) + ">> " + inverse.name +
                  "() const;");
    }
    if (!entity.inverses.empty())
        text.blank();
}

} // namespace

AttributeModel const* predefinedType(ClassModel const& model, EntityModel const& entity)
{
    if (!model.isOrDerives(entity, "IfcObjectDefinition"))
        return nullptr;
    for (AttributeModel const& attribute : entity.attributes) {
        if (attribute.name == "PredefinedType" && attribute.type.kind == Kind::Enumeration &&
            attribute.type.depth == 0)
            return &attribute;
    }
    return nullptr;
}

std::string entityHeader(ClassModel const& model, EntityModel const& entity)
{
    std::string const name = generatedName(entity);
    std::string const space = "qev::fc::" + groupNamespace(entity.group);
    bool const isConstructible = !entity.isAbstract && !entity.isHandwritten;

    SourceText text(model.source);
    text.line("#pragma once").blank();
    text.includes(headerIncludes(model, entity)).blank();
    text.openNamespace(space);
    emitComment(entity, text);
    text.line("class HOSTFOUNDATIONCLASSES_EXPORT " + name + " : public " + qualifiedBase(model, entity));
    text.line("{");
    text.line("public:");
    text.line("    static constexpr unsigned int idFirst = " + std::to_string(entity.first) + ";");
    text.line("    static constexpr unsigned int idLast = " + std::to_string(entity.last) + ";").blank();
    if (isConstructible)
        text.line("    " + name + "();");
    text.line("    ~" + name + "() override;").blank();
    emitMembers(model, entity, text);
    emitInverses(model, entity, text);
    if (predefinedType(model, entity))
        text.line("    char const* getPredefinedTypeText() const override;");
    text.line("    void accept(FcVisitorBaseNonConst& visitor) override;");
    text.line("    void accept(FcVisitorBase& visitor) const override;");
    text.line("    EntityClass const& getEntityClass() const override;");
    text.line("    static EntityClass const& staticEntityClass();");
    if (!isConstructible) {
        text.blank().line("protected:");
        text.line("    " + name + "();");
    }
    text.line("};");
    text.closeNamespace(space);
    return text.text();
}

void emitEntityHeaders(ClassModel const& model, GeneratedFiles& files)
{
    for (EntityModel const& entity : model.entities)
        files.add(generatedHeader(entity), entityHeader(model, entity));
}

} // namespace qev::schemacompiler
