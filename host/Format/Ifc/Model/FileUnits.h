#pragma once

#include "Format/Ifc/Step/StepFile.h"
#include "Format/Ifc/Step/StepRecordParser.h"
#include "FoundationClasses/UnitScale.h"
#include "HostIfcModelExport.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace qev::ifc {

/// The units of a file: how its numbers become SI units.
///
/// Read from the unit assignment of the project: SI units with prefixes, conversion-based units with
/// and without offset, and derived units. A measure without a unit in the assignment is taken as SI.
class HOSTIFCMODEL_EXPORT FileUnits
{
public:
    /// What a single unit of the file is.
    struct Unit
    {
        /// The item of its unit type, "LENGTHUNIT"; "USERDEFINED" for types of the author's own.
        std::string unitType;
        fc::UnitScale scale;
    };

    /// \param project the record of the project, whose unit assignment counts; without one all numbers are SI
    FileUnits(step::StepFile const& file, std::optional<step::RecordIndex> project);

    /// The scale of a measure type ("IfcLengthMeasure") by the unit assignment.
    [[nodiscard]] fc::UnitScale scaleOf(std::string_view measureType) const;
    /// The scale of a measure type for a value that has the unit of record \p unit of its own. A unit
    /// of another kind than the measure does not count; for a plain number (IfcReal) any does.
    [[nodiscard]] fc::UnitScale scaleOf(std::string_view measureType, step::InstanceId unit) const;
    /// A single unit; no value when the record is none or leads in circles.
    [[nodiscard]] std::optional<Unit> unitFromId(step::InstanceId id) const;

    /// The unit type of a measure type: "LENGTHUNIT" of "IfcPositiveLengthMeasure"; empty for a type without
    /// a unit.
    [[nodiscard]] static std::string unitTypeOf(std::string_view measureType);

private:
    static constexpr unsigned int maximumDepth = 16;

    void readAssignment(step::RecordIndex project);
    [[nodiscard]] std::optional<Unit> readUnit(step::InstanceId id, unsigned int depth) const;
    [[nodiscard]] std::optional<Unit> readConversion(std::vector<step::StepValue> const& arguments,
                                                     unsigned int depth) const;
    [[nodiscard]] std::optional<Unit> readDerived(std::vector<step::StepValue> const& arguments,
                                                  unsigned int depth) const;
    [[nodiscard]] std::vector<step::StepValue> argumentsOf(step::InstanceId id, std::string& keyword) const;

    step::StepFile const& m_file;
    step::StepRecordParser m_parser;
    std::map<std::string, fc::UnitScale, std::less<>> m_scaleByUnitType;
    mutable std::unordered_map<std::string_view, fc::UnitScale> m_scaleByMeasure;
    mutable std::unordered_map<step::InstanceId, std::optional<Unit>> m_units;
};

} // namespace qev::ifc
