#include "Core/Unit/QuantityPresentation.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/EntityClass.h"
#include "kit/ReportRecorder.h"
#include "library/kit/PropertyTree.h"
#include "UI/FoundationClasses/PropertyInterface/FcPropertyWrapper.h"
#include "UI/FoundationClasses/PropertyInterface/GetListIndexPrefix.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyAccess.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <stdexcept>

namespace {

using namespace qev;
using namespace qev::test;
using namespace fc::ui::propertyinterface;
using object::PropertyId;
using object::PropertyValue;

/// Calls \p test with a new entity of each class that can have one, in a model of its own.
void forEachClass(
    std::function<void(std::shared_ptr<fc::Data> const&, std::shared_ptr<fc::FcBase> const&)> const& test)
{
    unsigned int count = 0;
    for (unsigned int number = 1; number <= fc::FcBase::idLast; ++number) {
        auto const* const entityClass = fc::entityClassFromNumber(number);
        if (!entityClass || !entityClass->create)
            continue;
        SCOPED_TRACE(entityClass->name);
        auto const data = fc::Data::create();
        auto const entity = entityClass->create();
        data->entityAdd(entity, false);
        test(data, entity);
        ++count;
    }
    EXPECT_GT(count, 600u);
}

std::vector<PropertyId> localIdsOf(PropertyNodes const& nodes)
{
    std::vector<PropertyId> ids;
    for (auto const& node : nodes) {
        ids.push_back(node->mappedId.value_or(node->id));
        for (auto& id : localIdsOf(node->children))
            ids.push_back(std::move(id));
    }
    return ids;
}

/// Asks for a label. Elements of a list alone are known by their number, and raise for other ids.
void askForName(fc::Data const& data, fc::FcBase const& entity, PropertyId const& id)
{
    try {
        static_cast<void>(getPropertyName(data, entity, id, std::nullopt));
    } catch (std::invalid_argument const&) {
        EXPECT_STREQ(entity.getEntityName(), "IfcPropertyListValue") << id.text();
    }
}

/// The classes whose rows stand without a heading of their own, and those that list nothing while they are
/// new.
bool hasNoGroup(fc::FcBase const& entity)
{
    static std::set<std::string> const names = {"IfcPostalAddress",         "IfcPerson",
                                                "IfcPersonAndOrganization", "IfcCartesianPoint",
                                                "IfcLocalPlacement",        "IfcClassificationReference"};
    fc::EntityClass const* ancestor = &entity.getEntityClass();
    for (; ancestor; ancestor = ancestor->supertype) {
        std::string const name = ancestor->name;
        // A property's row takes the place of its group; so does that of a set, once it has a name.
        if (name == "IfcProperty" || name == "IfcPropertySetDefinition")
            return true;
    }
    return names.count(entity.getEntityName()) != 0;
}

TEST(EveryClass, HasItsGroup)
{
    forEachClass([](auto const&, std::shared_ptr<fc::FcBase> const& entity) {
        if (hasNoGroup(*entity))
            return;
        auto const rows = getProperties(*entity);
        ASSERT_EQ(rows.size(), 1u);
        fc::Property const& group = *rows.front();
        if (group.id.text() != "Name") { // what a material profile is headed by
            EXPECT_EQ("Ifc" + group.id.text(), entity->getEntityName());
        }
        EXPECT_EQ(group.mappedId, PropertyId("FcBaseGroupProperty"));
        EXPECT_TRUE(group.isGroup);
        EXPECT_FALSE(group.isList);
        EXPECT_TRUE(group.standalone);
        EXPECT_EQ(group.object, entity);
    });
}

TEST(EveryClass, AnswersAllQuestions)
{
    forEachClass([](std::shared_ptr<fc::Data> const& data, std::shared_ptr<fc::FcBase> const& entity) {
        auto ids = localIdsOf(getProperties(*entity));
        for (auto const* id : {"", ".", "0", "ConnectedTo.0", "FcBaseGroupProperty", "NoSuchId"})
            ids.emplace_back(id);
        for (PropertyId const& id : ids) {
            auto const value = getValue(*data, *entity, id, std::nullopt);
            askForName(*data, *entity, id);
            static_cast<void>(getPropertyDescription(*entity, id));
            if (createQuantityPresentation(*data, *entity, id, std::nullopt)) {
                EXPECT_TRUE(hasQuantityPresentation(*entity, id)) << id.text();
            }
            if (!getEnumeratedValues(*entity, id).empty()) {
                EXPECT_TRUE(hasEnumeratedValues(*entity, id)) << id.text();
            }
            EXPECT_EQ(getReference(*entity, id), EntityReference()) << id.text();
            static_cast<void>(isValueAllowed(*data, *entity, id, value));
            GetListIndexPrefix prefix(id);
            static_cast<fc::FcBase const&>(*entity).accept(prefix);
            setValue(*data, *entity, id, value);
        }
        // What cannot be read or written is told by the tests of the classes.
        takeReports();
    });
}

TEST(EveryClass, IsAWholeTreeOfPaths)
{
    forEachClass([](std::shared_ptr<fc::Data> const& data, std::shared_ptr<fc::FcBase> const& entity) {
        FcPropertyWrapper const wrapper(data, entity);
        for (PropertyId const& path : wrapper.getAllProperties()) {
            auto const [owner, other, localId] = wrapper.getMappedProperty(path);
            EXPECT_EQ(owner, entity) << path.text();
            EXPECT_FALSE(localId.empty()) << path.text();
        }
    });
}

} // namespace
