#pragma once

#include "Format/Ifc/Schema/Schema.h"
#include "Format/Ifc/Schema/Xml/ApplicableClass.h"
#include "Format/Ifc/Schema/Xml/DefBase.h"
#include "Format/Ifc/Schema/Xml/Element.h"
#include "Format/Ifc/Schema/Xml/ExtraExportInfo.h"
#include "Format/Ifc/Schema/Xml/TemplateType.h"
#include "Format/Ifc/Schema/Xml/XmlSetErrors.h"

namespace qev::ifc::def::xml {

class Def;

/// The definition of one set.
class HOSTIFCSCHEMA_EXPORT SetDef : public DefBase
{
public:
    explicit SetDef(std::string const& setName);
    virtual ~SetDef();
    SetDef(SetDef const&) = delete;
    SetDef& operator=(SetDef const&) = delete;

    /// Adds to \p errors what \p schema does not know: classes, predefined types, value types.
    /// \returns true when nothing was added.
    virtual bool checkForErrors(schema::Schema const& schema, XmlSetErrors& errors) const;
    /// Appends the set to \p parent in the published form and returns its element.
    /// \p info may be null.
    virtual qev::xml::Element exportDef(qev::xml::Element& parent, ExtraExportInfo* info) const;
    /// What the published form calls the set: "PropertySetDef" or "QtoSetDef".
    [[nodiscard]] virtual char const* sKind() const = 0;

    /// The entries in definition order.
    [[nodiscard]] virtual std::vector<Def const*> entries() const = 0;

    /// The entry of that name; null when there is none.
    [[nodiscard]] Def const* findEntry(std::string_view entryName) const;

    /// What stands before the name of an entry in the key of its texts: the set's name and a dot. Empty for
    /// a set of a model's own, which no dictionary can know: its entries then go by their names.
    std::string conceptPrefix;
    /// The classes the set applies to; when empty, it applies to everything.
    std::vector<ApplicableClass> applicableClasses;
    TemplateType templateType = TemplateType::NotDefined;
    /// The template type as published; says more than the number where that is `NotDefined`.
    std::string templateTypeName;
    /// The part of the standard that the set belongs to, for example "IfcSharedBldgElements"; may be empty.
    std::string chapter;
};

} // namespace qev::ifc::def::xml
