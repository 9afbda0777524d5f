#pragma once

#include "Format/Ifc/Step/StepValue.h"
#include "HostFoundationClassesExport.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace qev::fc {
class AttributeReader;
class AttributeWriter;
struct AttributeDescriptor;
} // namespace qev::fc

namespace qev::fc::resource::measure {

/// An angle in degrees, minutes, seconds and millionths of a second, all of one sign:
/// IfcCompoundPlaneAngleMeasure.
class HOSTFOUNDATIONCLASSES_EXPORT FcCompoundPlaneAngleMeasure
{
public:
    /// No components: the angle 0.
    FcCompoundPlaneAngleMeasure() = default;
    /// The components as a file has them: three, or four with the millionths.
    explicit FcCompoundPlaneAngleMeasure(std::vector<std::int64_t> components);
    /// An angle in degrees, to the nearest millionth of a second. Whole turns are taken off; what is no
    /// finite number gives 0.
    explicit FcCompoundPlaneAngleMeasure(double degrees);

    [[nodiscard]] std::vector<std::int64_t> const& components() const { return m_components; }
    /// The angle in degrees, the unit of its components, which no file can choose otherwise.
    [[nodiscard]] double angleMeasure() const;

    friend bool operator==(FcCompoundPlaneAngleMeasure const&, FcCompoundPlaneAngleMeasure const&) = default;

private:
    std::vector<std::int64_t> m_components;
};

/// How an attribute of this type is read, written and shown.
HOSTFOUNDATIONCLASSES_EXPORT bool read(FcCompoundPlaneAngleMeasure& angle,
                                       AttributeDescriptor const& attribute, step::StepValue const& from,
                                       AttributeReader& reader);
HOSTFOUNDATIONCLASSES_EXPORT step::StepValue write(FcCompoundPlaneAngleMeasure const& angle,
                                                   AttributeDescriptor const& attribute,
                                                   AttributeWriter const& writer);
HOSTFOUNDATIONCLASSES_EXPORT std::optional<std::string> text(FcCompoundPlaneAngleMeasure const& angle,
                                                             AttributeDescriptor const& attribute);

} // namespace qev::fc::resource::measure
