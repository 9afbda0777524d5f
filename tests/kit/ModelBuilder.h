#pragma once

#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Core/ProductExtension/FcElementQuantity.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/ForwardDeclarations.h"
#include "FoundationClasses/Resource/Measure/FcValue.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// Small models for tests, built in memory.
///
/// \code
/// Model model;
/// auto const wall = model.wall("W1");
/// model.addSet(wall, "Pset_WallCommon", {{"FireRating", label("F30")}, {"IsExternal", boolean(true)}});
/// model.addQuantities(wall, "Qto_WallBaseQuantities", {{"Length", 2.5}});
/// \endcode
namespace qev::test {

using fc::resource::measure::FcValue;

// --- Values -------------------------------------------------------------------------------------

FcValue label(std::string text);
FcValue text(std::string text);
FcValue identifier(std::string text);
FcValue boolean(bool value);
FcValue logical(fc::Logical value);
FcValue integer(std::int64_t value);
FcValue real(double value);
/// Metres.
FcValue length(double value);
/// A number of any numeric type, in SI units: `number("ThermalTransmittanceMeasure", 0.24)`.
FcValue number(std::string const& typeName, double value);
/// Any value, by the type's name without "Ifc" and the text that a user would type.
FcValue valueOf(std::string const& typeName, std::string const& typed);

struct NamedValue
{
    std::string name;
    FcValue value;
};

/// What kind of quantity a `NamedQuantity` becomes.
enum class QuantityKind
{
    Length,
    Area,
    Volume,
    Weight,
    Time,
    Count,
    Number
};

struct NamedQuantity
{
    std::string name;
    double value = 0.0;
    QuantityKind kind = QuantityKind::Length;
};

std::shared_ptr<fc::resource::property::FcPropertySingleValue> singleValue(std::string name, FcValue value);
/// \p choices become an enumeration reference unless they are empty.
std::shared_ptr<fc::resource::property::FcPropertyEnumeratedValue>
enumeratedValue(std::string name, std::vector<FcValue> values, std::vector<FcValue> choices);
/// Empty values are left unset.
std::shared_ptr<fc::resource::property::FcPropertyBoundedValue> boundedValue(std::string name, FcValue lower,
                                                                             FcValue upper, FcValue setPoint);
std::shared_ptr<fc::resource::property::FcPropertyListValue> listValue(std::string name,
                                                                       std::vector<FcValue> values);
std::shared_ptr<fc::resource::property::FcPropertyTableValue>
tableValue(std::string name, std::vector<std::pair<FcValue, FcValue>> rows);
std::shared_ptr<fc::resource::quantity::FcPhysicalSimpleQuantity> quantity(NamedQuantity const& quantity);

// --- The model ----------------------------------------------------------------------------------

/// A model and what it takes to fill it. Every object it makes is in the model, with a global id and a name.
class Model
{
public:
    using Object = std::shared_ptr<fc::core::kernel::FcObjectDefinition>;
    using Objects = std::vector<Object>;

    Model();
    ~Model();

    [[nodiscard]] std::shared_ptr<fc::Data> const& data() const { return m_data; }

    /// A new entity of any rooted class.
    template <class T>
    std::shared_ptr<T> add(std::string const& name)
    {
        auto entity = std::make_shared<T>();
        registerRoot(entity, name);
        return entity;
    }

    std::shared_ptr<fc::shared::sharedbldgelements::FcWall> wall(std::string const& name);
    std::shared_ptr<fc::shared::sharedbldgelements::FcDoor> door(std::string const& name);
    std::shared_ptr<fc::shared::sharedbldgelements::FcSlab> slab(std::string const& name);
    std::shared_ptr<fc::shared::sharedbldgelements::FcWallType> wallType(std::string const& name);
    std::shared_ptr<fc::shared::sharedbldgelements::FcDoorType> doorType(std::string const& name);
    std::shared_ptr<fc::core::kernel::FcProject> project(std::string const& name);
    std::shared_ptr<fc::core::productextension::FcSite> site(std::string const& name);
    std::shared_ptr<fc::core::productextension::FcBuilding> building(std::string const& name);
    std::shared_ptr<fc::core::productextension::FcBuildingStorey> storey(std::string const& name);
    std::shared_ptr<fc::core::productextension::FcSpace> space(std::string const& name);

    /// Attaches a set of single values to an object, a type or a context; adds to a set that is there.
    std::shared_ptr<fc::core::kernel::FcPropertySet> addSet(Object const& object, std::string const& name,
                                                            std::vector<NamedValue> const& values = {});
    std::shared_ptr<fc::core::productextension::FcElementQuantity>
    addQuantities(Object const& object, std::string const& name,
                  std::vector<NamedQuantity> const& quantities = {});
    /// Attaches one set to one more object, in a relation of its own.
    void shareSet(std::shared_ptr<fc::core::kernel::FcPropertySetDefinition> const& set,
                  Object const& object);
    /// Adds an object to the relation of a set that is attached to others already.
    void joinSet(std::shared_ptr<fc::core::kernel::FcPropertySetDefinition> const& set, Object const& object);

    void assignType(std::shared_ptr<fc::core::kernel::FcTypeObject> const& type,
                    std::vector<std::shared_ptr<fc::core::kernel::FcObject>> const& objects);
    /// Makes \p parts parts of \p whole.
    void aggregate(Object const& whole, Objects const& parts);
    void contain(std::shared_ptr<fc::core::productextension::FcSpatialElement> const& structure,
                 std::vector<std::shared_ptr<fc::core::kernel::FcProduct>> const& products);

private:
    void registerRoot(std::shared_ptr<fc::core::kernel::FcRoot> const& entity, std::string const& name);

    std::shared_ptr<fc::Data> m_data;
};

} // namespace qev::test
