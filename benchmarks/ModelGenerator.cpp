#include "ModelGenerator.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>

namespace qev::benchmarks {

namespace {

constexpr std::size_t elementsOfStorey = 400;
constexpr std::size_t elementsOfSharedSet = 40;
constexpr unsigned int facesOfShape = 84;
constexpr std::size_t bufferSize = std::size_t{1} << 20;

std::string reference(std::uint64_t id) { return "#" + std::to_string(id); }

std::string references(std::vector<std::uint64_t> const& ids)
{
    std::string text = "(";
    for (std::uint64_t const id : ids) {
        if (text.size() > 1)
            text += ',';
        text += reference(id);
    }
    return text + ")";
}

std::string inQuotes(std::string_view text) { return "'" + std::string(text) + "'"; }

} // namespace

ModelGenerator::ModelGenerator(std::filesystem::path const& path, std::uint64_t size)
    : m_file(path, std::ios::binary)
    , m_size(size)
    , m_classes({{"IFCWALL", ".SOLIDWALL.", "Pset_WallCommon", "Qto_WallBaseQuantities", 0, {}},
                 {"IFCWINDOW",
                  "1.2,1.5,.WINDOW.,.SINGLE_PANEL.,$",
                  "Pset_WindowCommon",
                  "Qto_WindowBaseQuantities",
                  0,
                  {}},
                 {"IFCWALL", ".PARTITIONING.", "Pset_WallCommon", "Qto_WallBaseQuantities", 0, {}},
                 {"IFCDOOR",
                  "2.1,0.9,.DOOR.,.SINGLE_SWING_LEFT.,$",
                  "Pset_DoorCommon",
                  "Qto_DoorBaseQuantities",
                  0,
                  {}},
                 {"IFCCOLUMN", ".COLUMN.", "Pset_ColumnCommon", "Qto_ColumnBaseQuantities", 0, {}}})
{
}

bool ModelGenerator::run()
{
    constexpr std::uint64_t sizeOfRelations = 2000;
    addHeader();
    addUnits();
    addProject();
    addTypes();
    for (unsigned int number = 0; m_written + sizeOfRelations < m_size; ++number)
        addStorey(number);
    addRelations();
    m_buffer += "ENDSEC;\nEND-ISO-10303-21;\n";
    m_file << m_buffer;
    m_file.close();
    return !m_file.fail();
}

std::uint64_t ModelGenerator::add(std::string_view keyword, std::string const& arguments)
{
    // Real tools leave out numbers here and there.
    m_lastId += random() % 16 == 0 ? 3 : 1;
    std::size_t const before = m_buffer.size();
    m_buffer += reference(m_lastId);
    m_buffer += "= ";
    m_buffer += keyword;
    m_buffer += '(';
    m_buffer += arguments;
    m_buffer += ");\n";
    m_written += m_buffer.size() - before;
    if (m_buffer.size() > bufferSize) {
        m_file << m_buffer;
        m_buffer.clear();
    }
    return m_lastId;
}

void ModelGenerator::addHeader()
{
    m_buffer = "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION(('ViewDefinition [CoordinationView]'),'2;1');\n"
               "FILE_NAME('tower.ifc','2026-01-05T08:00:00',(''),(''),'','Model generator','');\n"
               "FILE_SCHEMA(('IFC4'));\nENDSEC;\nDATA;\n";
    m_written = m_buffer.size();
}

void ModelGenerator::addUnits()
{
    auto const person = add("IFCPERSON", "$,'Builder','B.',$,$,$,$,$");
    auto const organization = add("IFCORGANIZATION", "$,'Tower builders',$,$,$");
    auto const both =
        add("IFCPERSONANDORGANIZATION", reference(person) + "," + reference(organization) + ",$");
    auto const application =
        add("IFCAPPLICATION", reference(organization) + ",'1.0','Model generator','generator'");
    m_history = add("IFCOWNERHISTORY",
                    reference(both) + "," + reference(application) + ",$,.NOCHANGE.,$,$,$,1767600000");

    auto const radian = add("IFCSIUNIT", "*,.PLANEANGLEUNIT.,$,.RADIAN.");
    auto const factor =
        add("IFCMEASUREWITHUNIT", "IFCPLANEANGLEMEASURE(0.017453292519943295)," + reference(radian));
    auto const exponents = add("IFCDIMENSIONALEXPONENTS", "0,0,0,0,0,0,0");
    std::vector<std::uint64_t> units;
    units.push_back(add("IFCCONVERSIONBASEDUNIT",
                        reference(exponents) + ",.PLANEANGLEUNIT.,'DEGREE'," + reference(factor)));
    units.push_back(add("IFCSIUNIT", "*,.LENGTHUNIT.,.MILLI.,.METRE."));
    units.push_back(add("IFCSIUNIT", "*,.AREAUNIT.,$,.SQUARE_METRE."));
    units.push_back(add("IFCSIUNIT", "*,.VOLUMEUNIT.,$,.CUBIC_METRE."));
    units.push_back(add("IFCSIUNIT", "*,.TIMEUNIT.,$,.SECOND."));
    m_units = add("IFCUNITASSIGNMENT", references(units));
}

void ModelGenerator::addProject()
{
    auto const origin = add("IFCCARTESIANPOINT", "(0.,0.,0.)");
    auto const axes = add("IFCAXIS2PLACEMENT3D", reference(origin) + ",$,$");
    m_context = add("IFCGEOMETRICREPRESENTATIONCONTEXT", "$,'Model',3,1.E-05," + reference(axes) + ",$");
    auto const project =
        add("IFCPROJECT", root("Tower") + ",$,$,$,(" + reference(m_context) + ")," + reference(m_units));
    m_buildingPlacement = add("IFCLOCALPLACEMENT", "$," + reference(axes));
    auto const site = add("IFCSITE", root("Site") + ",$," + reference(m_buildingPlacement) +
                                         ",$,$,.ELEMENT.,(50,56,0),(6,57,0),47.5,$,$");
    m_building =
        add("IFCBUILDING", root("Tower") + ",$," + reference(m_buildingPlacement) + ",$,$,.ELEMENT.,0.,0.,$");
    add("IFCRELAGGREGATES", root() + ",$,$," + reference(project) + "," + references({site}));
    add("IFCRELAGGREGATES", root() + ",$,$," + reference(site) + "," + references({m_building}));
}

void ModelGenerator::addTypes()
{
    for (ElementClass& elementClass : m_classes) {
        std::vector<std::uint64_t> const properties = {
            addSingleValue("FireRating", "IFCLABEL('F90')"),
            addSingleValue("ThermalTransmittance", "IFCTHERMALTRANSMITTANCEMEASURE(0.24)")};
        auto const set = add("IFCPROPERTYSET", root(elementClass.set) + "," + references(properties));
        std::string const arguments = root("Type") + ",$,(" + reference(set) + "),$,$,$";
        if (elementClass.keyword == "IFCDOOR")
            elementClass.type = add("IFCDOORTYPE", arguments + ",.DOOR.,.SINGLE_SWING_LEFT.,.F.,$");
        else if (elementClass.keyword == "IFCWINDOW")
            elementClass.type = add("IFCWINDOWTYPE", arguments + ",.WINDOW.,.SINGLE_PANEL.,.F.,$");
        else
            elementClass.type = add(std::string(elementClass.keyword) + "TYPE",
                                    arguments + "," + std::string(elementClass.lastArguments));
    }
}

void ModelGenerator::addStorey(unsigned int number)
{
    auto const placement = addPlacement(m_buildingPlacement);
    auto const storey = add("IFCBUILDINGSTOREY", root("Level " + std::to_string(number)) + ",$," +
                                                     reference(placement) + ",$,$,.ELEMENT.," + coordinate());
    m_storeys.push_back(storey);
    m_storeyElements.clear();
    std::vector<std::uint64_t> sharing;
    while (m_storeyElements.size() < elementsOfStorey && m_written < m_size) {
        addElement(m_classes[m_elementCount++ % m_classes.size()], placement);
        sharing.push_back(m_storeyElements.back());
        if (sharing.size() == elementsOfSharedSet) {
            addSharedSet(sharing);
            sharing.clear();
        }
    }
    add("IFCRELCONTAINEDINSPATIALSTRUCTURE",
        root() + ",$,$," + references(m_storeyElements) + "," + reference(storey));
}

void ModelGenerator::addElement(ElementClass& elementClass, std::uint64_t placement)
{
    auto const place = addPlacement(placement);
    auto const shape = addShape();
    std::string const number = std::to_string(100000 + m_elementCount);
    auto const element =
        add(elementClass.keyword, root("Basic element:" + number) + ",'Basic element'," + reference(place) +
                                      "," + reference(shape) + "," + inQuotes(number) + "," +
                                      std::string(elementClass.lastArguments));
    elementClass.elements.push_back(element);
    m_storeyElements.push_back(element);
    addProperties(elementClass, element);
    addQuantities(elementClass, element);
}

void ModelGenerator::addProperties(ElementClass const& elementClass, std::uint64_t element)
{
    std::vector<std::uint64_t> const properties = {
        addSingleValue("Reference", "IFCIDENTIFIER('Basic element " + std::to_string(random() % 100) + "')"),
        addSingleValue("IsExternal", random() % 2 == 0 ? "IFCBOOLEAN(.T.)" : "IFCBOOLEAN(.F.)"),
        addSingleValue("FireRating",
                       random() % 2 == 0 ? "IFCLABEL('F30')" : "IFCLABEL('F 90 gepr\\X2\\00FC\\X0\\ft')"),
        addSingleValue("ThermalTransmittance",
                       "IFCTHERMALTRANSMITTANCEMEASURE(0." + std::to_string(100 + random() % 900) + ")")};
    auto const set = add("IFCPROPERTYSET", root(elementClass.set) + "," + references(properties));
    add("IFCRELDEFINESBYPROPERTIES", root() + ",$,$," + references({element}) + "," + reference(set));
}

void ModelGenerator::addQuantities(ElementClass const& elementClass, std::uint64_t element)
{
    std::vector<std::uint64_t> const quantities = {
        addQuantity("IFCQUANTITYLENGTH", "Width"), addQuantity("IFCQUANTITYLENGTH", "Height"),
        addQuantity("IFCQUANTITYAREA", "GrossSideArea"), addQuantity("IFCQUANTITYVOLUME", "GrossVolume")};
    auto const set =
        add("IFCELEMENTQUANTITY", root(elementClass.quantities) + ",$," + references(quantities));
    add("IFCRELDEFINESBYPROPERTIES", root() + ",$,$," + references({element}) + "," + reference(set));
}

std::uint64_t ModelGenerator::addShape()
{
    std::vector<std::uint64_t> points = {addPoint(), addPoint(), addPoint()};
    std::vector<std::uint64_t> faces;
    while (faces.size() < facesOfShape) {
        // Neighbours share an edge.
        std::rotate(points.begin(), points.begin() + 1, points.end());
        points.back() = addPoint();
        auto const loop = add("IFCPOLYLOOP", references(points));
        auto const bound = add("IFCFACEOUTERBOUND", reference(loop) + ",.T.");
        faces.push_back(add("IFCFACE", references({bound})));
    }
    auto const shell = add("IFCCLOSEDSHELL", references(faces));
    auto const body = add("IFCFACETEDBREP", reference(shell));
    auto const representation =
        add("IFCSHAPEREPRESENTATION", reference(m_context) + ",'Body','Brep'," + references({body}));
    return add("IFCPRODUCTDEFINITIONSHAPE", "$,$," + references({representation}));
}

std::uint64_t ModelGenerator::addPlacement(std::uint64_t parent)
{
    auto const point = addPoint();
    auto const up = add("IFCDIRECTION", "(0.,0.,1.)");
    auto const right = add("IFCDIRECTION", coordinates(3));
    auto const axes =
        add("IFCAXIS2PLACEMENT3D", reference(point) + "," + reference(up) + "," + reference(right));
    return add("IFCLOCALPLACEMENT", reference(parent) + "," + reference(axes));
}

std::uint64_t ModelGenerator::addPoint() { return add("IFCCARTESIANPOINT", coordinates(3)); }

std::uint64_t ModelGenerator::addSingleValue(std::string_view name, std::string const& value)
{
    return add("IFCPROPERTYSINGLEVALUE", inQuotes(name) + ",$," + value + ",$");
}

std::uint64_t ModelGenerator::addQuantity(std::string_view keyword, std::string_view name)
{
    return add(keyword, inQuotes(name) + ",$,$," + coordinate() + ",$");
}

void ModelGenerator::addSharedSet(std::vector<std::uint64_t> const& elements)
{
    std::vector<std::uint64_t> const properties = {
        addSingleValue("Phase", "IFCLABEL('New construction')"),
        addSingleValue("Level", "IFCTEXT('Level " + std::to_string(m_storeys.size()) + "')"),
        addSingleValue("Budget", "IFCREAL(" + coordinate() + ")")};
    auto const set = add("IFCPROPERTYSET", root("Planning") + "," + references(properties));
    add("IFCRELDEFINESBYPROPERTIES", root() + ",$,$," + references(elements) + "," + reference(set));
}

void ModelGenerator::addRelations()
{
    add("IFCRELAGGREGATES", root() + ",$,$," + reference(m_building) + "," + references(m_storeys));
    for (ElementClass const& elementClass : m_classes) {
        if (!elementClass.elements.empty())
            add("IFCRELDEFINESBYTYPE",
                root() + ",$,$," + references(elementClass.elements) + "," + reference(elementClass.type));
    }
}

std::string ModelGenerator::root()
{
    constexpr std::string_view digits = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_$";
    constexpr std::size_t length = 22;
    std::string id;
    // The first digit has two bits only. The id of the record before keeps all ids apart.
    id += digits[m_lastId % 4];
    for (std::uint64_t rest = m_lastId; rest != 0; rest /= digits.size())
        id += digits[rest % digits.size()];
    while (id.size() < length)
        id += digits[(m_lastId * 7 + id.size() * id.size()) % digits.size()];
    return inQuotes(id) + "," + reference(m_history);
}

std::string ModelGenerator::root(std::string_view name) { return root() + "," + inQuotes(name) + ",$"; }

std::string ModelGenerator::coordinates(unsigned int count)
{
    std::string text = "(" + coordinate();
    for (unsigned int i = 1; i < count; ++i)
        text += "," + coordinate();
    return text + ")";
}

std::string ModelGenerator::coordinate()
{
    // Some are round, as what was drawn on a grid is, and most are not.
    std::uint64_t const number = random();
    bool const isRound = number % 4 == 0;
    double const value = isRound ? static_cast<double>(number % 200) * 50.0
                                 : static_cast<double>(number % 20'000'000'000) * 1e-6 - 8000.0;
    std::array<char, 40> text = {};
    auto const end = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed,
                                   isRound ? 0 : 6)
                         .ptr;
    return std::string(text.data(), end) + (isRound ? "." : "");
}

std::uint64_t ModelGenerator::random()
{
    // The splitmix64 sequence.
    m_random += 0x9e3779b97f4a7c15U;
    std::uint64_t mixed = m_random;
    mixed = (mixed ^ (mixed >> 30)) * 0xbf58476d1ce4e5b9U;
    mixed = (mixed ^ (mixed >> 27)) * 0x94d049bb133111ebU;
    return mixed ^ (mixed >> 31);
}

} // namespace qev::benchmarks
