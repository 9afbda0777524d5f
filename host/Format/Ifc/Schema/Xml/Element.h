#pragma once

#include "HostIfcSchemaExport.h"

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qev::xml {

/// An element of an XML document that is being written.
///
/// A handle: copies mean the same element, and an element lives as long as a handle to it or to an
/// element above it.
class HOSTIFCSCHEMA_EXPORT Element
{
public:
    explicit Element(std::string_view name);

    [[nodiscard]] std::string const& name() const;
    [[nodiscard]] std::string const& text() const;
    [[nodiscard]] std::vector<Element> const& children() const;
    /// The value of an attribute; empty when there is none.
    [[nodiscard]] std::string attribute(std::string_view attributeName) const;

    /// Appends a child and returns it.
    Element addChild(std::string_view childName, std::string_view childText = {});
    /// Adds an attribute, or replaces its value.
    void setAttribute(std::string_view attributeName, std::string_view value);
    void setText(std::string_view text);

    /// The element as UTF-8 text, two blanks a level; with a declaration in front it is a document.
    [[nodiscard]] std::string toString() const;

private:
    struct Node;
    void append(std::string& output, std::size_t level) const;

    std::shared_ptr<Node> m_node;
};

} // namespace qev::xml
