#include "Core/Unit/QuantityPresentationFactory.h"

#include <algorithm>
#include <array>
#include <utility>

namespace qev::unit {

namespace {

using MakePresentation = std::unique_ptr<QuantityPresentationBase> (*)();

template <QuantityId Id>
std::unique_ptr<QuantityPresentationBase> makePresentationOf()
{
    return makeQuantityPresentation<SiUnitOf<Id>>();
}

template <std::size_t... Positions>
constexpr auto presentationMakers(std::index_sequence<Positions...>)
{
    return std::array<std::pair<QuantityId, MakePresentation>, sizeof...(Positions)>{
        {{quantityFacts[Positions].id, &makePresentationOf<quantityFacts[Positions].id>}...}};
}

std::unique_ptr<QuantityPresentationBase> makePresentation(QuantityId id)
{
    static constexpr auto makers = presentationMakers(std::make_index_sequence<quantityFacts.size()>());
    auto const maker =
        std::find_if(makers.begin(), makers.end(), [id](auto const& entry) { return entry.first == id; });
    return maker == makers.end() ? nullptr : maker->second();
}

struct Measure
{
    std::string_view name;
    QuantityId quantity;
};

constexpr std::array measures = std::to_array<Measure>({
    {"AbsorbedDoseMeasure", QuantityId::AbsorbedDose},
    {"AccelerationMeasure", QuantityId::Acceleration},
    {"AmountOfSubstanceMeasure", QuantityId::AmountOfSubstance},
    {"AngularVelocityMeasure", QuantityId::AngularVelocity},
    {"AreaDensityMeasure", QuantityId::AreaDensity},
    {"AreaMeasure", QuantityId::Area},
    {"CountMeasure", QuantityId::Count},
    {"CurvatureMeasure", QuantityId::Curvature},
    {"DoseEquivalentMeasure", QuantityId::DoseEquivalent},
    {"DynamicViscosityMeasure", QuantityId::DynamicViscosity},
    {"ElectricCapacitanceMeasure", QuantityId::ElectricCapacitance},
    {"ElectricChargeMeasure", QuantityId::ElectricCharge},
    {"ElectricConductanceMeasure", QuantityId::ElectricConductance},
    {"ElectricCurrentMeasure", QuantityId::ElectricCurrent},
    {"ElectricResistanceMeasure", QuantityId::ElectricResistance},
    {"ElectricVoltageMeasure", QuantityId::ElectricVoltage},
    {"EnergyMeasure", QuantityId::Energy},
    {"ForceMeasure", QuantityId::Force},
    {"FrequencyMeasure", QuantityId::Frequency},
    {"HeatFluxDensityMeasure", QuantityId::HeatFluxDensity},
    {"HeatingValueMeasure", QuantityId::HeatingValue},
    {"IlluminanceMeasure", QuantityId::Illuminance},
    {"InductanceMeasure", QuantityId::Inductance},
    {"IonConcentrationMeasure", QuantityId::IonConcentration},
    {"IsothermalMoistureCapacityMeasure", QuantityId::IsothermalMoistureCapacity},
    {"KinematicViscosityMeasure", QuantityId::KinematicViscosity},
    {"LengthMeasure", QuantityId::Length},
    {"LinearForceMeasure", QuantityId::LinearForce},
    {"LinearMomentMeasure", QuantityId::LinearMoment},
    {"LinearStiffnessMeasure", QuantityId::LinearStiffness},
    {"LinearVelocityMeasure", QuantityId::Velocity},
    {"LuminousFluxMeasure", QuantityId::LuminousFlux},
    {"LuminousIntensityDistributionMeasure", QuantityId::LuminousIntensityDistribution},
    {"LuminousIntensityMeasure", QuantityId::LuminousIntensity},
    {"MagneticFluxDensityMeasure", QuantityId::MagneticFluxDensity},
    {"MagneticFluxMeasure", QuantityId::MagneticFlux},
    {"MassDensityMeasure", QuantityId::MassDensity},
    {"MassFlowRateMeasure", QuantityId::MassFlow},
    {"MassMeasure", QuantityId::Mass},
    {"MassPerLengthMeasure", QuantityId::MassPerLength},
    {"ModulusOfElasticityMeasure", QuantityId::ModulusOfElasticity},
    {"ModulusOfLinearSubgradeReactionMeasure", QuantityId::LinearSubgradeReaction},
    {"ModulusOfRotationalSubgradeReactionMeasure", QuantityId::RotationalSubgradeReaction},
    {"ModulusOfSubgradeReactionMeasure", QuantityId::SubgradeReaction},
    {"MoistureDiffusivityMeasure", QuantityId::MoistureDiffusivity},
    {"MolecularWeightMeasure", QuantityId::MolecularWeight},
    {"MomentOfInertiaMeasure", QuantityId::MomentOfInertia},
    {"NonNegativeLengthMeasure", QuantityId::Length},
    {"NormalisedRatioMeasure", QuantityId::Ratio},
    {"PlanarForceMeasure", QuantityId::Pressure},
    {"PlaneAngleMeasure", QuantityId::PlaneAngle},
    {"PositiveLengthMeasure", QuantityId::Length},
    {"PositivePlaneAngleMeasure", QuantityId::PlaneAngle},
    {"PositiveRatioMeasure", QuantityId::Ratio},
    {"PowerMeasure", QuantityId::Power},
    {"PressureMeasure", QuantityId::Pressure},
    {"RadioActivityMeasure", QuantityId::RadioActivity},
    {"RatioMeasure", QuantityId::Ratio},
    {"RotationalFrequencyMeasure", QuantityId::Frequency},
    {"RotationalMassMeasure", QuantityId::RotationalMass},
    {"RotationalStiffnessMeasure", QuantityId::RotationalStiffness},
    {"SectionModulusMeasure", QuantityId::SectionModulus},
    {"SectionalAreaIntegralMeasure", QuantityId::SectionalAreaIntegral},
    {"ShearModulusMeasure", QuantityId::ModulusOfElasticity},
    {"SolidAngleMeasure", QuantityId::SolidAngle},
    {"SoundPowerLevelMeasure", QuantityId::SoundLevel},
    {"SoundPowerMeasure", QuantityId::Power},
    {"SoundPressureLevelMeasure", QuantityId::SoundLevel},
    {"SoundPressureMeasure", QuantityId::Pressure},
    {"SpecificHeatCapacityMeasure", QuantityId::SpecificHeatCapacity},
    {"TemperatureGradientMeasure", QuantityId::TemperatureGradient},
    {"TemperatureRateOfChangeMeasure", QuantityId::TemperatureRateOfChange},
    {"ThermalAdmittanceMeasure", QuantityId::ThermalTransmittance},
    {"ThermalConductivityMeasure", QuantityId::ThermalConductivity},
    {"ThermalExpansionCoefficientMeasure", QuantityId::ThermalExpansion},
    {"ThermalResistanceMeasure", QuantityId::ThermalResistance},
    {"ThermalTransmittanceMeasure", QuantityId::ThermalTransmittance},
    {"ThermodynamicTemperatureMeasure", QuantityId::Temperature},
    {"TimeMeasure", QuantityId::Time},
    {"TorqueMeasure", QuantityId::Torque},
    {"VaporPermeabilityMeasure", QuantityId::VaporPermeability},
    {"VolumeMeasure", QuantityId::Volume},
    {"VolumetricFlowRateMeasure", QuantityId::VolumeFlow},
    {"WarpingConstantMeasure", QuantityId::WarpingConstant},
    {"WarpingMomentMeasure", QuantityId::WarpingMoment},
});

} // namespace

QuantityPresentationFactory::QuantityPresentationFactory() = default;

QuantityPresentationFactory::~QuantityPresentationFactory() = default;

QuantityPresentationFactory& QuantityPresentationFactory::current()
{
    static QuantityPresentationFactory factory;
    return factory;
}

void QuantityPresentationFactory::registerIfcProperty(std::string const& ifcPropertyId, Creator creator)
{
    if (creator)
        m_creators.insert_or_assign(ifcPropertyId, std::move(creator));
    else
        m_creators.erase(ifcPropertyId);
}

std::unique_ptr<QuantityPresentationBase> QuantityPresentationFactory::createFromIfcPropertyId(
    QuantityPresentationBase const* given, std::string const& ifcPropertyId, std::string const& context) const
{
    auto const entry = m_creators.find(ifcPropertyId);
    if (entry == m_creators.end())
        return nullptr;
    auto presentation = entry->second(0.0, context);
    if (!presentation || !given)
        return presentation;
    if (&given->unit().quantity() != &presentation->unit().quantity())
        return nullptr;
    presentation->setValue(convert(given->value(), given->unit(), presentation->unit()));
    return presentation;
}

std::unique_ptr<QuantityPresentationBase>
QuantityPresentationFactory::createNewBaseUniqueFromIfcPropertyIdWithSanityCheck(
    QuantityPresentationBase const* given, std::string const& ifcPropertyId, std::string const& context)
{
    return current().createFromIfcPropertyId(given, ifcPropertyId, context);
}

std::unique_ptr<QuantityPresentationBase> createPresentationForMeasure(std::string_view ifcTypeNameWithoutIfc)
{
    auto const measure =
        std::lower_bound(measures.begin(), measures.end(), ifcTypeNameWithoutIfc,
                         [](Measure const& entry, std::string_view name) { return entry.name < name; });
    if (measure == measures.end() || measure->name != ifcTypeNameWithoutIfc)
        return nullptr;
    return makePresentation(measure->quantity);
}

} // namespace qev::unit
