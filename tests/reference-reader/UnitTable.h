#pragma once

#include "reference-reader/StepDocument.h"
#include "reference-reader/UnitScale.h"

#include <map>
#include <string>

namespace qev::test::reference {

/// The units of a file: those of the project by kind, and any single unit by its record.
///
/// The SI unit of mass is the kilogram. A prefix before a square or cubic metre belongs to the metre, so that
/// it counts twice or three times. A temperature difference in a derived unit has no offset.
class UnitTable
{
public:
    explicit UnitTable(StepDocument const& document);

    /// The scale of the unit that the project names for \p measure (in capitals, `IFCLENGTHMEASURE`); one
    /// without a unit in the project is in SI units.
    [[nodiscard]] UnitScale ofMeasure(std::string const& measure) const;

    /// The scale of the unit that \p unit refers to. Money and context dependent units have no scale.
    [[nodiscard]] UnitScale ofUnit(StepArgument const& unit) const;

    /// The kind of unit that numbers of \p measure are in, `LENGTHUNIT`; it need not be one of the standard.
    [[nodiscard]] static std::string unitTypeOf(std::string const& measure);

private:
    [[nodiscard]] UnitScale scale(StepArgument const& unit, int depth) const;
    [[nodiscard]] UnitScale conversionScale(StepRecord const& unit, int depth) const;
    [[nodiscard]] UnitScale derivedScale(StepRecord const& unit, int depth) const;

    StepDocument const& m_document;
    std::map<std::string, UnitScale> m_project;
};

} // namespace qev::test::reference
