#pragma once

#include "ExpectedReports.h"
#include "Format/Ifc/Model/IfcFile.h"
#include "HeadlessGrid.h"
#include "reference-reader/ReferenceReader.h"
#include "SampleFiles.h"
#include "UI/FoundationClasses/Property/PropertyInterface.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace qev::test::samples {

/// A file, opened and read by the reference reader, and the ways to hold what the grid shows against it.
class ComparisonTest : public testing::TestWithParam<SampleFile>
{
protected:
    using Row = application::GridGroup::Row;

    ComparisonTest();

    /// Shows objects by the numbers of their records; the groups are valid until the next ones are shown.
    std::vector<application::GridGroup> show(application::HeadlessGrid& session,
                                             std::vector<std::uint64_t> const& ids);
    /// Lets go of objects that were shown, so that big files stay small in memory; not each time, for objects
    /// of a kind share their relations.
    void release(application::HeadlessGrid& session);

    /// Holds the row of a single value against the value in the file.
    static void compareSingle(fc::ui::PropertyInterface const& shown, Row const& row,
                              reference::ReferenceValue const& value);

    ifc::OpenResult opened;
    reference::ReferenceReader reader;
    /// What the schema and the objects have and the grid has no row for.
    ExpectedReports reports;
};

/// Tells whether the class that the set's definition chose for a name can show a property of this kind.
/// One that cannot is shown as if the object did not have the property.
[[nodiscard]] bool canShow(fc::ui::PropertyInterface const& shown, reference::ReferenceProperty::Kind kind);

/// False for values in brackets of their own, which the model reads, but not the reference reader.
[[nodiscard]] bool isComparable(reference::ReferenceProperty const& property);

[[nodiscard]] application::GridGroup const* findGroup(std::vector<application::GridGroup> const& groups,
                                                      std::string const& kind, std::string const& name);
[[nodiscard]] application::GridGroup::Row const* findRow(application::GridGroup const* group,
                                                         std::string const& name);

} // namespace qev::test::samples
