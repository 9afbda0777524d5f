#include "Format/Ifc/Schema/ValueForm.h"

#include "Format/Ifc/Schema/Type.h"

namespace qev::ifc {

namespace {

using def::schema::Type;

// The base kinds have the same numbers in both.
static_assert(static_cast<int>(ValueForm::Kind::Real) == static_cast<int>(Type::BaseKind::Real));
static_assert(static_cast<int>(ValueForm::Kind::Logical) == static_cast<int>(Type::BaseKind::Logical));

ValueForm formOf(def::schema::DeclaredTypes const& levels)
{
    def::schema::DeclaredType const& innermost = levels.back();
    ValueForm form;
    form.isAggregate = levels.front().isAggregate();
    if (innermost.kind == def::schema::DeclaredType::Kind::Entity)
        form.kind = ValueForm::Kind::Entity;
    else if (innermost.kind == def::schema::DeclaredType::Kind::Select)
        form.kind = ValueForm::Kind::Select;
    else if (auto const* type = dynamic_cast<Type const*>(innermost.dataType)) {
        // A defined type may itself be an aggregate, and of something else than a base type.
        if (!type->isBaseType()) {
            ValueForm const defined = formOf(type->definition());
            form.kind = defined.kind;
            form.isAggregate = form.isAggregate || defined.isAggregate;
        } else
            form.kind = static_cast<ValueForm::Kind>(type->baseKind());
    } else
        form.kind = ValueForm::Kind::Enumeration;
    return form;
}

} // namespace

ValueForm valueFormOf(def::schema::Attribute const& attribute) { return formOf(attribute.declaredTypes()); }

} // namespace qev::ifc
