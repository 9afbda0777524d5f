#include "ManyObjects.h"

#include "GlobalId.h"

#include <cstdint>
#include <fstream>
#include <string>

namespace qev::benchmarks {

namespace {

/// Writes records with ascending ids.
class RecordWriter
{
public:
    explicit RecordWriter(std::ofstream& file)
        : m_file(file)
    {
    }

    std::string add(std::string const& keywordAndArguments)
    {
        std::string const id = "#" + std::to_string(++m_lastId);
        m_file << id << "= " << keywordAndArguments << ";\n";
        return id;
    }

    std::string addRooted(std::string const& keyword, std::string const& arguments)
    {
        return add(keyword + "('" + globalIdOf(m_lastId + 1) + "',$," + arguments + ")");
    }

private:
    std::ofstream& m_file;
    std::uint64_t m_lastId = 0;
};

void addWall(RecordWriter& records, std::size_t number)
{
    std::string const name = std::to_string(number);
    std::string const wall = records.addRooted("IFCWALL", "'Wall " + name + "',$,$,$,$,$,.SOLIDWALL.");
    std::string const reference =
        records.add("IFCPROPERTYSINGLEVALUE('Reference',$,IFCIDENTIFIER('W-" + name + "'),$)");
    std::string const external = records.add("IFCPROPERTYSINGLEVALUE('IsExternal',$,IFCBOOLEAN(.F.),$)");
    std::string const phase = records.add("IFCPROPERTYSINGLEVALUE('Phase',$,IFCLABEL('1'),$)");
    std::string const common =
        records.addRooted("IFCPROPERTYSET", "'Pset_WallCommon',$,(" + reference + "," + external + ")");
    std::string const own = records.addRooted("IFCPROPERTYSET", "'Project_Phases',$,(" + phase + ")");
    records.addRooted("IFCRELDEFINESBYPROPERTIES", "$,$,(" + wall + ")," + common);
    records.addRooted("IFCRELDEFINESBYPROPERTIES", "$,$,(" + wall + ")," + own);
}

} // namespace

bool writeManyObjects(std::filesystem::path const& path, std::size_t count)
{
    std::ofstream file(path, std::ios::binary);
    file << "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\n"
            "FILE_NAME('','2026-01-01T00:00:00',(''),(''),'','','');\nFILE_SCHEMA(('IFC4X3_ADD2'));\n"
            "ENDSEC;\nDATA;\n";
    RecordWriter records(file);
    std::string const metre = records.add("IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.)");
    std::string const units = records.add("IFCUNITASSIGNMENT((" + metre + "))");
    records.addRooted("IFCPROJECT", "'Project',$,$,$,$,$," + units);
    for (std::size_t i = 1; i <= count; ++i)
        addWall(records, i);
    file << "ENDSEC;\nEND-ISO-10303-21;\n";
    file.close();
    return !file.fail();
}

} // namespace qev::benchmarks
