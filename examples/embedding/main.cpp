// Shows the library in a program of one's own: a model built in memory, its grid on the headless back end,
// an edit as a user would make it, and what the program hears of it.

#include "Core/Id/Guid.h"
#include "Format/Ifc/Schema/SchemaLoader.h"
#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/Resource/Property/FcPropertySingleValue.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "UI/FoundationClasses/Controls/PropertySetDefinitionFilterInterface.h"
#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertySetGridControl.h"
#include "Ui/Headless/HeadlessBackend.h"

#include <iostream>

namespace {

using namespace qev;
using fc::core::kernel::FcPropertySet;
using fc::resource::property::FcPropertySingleValue;
using fc::shared::sharedbldgelements::FcWall;

/// Shows the set of the standard for walls and nothing else.
class WallsOnly final : public fc::ui::PropertySetDefinitionFilterInterface
{
public:
    void setObject(std::shared_ptr<fc::FcBase>) override {}
    [[nodiscard]] bool isSetIncluded(std::string const& setName) const override
    {
        return setName == "Pset_WallCommon";
    }
    [[nodiscard]] bool isPropertyIncluded(std::string const&, std::string const&) const override
    {
        return true;
    }
};

std::shared_ptr<FcWall> addWall(fc::Data& data)
{
    auto const wall = std::make_shared<FcWall>();
    wall->setGuid(Guid::generate());
    wall->Name = "Wall 1";
    data.entityAdd(wall, false);
    return wall;
}

} // namespace

int main()
{
    auto const data = fc::Data::create();
    auto const wall = addWall(*data);
    auto const backend = ui::HeadlessBackend::install();
    auto const dialog = backend->createDialog({800, 600}, "Embedding");

    using Formatters =
        fc::ui::PropertySetControlFormatters<fc::ui::PropertyGridControlPropertyFormatterInterface>;
    auto const control = std::make_shared<fc::ui::PropertySetGridControl>(
        ifc::SchemaLoader::curr().pSchemaFromName("IFC4X3_TC1"), data, dialog, std::make_shared<WallsOnly>(),
        Formatters{}, std::vector<std::string>{"IfcProperties"}, nullptr);
    control->init(0, std::nullopt, true);
    control->propertyChangedHandlers.iHandlerAdd(
        [](std::string const& set, std::string const& property, std::set<std::size_t> const&) {
            std::cout << "changed: " << set << ", " << property << "\n\n";
        });
    control->setObject(data, wall);

    auto const grid = backend->getPropertyGrid(*control->getPropertyGridControl());
    if (!grid->type(grid->findRow({"Pset_WallCommon", "FireRating"}), "F90"))
        return 1;
    std::cout << grid->dump();

    auto const set = wall->getPropertySetDefinitionNonConst<FcPropertySet>("Pset_WallCommon");
    return set && set->hasProperty("FireRating") ? 0 : 1;
}
