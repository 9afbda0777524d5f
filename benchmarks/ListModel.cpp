#include "ListModel.h"

#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "GlobalId.h"

namespace qev::benchmarks {

namespace {

/// The value of a property, of a kind that changes from column to column.
std::string valueOf(int wall, int property)
{
    auto const mixed = (wall * 7919 + property * 104729) % 10007;
    switch (property % 5) {
    case 0:
        return "IFCLABEL('Wall " + std::to_string(mixed % 400) + '.' + std::to_string(property) + "')";
    case 1:
        return "IFCLENGTHMEASURE(" + std::to_string(mixed) + ".25)";
    case 2:
        return mixed % 3 == 0 ? "IFCBOOLEAN(.T.)" : "IFCBOOLEAN(.F.)";
    case 3:
        return "IFCREAL(" + std::to_string(mixed / 16) + ".5)";
    default:
        return "IFCIDENTIFIER('F" + std::to_string(30 * (1 + mixed % 4)) + "')";
    }
}

} // namespace

ListModel::ListModel(int walls)
    : m_file(ifc::IfcFile::fromText(makeText(walls)).file)
{
}

ListModel::~ListModel() = default;

std::vector<std::shared_ptr<fc::FcBase>> ListModel::getObjects(std::size_t count) const
{
    using fc::shared::sharedbldgelements::FcWall;
    std::vector<std::shared_ptr<fc::FcBase>> walls;
    for (auto const index : getData()->indicesFromId(FcWall::idFirst, FcWall::idLast))
        walls.push_back(getData()->entity(index));
    std::vector<std::shared_ptr<fc::FcBase>> objects;
    objects.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
        objects.push_back(walls[i % walls.size()]);
    return objects;
}

std::string ListModel::getSetName(int set) { return "Set" + std::to_string(set); }

std::string ListModel::makeText(int walls)
{
    std::string text = "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\n"
                       "FILE_NAME('walls.ifc','2026-01-05T08:00:00',(''),(''),'','','');\n"
                       "FILE_SCHEMA(('IFC4'));\nENDSEC;\nDATA;\n"
                       "#1=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);\n#2=IFCUNITASSIGNMENT((#1));\n"
                       "#3=IFCPROJECT('" +
                       globalIdOf(3) + "',$,'Walls',$,$,$,$,$,#2);\n";
    std::uint64_t last = 3;
    auto const add = [&](std::string const& record) {
        text += '#' + std::to_string(++last) + '=' + record + ";\n";
        return '#' + std::to_string(last);
    };
    auto const root = [&] { return "'" + globalIdOf(last + 1) + "',$"; };
    for (int wall = 0; wall < walls; ++wall) {
        auto const object =
            add("IFCWALL(" + root() + ",'Wall " + std::to_string(wall) + "',$,$,$,$,$,.SOLIDWALL.)");
        for (int set = 0; set < sets; ++set) {
            std::string properties;
            for (int i = 0; i < propertiesPerSet; ++i) {
                auto const number = set * propertiesPerSet + i;
                auto const property = add("IFCPROPERTYSINGLEVALUE('Property" + std::to_string(number) +
                                          "',$," + valueOf(wall, number) + ",$)");
                properties += (properties.empty() ? "" : ",") + property;
            }
            auto const definition =
                add("IFCPROPERTYSET(" + root() + ",'" + getSetName(set) + "',$,(" + properties + "))");
            add("IFCRELDEFINESBYPROPERTIES(" + root() + ",$,$,(" + object + ")," + definition + ")");
        }
    }
    return text + "ENDSEC;\nEND-ISO-10303-21;\n";
}

} // namespace qev::benchmarks
