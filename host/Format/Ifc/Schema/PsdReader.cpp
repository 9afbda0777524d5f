#include "Format/Ifc/Schema/PsdReader.h"

#include "Core/String/Ascii.h"
#include "Format/Ifc/Schema/PsdDocument.h"
#include "Format/Ifc/Schema/PsdTypeReader.h"
#include "Format/Ifc/Schema/Qto/QuantitySetDef.h"

#include <algorithm>
#include <fstream>
#include <sstream>

namespace qev::ifc::def {

namespace {

using Document = PsdDocument;

bool isUpper(std::string_view text)
{
    return !text.empty() &&
           std::all_of(text.begin(), text.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
}

// "IfcXyz", "IfcXyz/PREDEFINED", or in a few old files "IFCCHAPTER/IfcXyz".
xml::ApplicableClass applicableClass(std::string_view text)
{
    std::size_t const slash = text.find('/');
    if (slash == std::string_view::npos)
        return {std::string(str::trimmed(text)), {}};
    std::string_view const first = str::trimmed(text.substr(0, slash));
    std::string_view const second = str::trimmed(text.substr(slash + 1));
    if (isUpper(first) && second.starts_with("Ifc"))
        return {std::string(second), {}};
    return {std::string(first), std::string(second)};
}

void addClass(xml::SetDef& set, std::string_view text)
{
    xml::ApplicableClass applicable = applicableClass(text);
    auto& classes = set.applicableClasses;
    if (!applicable.className.empty() &&
        std::find(classes.begin(), classes.end(), applicable) == classes.end())
        classes.push_back(std::move(applicable));
}

// The condition of old files: IfcXyzType.PredefinedType="ITEM".
bool addCondition(xml::SetDef& set, std::string_view text)
{
    constexpr std::string_view middle = ".PredefinedType=\"";
    std::size_t const place = text.find(middle);
    if (place == std::string_view::npos || !text.ends_with('"'))
        return false;
    std::string const className(text.substr(0, place));
    std::string_view const item = text.substr(place + middle.size(), text.size() - place - middle.size() - 1);
    if (item.find('"') != std::string_view::npos || className.find_first_of(":. ") != std::string::npos)
        return false;
    xml::ApplicableClass const restricted{className, std::string(item)};
    for (xml::ApplicableClass& applicable : set.applicableClasses) {
        if (applicable.className == className && applicable.predefinedType.empty()) {
            applicable = restricted;
            return true;
        }
    }
    set.applicableClasses.push_back(restricted);
    return true;
}

void readApplicability(pugi::xml_node node, xml::SetDef& set)
{
    for (pugi::xml_node const name :
         Document::children(Document::child(node, "ApplicableClasses"), "ClassName"))
        addClass(set, Document::textOf(name));
    std::string const text = Document::childText(node, "ApplicableTypeValue");
    // Conditions in words or of other forms cannot be checked; the classes alone hold then.
    if (text.find_first_of("=\"") != std::string::npos)
        addCondition(set, text);
    else if (set.applicableClasses.empty()) {
        std::istringstream list(text);
        for (std::string part; std::getline(list, part, ',');)
            addClass(set, part);
    }
}

void readHead(pugi::xml_node node, xml::SetDef& set, std::string_view defaultTemplateType)
{
    set.description = Document::childText(node, "Definition");
    std::string const templateType = Document::attributeOf(node, "templatetype");
    set.templateTypeName = templateType.empty() ? std::string(defaultTemplateType) : templateType;
    set.templateType = xml::templateTypeFromName(set.templateTypeName);
    set.chapter = Document::attributeOf(Document::child(node, "IfcVersion"), "schema");
    readApplicability(node, set);
}

std::unique_ptr<xml::SetDef> readPropertySet(Document& document, std::string const& name)
{
    pugi::xml_node const node = document.root();
    auto set = std::make_unique<pset::PropertySetDef>(name);
    readHead(node, *set, "NOTDEFINED");
    PsdTypeReader(document, *set).readProperties(Document::child(node, "PropertyDefs"), set->propertyDefs);
    set->definitionAliases =
        readAliases(Document::child(node, "PsetDefinitionAliases"), "PsetDefinitionAlias");
    return set;
}

void readQuantity(Document& document, pugi::xml_node node, qto::QuantitySetDef& set)
{
    std::string const name = Document::childText(node, "Name");
    std::unique_ptr<qto::QuantityType> type = qto::quantityTypeFromKind(Document::childText(node, "QtoType"));
    if (name.empty())
        document.fail(node, "A Name is expected in QtoDef.");
    else if (!type)
        document.fail(node, "A QtoType such as Q_LENGTH is expected in QtoDef.");
    else if (set.findEntry(name))
        document.fail(node, "The quantity " + name + " stands in the set twice.");
    else {
        set.quantityDefs.push_back(std::make_unique<qto::QuantityDef>(set, name, std::move(type)));
        readEntryTexts(node, *set.quantityDefs.back());
    }
}

std::unique_ptr<xml::SetDef> readQuantitySet(Document& document, std::string const& name)
{
    pugi::xml_node const node = document.root();
    auto set = std::make_unique<qto::QuantitySetDef>(name);
    readHead(node, *set, "QTO_OCCURRENCEDRIVEN");
    for (pugi::xml_node const quantity : Document::children(Document::child(node, "QtoDefs"), "QtoDef"))
        readQuantity(document, quantity, *set);
    set->definitionAliases = readAliases(Document::child(node, "QtoDefinitionAliases"), "QtoDefinitionAlias");
    return set;
}

void readFile(std::filesystem::path const& file, PsdResult& result)
{
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream text;
    text << stream.rdbuf();
    if (!stream) {
        ++result.fileCount;
        result.errors.push_back({file, 0, "The file cannot be read."});
        return;
    }
    readPsdText(text.str(), file, result);
}

bool isXmlFile(std::filesystem::directory_entry const& entry)
{
    std::error_code error;
    std::filesystem::path const extension = entry.path().extension();
    return entry.is_regular_file(error) && (extension == ".xml" || extension == ".XML");
}

std::vector<std::filesystem::path> filesBelow(std::filesystem::path const& folder, PsdResult& result)
{
    std::vector<std::filesystem::path> files;
    std::error_code error;
    std::filesystem::recursive_directory_iterator entries(folder, error);
    while (!error && entries != std::filesystem::recursive_directory_iterator()) {
        if (isXmlFile(*entries))
            files.push_back(entries->path());
        entries.increment(error);
    }
    if (error)
        result.errors.push_back({folder, 0, "The folder cannot be read: " + error.message() + "."});
    std::sort(files.begin(), files.end());
    return files;
}

} // namespace

PsdResult readPsd(std::filesystem::path const& fileOrFolder)
{
    PsdResult result;
    std::error_code error;
    if (!std::filesystem::is_directory(fileOrFolder, error)) {
        readFile(fileOrFolder, result);
        return result;
    }
    for (std::filesystem::path const& file : filesBelow(fileOrFolder, result))
        readFile(file, result);
    return result;
}

void readPsdText(std::string_view text, std::filesystem::path const& file, PsdResult& result)
{
    ++result.fileCount;
    Document document(text, file, result);
    pugi::xml_node const root = document.root();
    if (!root)
        return;
    std::string_view const kind = Document::nameOf(root);
    bool const isPropertySet = kind == "PropertySetDef";
    if (!isPropertySet && kind != "QtoSetDef") {
        document.fail(root, "PropertySetDef or QtoSetDef is expected instead of " + std::string(kind) + ".");
        return;
    }
    std::string const name = Document::childText(root, "Name");
    if (name.empty()) {
        document.fail(root, "A Name is expected in " + std::string(kind) + ".");
        return;
    }
    if (!result.definitions.add(isPropertySet ? readPropertySet(document, name)
                                              : readQuantitySet(document, name)))
        document.fail(root, "The set " + name + " is defined by another file too.");
}

} // namespace qev::ifc::def
