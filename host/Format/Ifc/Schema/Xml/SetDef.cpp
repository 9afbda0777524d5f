#include "Format/Ifc/Schema/Xml/SetDef.h"

#include "Format/Ifc/Schema/DataTypeEnum.h"
#include "Format/Ifc/Schema/Xml/AliasExport.h"
#include "Format/Ifc/Schema/Xml/Def.h"

namespace qev::ifc::def::xml {

namespace {

std::string publishedForm(ApplicableClass const& applicable)
{
    return applicable.predefinedType.empty() ? applicable.className
                                             : applicable.className + "/" + applicable.predefinedType;
}

void checkApplicableClass(ApplicableClass const& applicable, schema::Schema const& schema,
                          XmlSetErrors& errors)
{
    schema::Entity const* const entity = schema.findEntityByName(applicable.className);
    if (!entity) {
        errors.add("The class " + applicable.className + " is unknown.");
        return;
    }
    if (applicable.predefinedType.empty())
        return;
    schema::Attribute const* const attribute = entity->findAttribute("PredefinedType");
    schema::DataTypeEnum const* const items = attribute ? attribute->enumeration() : nullptr;
    if (!items || !items->hasValue(applicable.predefinedType))
        errors.add("The class " + applicable.className + " has no predefined type " +
                   applicable.predefinedType + ".");
}

} // namespace

SetDef::SetDef(std::string const& setName)
    : DefBase(setName)
    , conceptPrefix(setName + ".")
{
}

SetDef::~SetDef() = default;

bool SetDef::checkForErrors(schema::Schema const& schema, XmlSetErrors& errors) const
{
    std::size_t const before = errors.entries.size();
    errors.place = name;
    for (ApplicableClass const& applicable : applicableClasses)
        checkApplicableClass(applicable, schema, errors);
    for (Def const* const entry : entries()) {
        errors.place = name + "." + entry->name;
        entry->checkForErrors(schema, errors);
    }
    return errors.entries.size() == before;
}

qev::xml::Element SetDef::exportDef(qev::xml::Element& parent, ExtraExportInfo* info) const
{
    qev::xml::Element element = parent.addChild(sKind());
    if (!templateTypeName.empty())
        element.setAttribute("templatetype", templateTypeName);
    if (info && !info->ifcVersion.empty())
        element.addChild("IfcVersion").setAttribute("version", info->ifcVersion);
    element.addChild("Name", name);
    element.addChild("Definition", description);
    element.addChild("Applicability");
    qev::xml::Element classes = element.addChild("ApplicableClasses");
    std::string list;
    for (ApplicableClass const& applicable : applicableClasses) {
        classes.addChild("ClassName", publishedForm(applicable));
        list += (list.empty() ? "" : ",") + publishedForm(applicable);
    }
    element.addChild("ApplicableTypeValue", list);
    return element;
}

Def const* SetDef::findEntry(std::string_view entryName) const
{
    for (Def const* const entry : entries()) {
        if (entry->name == entryName)
            return entry;
    }
    return nullptr;
}

} // namespace qev::ifc::def::xml
