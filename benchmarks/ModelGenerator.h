#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace qev::benchmarks {

/// Writes large building models, the same bytes for the same size on every machine.
///
/// Nine tenths of the bytes are geometry, as in real models: faceted bodies of points, loops and faces. The
/// rest are walls, doors, windows and columns in storeys, with property sets of their own and shared ones,
/// quantities, and types with sets.
class ModelGenerator
{
public:
    /// The file has about \p size bytes.
    ModelGenerator(std::filesystem::path const& path, std::uint64_t size);

    /// \returns false when the file could not be written.
    bool run();

private:
    /// What the elements of one class have in common.
    struct ElementClass
    {
        std::string_view keyword;
        /// The arguments behind `Tag`.
        std::string_view lastArguments;
        std::string_view set;
        std::string_view quantities;
        std::uint64_t type = 0;
        std::vector<std::uint64_t> elements;
    };

    /// Writes a record and gives its id.
    std::uint64_t add(std::string_view keyword, std::string const& arguments);
    void addHeader();
    void addUnits();
    void addProject();
    void addTypes();
    void addStorey(unsigned int number);
    void addElement(ElementClass& elementClass, std::uint64_t placement);
    void addProperties(ElementClass const& elementClass, std::uint64_t element);
    void addQuantities(ElementClass const& elementClass, std::uint64_t element);
    std::uint64_t addShape();
    std::uint64_t addPlacement(std::uint64_t parent);
    std::uint64_t addPoint();
    std::uint64_t addSingleValue(std::string_view name, std::string const& value);
    std::uint64_t addQuantity(std::string_view keyword, std::string_view name);
    /// A set of a project's own, for many elements at once.
    void addSharedSet(std::vector<std::uint64_t> const& elements);
    void addRelations();

    /// The beginning of every rooted record: a global id and the owner history.
    std::string root();
    /// The same with a name and no description.
    std::string root(std::string_view name);
    std::string coordinates(unsigned int count);
    std::string coordinate();
    std::uint64_t random();

    std::ofstream m_file;
    std::string m_buffer;
    std::uint64_t m_size = 0;
    std::uint64_t m_written = 0;
    std::uint64_t m_lastId = 0;
    std::uint64_t m_random = 1;
    std::uint64_t m_history = 0;
    std::uint64_t m_units = 0;
    std::uint64_t m_context = 0;
    std::uint64_t m_building = 0;
    std::uint64_t m_buildingPlacement = 0;
    std::uint64_t m_elementCount = 0;
    std::vector<std::uint64_t> m_storeys;
    std::vector<std::uint64_t> m_storeyElements;
    std::vector<ElementClass> m_classes;
};

} // namespace qev::benchmarks
