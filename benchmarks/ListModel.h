#pragma once

#include "Format/Ifc/Model/IfcFile.h"

#include <memory>
#include <string>
#include <vector>

namespace qev::benchmarks {

/// Walls with sixty properties each, in six sets: texts, numbers with and without units, and truth values.
class ListModel
{
public:
    static constexpr int sets = 6;
    static constexpr int propertiesPerSet = 10;
    static constexpr int columns = sets * propertiesPerSet;

    explicit ListModel(int walls);
    ~ListModel();

    [[nodiscard]] std::shared_ptr<fc::Data> const& getData() const { return m_file->data(); }
    /// The walls over and over again, as many as \p count.
    [[nodiscard]] std::vector<std::shared_ptr<fc::FcBase>> getObjects(std::size_t count) const;
    [[nodiscard]] static std::string getSetName(int set);

private:
    static std::string makeText(int walls);

    std::unique_ptr<ifc::IfcFile> m_file;
};

} // namespace qev::benchmarks
