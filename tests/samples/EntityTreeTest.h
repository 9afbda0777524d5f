#pragma once

#include "ExpectedReports.h"
#include "Format/Ifc/Model/IfcFile.h"
#include "SampleFiles.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <memory>

namespace qev::test::samples {

/// A file whose entities, all of them and not only its objects, are looked at as trees of properties.
class EntityTreeTest : public testing::TestWithParam<SampleFile>
{
protected:
    using Entity = std::shared_ptr<fc::FcBase>;
    using Visit = std::function<void(Entity const&)>;

    EntityTreeTest();

    [[nodiscard]] fc::Data& data() const { return *opened.file->data(); }

    /// Calls \p visit for each entity of the file, in the order of the file, and lets go of objects now and
    /// then. Ends early once several entities failed.
    void forEachEntity(Visit const& visit);
    /// The same for every n-th entity of each class, so that no class has more than \p mostOfAClass of them
    /// and each has one.
    void forSample(std::size_t mostOfAClass, Visit const& visit);

    ifc::OpenResult opened;
    /// What answers to ordinary data and not to a fault.
    ExpectedReports reports;

private:
    void visitAll(std::vector<fc::EntityIndex> const& indices, Visit const& visit);
};

} // namespace qev::test::samples
