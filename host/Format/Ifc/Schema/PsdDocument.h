#pragma once

#include "Format/Ifc/Schema/PsdReader.h"

#include <pugixml.hpp>

namespace qev::ifc::def {

/// The XML of one file, with what its readers need: elements by name whatever their namespace, texts without
/// the blanks of the layout, and places for errors.
class PsdDocument
{
public:
    PsdDocument(std::string_view text, std::filesystem::path const& file, PsdResult& result);

    /// The outermost element; a null node after a syntax error, which has been told then.
    [[nodiscard]] pugi::xml_node root() const;
    /// Tells what is wrong at \p node.
    void fail(pugi::xml_node node, std::string message);

    /// The name without a namespace prefix.
    [[nodiscard]] static std::string_view nameOf(pugi::xml_node node);
    /// The first child of that name; a null node when there is none.
    [[nodiscard]] static pugi::xml_node child(pugi::xml_node node, std::string_view name);
    /// All children of that name.
    [[nodiscard]] static std::vector<pugi::xml_node> children(pugi::xml_node node, std::string_view name);
    /// The text of an element, with every run of blanks and line breaks as one blank.
    [[nodiscard]] static std::string textOf(pugi::xml_node node);
    /// The text of the child of that name; empty when there is none.
    [[nodiscard]] static std::string childText(pugi::xml_node node, std::string_view name);
    /// An attribute; empty when there is none.
    [[nodiscard]] static std::string attributeOf(pugi::xml_node node, char const* name);

private:
    [[nodiscard]] std::size_t lineOf(std::ptrdiff_t offset) const;

    std::string_view m_text;
    std::filesystem::path const& m_file;
    PsdResult& m_result;
    pugi::xml_document m_document;
};

} // namespace qev::ifc::def
