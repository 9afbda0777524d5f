#include "FoundationClasses/Resource/Measure/FcCompoundPlaneAngleMeasure.h"

#include "FoundationClasses/AttributeReader.h"
#include "FoundationClasses/AttributeWriter.h"
#include "FoundationClasses/EntityClass.h"
#include "FoundationClasses/Payload.h"

#include <cmath>
#include <utility>

namespace qev::fc::resource::measure {

namespace {

constexpr double degreesOfTurn = 360.0;
constexpr std::int64_t millionthsOfSecond = 1'000'000;
constexpr std::int64_t millionthsOfMinute = 60 * millionthsOfSecond;
constexpr std::int64_t millionthsOfDegree = 60 * millionthsOfMinute;
constexpr std::int64_t millionthsOfTurn = 360 * millionthsOfDegree;

std::vector<std::int64_t> componentsOf(double degrees)
{
    double const withinTurn = std::isfinite(degrees) ? std::fmod(degrees, degreesOfTurn) : 0.0;
    // Division of whole numbers cuts towards zero, which gives all components the sign of the angle.
    std::int64_t const all = std::llround(withinTurn * millionthsOfDegree) % millionthsOfTurn;
    return {all / millionthsOfDegree, all % millionthsOfDegree / millionthsOfMinute,
            all % millionthsOfMinute / millionthsOfSecond, all % millionthsOfSecond};
}

} // namespace

FcCompoundPlaneAngleMeasure::FcCompoundPlaneAngleMeasure(std::vector<std::int64_t> components)
    : m_components(std::move(components))
{
}

FcCompoundPlaneAngleMeasure::FcCompoundPlaneAngleMeasure(double degrees)
    : m_components(componentsOf(degrees))
{
}

double FcCompoundPlaneAngleMeasure::angleMeasure() const
{
    std::int64_t const scales[] = {millionthsOfDegree, millionthsOfMinute, millionthsOfSecond, 1};
    double all = 0.0;
    for (std::size_t i = 0; i < m_components.size() && i < std::size(scales); ++i)
        all += static_cast<double>(m_components[i]) * static_cast<double>(scales[i]);
    return all / static_cast<double>(millionthsOfDegree);
}

bool read(FcCompoundPlaneAngleMeasure& angle, AttributeDescriptor const& attribute,
          step::StepValue const& from, AttributeReader& reader)
{
    auto const payload = readPayload(attribute.typeName, ValueKind::Integer, true, from, reader);
    if (!payload) {
        reader.mismatch(attribute, "a list of whole numbers", from);
        return false;
    }
    angle = FcCompoundPlaneAngleMeasure(std::get<std::vector<std::int64_t>>(*payload));
    return true;
}

step::StepValue write(FcCompoundPlaneAngleMeasure const& angle, AttributeDescriptor const& attribute,
                      AttributeWriter const& writer)
{
    return writePayload(attribute.typeName, angle.components(), writer);
}

std::optional<std::string> text(FcCompoundPlaneAngleMeasure const& angle, AttributeDescriptor const&)
{
    return payloadText(angle.components());
}

} // namespace qev::fc::resource::measure
