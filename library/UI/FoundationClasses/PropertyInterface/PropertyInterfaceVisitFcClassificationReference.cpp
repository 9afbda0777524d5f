#include "FoundationClasses/Resource/ExternalReference/FcClassificationReference.h"
#include "UI/FoundationClasses/PropertyInterface/GetListIndexPrefix.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"

namespace qev::fc::ui::propertyinterface {

using resource::externalreference::FcClassificationReference;

namespace {

constexpr std::string_view nameSuffix = ".Name";
constexpr std::string_view identificationSuffix = ".Identification";

/// What stands behind the class in the id of one of the three rows; nothing for every other id.
std::optional<std::string_view> suffixOf(FcClassificationReference const& entity,
                                         object::PropertyId const& id)
{
    std::string_view const text = id.text();
    auto const base = classWithoutPrefix(entity);
    if (!text.starts_with(base))
        return std::nullopt;
    auto const suffix = text.substr(base.size());
    bool const isRow = suffix.empty() || suffix == nameSuffix || suffix == identificationSuffix;
    return isRow ? std::optional(suffix) : std::nullopt;
}

std::string classificationNameWith(FcClassificationReference const& entity, std::string_view suffix)
{
    return entity.getClassificationName().append(suffix);
}

} // namespace

bool GetProperties::visit(FcClassificationReference const& entity)
{
    std::string const base(classWithoutPrefix(entity));
    properties.push_back(makeRow(base, entity));
    for (auto const suffix : {nameSuffix, identificationSuffix}) {
        auto row = makeRow(base + std::string(suffix), entity);
        row->standalone = false;
        properties.push_back(std::move(row));
    }
    return false;
}

bool GetValue::visit(FcClassificationReference const& entity)
{
    auto const suffix = suffixOf(entity, id);
    if (!suffix)
        return true;
    if (suffix->empty())
        value = entity.Name.get() ? *entity.Name.get() : entity.Identification.get().value_or("");
    else
        value = *suffix == nameSuffix ? entity.Name.get() : entity.Identification.get();
    return false;
}

bool GetPropertyName::visit(FcClassificationReference const& entity)
{
    auto const suffix = suffixOf(entity, id);
    if (!suffix)
        return true;
    name = classificationNameWith(entity, *suffix);
    return false;
}

bool GetListIndexPrefix::visit(FcClassificationReference const& entity)
{
    auto const suffix = suffixOf(entity, id);
    if (!suffix)
        return true;
    prefix = classificationNameWith(entity, *suffix);
    return false;
}

} // namespace qev::fc::ui::propertyinterface
