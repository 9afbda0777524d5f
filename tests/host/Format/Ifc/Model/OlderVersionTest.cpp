#include "Format/Ifc/Model/IfcFile.h"
#include "FoundationClasses/Resource/ExternalReference/FcClassification.h"
#include "FoundationClasses/Resource/ExternalReference/FcClassificationReference.h"
#include "FoundationClasses/Resource/Property/FcPropertyEnumeratedValue.h"
#include "FoundationClasses/Resource/Property/FcPropertyListValue.h"
#include "FoundationClasses/Resource/Property/FcPropertySingleValue.h"
#include "IfcText.h"
#include "kit/ModelBuilder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev;
using fc::resource::externalreference::FcClassification;
using fc::resource::externalreference::FcClassificationReference;
using fc::resource::externalreference::FcClassificationReferenceSelect;
using fc::resource::measure::FcValue;
using fc::resource::property::FcPropertyEnumeratedValue;
using fc::resource::property::FcPropertyListValue;
using fc::resource::property::FcPropertySingleValue;
using testing::HasSubstr;

std::unique_ptr<ifc::IfcFile> open(std::string const& records, std::string const& schema)
{
    return std::move(ifc::IfcFile::fromText(test::ifcText(schema, records)).file);
}

/// What edits make of files of older versions, which demand or forbid what the model does not.
class OlderVersion : public testing::Test
{
protected:
    template <class T>
    static std::shared_ptr<T> add(ifc::IfcFile& to)
    {
        auto const entity = std::make_shared<T>();
        to.data()->entityAdd(entity, false);
        return entity;
    }
    static std::shared_ptr<FcClassificationReference> addCode(ifc::IfcFile& to, std::string const& code,
                                                              FcClassificationReferenceSelect const& source)
    {
        auto const reference = add<FcClassificationReference>(to);
        reference->Identification = code;
        reference->ReferencedSource = source;
        return reference;
    }
    static std::shared_ptr<FcClassificationReference> addCodes(ifc::IfcFile& to)
    {
        auto const system = fc::entityCast<FcClassification>(to.entityFromId(2));
        auto const top = addCode(to, "30", FcClassificationReferenceSelect(system));
        return addCode(to, "30.1", FcClassificationReferenceSelect(top));
    }

    std::unique_ptr<ifc::IfcFile> file = open("#2=IFCCLASSIFICATION('S','1',$,'Own');\n", "IFC2X3");
};

TEST_F(OlderVersion, ReferencesAClassificationWhereItKnowsNoChainOfCodes)
{
    addCodes(*file);
    EXPECT_THAT(file->toText(), HasSubstr("#4=IFCCLASSIFICATIONREFERENCE($,'30.1',$,#2);"));
    auto const newer = open("#2=IFCCLASSIFICATION('S','1',$,'Own',$,$,$);\n", "IFC4");
    addCodes(*newer);
    EXPECT_THAT(newer->toText(), HasSubstr("#4=IFCCLASSIFICATIONREFERENCE($,'30.1',$,#3,$,$);"));
}

TEST_F(OlderVersion, ACircleOfCodesHasNoPlaceThere)
{
    auto const code = addCodes(*file);
    auto const top = fc::entityCast<FcClassificationReference>(code->ReferencedSource->entity());
    top->ReferencedSource = FcClassificationReferenceSelect(code);
    EXPECT_THAT(file->toText(), HasSubstr("#4=IFCCLASSIFICATIONREFERENCE($,'30.1',$,$);"));
}

TEST_F(OlderVersion, GetsTheEmptyTextWhereItDemandsOne)
{
    add<FcClassification>(*file)->Name = "New";
    EXPECT_THAT(file->toText(), HasSubstr("#3=IFCCLASSIFICATION('','',$,'New');"));
    fc::entityCast<FcClassification>(file->entityFromId(2))->Edition = std::optional<std::string>();
    EXPECT_THAT(file->toText(), HasSubstr("#2=IFCCLASSIFICATION('S','',$,'Own');"));
}

TEST_F(OlderVersion, GetsAnEmptyTextInAListThatMayNotBeEmptyAndReadsItAsNone)
{
    add<FcPropertyEnumeratedValue>(*file)->Name = "Status";
    auto const list = add<FcPropertyListValue>(*file);
    list->Name = "List";
    list->ListValues = std::vector<FcValue>();
    std::string const text = file->toText();
    EXPECT_THAT(text, HasSubstr("#3=IFCPROPERTYENUMERATEDVALUE('Status',$,(IFCLABEL('')),$);"));
    EXPECT_THAT(text, HasSubstr("#4=IFCPROPERTYLISTVALUE('List',$,(IFCLABEL('')),$);"));
    auto const again = ifc::IfcFile::fromText(text).file;
    auto const status = fc::entityCast<FcPropertyEnumeratedValue>(again->entityFromId(3));
    EXPECT_FALSE(status->EnumerationValues.get());
    EXPECT_TRUE(again->toText() == text);
    status->EnumerationValues = std::vector<FcValue>{test::label("NEW")};
    EXPECT_THAT(again->toText(), HasSubstr("#3=IFCPROPERTYENUMERATEDVALUE('Status',$,(IFCLABEL('NEW')),$);"));
}

TEST_F(OlderVersion, AnEmptyTextInAListThatMayBeMissingIsAValue)
{
    auto const newer = open("#3=IFCPROPERTYENUMERATEDVALUE('Status',$,(IFCLABEL('')),$);\n", "IFC4");
    auto const status = fc::entityCast<FcPropertyEnumeratedValue>(newer->entityFromId(3));
    ASSERT_TRUE(status->EnumerationValues.get());
    EXPECT_EQ(status->EnumerationValues.get()->size(), 1u);
}

TEST_F(OlderVersion, GetsAPlainTypeForAValueOfATypeThatItDoesNotHave)
{
    auto const date = add<FcPropertySingleValue>(*file);
    date->Name = "Date";
    date->NominalValue = test::valueOf("Date", "2026-03-02");
    auto const density = add<FcPropertySingleValue>(*file);
    density->Name = "Density";
    density->NominalValue = test::number("AreaDensityMeasure", 2.5);
    EXPECT_THAT(file->toText(), HasSubstr("#3=IFCPROPERTYSINGLEVALUE('Date',$,IFCTEXT('2026-03-02'),$);"));
    EXPECT_THAT(file->toText(), HasSubstr("#4=IFCPROPERTYSINGLEVALUE('Density',$,IFCREAL(2.5),$);"));
}

} // namespace
