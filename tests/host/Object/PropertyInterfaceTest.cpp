#include "Object/PropertyInterface.h"

#include "Core/Unit/QuantityPresentation.h"
#include "Object/Property.h"

#include <gtest/gtest.h>

namespace {

using namespace qev;
using namespace qev::object;

/// An object with one text, "Name".
class NamedObject final : public PropertyInterface
{
public:
    std::set<PropertyId> getAllProperties() const override { return {PropertyId("Name")}; }
    std::string getPropertiesObjectKey() const override { return ""; }
    void setValue(PropertyId const& id, PropertyValue const& value) override
    {
        if (id.text() == "Name")
            m_name = value.get<std::string>();
    }
    PropertyValue getValue(PropertyId const& id) const override
    {
        return id.text() == "Name" ? PropertyValue(m_name) : PropertyValue();
    }
    bool isValueAllowed(PropertyId const&, PropertyValue const&) const override { return true; }
    bool isEmptyValueAllowed(PropertyId const&) const override { return true; }
    bool hasQuantityPresentation(PropertyId const&) const override { return false; }
    std::unique_ptr<unit::QuantityPresentationBase>
    createQuantityPresentation(PropertyId const&) const override
    {
        return nullptr;
    }
    bool isLocalValue(PropertyId const&) const override { return true; }
    void resetToGlobalValue(PropertyId const&) override {}
    std::string getPropertyName(PropertyId const& id) const override { return id.text(); }
    std::string getPropertyDescription(PropertyId const&) const override { return ""; }
    std::string getPropertyValueDescription(PropertyId const&) const override { return ""; }
    std::string getListIndexPrefix(PropertyId const&) const override { return ""; }
    bool isReadOnly() const override { return false; }
    bool isPropertyReadOnly(PropertyId const&) const override { return false; }
    bool isReference(PropertyId const&) const override { return false; }

private:
    std::string m_name;
};

TEST(PropertyInterface, WhatIsNotOverriddenIsEmptyAndEditableWithOthers)
{
    NamedObject const object;
    PropertyId const id("Name");
    EXPECT_TRUE(object.getDependentProperties(id).empty());
    EXPECT_TRUE(object.getSearchWords(id).empty());
    EXPECT_TRUE(object.getSuggestedValues(id).empty());
    EXPECT_EQ(object.getDefaultValue(id), std::nullopt);
    EXPECT_TRUE(object.getMessages(id).empty());
    EXPECT_TRUE(object.isEditableWithOthers());
}

TEST(PropertyInterface, IsFoundInANodeByARunTimeCast)
{
    fc::Property node;
    node.object = std::make_shared<NamedObject>();
    auto const object = std::dynamic_pointer_cast<PropertyInterface>(node.object);
    ASSERT_NE(object, nullptr);
    object->setValue(PropertyId("Name"), PropertyValue("W1"));
    EXPECT_EQ(object->getValue(PropertyId("Name")), PropertyValue("W1"));
}

TEST(Property, ANewNodeIsAPlainStandaloneOne)
{
    fc::Property const node;
    EXPECT_TRUE(node.id.empty());
    EXPECT_EQ(node.mappedId, std::nullopt);
    EXPECT_FALSE(node.isGroup);
    EXPECT_FALSE(node.isList);
    EXPECT_EQ(node.object, nullptr);
    EXPECT_TRUE(node.children.empty());
    EXPECT_TRUE(node.standalone);
}

} // namespace
