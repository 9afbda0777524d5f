#pragma once

#include "Core/Unit/QuantityPresentation.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/FcBase.h"
#include "library/kit/PropertyTree.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyAccess.h"

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace qev::test {

/// One entity of a model, asked by its own ids: `EntityProperties(model.data(), wall).name("Tag")`.
///
/// Only for the length of a test: the model and the entity are not kept alive.
class EntityProperties
{
public:
    EntityProperties(std::shared_ptr<fc::Data> const& data, std::shared_ptr<fc::FcBase> const& entity)
        : m_data(*data)
        , m_entity(*entity)
    {
    }

    /// Tells if the entity is still in the model.
    [[nodiscard]] bool isPresent() const
    {
        return m_entity.getData() == &m_data && !m_data.isDeleted(m_entity.getIndex());
    }
    [[nodiscard]] PropertyNodes nodes() const { return fc::ui::propertyinterface::getProperties(m_entity); }
    [[nodiscard]] std::string tree() const { return treeText(nodes()); }
    [[nodiscard]] object::PropertyValue value(std::string const& id,
                                              std::optional<std::string> setName = std::nullopt) const
    {
        return fc::ui::propertyinterface::getValue(m_data, m_entity, object::PropertyId(id),
                                                   std::move(setName));
    }
    void set(std::string const& id, object::PropertyValue const& value)
    {
        fc::ui::propertyinterface::setValue(m_data, m_entity, object::PropertyId(id), value);
    }
    [[nodiscard]] bool allows(std::string const& id, object::PropertyValue const& value) const
    {
        return fc::ui::propertyinterface::isValueAllowed(m_data, m_entity, object::PropertyId(id), value);
    }
    [[nodiscard]] std::string name(std::string const& id,
                                   std::optional<std::string> setName = std::nullopt) const
    {
        return fc::ui::propertyinterface::getPropertyName(m_data, m_entity, object::PropertyId(id),
                                                          std::move(setName));
    }
    [[nodiscard]] std::string description(std::string const& id) const
    {
        return fc::ui::propertyinterface::getPropertyDescription(m_entity, object::PropertyId(id));
    }
    [[nodiscard]] bool hasChoices(std::string const& id) const
    {
        return fc::ui::propertyinterface::hasEnumeratedValues(m_entity, object::PropertyId(id));
    }
    [[nodiscard]] auto choices(std::string const& id) const
    {
        return fc::ui::propertyinterface::getEnumeratedValues(m_entity, object::PropertyId(id));
    }
    [[nodiscard]] bool hasQuantity(std::string const& id) const
    {
        return fc::ui::propertyinterface::hasQuantityPresentation(m_entity, object::PropertyId(id));
    }
    /// The number of the property's presentation; nothing where it has none.
    [[nodiscard]] std::optional<double> quantity(std::string const& id,
                                                 std::optional<std::string> setName = std::nullopt) const
    {
        auto const presentation = fc::ui::propertyinterface::createQuantityPresentation(
            m_data, m_entity, object::PropertyId(id), std::move(setName));
        return presentation ? std::optional(presentation->value()) : std::nullopt;
    }

private:
    fc::Data& m_data;
    fc::FcBase& m_entity;
};

} // namespace qev::test
