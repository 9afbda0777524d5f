#include "UI/FoundationClasses/Property/MeasurePresentation.h"

#include "Core/Unit/Quantity.h"
#include "Core/Unit/QuantityPresentation.h"

#include <algorithm>
#include <array>

namespace qev::fc::ui {

namespace {

using Make = std::unique_ptr<unit::QuantityPresentationBase> (*)();

template <class SiUnit>
std::unique_ptr<unit::QuantityPresentationBase> make()
{
    return unit::makeQuantityPresentation<SiUnit>();
}

struct Entry
{
    std::string_view measure;
    Make make;
};

constexpr std::string_view plainRatio = "RatioMeasure";
constexpr std::string_view prefix = "Ifc";

constexpr std::array entries{
    Entry{"AreaMeasure", make<unit::AreaUnit>},
    Entry{"VolumetricFlowRateMeasure", make<unit::VolumeFlowUnit>},
    Entry{"CountMeasure", make<unit::CountUnit>},
    Entry{"ThermodynamicTemperatureMeasure", make<unit::TemperatureUnit>},
    Entry{"PowerMeasure", make<unit::PowerUnit>},
    Entry{"LengthMeasure", make<unit::LengthUnit>},
    Entry{"PositiveLengthMeasure", make<unit::LengthUnit>},
    Entry{"NonNegativeLengthMeasure", make<unit::LengthUnit>},
    Entry{"VolumeMeasure", make<unit::VolumeUnit>},
    Entry{"PositiveRatioMeasure", make<unit::RatioUnit>},
    Entry{plainRatio, make<unit::RatioUnit>},
    Entry{"TimeMeasure", make<unit::TimeUnit>},
    Entry{"ThermalTransmittanceMeasure", make<unit::ThermalTransmittanceUnit>},
    Entry{"PlaneAngleMeasure", make<unit::PlaneAngleUnit>},
};

} // namespace

std::unique_ptr<unit::QuantityPresentationBase> presentationOfPropertyMeasure(std::string_view name)
{
    auto const found = std::find_if(entries.begin(), entries.end(),
                                    [name](Entry const& entry) { return entry.measure == name; });
    return found == entries.end() ? nullptr : found->make();
}

std::unique_ptr<unit::QuantityPresentationBase> presentationOfAttributeMeasure(std::string_view name)
{
    if (!name.starts_with(prefix))
        return nullptr;
    auto const measure = name.substr(prefix.size());
    return measure == plainRatio ? nullptr : presentationOfPropertyMeasure(measure);
}

} // namespace qev::fc::ui
