#include "Format/Ifc/Schema/MappingText.h"

#include "Format/Ifc/Schema/TextScanner.h"

namespace qev::ifc {

namespace {

bool readClass(def::WordScanner& words, MappingTable& table)
{
    std::string_view const name = words.next();
    if (words.next() != "->")
        return false;
    std::string_view const nearest = words.next();
    std::string_view const grade = words.next();
    MappingTable::NearestClass entry;
    if (nearest != "none") {
        if (grade != "same" && grade != "convert")
            return false;
        entry = {nearest, grade == "same" ? ClassMapping::Grade::Same : ClassMapping::Grade::Convert};
    }
    return words.atEnd() && table.nearestClasses.emplace(name, entry).second;
}

bool readAttribute(def::WordScanner& words, MappingTable& table)
{
    std::string_view const attribute = words.next();
    bool const hasArrow = words.next() == "->";
    std::string_view const newName = words.next();
    std::size_t const dot = attribute.find('.');
    if (!hasArrow || newName.empty() || !words.atEnd() || dot == std::string_view::npos)
        return false;
    auto& renamed = table.renamedAttributes[attribute.substr(0, dot)];
    return renamed.emplace(attribute.substr(dot + 1), newName).second;
}

} // namespace

MappingTable parseMapping(std::string_view text)
{
    MappingTable table;
    def::LineScanner lines(text);
    while (lines.next()) {
        def::WordScanner words(lines.line());
        std::string_view const keyword = words.next();
        bool const isRead = keyword == "mapping" || (keyword == "class" && readClass(words, table)) ||
                            (keyword == "attribute" && readAttribute(words, table));
        if (!isRead)
            table.errors.push_back({lines.number(), "A new name of a class or an attribute is expected."});
    }
    return table;
}

} // namespace qev::ifc
