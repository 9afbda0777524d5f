#pragma once

#include "Core/Unit/QuantityPresentation.h"
#include "Object/PropertyInterface.h"

#include <map>
#include <memory>
#include <set>
#include <string>

namespace qev::test {

/// An object whose properties are what is put into `values`.
class ToyProperties : public object::PropertyInterface
{
public:
    using Id = object::PropertyId;
    using Value = object::PropertyValue;

    std::map<Id, Value> values;

    std::set<Id> getAllProperties() const override
    {
        std::set<Id> ids;
        for (auto const& [id, value] : values)
            ids.insert(id);
        return ids;
    }
    std::string getPropertiesObjectKey() const override { return {}; }
    void setValue(Id const& id, Value const& value) override { values[id] = value; }
    Value getValue(Id const& id) const override
    {
        auto const found = values.find(id);
        return found == values.end() ? Value() : found->second;
    }
    bool isValueAllowed(Id const&, Value const&) const override { return true; }
    bool isEmptyValueAllowed(Id const&) const override { return true; }
    bool hasQuantityPresentation(Id const&) const override { return false; }
    std::unique_ptr<unit::QuantityPresentationBase> createQuantityPresentation(Id const&) const override
    {
        return nullptr;
    }
    bool isLocalValue(Id const&) const override { return false; }
    void resetToGlobalValue(Id const&) override {}
    std::string getPropertyName(Id const& id) const override { return "label of " + id.text(); }
    std::string getPropertyDescription(Id const& id) const override { return "description of " + id.text(); }
    std::string getPropertyValueDescription(Id const&) const override { return {}; }
    std::string getListIndexPrefix(Id const&) const override { return {}; }
    bool isReadOnly() const override { return false; }
    bool isPropertyReadOnly(Id const&) const override { return false; }
    bool isReference(Id const&) const override { return false; }
};

} // namespace qev::test
