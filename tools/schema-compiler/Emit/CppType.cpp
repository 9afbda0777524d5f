#include "Emit/CppType.h"

#include "Model/CppNames.h"

namespace qev::schemacompiler {

namespace {

/// A list of numbers that has a class of its own, with the operations of an angle.
constexpr char const* compoundAngle = "IfcCompoundPlaneAngleMeasure";

std::string elementType(ClassModel const& model, ElementType const& type, std::string const& fromGroup)
{
    switch (type.kind) {
    case Kind::Text:
        return "std::string";
    case Kind::Real:
        return "double";
    case Kind::Integer:
        return "std::int64_t";
    case Kind::Boolean:
        return "bool";
    case Kind::Logical:
        return "Logical";
    case Kind::Binary:
        return "Binary";
    case Kind::Enumeration:
        return "std::optional<" + className(type.name) + ">";
    case Kind::Reference:
        return "Reference<" + qualified(model.entity(type.name), fromGroup) + ">";
    case Kind::Select:
        return qualified(model.select(type.name), fromGroup);
    case Kind::Value:
        return fromGroup == "Resource.Measure" ? "FcValue" : "resource::measure::FcValue";
    }
    return {};
}

/// Kinds that have an unset state of their own, so that optional and mandatory ones are of one type.
bool canBeUnset(Kind kind)
{
    return kind == Kind::Enumeration || kind == Kind::Reference || kind == Kind::Select ||
           kind == Kind::Value;
}

bool isCompoundAngle(ElementType const& type) { return type.name == compoundAngle && type.depth == 1; }

std::string mandatoryType(ClassModel const& model, ElementType const& type, std::string const& fromGroup)
{
    if (isCompoundAngle(type))
        return (fromGroup == "Resource.Measure" ? "" : "resource::measure::") + className(type.name);
    if (type.depth == 0)
        return elementType(model, type, fromGroup);
    std::string result;
    unsigned int depth = type.depth;
    if (type.kind == Kind::Reference) {
        result = "ReferenceList<" + qualified(model.entity(type.name), fromGroup) + ">";
        --depth;
    } else {
        result = elementType(model, type, fromGroup);
    }
    for (; depth > 0; --depth)
        result = "std::vector<" + result + ">";
    return result;
}

} // namespace

std::string attributeType(ClassModel const& model, AttributeModel const& attribute,
                          std::string const& fromGroup)
{
    std::string const type = mandatoryType(model, attribute.type, fromGroup);
    bool const isPlain = attribute.type.depth == 0 && canBeUnset(attribute.type.kind);
    return attribute.isOptional && !isPlain ? "std::optional<" + type + ">" : type;
}

std::string memberType(ClassModel const& model, AttributeModel const& attribute, std::string const& fromGroup)
{
    if (!attribute.memberClass.empty())
        return attribute.memberClass;
    return "Attribute<" + attributeType(model, attribute, fromGroup) + ">";
}

std::set<std::string> memberHeaders(ClassModel const& model, AttributeModel const& attribute)
{
    std::set<std::string> headers;
    if (!attribute.memberHeader.empty())
        headers.insert(attribute.memberHeader);
    ElementType const& type = attribute.type;
    if (isCompoundAngle(type))
        headers.insert("FoundationClasses/Resource/Measure/FcCompoundPlaneAngleMeasure.h");
    switch (type.kind) {
    case Kind::Logical:
        headers.insert("FoundationClasses/Logical.h");
        break;
    case Kind::Binary:
        headers.insert("FoundationClasses/Binary.h");
        break;
    case Kind::Enumeration:
        headers.insert(enumerationHeader(type.name));
        break;
    case Kind::Select:
        headers.insert(header(model.select(type.name)));
        break;
    case Kind::Value:
        headers.insert("FoundationClasses/Resource/Measure/FcValue.h");
        break;
    default:
        break;
    }
    return headers;
}

std::string valueKind(Kind kind)
{
    switch (kind) {
    case Kind::Text:
        return "ValueKind::Text";
    case Kind::Real:
        return "ValueKind::Real";
    case Kind::Integer:
        return "ValueKind::Integer";
    case Kind::Boolean:
        return "ValueKind::Boolean";
    case Kind::Logical:
        return "ValueKind::Logical";
    case Kind::Binary:
        return "ValueKind::Binary";
    case Kind::Enumeration:
        return "ValueKind::Enumeration";
    case Kind::Reference:
        return "ValueKind::Reference";
    case Kind::Select:
        return "ValueKind::Select";
    case Kind::Value:
        return "ValueKind::Value";
    }
    return {};
}

} // namespace qev::schemacompiler
