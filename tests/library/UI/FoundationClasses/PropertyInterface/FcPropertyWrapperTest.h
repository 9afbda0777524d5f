#pragma once

#include "Core/Unit/QuantityPresentation.h"
#include "FoundationClasses/Resource/Property/FcPropertySingleValue.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "kit/ModelBuilder.h"
#include "library/kit/PropertyTree.h"
#include "library/kit/TranslationScope.h"
#include "UI/FoundationClasses/PropertyInterface/FcPropertyWrapper.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

namespace qev::test {

using fc::ui::propertyinterface::FcPropertyWrapper;
using object::PropertyId;
using object::PropertyValue;

/// A wrapper whose tree a test draws itself.
class DrawnWrapper : public FcPropertyWrapper
{
public:
    using FcPropertyWrapper::FcPropertyWrapper;
    using FcPropertyWrapper::getMappedData;

    PropertyNodes nodes;
    bool beginsWithTop = false;
    mutable int listings = 0;

protected:
    std::vector<std::shared_ptr<fc::Property>> getObjectProperties() const override
    {
        ++listings;
        return nodes;
    }
    bool beginsPathsWithTopLevelId() const override { return beginsWithTop; }
};

/// Something other than an entity that has properties.
class OtherObject : public object::PropertyInterface
{
public:
    mutable std::vector<std::string> calls;

    std::set<PropertyId> getAllProperties() const override { return {}; }
    std::string getPropertiesObjectKey() const override { return {}; }
    void setValue(PropertyId const& id, PropertyValue const&) override
    {
        calls.push_back("set " + id.text());
    }
    PropertyValue getValue(PropertyId const& id) const override { return "value of " + id.text(); }
    bool isValueAllowed(PropertyId const&, PropertyValue const& value) const override
    {
        return value == PropertyValue("good");
    }
    bool isEmptyValueAllowed(PropertyId const&) const override { return true; }
    bool hasQuantityPresentation(PropertyId const&) const override { return true; }
    std::unique_ptr<unit::QuantityPresentationBase>
    createQuantityPresentation(PropertyId const&) const override
    {
        return unit::makeQuantityPresentation<unit::SiUnit<4, unit::Quantity<1, 1, 0, 0, 0, 0, 0, 0>>>(3.5);
    }
    bool isLocalValue(PropertyId const&) const override { return true; }
    void resetToGlobalValue(PropertyId const&) override {}
    std::string getPropertyName(PropertyId const& id) const override { return "name of " + id.text(); }
    std::string getPropertyDescription(PropertyId const& id) const override { return "about " + id.text(); }
    std::string getPropertyValueDescription(PropertyId const&) const override { return {}; }
    std::string getListIndexPrefix(PropertyId const&) const override { return "prefix"; }
    bool isReadOnly() const override { return false; }
    bool isPropertyReadOnly(PropertyId const&) const override { return false; }
    bool isReference(PropertyId const&) const override { return true; }
};

inline std::shared_ptr<fc::Property>
node(std::string const& id, std::shared_ptr<generate::ObjectInterface> object, PropertyNodes children = {})
{
    auto result = std::make_shared<fc::Property>();
    result->id = PropertyId(id);
    result->object = std::move(object);
    result->children = std::move(children);
    return result;
}

inline std::vector<std::string> textsOf(std::set<PropertyId> const& ids)
{
    std::vector<std::string> texts;
    for (auto const& id : ids)
        texts.push_back(id.text());
    return texts;
}

struct PropertyWrapper : testing::Test
{
    TranslationScope texts;
    Model model;
    std::shared_ptr<fc::shared::sharedbldgelements::FcWall> wall = model.wall("W1");
    std::shared_ptr<FcPropertyWrapper> wrapper = std::make_shared<FcPropertyWrapper>(model.data(), wall);
    std::shared_ptr<DrawnWrapper> drawn = std::make_shared<DrawnWrapper>(model.data(), wall);
    std::shared_ptr<OtherObject> other = std::make_shared<OtherObject>();
};

} // namespace qev::test
