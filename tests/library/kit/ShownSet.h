#pragma once

#include "FoundationClasses/FcBase.h"
#include "UI/FoundationClasses/Controls/Formatters/PropertyFormatterInterface.h"
#include "UI/FoundationClasses/Controls/PropertySetDefinitionFilterInterface.h"
#include "UI/FoundationClasses/Set/PropertySetDefinition.h"
#include "UI/FoundationClasses/Set/PropertyTypePropertySetAndPropertyNameQppOverrideInterface.h"

#include <memory>
#include <set>
#include <string>
#include <vector>

namespace qev::ifc::def::xml {
class SetDef;
}

namespace qev::test {

/// Leaves out sets and properties by name; all others are in. Keeps what it is told and asked.
class ToyFilter : public fc::ui::PropertySetDefinitionFilterInterface
{
public:
    std::set<std::string> excludedSets;
    std::set<std::string> excludedProperties;
    std::vector<std::shared_ptr<fc::FcBase>> objects;
    mutable std::vector<std::string> askedSets;
    /// Set and property.
    mutable std::vector<std::string> askedProperties;

    void setObject(std::shared_ptr<fc::FcBase> object) override { objects.push_back(std::move(object)); }
    [[nodiscard]] bool isSetIncluded(std::string const& setName) const override
    {
        askedSets.push_back(setName);
        return !excludedSets.contains(setName);
    }
    [[nodiscard]] bool isPropertyIncluded(std::string const& setName,
                                          std::string const& propertyName) const override
    {
        askedProperties.push_back(setName + " " + propertyName);
        return !excludedProperties.contains(propertyName);
    }
};

using Entities = std::vector<std::shared_ptr<fc::FcBase>>;

/// A displayed set over objects, without a control.
class ShownSet
{
public:
    struct Options
    {
        std::shared_ptr<fc::ui::PropertyFormatterInterface> formatter;
        std::shared_ptr<fc::ui::PropertySetDefinitionFilterInterface> filter = std::make_shared<ToyFilter>();
        std::vector<std::string> contexts;
        std::shared_ptr<fc::ui::PropertyTypePropertySetAndPropertyNameQppOverrideInterface> qppOverride;
    };

    /// A set of a definition, which this object keeps.
    ShownSet(std::unique_ptr<ifc::def::xml::SetDef> definition, Entities objects);
    ShownSet(std::unique_ptr<ifc::def::xml::SetDef> definition, Entities objects, Options const& options);
    /// A set that only objects have.
    ShownSet(std::string const& name, fc::ui::PropertySetDefinitionType type, Entities objects);
    ~ShownSet();

    [[nodiscard]] fc::ui::PropertySetDefinition& set() { return *m_set; }
    [[nodiscard]] std::vector<std::string> names() const;
    /// The row of that name. Ends the test program when there is none.
    [[nodiscard]] fc::ui::PropertyInterface& operator[](std::string const& name) const;
    template <class T>
    [[nodiscard]] T& as(std::string const& name) const
    {
        return dynamic_cast<T&>((*this)[name]);
    }

    /// What the set shows; may be changed at any time.
    Entities objects;

private:
    void build(fc::ui::PropertySetDefinitionInfo const& info, Options const& options);

    std::unique_ptr<ifc::def::xml::SetDef> m_definition;
    std::unique_ptr<fc::ui::PropertySetDefinition> m_set;
};

} // namespace qev::test
