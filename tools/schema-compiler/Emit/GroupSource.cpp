#include "Emit/GroupSource.h"

#include "Core/String/Ascii.h"
#include "Emit/CppType.h"
#include "Emit/EntityHeader.h"
#include "Model/CppNames.h"
#include "Output/SourceText.h"

#include <sstream>

namespace qev::schemacompiler {

namespace {

std::string quoted(std::string const& text) { return "\"" + text + "\""; }

std::string hexadecimal(std::uint64_t number)
{
    std::ostringstream text;
    text << "0x" << std::hex << number;
    return text.str();
}

std::set<std::string> sourceIncludes(ClassModel const& model, std::string const& group)
{
    std::set<std::string> headers = {
        "FoundationClasses/AttributeOperations.h",
        "FoundationClasses/EntityClassTable.h",
        "FoundationClasses/FcVisitorBase.h",
        "FoundationClasses/FcVisitorBaseNonConst.h",
    };
    for (EntityModel const& entity : model.entities) {
        if (entity.group != group)
            continue;
        headers.insert(header(entity));
        for (InverseModel const& inverse : entity.inverses)
            headers.insert(header(model.entity(inverse.relation)));
        // A reference converts to and from the entity only where the class is known.
        for (AttributeModel const& attribute : entity.attributes) {
            if (attribute.type.kind == Kind::Reference)
                headers.insert(header(model.entity(attribute.type.name)));
        }
    }
    return headers;
}

/// The fields of a descriptor that only some kinds of attributes have.
std::string kindFields(ClassModel const& model, EntityModel const& entity, ElementType const& type)
{
    switch (type.kind) {
    case Kind::Enumeration:
        return ".enumeration = &enumerationDescriptor(" + className(type.name) + "{}),";
    case Kind::Select:
        return ".select = &" + qualified(model.select(type.name), entity.group) + "::staticDescriptor(),";
    case Kind::Reference: {
        EntityModel const& target = model.entity(type.name);
        return ".targetFirst = " + std::to_string(target.first) +
               ", .targetLast = " + std::to_string(target.last) + ",";
    }
    default:
        return {};
    }
}

void emitAttributeDescriptor(ClassModel const& model, EntityModel const& entity,
                             AttributeModel const& attribute, SourceText& text)
{
    std::string const indent = "         ";
    text.line("        {.name = " + quoted(attribute.name) + ",");
    text.line(indent + ".typeName = " + quoted(attribute.type.name) + ",");
    text.line(indent + ".kind = " + valueKind(attribute.type.kind) + ",");
    if (attribute.type.depth != 0)
        text.line(indent + ".depth = " + std::to_string(attribute.type.depth) + ",");
    if (attribute.isOptional)
        text.line(indent + ".isOptional = true,");
    if (std::string const fields = kindFields(model, entity, attribute.type); !fields.empty())
        text.line(indent + fields);
    text.line(indent + ".operations = &attributeOperations<" + attributeType(model, attribute, entity.group) +
              ">(),");
    text.line(indent + ".access = [](FcBase& entity) -> AttributeBase& { return static_cast<" +
              generatedName(entity) + "&>(entity)." + attribute.name + "; }},");
}

std::string inverseRow(ClassModel const& model, InverseModel const& inverse)
{
    EntityModel const& relation = model.entity(inverse.relation);
    return "        {.name = " + quoted(inverse.name) +
           ", .relationFirst = " + std::to_string(relation.first) +
           ", .relationLast = " + std::to_string(relation.last) +
           ", .slot = " + std::to_string(inverse.slot) + "},";
}

void emitStaticEntityClass(ClassModel const& model, EntityModel const& entity, SourceText& text)
{
    bool const isRoot = entity.supertype.empty();
    std::string const base = qualifiedBase(model, entity);
    std::string const inherited = isRoot ? "{}" : base + "::staticEntityClass().attributes";
    text.line("EntityClass const& " + generatedName(entity) + "::staticEntityClass()");
    text.line("{");
    if (!entity.attributes.empty()) {
        text.line("    static AttributeDescriptor const own[] = {");
        for (AttributeModel const& attribute : entity.attributes)
            emitAttributeDescriptor(model, entity, attribute, text);
        text.line("    };");
        text.line("    static auto const attributes = joinedAttributes<" + std::to_string(entity.slotCount) +
                  ">(" + inherited + ", own);");
    }
    if (!entity.inverses.empty()) {
        text.line("    static constexpr InverseDescriptor inverses[] = {");
        for (InverseModel const& inverse : entity.inverses)
            text.line(inverseRow(model, inverse));
        text.line("    };");
    }
    text.line("    static EntityClass const entityClass = {");
    text.line("        .name = " + quoted(entity.name) + ",");
    text.line("        .nameUpper = " + quoted(str::toUpper(entity.name)) + ",");
    text.line("        .group = " + quoted(shortGroupName(entity.group)) + ",");
    text.line("        .qualifiedGroup = " + quoted(entity.group) + ",");
    text.line("        .idFirst = " + std::to_string(entity.first) + ",");
    text.line("        .idLast = " + std::to_string(entity.last) + ",");
    text.line(std::string("        .isAbstract = ") + (entity.isAbstract ? "true," : "false,"));
    text.line("        .supertype = " +
              (isRoot ? std::string("nullptr") : "&" + base + "::staticEntityClass()") + ",");
    text.line("        .attributes = " + (entity.attributes.empty() ? inherited : std::string("attributes")) +
              ",");
    text.line("        .derivedSlots = " + hexadecimal(entity.derivedSlots) + ",");
    text.line(std::string("        .inverses = ") + (entity.inverses.empty() ? "{}," : "inverses,"));
    text.line("        .create = " +
              (entity.isAbstract ? std::string("nullptr") : "createEntity<" + className(entity.name) + ">") +
              ",");
    text.line("    };");
    text.line("    return entityClass;");
    text.line("}").blank();
}

void emitAccept(ClassModel const& model, EntityModel const& entity, SourceText& text)
{
    std::string const name = generatedName(entity);
    std::string const base = qualifiedBase(model, entity);
    auto const self = [&](std::string const& type) {
        return entity.isHandwritten ? "static_cast<" + type + "&>(*this)" : std::string("*this");
    };
    text.line("void " + name + "::accept(FcVisitorBaseNonConst& visitor)").line("{");
    text.line("    if (visitor.visit(" + self(className(entity.name)) + "))");
    text.line("        " + base + "::accept(visitor);").line("}").blank();
    text.line("void " + name + "::accept(FcVisitorBase& visitor) const").line("{");
    text.line("    if (visitor.visit(" + self(className(entity.name) + " const") + "))");
    text.line("        " + base + "::accept(visitor);").line("}").blank();
}

void emitInverses(ClassModel const& model, EntityModel const& entity, SourceText& text)
{
    std::size_t position = 0;
    for (InverseModel const& inverse : entity.inverses) {
        std::string const relation = qualified(model.entity(inverse.relation), entity.group);
        text.line("std::vector<std::weak_ptr<" + relation + ">> " + generatedName(entity) +
                  "::" + inverse.name + "() const");
        text.line("{");
        text.line("    return relatingAs<" + relation + ">(staticEntityClass().inverses[" +
                  std::to_string(position) + "]);");
        text.line("}").blank();
        ++position;
    }
}

void emitPredefinedTypeText(ClassModel const& model, EntityModel const& entity, SourceText& text)
{
    AttributeModel const* const attribute = predefinedType(model, entity);
    if (!attribute)
        return;
    text.line("char const* " + generatedName(entity) + "::getPredefinedTypeText() const").line("{");
    text.line("    return itemText(PredefinedType.get());").line("}").blank();
}

void emitClass(ClassModel const& model, EntityModel const& entity, SourceText& text)
{
    std::string const name = generatedName(entity);
    text.line("// " + entity.name).blank();
    text.line(name + "::" + name + "() = default;");
    text.line(name + "::~" + name + "() = default;").blank();
    emitInverses(model, entity, text);
    emitPredefinedTypeText(model, entity, text);
    emitAccept(model, entity, text);
    text.line("EntityClass const& " + name + "::getEntityClass() const { return staticEntityClass(); }")
        .blank();
    emitStaticEntityClass(model, entity, text);
}

std::string groupSource(ClassModel const& model, std::string const& group)
{
    std::string const space = "qev::fc::" + groupNamespace(group);
    SourceText text(model.source);
    text.includes(sourceIncludes(model, group)).blank();
    text.openNamespace(space);
    for (EntityModel const& entity : model.entities) {
        if (entity.group == group)
            emitClass(model, entity, text);
    }
    text.line("} // namespace " + space);
    return text.text();
}

} // namespace

std::string groupSourcePath(std::string const& group) { return groupFileName(group) + ".cpp"; }

void emitGroupSources(ClassModel const& model, GeneratedFiles& files)
{
    for (std::string const& group : model.groups)
        files.add(groupSourcePath(group), groupSource(model, group));
}

} // namespace qev::schemacompiler
