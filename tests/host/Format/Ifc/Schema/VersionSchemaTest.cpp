#include "Format/Ifc/Schema/VersionSchema.h"

#include "Format/Ifc/Schema/SchemaText.h"
#include "ReportRecorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev::ifc;
using def::schema::parseSchema;
using def::schema::Schema;
using testing::ElementsAre;

constexpr std::string_view newGarden = R"(schema NEW
type Size = REAL
type Word = STRING
enumeration Colour = RED GREEN NOTDEFINED
select Something = Word Plant
abstract entity Plant
  Name : Word
  Colour ? Colour
  Height ? Something
entity Bush : Plant
  Flowers ? Word
entity Tall_Bush : Bush
  Ladder ? Word
entity Pond
  Depth : Size
)";

constexpr std::string_view oldGarden = R"(schema OLD
type Size = REAL
type Word = STRING
enumeration Colour = RED BLUE
entity Plant
  Title : Word
  Height ? Size
  Colour ? Colour
  Weight ? Size
entity Bush : Plant
entity Shrub : Bush
  Blossoms ? Word
entity Lake
  Depth : Size
entity Rock
  Weight : Size
)";

constexpr std::string_view mapping = R"(mapping OLD NEW
class Plant -> Bush convert
class Shrub -> Bush same
class Lake -> Pond same
class Rock -> none
attribute Plant.Title -> Name
attribute Shrub.Blossoms -> Flowers
)";

class ToyVersion : public testing::Test
{
protected:
    std::unique_ptr<Schema> newSchema = parseSchema(newGarden);
    std::unique_ptr<Schema> oldSchema = parseSchema(oldGarden);
    VersionSchema version{*newSchema, {{oldSchema.get(), mapping}}};

    [[nodiscard]] std::vector<int> fileSlots(char const* keyword) const
    {
        ClassMapping const& found = *version.find(keyword);
        std::vector<int> slots;
        for (std::size_t slot = 0; slot < found.modelSlotCount(); ++slot)
            slots.push_back(found.fileSlot(slot));
        return slots;
    }
};

TEST_F(ToyVersion, KeywordsGiveClassNumbers)
{
    EXPECT_EQ(version.find("BUSH")->classNumber(), newSchema->findEntity("BUSH")->firstNumber());
    EXPECT_EQ(version.find("LAKE")->classNumber(), newSchema->findEntity("POND")->firstNumber());
    EXPECT_EQ(version.find("ROCK")->classNumber(), 0);
    EXPECT_EQ(version.find("POND"), nullptr);
    EXPECT_EQ(version.find("bush"), nullptr);
    EXPECT_EQ(version.find(""), nullptr);
}

TEST_F(ToyVersion, AVanishedClassKeepsItsKeyword)
{
    ClassMapping const& shrub = *version.find("SHRUB");
    EXPECT_EQ(shrub.fileEntity().nameUpper(), "SHRUB");
    EXPECT_EQ(shrub.modelEntity()->name(), "Bush");
    EXPECT_EQ(shrub.grade(), ClassMapping::Grade::Same);
    EXPECT_EQ(version.find("PLANT")->grade(), ClassMapping::Grade::Convert);
}

TEST_F(ToyVersion, AClassWithoutACounterpartIsKnownAllTheSame)
{
    ClassMapping const& rock = *version.find("ROCK");
    EXPECT_EQ(rock.modelEntity(), nullptr);
    EXPECT_EQ(rock.grade(), ClassMapping::Grade::None);
    EXPECT_EQ(rock.fileSlotCount(), 1U);
    EXPECT_EQ(rock.modelSlotCount(), 0U);
    EXPECT_EQ(rock.modelSlot(0), ClassMapping::noSlot);
    EXPECT_EQ(version.find("POND"), nullptr);
}

// The names of renamed attributes hold for subclasses too.
TEST_F(ToyVersion, SlotsArePairedByName)
{
    EXPECT_THAT(fileSlots("BUSH"), ElementsAre(0, 2, 1, -1));
    EXPECT_THAT(fileSlots("SHRUB"), ElementsAre(0, 2, 1, 4));
    ClassMapping const& shrub = *version.find("SHRUB");
    EXPECT_EQ(shrub.modelSlot(0), 0);
    EXPECT_EQ(shrub.modelSlot(3), ClassMapping::noSlot);
    EXPECT_EQ(shrub.modelSlot(4), 3);
    EXPECT_EQ(shrub.modelSlot(5), ClassMapping::noSlot);
    EXPECT_EQ(shrub.fileSlot(4), ClassMapping::noSlot);
    EXPECT_FALSE(shrub.isIdentity());
    EXPECT_TRUE(version.find("LAKE")->isIdentity());
}

TEST_F(ToyVersion, AttributesOfBothSidesAreAtHand)
{
    ClassMapping const& bush = *version.find("BUSH");
    EXPECT_EQ(bush.fileAttribute(0)->name(), "Title");
    EXPECT_EQ(bush.modelAttribute(0)->name(), "Name");
    EXPECT_EQ(bush.fileAttribute(3), nullptr);
    EXPECT_EQ(bush.modelAttribute(3)->name(), "Flowers");
    EXPECT_EQ(bush.modelAttribute(4), nullptr);
}

TEST_F(ToyVersion, AChangeOfTheWrittenFormIsTold)
{
    ClassMapping const& bush = *version.find("BUSH");
    EXPECT_FALSE(bush.changesValueForm(0));
    EXPECT_FALSE(bush.changesValueForm(1));
    EXPECT_TRUE(bush.changesValueForm(2));
    EXPECT_FALSE(bush.changesValueForm(3));
    EXPECT_EQ(valueFormOf(*bush.fileAttribute(2)), (ValueForm{ValueForm::Kind::Real, false}));
    EXPECT_EQ(valueFormOf(*bush.modelAttribute(2)), (ValueForm{ValueForm::Kind::Select, false}));
}

TEST_F(ToyVersion, ANewObjectIsWrittenAsItsNearestSuperclass)
{
    auto const writtenAs = [this](char const* name) {
        ClassMapping const* const found =
            version.forNewObject(newSchema->findEntityByName(name)->firstNumber());
        return found ? found->fileEntity().name() : std::string();
    };
    EXPECT_EQ(writtenAs("Bush"), "Bush");
    EXPECT_EQ(writtenAs("Tall_Bush"), "Bush");
    EXPECT_EQ(writtenAs("Pond"), "");
    EXPECT_EQ(version.forNewObject(0), nullptr);
    EXPECT_EQ(version.forNewObject(1000), nullptr);
}

TEST_F(ToyVersion, ClassesOfAFurtherVersionAreAccepted)
{
    VersionSchema const both(*newSchema, {{newSchema.get(), ""}, {oldSchema.get(), mapping}});
    EXPECT_EQ(&both.fileSchema(), newSchema.get());
    EXPECT_EQ(&both.find("BUSH")->fileEntity(), newSchema->findEntity("BUSH"));
    EXPECT_EQ(&both.find("SHRUB")->fileEntity(), oldSchema->findEntity("SHRUB"));
    EXPECT_TRUE(both.find("BUSH")->isIdentity());
}

TEST_F(ToyVersion, ABadLineOfATableIsReported)
{
    VersionSchema const other(*newSchema, {{oldSchema.get(), "mapping OLD NEW\nclass Lake -> Pond\n"}});
    qev::test::expectReport("OLD, line 2: A new name of a class or an attribute is expected.",
                            "qev::ifc::VersionSchema::addClasses", "Format/Ifc/Schema/VersionSchema");
}

} // namespace
