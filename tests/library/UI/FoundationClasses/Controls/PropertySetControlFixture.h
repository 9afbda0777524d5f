#pragma once

#include "Format/Ifc/Schema/SchemaLoader.h"
#include "FoundationClasses/AllEntities.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "library/kit/LogFormatter.h"
#include "library/kit/SetBuilder.h"
#include "library/kit/ShownSet.h"
#include "library/kit/ToyControl.h"
#include "library/kit/ToySchema.h"
#include "UI/FoundationClasses/Controls/PropertySetControl.h"
#include "UI/FoundationClasses/Set/PropertyTypePropertySetAndPropertyNameQppOverrideInterface.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace qev::test {

/// A control without a screen over a small schema or the standard's.
class PropertySetControlFixture : public testing::Test
{
protected:
    ToyControl& use(std::unique_ptr<ifc::def::SchemaPset> schema)
    {
        m_schema = std::move(schema);
        return useSchema(m_schema.get());
    }
    ToyControl& useStandard() { return useSchema(ifc::SchemaLoader::curr().pSchemaFromName("IFC4X3_TC1")); }
    /// A schema in which every product has the set "Pset_Toy" with two labels and a boolean.
    ToyControl& useToy()
    {
        return use(toySchemaWith(SetBuilder("Pset_Toy")
                                     .single("Colour", "IfcLabel")
                                     .single("Size", "IfcLabel")
                                     .single("HasSize", "IfcBoolean")
                                     .applicableTo("IfcProduct")
                                     .take()));
    }
    void logHandlers(std::vector<std::string>& log)
    {
        m_control->propertyChangedHandlers.iHandlerAdd([&log](std::string const& set,
                                                              std::string const& property,
                                                              std::set<std::size_t> const& indices) {
            log.push_back(set + " " + property + " " + testing::PrintToString(indices));
        });
    }

    Model model;
    std::shared_ptr<ToyFilter> filter = std::make_shared<ToyFilter>();
    std::shared_ptr<LogFormatter> formatter = std::make_shared<LogFormatter>();
    std::vector<std::string> contexts;
    std::shared_ptr<fc::ui::PropertyTypePropertySetAndPropertyNameQppOverrideInterface> qppOverride;

private:
    ToyControl& useSchema(ifc::def::SchemaPset const* schema)
    {
        m_control =
            std::make_unique<ToyControl>(schema, nullptr, nullptr, filter, formatter, contexts, qppOverride);
        return *m_control;
    }

    std::unique_ptr<ifc::def::SchemaPset> m_schema;
    std::unique_ptr<ToyControl> m_control;
};

} // namespace qev::test
