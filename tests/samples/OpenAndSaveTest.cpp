#include "Format/Ifc/Model/IfcFile.h"
#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "kit/TemporaryFolder.h"
#include "reference-reader/ReferenceReader.h"
#include "SampleFiles.h"

#include <gtest/gtest.h>

namespace {

using namespace qev::test::samples;
using qev::test::readFile;

class OpenAndSave : public testing::TestWithParam<SampleFile>
{
};

INSTANTIATE_TEST_SUITE_P(Samples, OpenAndSave, testing::ValuesIn(allFiles()),
                         [](auto const& file) { return file.param.name; });

TEST_P(OpenAndSave, GivesTheSameBytesWithoutAnEdit)
{
    std::string const before = readFile(GetParam().path);
    auto const opened = qev::ifc::IfcFile::open(GetParam().path);
    if (!opened.file) {
        EXPECT_TRUE(GetParam().isMalformed);
        EXPECT_FALSE(opened.messages.empty()) << "a refusal gives its reason";
        return;
    }
    EXPECT_TRUE(opened.file->toText() == before);

    opened.file->check();
    EXPECT_TRUE(opened.file->toText() == before) << "reading every record changes none";
    if (GetParam().isMalformed) {
        EXPECT_FALSE(opened.file->messages().empty());
    }
    for (qev::step::StepMessage const& message : opened.file->messages())
        EXPECT_FALSE(message.text.empty());
}

class AllObjects : public testing::TestWithParam<SampleFile>
{
};

INSTANTIATE_TEST_SUITE_P(Samples, AllObjects, testing::ValuesIn(wellFormedFiles()),
                         [](auto const& file) { return file.param.name; });

TEST_P(AllObjects, AreFoundByTheModelAndByTheReferenceReader)
{
    auto const opened = qev::ifc::IfcFile::open(GetParam().path);
    ASSERT_TRUE(opened.file);
    auto const reader =
        qev::test::reference::ReferenceReader::fromFile(GetParam().path.string(), SCHEMA_DIRECTORY);
    using qev::fc::core::kernel::FcObjectDefinition;
    // Curves of older versions became objects of the model, which have no GlobalId in such a file.
    std::size_t count = 0;
    for (auto const& object : opened.file->data()->entities<FcObjectDefinition>()) {
        if (!object->GlobalId.get().empty())
            ++count;
    }
    EXPECT_EQ(count, reader.objects().size());
    for (std::uint64_t const id : reader.objects()) {
        auto const entity = opened.file->entityFromId(id);
        ASSERT_TRUE(entity) << '#' << id;
        EXPECT_TRUE(qev::fc::entityCast<FcObjectDefinition>(entity)) << '#' << id;
    }
}

} // namespace
