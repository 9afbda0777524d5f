#include "FoundationClasses/Resource/ExternalReference/FcExternalReference.h"

#include "FoundationClasses/Core/Kernel/FcRelAssociatesClassification.h"
#include "FoundationClasses/Resource/ExternalReference/FcClassification.h"
#include "FoundationClasses/Resource/ExternalReference/FcClassificationReference.h"
#include "FoundationClasses/Resource/ExternalReference/FcDocumentInformation.h"
#include "FoundationClasses/Resource/ExternalReference/FcDocumentReference.h"
#include "FoundationClasses/Resource/ExternalReference/FcLibraryReference.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "kit/ModelBuilder.h"
#include "library/kit/PropertyTree.h"
#include "library/kit/TranslationScope.h"
#include "UI/FoundationClasses/PropertyInterface/FcPropertyWrapper.h"
#include "UI/FoundationClasses/PropertyInterface/GetListIndexPrefix.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyAccess.h"

#include <gtest/gtest.h>

namespace {

using namespace qev;
using namespace qev::test;
using namespace fc::resource::externalreference;
using namespace fc::ui::propertyinterface;
using object::PropertyId;
using object::PropertyValue;
using Text = std::optional<std::string>;

struct ExternalRows : testing::Test
{
    TranslationScope texts;
    Model model;
    std::shared_ptr<FcClassification> system = std::make_shared<FcClassification>();
    std::shared_ptr<FcClassificationReference> code = std::make_shared<FcClassificationReference>();

    ExternalRows()
    {
        system->Name = "System";
        code->ReferencedSource = FcClassificationReferenceSelect(system);
    }
    PropertyValue value(fc::FcBase const& entity, std::string const& id) const
    {
        return getValue(*model.data(), entity, PropertyId(id), std::nullopt);
    }
    std::string name(fc::FcBase const& entity, std::string const& id) const
    {
        return getPropertyName(*model.data(), entity, PropertyId(id), std::nullopt);
    }
    std::string prefix(std::string const& id) const
    {
        GetListIndexPrefix visitor{PropertyId(id)};
        static_cast<fc::FcBase const&>(*code).accept(visitor);
        return visitor.prefix;
    }
};

TEST_F(ExternalRows, LeadToTheirLocation)
{
    auto const library = std::make_shared<FcLibraryReference>();
    EXPECT_EQ(getReference(*library, PropertyId("Location")), EntityReference());
    library->Location = "https://example.org";
    EXPECT_EQ(getReference(*library, PropertyId("Location")), EntityReference("https://example.org"));
    EXPECT_EQ(getReference(*library, PropertyId("Name")), EntityReference());
}

TEST_F(ExternalRows, OfAClassificationLeadToItsSpecification)
{
    EXPECT_EQ(getReference(*system, PropertyId("Specification")), EntityReference());
    system->Specification = "https://example.org/codes";
    EXPECT_EQ(getReference(*system, PropertyId("Specification")),
              EntityReference("https://example.org/codes"));
}

// --- Documents --------------------------------------------------------------------------------------

TEST_F(ExternalRows, OfADocumentReferenceNestTheDocument)
{
    auto const reference = std::make_shared<FcDocumentReference>();
    EXPECT_EQ(nodeAt(getProperties(*reference), "DocumentReference/ReferencedDocument"), nullptr);
    EXPECT_EQ(name(*reference, "ReferencedDocument"), "ReferencedDocument");
    auto const document = std::make_shared<FcDocumentInformation>();
    reference->ReferencedDocument = document;

    auto const rows = getProperties(*reference);
    auto const row = rows.front()->children.back();

    EXPECT_EQ(row->id.text(), "ReferencedDocument");
    EXPECT_TRUE(row->isGroup);
    EXPECT_FALSE(row->isList);
    EXPECT_EQ(row->object, reference);
    ASSERT_EQ(childIds(*row), std::vector<std::string>{"DocumentInformation"});
    EXPECT_EQ(row->children.front()->object, document);
    EXPECT_EQ(name(*reference, "ReferencedDocument"), "ReferencedDocument(IfcDocumentInformation)");
    texts.add("IfcDocumentReference.ReferencedDocument", "Document ");
    texts.add("IfcDocumentInformation", "information");
    EXPECT_EQ(name(*reference, "ReferencedDocument"), "Document (information)");
}

// --- Classification references ----------------------------------------------------------------------

TEST_F(ExternalRows, OfAClassificationReferenceAreThree)
{
    auto const rows = getProperties(*code);
    EXPECT_EQ(treeText(rows), "ClassificationReference\n"
                              "ClassificationReference.Name [part]\n"
                              "ClassificationReference.Identification [part]\n");
    for (auto const& row : rows)
        EXPECT_EQ(row->object, code);
}

TEST_F(ExternalRows, ShowACodeByItsNameOrItsIdentification)
{
    EXPECT_EQ(value(*code, "ClassificationReference"), PropertyValue(""));
    EXPECT_EQ(value(*code, "ClassificationReference.Name"), PropertyValue(Text()));
    code->Identification = "12.3";
    EXPECT_EQ(value(*code, "ClassificationReference"), PropertyValue("12.3"));
    code->Name = "Walls";
    EXPECT_EQ(value(*code, "ClassificationReference"), PropertyValue("Walls"));
    EXPECT_EQ(value(*code, "ClassificationReference.Name"), PropertyValue(Text("Walls")));
    EXPECT_EQ(value(*code, "ClassificationReference.Identification"), PropertyValue(Text("12.3")));
    EXPECT_EQ(value(*code, "ClassificationReference.Sort"), PropertyValue());
    EXPECT_EQ(value(*code, "Name"), PropertyValue(Text("Walls")));
}

TEST_F(ExternalRows, NameACodeByItsClassification)
{
    EXPECT_EQ(name(*code, "ClassificationReference"), "System");
    EXPECT_EQ(name(*code, "ClassificationReference.Name"), "System.Name");
    EXPECT_EQ(name(*code, "ClassificationReference.Identification"), "System.Identification");
    EXPECT_EQ(name(*code, "Sort"), "Sort");
    EXPECT_EQ(prefix("ClassificationReference"), "System");
    EXPECT_EQ(prefix("ClassificationReference.Name"), "System.Name");
    EXPECT_EQ(prefix("ClassificationReference.Identification"), "System.Identification");
    EXPECT_EQ(prefix("Sort"), "");
}

TEST_F(ExternalRows, HavePathsThatBeginWithTheClassification)
{
    auto const wall = model.wall("W1");
    auto const relation = model.add<fc::core::kernel::FcRelAssociatesClassification>("");
    relation->setRelatedObjects({fc::core::kernel::FcDefinitionSelect(Model::Object(wall))});
    relation->RelatingClassification = FcClassificationSelect(code);
    code->Name = "Walls";
    FcPropertyWrapper const wrapper(model.data(), wall);

    EXPECT_EQ(wrapper.getValue(PropertyId("Classifications.System")), PropertyValue("Walls"));
    EXPECT_EQ(wrapper.getValue(PropertyId("Classifications.System.Name")), PropertyValue(Text("Walls")));
    EXPECT_EQ(wrapper.getPropertyName(PropertyId("Classifications.System")), "System");
}

} // namespace
